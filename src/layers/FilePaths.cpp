#include "layers/FilePaths.h"

#include <system_error>
#include <utility>

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

fs::path resolved(fs::path const & path)
{
    std::error_code error;
    fs::path const absolute = path.empty() ? fs::path() : fs::absolute(path, error);
    fs::path canonical = error || absolute.empty() ? fs::path() : fs::weakly_canonical(absolute, error);
    return error ? fs::path() : withoutEndSeparator(std::move(canonical));
}

} // namespace KVCAM::UIAPI::FilePaths
