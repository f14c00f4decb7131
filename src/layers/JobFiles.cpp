#include "layers/JobFiles.h"

#include "layers/FilePaths.h"
#include "layers/RemovalRules.h"
#include "layers/TreeCopy.h"
#include "layers/TreeRemoval.h"
#include "support/NativePath.h"
#include "support/WholeFile.h"

#include <QFileInfo>

#include <algorithm>

namespace KVCAM::UIAPI {

using namespace FilePaths;

bool JobFiles::checkDir(QString const & path)
{
    fs::path const directory = fromText(path);
    return !directory.empty() && NativePath::makeDirectories(directory);
}

bool JobFiles::delDir(std::string const & path, bool removeSelf)
{
    fs::path const given = withoutEndSeparator(fromText(path));
    fs::path const directory = NativePath::literal(given);
    // Both count: the literal form may be free of a "..", and a share looks like a directory without it.
    if (!namesAnEntry(given) || !namesAnEntry(directory)) {
        return false;
    }
    // By handle from here on: remove what was checked, whatever the path refers to by then.
    Directory const holder = Directory::at(directory.parent_path());
    fs::path const name = directory.filename();
    DirectoryEntry const entry = holder.look(name);
    Lineage place = holder.lineage();
    if (place.empty()) {
        return false;
    }
    place.insert(place.begin(), entry.id);
    if (!RemovalRules::mayRemove(place, RemovalRules::currentFacts())) {
        return false;
    }
    if (entry.kind == DirectoryEntry::Kind::Link) {
        return removeSelf && Directory::at(directory).isOpen() && holder.removeFile(name);
    }
    return entry.kind == DirectoryEntry::Kind::Directory && removeTree(holder, name, entry.id, removeSelf);
}

bool JobFiles::copyDirectoryFile(QString const & from, QString const & to, bool overwrite)
{
    fs::path const source = NativePath::resolved(fromText(from));
    fs::path const target = NativePath::resolved(fromText(to));
    return !source.empty() && !target.empty() && copyTree(Directory::at(source), target, overwrite);
}

bool JobFiles::saveTextByIODevice(QString const & path, QString const & text)
{
    QFileInfo const file(path);
    if (fromText(path).empty() || (file.exists() && !file.isFile())) {
        return false;
    }
    return WholeFile::replace(path, text.toUtf8()).ok;
}

QString JobFiles::formatTime(qint64 milliseconds)
{
    qint64 const seconds = std::max<qint64>(milliseconds, 0) / 1000;
    QLatin1Char const zero('0');
    return QStringLiteral("%1:%2:%3")
        .arg(seconds / 3600, 2, 10, zero)
        .arg(seconds / 60 % 60, 2, 10, zero)
        .arg(seconds % 60, 2, 10, zero);
}

} // namespace KVCAM::UIAPI
