#include "layers/FilePaths.h"

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

} // namespace KVCAM::UIAPI::FilePaths
