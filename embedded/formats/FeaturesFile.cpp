#include "formats/FeaturesFile.h"

#include "formats/JobPaths.h"
#include "formats/LineReader.h"

#include <algorithm>
#include <set>
#include <utility>

namespace KVCAM::Embedded {
namespace {

constexpr std::size_t longestName = 128; // each feature record holds a copy

class FeaturesReader
{
public:
    FeaturesReader(QString const & path, Budget & budget) : m_reader(path, budget)
    {
        m_file.path = path;
        // Growing by doubling would take three times the memory for a moment.
        m_file.features.reserve(m_reader.countRecords("PLAS"));
    }

    FeaturesFile read(bool tablesOnly)
    {
        while (m_reader.next()) {
            readLine();
        }
        if (m_surfaceLine != 0) {
            m_reader.fail("the surface is not ended by SE", m_surfaceLine);
        }
        for (auto & [index, symbol] : m_file.symbols) {
            symbol.unit = symbol.unit < 0 ? m_file.unit : symbol.unit;
        }
        auto const count = static_cast<int>(m_file.features.size());
        if (m_announcedLine != 0 && m_announced != count && !tablesOnly) {
            m_reader.fail(std::to_string(m_announced) + " features announced, " + std::to_string(count) +
                              " found",
                          m_announcedLine);
        }
        return std::move(m_file);
    }

private:
    void readLine()
    {
        std::string_view const line = m_reader.line();
        switch (line.front()) {
        case '$':
            return readSymbol(line.substr(1));
        case '@':
            return readAttributeName(line.substr(1));
        case '&':
            return checkText(line.substr(1), m_attributeTexts);
        default:
            break;
        }
        std::string_view const record = line.substr(0, line.find(';'));
        std::string_view const tail = line.substr(record.size());
        std::string_view const letter = record.substr(0, record.find_first_of(" \t"));
        if (letter.find('=') != std::string_view::npos) {
            return readHead();
        }
        Words words(m_reader, record.substr(letter.size()));
        if (m_surfaceLine != 0) {
            readSurfaceRecord(letter, words);
        } else if (letter == "U") {
            setUnit(words.next("unit"));
        } else if (letter == "F") {
            readAnnounced(words);
        } else {
            readFeature(letter, words, tail);
        }
        words.end();
    }

    void readHead()
    {
        KeyValue const pair = keyValue(m_reader);
        // Header keys are words above the features; anything else is a damaged record.
        if (!m_file.features.empty() || pair.key.size() < 2) {
            m_reader.fail("a record expected, not " + quoted(m_reader.line()));
        }
        if (pair.key == "UNITS") {
            setUnit(pair.value);
        }
    }

    void readAnnounced(Words & words)
    {
        m_announced = words.integer("number of features");
        m_announcedLine = m_reader.lineNumber();
        if (m_announced < 0) {
            m_reader.fail("negative number of features");
        }
    }

    void setUnit(std::string_view name)
    {
        std::string const unit = upperCase(name);
        if (unit != "MM" && unit != "INCH") {
            m_reader.fail("unknown unit " + quoted(name));
        }
        if (!m_file.features.empty()) {
            m_reader.fail("the unit stands after the first feature");
        }
        m_file.unit = unit == "MM" ? 1 : 0;
        m_scale = unit == "MM" ? 1000.0 : 25400.0;
    }

    // Splits a table line "<index> <text>".
    std::pair<int, std::string_view> entry(std::string_view line) const
    {
        std::string_view const digits = line.substr(0, line.find_first_of(" \t"));
        int const index = m_reader.integer(digits, "table index");
        if (index < 0) {
            m_reader.fail("negative table index");
        }
        return {index, trimmed(line.substr(digits.size()))};
    }

    void checkText(std::string_view line, std::set<int> & table)
    {
        if (!table.insert(entry(line).first).second) {
            m_reader.fail("the table index stands twice");
        }
    }

    void readAttributeName(std::string_view line)
    {
        auto const [index, text] = entry(line);
        checkText(line, m_attributeNames);
        std::string const name = lowerCase(std::string(text));
        m_marks[index] = name == ".smd"            ? markSmd
                         : name == ".nomenclature" ? markNomenclature
                         : name == ".string"       ? markString
                                                   : 0;
        m_drillAttribute = name == ".drill" ? index : m_drillAttribute;
    }

    void readSymbol(std::string_view line)
    {
        auto [index, name] = entry(line);
        int unit = -1; // the file's, which may come further down
        if (name.size() > 2 && (name.back() == 'I' || name.back() == 'M')) {
            std::string_view const bare = name.substr(0, name.size() - 1);
            if (bare.back() == ' ' || bare.back() == '\t') {
                unit = name.back() == 'M' ? 1 : 0;
                name = trimmed(bare);
            }
        }
        if (name.empty() || name.size() > longestName ||
            name.find_first_of(" \t") != std::string_view::npos) {
            m_reader.fail("bad symbol name " + quoted(name));
        }
        m_reader.spendSymbol();
        if (!m_file.symbols.emplace(index, SymbolEntry{validText(name), unit}).second) {
            m_reader.fail("the table index stands twice");
        }
    }

    API::point point(Words & words) const
    {
        double const x = words.decimal("x") * m_scale;
        double const y = words.decimal("y") * m_scale;
        return {x, y};
    }

