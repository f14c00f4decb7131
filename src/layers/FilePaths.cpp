#include "layers/FilePaths.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <iterator>

namespace KVCAM::UIAPI::FilePaths {

fs::path fromText(QString const & text)
{
    if (!text.isValidUtf16() || text.contains(QChar::Null)) {
        return {};
    }
    return {text.toStdU16String()};
}

fs::path fromText(std::string const & text)
{
#if defined(Q_OS_WIN)
    return fromText(QString::fromStdString(text));
#else
    return text.find('\0') == std::string::npos ? fs::path(text) : fs::path();
#endif
}

fs::path withoutEndSeparator(fs::path path)
{
    while (!path.has_filename() && path.has_relative_path()) {
        path = path.parent_path();
    }
    return path;
}

bool namesAnEntry(fs::path const & path)
{
    return path.has_filename() && path.filename() != "." && path.filename() != "..";
}

Kind kindOf(fs::path const & path)
{
#if defined(Q_OS_WIN)
    // Standard libraries do not agree on what a junction is.
    if (QFileInfo const info(QString::fromStdU16String(path.u16string()));
        info.isSymbolicLink() || info.isJunction()) {
        return Kind::Link;
    }
#endif
    std::error_code error;
    switch (fs::symlink_status(path, error).type()) {
    case fs::file_type::not_found:
        return Kind::Missing;
    case fs::file_type::directory:
        return Kind::Directory;
    case fs::file_type::regular:
        return Kind::File;
    case fs::file_type::symlink:
        return Kind::Link;
    default:
        return Kind::Other;
    }
}

fs::path resolved(fs::path const & path)
{
    std::error_code error;
    fs::path const absolute = path.empty() ? fs::path() : fs::absolute(path, error);
    fs::path canonical = error || absolute.empty() ? fs::path() : fs::weakly_canonical(absolute, error);
    return error ? fs::path() : withoutEndSeparator(std::move(canonical));
}

bool isWithin(fs::path const & path, fs::path const & directory)
{
    // The file system is asked, since two names may mean one directory.
    for (fs::path place = path; !place.empty(); place = place.parent_path()) {
        std::error_code error;
        if (fs::equivalent(place, directory, error)) {
            return true;
        }
        if (!place.has_relative_path()) {
            break;
        }
    }
    return false;
}

bool isProtected(fs::path const & directory)
{
    fs::path const place = resolved(directory);
    fs::path const below = place.relative_path();
    // The root of a network share has a name of its own: "//server/share".
    auto const rootDepth = place.root_name().native().size() > 2 ? 1 : 0;
    if (std::distance(below.begin(), below.end()) <= rootDepth) {
        return true;
    }
    std::error_code error;
    fs::path const current = fs::current_path(error);
    return isWithin(resolved(current), place) || isWithin(resolved(fromText(QDir::homePath())), place);
}

} // namespace KVCAM::UIAPI::FilePaths
