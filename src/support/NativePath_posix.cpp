#include "support/NativePath.h"

#include <system_error>
#include <utility>

namespace KVCAM::UIAPI {
namespace {

namespace fs = std::filesystem;

fs::path withoutEndSeparator(fs::path path)
{
    while (!path.has_filename() && path.has_relative_path()) {
        path = path.parent_path();
    }
    return path;
}

} // namespace

bool NativePath::isLiteral(QString const & /*path*/)
{
    return true;
}

fs::path NativePath::literal(Path const & path)
{
    return path;
}

fs::path NativePath::absolute(Path const & path)
{
    std::error_code error;
    fs::path absolute = path.empty() ? fs::path() : fs::absolute(path, error);
    return error ? fs::path() : withoutEndSeparator(std::move(absolute));
}

fs::path NativePath::resolved(Path const & path)
{
    std::error_code error;
    fs::path const absolute = path.empty() ? fs::path() : fs::absolute(path, error);
    fs::path canonical = error || absolute.empty() ? fs::path() : fs::weakly_canonical(absolute, error);
    return error ? fs::path() : withoutEndSeparator(std::move(canonical));
}

fs::path NativePath::above(Path const & path)
{
    return path.has_relative_path() ? path.parent_path() : fs::path();
}

bool NativePath::makeDirectories(Path const & path)
{
    std::error_code error;
    fs::create_directories(path, error);
    return fs::is_directory(path, error);
}

} // namespace KVCAM::UIAPI
