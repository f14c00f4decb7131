#include "analysis/RangeStore.h"

#include "config/ConfigFiles.h"
#include "support/Guard.h"
#include "support/HostPaths.h"
#include "support/Log.h"
#include "support/UserDirectory.h"
#include "support/WholeFile.h"

#include <QDir>
#include <QFileInfo>
#include <QObject>
#include <QRegularExpression>
#include <QStringList>

#include <algorithm>
#include <optional>
#include <utility>

namespace KVCAM::UIAPI {
namespace {

Ext::Result refused(QString const & reason)
{
    return {false, reason};
}

// The usual path is absolute already and needs no directory.
QString absolutePath(QString const & path)
{
    return QDir::isAbsolutePath(path) ? path : QDir().absoluteFilePath(path);
}

} // namespace

bool RangeStore::loadAllRanges()
{
    return guard([&] { readAll(); },
                 [](std::string const &) { Log::info(Log::commonPara, "加载Ranges失败"); });
}

void RangeStore::readAll()
{
    QString const base = HostPaths::rangesDirectory();
    QStringList const folders = QDir(base).entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Unsorted);
    for (QString const & folder : folders) {
        QString const directory = base + QLatin1Char('/') + folder;
        QStringList const files = QDir(directory).entryList(QDir::Files, QDir::Name);
        for (QString const & file : files) {
            // The ending ignores case, the removal of ".json" does not: "B.JSON" keeps the name "B.JSON".
            if (!file.endsWith(QLatin1String(".json"), Qt::CaseInsensitive)) {
                continue;
            }
            scan(QString(file).remove(QStringLiteral(".json")), directory + QLatin1Char('/') + file,
                 Unreadable::Skipped);
        }
        Log::info(Log::commonPara, "加载所有ranges成功"); // once per folder, even without files
    }
}

void RangeStore::scanMetaData(QString const & fileName, QString const & filePath)
{
    scan(fileName, filePath, Unreadable::Reported);
}

void RangeStore::scan(QString const & fileName, QString const & filePath, Unreadable unreadable)
{
    guard([&] { readFile(fileName, filePath, unreadable); },
          [](std::string const &) { Log::info(Log::commonPara, "Ranges scanMetaData失败"); });
}

void RangeStore::readFile(QString const & fileName, QString const & filePath, Unreadable unreadable)
{
    WholeFile::Content const content = WholeFile::read(filePath, QIODevice::Text);
    if (std::optional<RangeFile::Records> records = RangeFile::readPlainRecords(content.bytes)) {
        return keep(fileName, filePath, std::move(*records));
    }
    WholeFile::ReadResult const file = WholeFile::parse(content);
    // Asked only now: asking for each listed file slows the start down.
    if (unreadable == Unreadable::Skipped && file.status == WholeFile::ReadStatus::OpenFailed &&
        !QFileInfo(filePath).isReadable()) {
        return;
    }
    ConfigFiles::diagnose(filePath, file);
    switch (file.status) {
    case WholeFile::ReadStatus::Missing:
        return Log::error(Log::commonPara, "Ranger json文件不存在！路径：" + filePath.toStdString());
    case WholeFile::ReadStatus::OpenFailed:
        return Log::error(Log::commonPara, "Ranger json文件打开失败!路径：" + filePath.toStdString());
    case WholeFile::ReadStatus::ParseError:
        return Log::error(Log::commonPara, "解析ranges json文件错误！路径：" + filePath.toStdString());
    case WholeFile::ReadStatus::Ok:
        break;
    }
    if (std::optional<RangeFile::Records> records = RangeFile::readRecords(file.document)) {
        keep(fileName, filePath, std::move(*records));
    }
}

// An empty list is stored too and reserves the name against later files.
void RangeStore::keep(QString const & fileName, QString const & filePath, RangeFile::Records records)
{
    m_ranges.try_emplace(fileName.toStdString(), Range{std::move(records), {}, absolutePath(filePath)});
}

void RangeStore::getRanges(std::string const & rangeName, std::vector<Analysis_Ranges_Record> & out) const
{
    auto const range = m_ranges.find(rangeName);
    if (range == m_ranges.end()) {
        out.clear();
    } else {
        out = range->second.records;
    }
}

std::vector<Ext::RangeSource> RangeStore::loadedFiles() const
{
    std::vector<Ext::RangeSource> files;
    files.reserve(m_ranges.size());
    for (auto const & [name, range] : m_ranges) {
        files.push_back({name, range.path});
    }
    return files;
}

void RangeStore::changeRangesValue(std::string const & rangeName, std::string const & categoryName,
                                   std::string const & levelName, double value)
{
    auto const range = m_ranges.find(rangeName);
    if (range == m_ranges.end()) {
        return;
    }
    // Only the first record of the name counts, even if the level's name is unknown.
    RangeFile::Records & records = range->second.records;
    auto const record = std::find_if(records.begin(), records.end(),
                                     [&](auto const & entry) { return entry.name == categoryName; });
    auto const level = std::find_if(RangeFile::levels.begin(), RangeFile::levels.end(),
                                    [&](auto const & entry) { return entry.key == levelName; });
    if (record != records.end() && level != RangeFile::levels.end()) {
        if (!range->second.loaded) {
            range->second.loaded = records;
        }
        (*record).*level->value = value;
    }
}

Ext::Result RangeStore::saveRanges(std::string const & rangeName)
{
    auto const found = m_ranges.find(rangeName);
    if (found == m_ranges.end()) {
        return refused(QObject::tr("There is no range file \"%1\".").arg(QString::fromStdString(rangeName)));
    }
    Range & range = found->second;
    if (!range.loaded) {
        return {};
    }
    WholeFile::ReadResult file = WholeFile::readJson(range.path, QIODevice::Text);
    if (file.status != WholeFile::ReadStatus::Ok) {
        return refused(QObject::tr("The range file \"%1\" cannot be read.").arg(range.path));
    }
    switch (RangeFile::writeLevels(file.document, *range.loaded, range.records)) {
    case RangeFile::Change::Nothing:
        return {};
    case RangeFile::Change::Stale:
        return refused(QObject::tr("The range file \"%1\" holds other categories than when it was read.")
                           .arg(range.path));
    case RangeFile::Change::NoRecord:
        return refused(
            QObject::tr("An element of the range file \"%1\" cannot hold levels.").arg(range.path));
    case RangeFile::Change::Changed:
        break;
    }
    if (!WholeFile::replace(range.path, file.document.toJson(), QIODevice::Text)) {
        return refused(QObject::tr("The file \"%1\" cannot be written.").arg(range.path));
    }
    range.loaded.reset();
    return {};
}

void listErfFiles(std::string const & folder, std::vector<std::string> & names)
{
    QString const path = QString::fromStdString(folder);
    // The folder is external input: without a component ".." it cannot leave "ERFconfig".
    if (path.split(QRegularExpression(QStringLiteral("[/\\\\]"))).contains(QStringLiteral(".."))) {
        return;
    }
    QDir const directory(Ext::userFile(QStringLiteral("./ERFconfig/") + path));
    QStringList const files = directory.entryList(QDir::Files | QDir::Hidden, QDir::Unsorted);
    for (QString const & file : files) {
        names.push_back(QFileInfo(file).baseName().toStdString());
    }
}

} // namespace KVCAM::UIAPI
