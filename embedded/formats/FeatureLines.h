#pragma once

#include "EmbeddedRecords.h"
#include "formats/FeaturesFile.h"

#include <QByteArray>
#include <QString>

#include <map>
#include <optional>
#include <string_view>
#include <vector>

namespace KVCAM::Embedded {

/// The lines of a features file that can be read, each with what it belongs to.
class FeatureLines
{
public:
    enum class Kind
    {
        Other,         ///< head, comment or blank
        Symbol,        ///< of the symbol table
        AttributeName, ///< of the attribute tables
        AttributeText,
        Announced, ///< the number of features
        Feature,   ///< begins a feature
        Surface    ///< any further line of a surface
    };

    /// The text must outlive the object.
    explicit FeatureLines(std::string_view text) : m_rest(text) {}

    bool next();
    /// With its end.
    std::string_view line() const { return m_line; }
    Kind kind() const { return m_kind; }
    /// The latest feature that has begun; -1 before the first.
    int feature() const { return m_feature; }

private:
    Kind classify(std::string_view content);

    std::string_view m_rest;
    std::string_view m_line;
    Kind m_kind = Kind::Other;
    int m_feature = -1;
    bool m_inSurface = false;
};

/// A word of a line by its number, blanks between the words; empty if there are fewer.
std::string_view wordOf(std::string_view line, int number);
/// A whole text as an integer.
std::optional<int> wholeNumber(std::string_view text);
/// Appends a line with a number in place of one of its words, a part of it.
void appendReplaced(QByteArray & bytes, std::string_view line, std::string_view word, int value);

/// What of a features file has changed. All other lines stay as they are.
struct FeatureEdits
{
    std::vector<bool> deleted;             ///< by feature
    std::map<int, int> symbols;            ///< the index of the new symbol by feature
    std::map<int, SymbolEntry> newSymbols; ///< entries that the table does not have
    int unit = 0;                          ///< of the file
};
/// The text of a features file with these changes. Throws JobError, without the path, if the text has another
/// number of features.
QByteArray editedFeatures(std::string_view text, FeatureEdits const & edits);

/// The attributes of one feature. Throws JobError.
std::vector<FeatureAttribute> readAttributes(QString const & path, int feature, long long largest);

} // namespace KVCAM::Embedded
