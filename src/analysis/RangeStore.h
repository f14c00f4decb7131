#pragma once

#include "analysis/RangeFile.h"
#include "analysis/RangeSource.h"
#include "support/Result.h"

#include <QString>

#include <map>
#include <optional>
#include <string>
#include <vector>

namespace KVCAM::UIAPI {

/// The colour levels by range file, read once from the sub-directories of the ranges directory. Log lines go
/// under "UIAPICommonPara"; a file that cannot be read is a finding of Ext::diagnostics() too.
class RangeStore
{
public:
    /// Reads every readable "*.json" of every sub-directory; the INFO line of success is logged once per
    /// sub-directory. False, after an INFO line, if anything throws; files already read are kept.
    bool loadAllRanges();
    /// Reads one file under a name. If an earlier file already has the name, the earlier one is kept.
    void scanMetaData(QString const & fileName, QString const & filePath);

    /// Replaces `out`; empty for an unknown file.
    void getRanges(std::string const & rangeName, std::vector<Analysis_Ranges_Record> & out) const;
    /// The files known to getRanges(), by name, ascending byte by byte.
    std::vector<Ext::RangeSource> loadedFiles() const;
    /// Sets one level of the first category of this name, in memory only.
    void changeRangesValue(std::string const & rangeName, std::string const & categoryName,
                           std::string const & levelName, double value);
    /// Writes the changed levels back into the file that the range came from.
    Ext::Result saveRanges(std::string const & rangeName);

private:
    struct Range
    {
        RangeFile::Records records;
        std::optional<RangeFile::Records> loaded; ///< the file's content, set once a level is changed
        QString path;                             ///< absolute
    };

    /// What becomes of a file that the user may not read.
    enum class Unreadable
    {
        Reported,
        Skipped ///< as if a listing had left it out
    };

    void readAll();
    void scan(QString const & fileName, QString const & filePath, Unreadable unreadable);
    void readFile(QString const & fileName, QString const & filePath, Unreadable unreadable);
    void keep(QString const & fileName, QString const & filePath, RangeFile::Records records);

    std::map<std::string, Range> m_ranges;
};

/// Appends the base names (up to the first ".") of the files, hidden ones included, of "./ERFconfig/" +
/// folder. Nothing for a folder with a component ".."; names such as "x..y" are ordinary folders.
void listErfFiles(std::string const & folder, std::vector<std::string> & names);

} // namespace KVCAM::UIAPI
