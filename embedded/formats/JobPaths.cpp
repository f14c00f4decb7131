#include "formats/JobPaths.h"

#include "formats/JobError.h"
#include "formats/LineReader.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>

namespace KVCAM::Embedded {

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

FolderList::FolderList(QString const & folder) : m_folder(folder)
{
    // Qt lists an unreadable folder as empty; that must not pass for absent entries.
    if (QFileInfo const info(folder); info.isDir() && !(info.isReadable() && info.isExecutable())) {
        throw JobError(folder.toStdString() + ": no permission to read the folder");
    }
    // "System" are pipes, devices and links that lead nowhere.
    QStringList const names = QDir(folder).entryList(
        QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot, QDir::Name);
    for (QString const & name : names) {
        m_names[name.toLower()].append(name);
    }
}

QString FolderList::find(QString const & name) const
{
    if (m_folder.isEmpty()) {
        return {};
    }
    auto const found = m_names.find(name.toLower());
    if (found != m_names.end()) {
        return QDir(m_folder).filePath(found->contains(name) ? name : found->first());
    }
    // It may have come since the folder was listed.
    QFileInfo const info(QDir(m_folder).filePath(name));
    return info.exists() || info.isSymLink() ? info.filePath() : QString();
}

QString FolderList::folder(std::string const & name) const
{
    QString path = find(QString::fromStdString(name));
    if (!path.isEmpty() && !QFileInfo(path).isDir()) {
        throw JobError(path.toStdString() + ": not a folder");
    }
    return path;
}

QString FolderList::file(std::string const & name) const
{
    QString const plain = QString::fromStdString(name);
    for (QString const & wanted : {plain, plain + ".Z", plain + ".gz"}) {
        if (QString path = find(wanted); !path.isEmpty()) {
            QFileInfo const info(path);
            if (!info.isFile()) {
                throw JobError(path.toStdString() + (info.isDir()    ? ": a folder, where a file belongs"
                                                     : info.exists() ? ": not a regular file"
                                                                     : ": a link that leads nowhere"));
            }
            return path;
        }
    }
    return {};
}

std::vector<std::string> FolderList::folderNames() const
{
    std::vector<std::string> names;
    for (QStringList const & same : m_names) {
        for (QString const & name : same) {
            if (QFileInfo(QDir(m_folder).filePath(name)).isDir()) {
                names.push_back(name.toStdString());
            }
        }
    }
    std::sort(names.begin(), names.end());
    return names;
}

QString findFolder(QString const & folder, std::string const & name)
{
    return FolderList(folder).folder(name);
}

QString findFile(QString const & folder, std::string const & name)
{
    return FolderList(folder).file(name);
}

} // namespace KVCAM::Embedded
