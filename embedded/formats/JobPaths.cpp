#include "formats/JobPaths.h"

#include "formats/LineReader.h"

#include <QFileInfo>

#include <algorithm>

namespace KVCAM::Embedded {
namespace {

QString find(QString const & folder, QString const & name, QDir::Filters filters)
{
    QDir const dir(folder);
    QString found;
    QStringList const entries = entriesOf(folder, filters | QDir::Hidden);
    for (QString const & entry : entries) {
        if (entry == name) {
            return dir.filePath(entry);
        }
        if (found.isEmpty() && entry.compare(name, Qt::CaseInsensitive) == 0) {
            found = dir.filePath(entry);
        }
    }
    return found;
}

} // namespace

std::string lowerCase(std::string const & name)
{
    return QString::fromStdString(name).toLower().toStdString();
}

std::string refusal(std::string const & name)
{
    if (name.empty()) {
        return "the name is empty";
    }
    bool const unsafe = name == "." || name == ".." || std::any_of(name.begin(), name.end(), [](char c) {
                            return c == '/' || c == '\\' || c == ':' || (c >= 0 && c < ' ') || c == 0x7F;
                        });
    return unsafe ? "the name " + quoted(name) + " cannot be used as a folder" : std::string();
}

QStringList entriesOf(QString const & folder, QDir::Filters filters)
{
    // Qt lists an unreadable folder as empty; that must not pass for absent entries.
    if (QFileInfo const info(folder); info.isDir() && !(info.isReadable() && info.isExecutable())) {
        throw JobError(folder.toStdString() + ": no permission to read the folder");
    }
    return QDir(folder).entryList(filters, QDir::Name);
}

QString findFolder(QString const & folder, std::string const & name)
{
    return find(folder, QString::fromStdString(name), QDir::Dirs | QDir::NoDotAndDotDot);
}

QString findFile(QString const & folder, std::string const & name)
{
    QString const wanted = QString::fromStdString(name);
    if (QString plain = find(folder, wanted, QDir::Files); !plain.isEmpty()) {
        return plain;
    }
    if (QString const folderInstead = findFolder(folder, name); !folderInstead.isEmpty()) {
        throw JobError(folderInstead.toStdString() + ": a folder, where a file belongs");
    }
    if (QString const packed = find(folder, wanted + ".Z", QDir::Files); !packed.isEmpty()) {
        throw JobError(packed.toStdString() +
                       ": compressed files are not read; unpack it first, for example with gzip -d");
    }
    return {};
}

} // namespace KVCAM::Embedded
