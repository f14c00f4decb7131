#include "formats/StepHeader.h"

#include "formats/JobPaths.h"
#include "formats/LineReader.h"

#include <algorithm>
#include <cmath>
#include <string>
#include <string_view>

namespace KVCAM::Embedded {
namespace {

constexpr std::size_t mostRepeats = 10'000; // blocks of one step
constexpr double farthest = 1e9;            // of a place, in the file's unit, as for every coordinate

// Lengths are in the file's unit until the whole file is read.
class HeaderReader
{
public:
    HeaderReader(QString const & path, Budget & budget) : m_reader(path, budget) { m_header.path = path; }

    StepHeader read()
    {
        while (m_reader.next()) {
            std::string_view const line = m_reader.line();
            if (line.back() == '{' && m_blockLine == 0) {
                begin(upperCase(trimmed(line.substr(0, line.size() - 1))));
            } else if (line == "}" && m_blockLine != 0) {
                end();
            } else {
                readPair(keyValue(m_reader));
            }
        }
        if (m_blockLine != 0) {
            m_reader.fail("the block is not closed", m_blockLine);
        }
        m_header.datum = {m_header.datum.x * m_scale, m_header.datum.y * m_scale};
        for (StepRepeat & repeat : m_header.repeats) {
            for (double * length : {&repeat.x, &repeat.y, &repeat.dx, &repeat.dy}) {
                *length *= m_scale;
            }
        }
        return std::move(m_header);
    }

private:
    void begin(std::string const & kind)
    {
        m_blockLine = m_reader.lineNumber();
        m_isRepeat = kind == "STEP-REPEAT";
        if (m_isRepeat) {
            if (m_header.repeats.size() == mostRepeats) {
                m_reader.fail("more than " + std::to_string(mostRepeats) + " STEP-REPEAT blocks");
            }
            m_header.repeats.emplace_back();
            m_header.lines.push_back(m_blockLine);
        }
    }

    void end()
    {
        if (m_isRepeat) {
            StepRepeat const & repeat = m_header.repeats.back();
            if (repeat.name.empty()) {
                m_reader.fail("the STEP-REPEAT block has no NAME", m_blockLine);
            }
            double const x = repeat.x + (repeat.nx - 1.0) * repeat.dx;
            double const y = repeat.y + (repeat.ny - 1.0) * repeat.dy;
            if (std::max(std::abs(x), std::abs(y)) > farthest) {
                m_reader.fail("the repeats reach too far", m_blockLine);
            }
        }
        m_blockLine = 0;
        m_isRepeat = false;
    }

    void readPair(KeyValue const & pair)
    {
        if (m_isRepeat) {
            readRepeat(pair, m_header.repeats.back());
        } else if (m_blockLine == 0 && pair.key == "X_DATUM") {
            m_header.datum.x = m_reader.decimal(pair.value, "datum");
        } else if (m_blockLine == 0 && pair.key == "Y_DATUM") {
            m_header.datum.y = m_reader.decimal(pair.value, "datum");
        } else if (m_blockLine == 0 && pair.key == "UNITS") {
            m_scale = upperCase(pair.value) == "MM" ? 1000.0 : 25400.0;
        }
    }

    void readRepeat(KeyValue const & pair, StepRepeat & repeat)
    {
        struct Length
        {
            char const * key;
            double StepRepeat::*value;
        };
        static constexpr Length lengths[] = {{"X", &StepRepeat::x},
                                             {"Y", &StepRepeat::y},
                                             {"DX", &StepRepeat::dx},
                                             {"DY", &StepRepeat::dy},
                                             {"ANGLE", &StepRepeat::angle}};
        for (Length const & length : lengths) {
            if (pair.key == length.key) {
                repeat.*length.value = m_reader.decimal(pair.value, length.key);
            }
        }
        if (pair.key == "NAME") {
            repeat.name = lowerCase(std::string(pair.value));
        } else if (pair.key == "NX" || pair.key == "NY") {
            int & count = pair.key == "NX" ? repeat.nx : repeat.ny;
            count = m_reader.integer(pair.value, pair.key.c_str());
            if (count < 1) {
                m_reader.fail(pair.key + " is not a positive number");
            }
        } else if (pair.key == "FLIP" || pair.key == "MIRROR") {
            std::string const answer = upperCase(pair.value);
            if (answer != "YES" && answer != "NO") {
                m_reader.fail(pair.key + " is neither YES nor NO");
            }
            repeat.mirrored = repeat.mirrored || answer == "YES";
        }
    }

    LineReader m_reader;
    StepHeader m_header;
    double m_scale = 25400.0; // micrometres per unit of the file
    int m_blockLine = 0;      // where the open block begins; 0: none is open
    bool m_isRepeat = false;  // that block is a STEP-REPEAT
};

} // namespace

StepHeader readStepHeader(QString const & path, Budget & budget)
{
    return HeaderReader(path, budget).read();
}

} // namespace KVCAM::Embedded