    void readFeature(std::string_view letter, Words & words, std::string_view tail)
    {
        static constexpr std::string_view kinds = "PLAS";
        if (letter == "T" || letter == "B") {
            m_reader.fail(std::string(letter == "T" ? "text" : "barcode") + " records are not read");
        }
        if (letter.size() != 1 || kinds.find(letter.front()) == std::string_view::npos) {
            m_reader.fail("unknown record " + quoted(letter));
        }
        m_reader.spendPoint();
        Feature feature;
        feature.kind = letter.front();
        if (feature.kind != 'S') {
            for (std::size_t i = 0; i < feature.pointCount(); ++i) {
                feature.points.at(i) = point(words);
            }
            feature.symbol = symbol(words);
        }
        feature.positive = words.choice('P', 'N', "polarity");
        feature.code = words.integer("code");
        if (feature.kind == 'P') {
            readOrientation(words, feature);
        } else if (feature.kind == 'A') {
            feature.clockwise = words.choice('Y', 'N', "direction");
        } else if (feature.kind == 'S') {
            m_surfaceLine = m_reader.lineNumber();
        }
        readAttributes(tail, feature);
        m_file.features.push_back(std::move(feature));
    }

    int symbol(Words & words) const
    {
        int const index = words.integer("symbol index");
        if (index == -1) {
            m_reader.fail("resized symbols are not read");
        }
        if (m_file.symbols.count(index) == 0) {
            m_reader.fail("unknown symbol index " + std::to_string(index));
        }
        return index;
    }

    // 0 to 3 are quarter turns, 4 to 7 the same mirrored. 8 and 9 are followed by an angle; 9 is mirrored.
    void readOrientation(Words & words, Feature & feature) const
    {
        int const orientation = words.integer("orientation");
        if (orientation < 0 || orientation > 9) {
            m_reader.fail("bad orientation " + std::to_string(orientation));
        }
        feature.mirrored = orientation == 9 || (orientation >= 4 && orientation <= 7);
        feature.angle = orientation >= 8 ? words.decimal("angle") : 90.0 * (orientation % 4);
    }

    // ";<index>[=<value>],...;ID=<n>". Each part is optional, and the ID may come first.
    void readAttributes(std::string_view tail, Feature & feature) const
    {
        if (tail.empty()) {
            return;
        }
        tail.remove_prefix(1);
        std::string_view list = tail.substr(0, tail.find(';'));
        if (trimmed(list).substr(0, 3) == "ID=") {
            return;
        }
        while (!trimmed(list).empty()) {
            std::string_view const item = trimmed(list.substr(0, list.find(',')));
            list.remove_prefix(std::min(
                list.size(), list.find(',') == std::string_view::npos ? list.size() : list.find(',') + 1));
            std::string_view const key = item.substr(0, item.find('='));
            int const index = m_reader.integer(key, "attribute index");
            if (auto const mark = m_marks.find(index); mark != m_marks.end()) {
                feature.marks |= mark->second;
            }
            if (index == m_drillAttribute) {
                std::string_view const option = trimmed(item.substr(key.size()));
                feature.drill = option == "=0" ? 0 : option == "=1" ? 1 : option == "=2" ? 2 : -1;
            }
        }
    }

    void readSurfaceRecord(std::string_view letter, Words & words)
    {
        Contours & contours = m_file.features.back().contours;
        if (letter == "OB" && !m_contourOpen) {
            m_reader.spendPoint();
            API::point const start = point(words);
            contours.add(start, words.choice('I', 'H', "kind of contour"));
            m_contourOpen = true;
        } else if ((letter == "OS" || letter == "OC") && m_contourOpen) {
            m_reader.spendPoint();
            Side side;
            side.to = point(words);
            if (letter == "OC") {
                side.arc = true;
                side.centre = point(words);
                side.clockwise = words.choice('Y', 'N', "direction");
            }
            contours.addSide(side);
        } else if (letter == "OE" && m_contourOpen) {
            m_contourOpen = false;
        } else if (letter == "SE" && !m_contourOpen && !contours.empty()) {
            contours.shrink();
            m_surfaceLine = 0;
        } else {
            m_reader.fail(quoted(letter) + " is out of place in the surface of line " +
                          std::to_string(m_surfaceLine));
        }
    }

    LineReader m_reader;
    FeaturesFile m_file;
    double m_scale = 25400.0; // micrometres per unit of the file
    int m_announced = 0;
    int m_announcedLine = 0; // 0: the file does not announce a number of features
    std::set<int> m_attributeNames;
    std::map<int, std::uint8_t> m_marks; // by attribute index
    int m_drillAttribute = -1;           // index of .drill; -1: not named in the file
    std::set<int> m_attributeTexts;
    int m_surfaceLine = 0; // where the open surface begins; 0: none open
    bool m_contourOpen = false;
};

} // namespace

FeaturesFile readFeatures(QString const & path, bool tablesOnly)
{
    Budget budget;
    return readFeatures(path, budget, tablesOnly);
}

FeaturesFile readFeatures(QString const & path, Budget & budget, bool tablesOnly)
{
    return FeaturesReader(path, budget).read(tablesOnly);
}

std::vector<API::point> recordPoints(Feature const & feature)
{
    std::vector<API::point> points(feature.points.data(), feature.points.data() + feature.pointCount());
    for (Contour const & contour : feature.contours) {
        points.push_back(contour.start);
        for (Side const & side : contour.sides) {
            points.push_back(side.to);
            if (side.arc) {
                points.push_back(side.centre);
            }
        }
    }
    return points;
}

} // namespace KVCAM::Embedded
