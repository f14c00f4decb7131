#include "layers/JobFiles.h"

#include "layers/FilePaths.h"
#include "support/JsonFile.h"

#include <QFileInfo>
#include <QRandomGenerator>

#include <algorithm>
#include <utility>
#include <vector>

namespace KVCAM::UIAPI {

using namespace FilePaths;

bool JobFiles::checkDir(QString const & path)
{
    fs::path const directory = fromText(path);
    std::error_code error;
    if (!directory.empty()) {
        fs::create_directories(directory, error);
    }
    return !directory.empty() && fs::is_directory(directory, error);
}

namespace {

using Entries = std::vector<fs::path>;

// Read before anything changes: what a directory lists while it changes is anybody's guess.
bool listEntries(fs::path const & directory, Entries & entries)
{
    std::error_code error;
    for (fs::directory_iterator entry(directory, error); !error && entry != fs::directory_iterator();
         entry.increment(error)) {
        entries.push_back(entry->path());
    }
    return !error;
}

bool removeOne(fs::path const & path)
{
    std::error_code error;
    return fs::remove(path, error) && !error;
}

// Of a file only Windows asks its own permissions, and they may be shared with a file outside the tree.
#if defined(Q_OS_WIN)
constexpr bool filesNeedPermission = true;
#else
constexpr bool filesNeedPermission = false;
#endif

void makeRemovable(fs::path const & path)
{
    Kind const kind = kindOf(path);
    if (kind == Kind::Directory || (filesNeedPermission && kind == Kind::File)) {
        std::error_code error;
        fs::perms const wanted = kind == Kind::Directory ? fs::perms::owner_all : fs::perms::owner_write;
        if ((fs::symlink_status(path, error).permissions() & wanted) != wanted) {
            fs::permissions(path, wanted, fs::perm_options::add | fs::perm_options::nofollow, error);
        }
    }
}

/// Makes what is in a directory removable, and lists the links in it.
Entries makeTreeRemovable(fs::path const & directory)
{
    makeRemovable(directory);
    Entries links;
    std::error_code error;
    fs::recursive_directory_iterator entry(directory, fs::directory_options::skip_permission_denied, error);
    for (; !error && entry != fs::recursive_directory_iterator(); entry.increment(error)) {
        makeRemovable(entry->path());
        Kind const kind = kindOf(entry->path());
        if (kind == Kind::Link) {
            links.push_back(entry->path());
        }
        if (kind != Kind::Directory) {
            entry.disable_recursion_pending();
        }
    }
    return links;
}

} // namespace

bool JobFiles::delDir(std::string const & path, bool removeSelf)
{
    fs::path const directory = withoutEndSeparator(fromText(path));
    if (!namesAnEntry(directory)) {
        return false;
    }
    std::error_code error;
    Kind const kind = kindOf(directory);
    if (kind == Kind::Link && removeSelf && fs::is_directory(directory, error)) {
        return removeOne(directory);
    }
    if (kind != Kind::Directory || isProtected(directory)) {
        return false;
    }
    // Links go first: to a standard library a junction may be a directory, which it would empty.
    for (fs::path const & link : makeTreeRemovable(directory)) {
        removeOne(link);
    }
    Entries entries;
    bool done = listEntries(directory, entries);
    for (fs::path const & entry : entries) {
        std::error_code failure;
        fs::remove_all(entry, failure); // follows no link
        done = done && !failure;
    }
    return removeSelf ? removeOne(directory) : done;
}

namespace {

/// One run of copyDirectoryFile().
class TreeCopy
{
public:
    TreeCopy(fs::path source, bool overwrite) : m_source(std::move(source)), m_overwrite(overwrite) {}

    /// A list of what is left to do instead of calls within calls: a tree may be deeper than the stack.
    bool run(fs::path const & target)
    {
        std::vector<std::pair<fs::path, fs::path>> pending{{m_source, target}};
        while (!pending.empty()) {
            auto const [from, to] = std::move(pending.back());
            pending.pop_back();
            Entries entries;
            if (!makeTarget(to) || !listEntries(from, entries)) {
                m_complete = false;
            }
            for (fs::path const & entry : entries) {
                fs::path const copy = to / entry.filename();
                if (kindOf(entry) == Kind::Directory) {
                    pending.emplace_back(entry, copy);
                } else if (!copyEntry(entry, copy)) {
                    m_complete = false;
                }
            }
        }
        return m_complete;
    }

private:
    // The source may stand in its target: then a directory of its own name would be copied over it.
    bool makeTarget(fs::path const & directory) const
    {
        std::error_code error;
        if (kindOf(directory) == Kind::Missing) {
            fs::create_directories(directory, error);
        }
        return kindOf(directory) == Kind::Directory && !fs::equivalent(directory, m_source, error);
    }

    bool copyEntry(fs::path const & from, fs::path const & to) const
    {
        Kind const kind = kindOf(from);
        Kind const there = kindOf(to);
        bool const isFree =
            there == Kind::Missing || (m_overwrite && (there == Kind::File || there == Kind::Link));
        if (!isFree || (kind != Kind::File && kind != Kind::Link)) {
            return false;
        }
        quint64 const number = QRandomGenerator::global()->generate64();
        fs::path const part = to.parent_path() / (".uiapi-copy-" + std::to_string(number));
        std::error_code error;
        if (kind == Kind::File) {
            fs::copy_file(from, part, error);
        } else {
            fs::copy_symlink(from, part, error);
        }
        if (!error) {
            makeRemovable(to);           // where a read-only file is not replaced
            fs::rename(part, to, error); // a link in its place is replaced, not followed
        }
        if (error) {
            makeRemovable(part);
            removeOne(part);
        }
        return !error;
    }

    fs::path const m_source;
    bool const m_overwrite;
    bool m_complete = true;
};

} // namespace

bool JobFiles::copyDirectoryFile(QString const & from, QString const & to, bool overwrite)
{
    std::error_code error;
    fs::path const source = resolved(fromText(from));
    fs::path const target = resolved(fromText(to));
    if (source.empty() || target.empty() || !fs::is_directory(source, error) || isWithin(target, source)) {
        return false;
    }
    return TreeCopy(source, overwrite).run(target);
}

bool JobFiles::saveTextByIODevice(QString const & path, QString const & text)
{
    QFileInfo const file(path);
    if (fromText(path).empty() || (file.exists() && !file.isFile())) {
        return false;
    }
    return JsonFile::replace(path, text.toUtf8()) == JsonFile::WriteStatus::Ok;
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
