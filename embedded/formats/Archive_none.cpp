#include "formats/Archive.h"

#include "formats/JobError.h"

namespace KVCAM::Embedded {
namespace {

[[noreturn]] void refuse(QString const & path)
{
    throw JobError(path.toStdString() + ": this build reads no archives and no compressed files");
}

} // namespace

QString unpackArchive(QString const & archive, QString const & /*folder*/, JobLimits const & /*limits*/,
                      bool /*whole*/, StopFlag /*stop*/)
{
    refuse(archive);
}

QByteArray unpackFile(QFile & /*file*/, QString const & path, long long /*largest*/, StopFlag /*stop*/)
{
    refuse(path);
}

} // namespace KVCAM::Embedded
