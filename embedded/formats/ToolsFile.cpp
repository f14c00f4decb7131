#include "formats/ToolsFile.h"

#include "formats/JobPaths.h"
#include "formats/LineReader.h"

namespace KVCAM::Embedded {
namespace {

void readKey(LineReader const & reader, KeyValue const & pair, Tool & tool)
{
    if (pair.key == "NUM") {
        tool.number = reader.integer(pair.value, "tool number");
    } else if (pair.key == "TYPE") {
        tool.type = lowerCase(std::string(pair.value));
    } else if (pair.key == "DRILL_SIZE") {
        tool.drillSize = reader.decimal(pair.value, "drill size");
    } else if (pair.key == "FINISH_SIZE") {
        tool.finishSize = reader.decimal(pair.value, "finish size");
    }
}

Tool readTool(LineReader & reader)
{
    int const begin = reader.lineNumber();
    Tool tool;
    while (reader.next()) {
        if (reader.line() == "}") {
            if (tool.number <= 0) {
                reader.fail("the tool has no positive NUM", begin);
            }
            return tool;
        }
        readKey(reader, keyValue(reader), tool);
    }
    reader.fail("the TOOLS block is not closed", begin);
}

} // namespace

std::vector<Tool> readTools(QString const & path, Budget & budget)
{
    LineReader reader(path, budget);
    double scale = 25.4; // micrometres per unit of the sizes: mil unless the head says otherwise
    std::vector<Tool> tools;
    while (reader.next()) {
        std::string_view const line = reader.line();
        if (line.back() == '{') {
            if (upperCase(trimmed(line.substr(0, line.size() - 1))) != "TOOLS") {
                reader.fail("\"TOOLS {\" expected");
            }
            tools.push_back(readTool(reader));
            continue;
        }
        KeyValue const pair = keyValue(reader);
        if (pair.key == "UNITS") {
            std::string const unit = upperCase(pair.value);
            if (unit != "MM" && unit != "INCH") {
                reader.fail("unknown unit " + quoted(pair.value));
            }
            scale = unit == "MM" ? 1.0 : 25.4;
        }
    }
    for (Tool & tool : tools) {
        tool.drillSize *= scale;
        tool.finishSize *= scale;
    }
    return tools;
}

} // namespace KVCAM::Embedded
