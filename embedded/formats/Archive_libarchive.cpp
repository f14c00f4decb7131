#include "formats/Archive.h"

#include "formats/ArchiveNames.h"
#include "formats/GzipStream.h"
#include "formats/InputFile.h"
#include "formats/JobError.h"
#include "formats/RegularInput.h"

#include <QDir>

#include <archive.h>
#include <archive_entry.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <exception>
#include <memory>
#include <new>
#include <optional>
#include <string>
#include <string_view>

namespace KVCAM::Embedded {
namespace {

constexpr std::size_t blockSize = 512; // of tar

struct Closing
{
    void operator()(archive * reader) const { archive_read_free(reader); }
};
using Reader = std::unique_ptr<archive, Closing>;

// The bytes that libarchive gets: those of the file, or what gzip packs in it. libarchive would not compare
// gzip's checksums.
class Source
{
public:
    Source(QFile & file, JobLimits const & limits, StopFlag stop)
        : m_file(file), m_limits(limits), m_stop(stop)
    {
        QByteArray const begin = file.peek(4);
        m_isZip = begin.startsWith("PK");
        if (isGzip({begin.constData(), static_cast<std::size_t>(begin.size())})) {
            m_gzip.emplace(file);
        }
    }

    bool isZip() const { return m_isZip; }

    // The next piece, empty at the end.
    std::string_view next()
    {
        m_stop.check();
        std::string_view piece;
        if (m_gzip) {
            piece = m_gzip->next();
        } else {
            qint64 const read = m_file.read(m_buffer.data(), static_cast<qint64>(m_buffer.size()));
            if (read < 0) {
                throw JobError(m_file.errorString().toStdString());
            }
            piece = {m_buffer.data(), static_cast<std::size_t>(read)};
        }
        std::size_t const last = piece.find_last_not_of('\0');
        m_zeros = last == std::string_view::npos ? m_zeros + piece.size() : piece.size() - last - 1;
        if (m_gzip) {
            count(static_cast<long long>(piece.size()));
        }
        return piece;
    }

    // Adds to what has been unpacked.
    void count(long long bytes)
    {
        m_unpacked += bytes;
        if (m_unpacked > m_limits.archiveBytes) {
            throw JobError("unpacks to more than " + sizeText(m_limits.archiveBytes).toStdString() +
                           ", the limit");
        }
        if (m_unpacked > m_limits.fileBytes &&
            m_unpacked / std::max(m_limits.archiveRatio, 1LL) > m_file.size()) {
            throw JobError("unpacks to more than " + std::to_string(m_limits.archiveRatio) +
                           " times its size, the limit");
        }
    }

    // Reads on to the end, since only there gzip's checksum stands. A tar ends with a block of zeros; without
    // it, whole files may be missing.
    void finishTar()
    {
        while (!next().empty()) {
        }
        if (m_zeros < blockSize) {
            throw JobError("the archive is cut short: it has no end mark");
        }
    }

    // Exceptions must not pass through libarchive: they are kept for rethrow().
    static la_ssize_t read(archive * reader, void * self, void const ** bytes)
    {
        auto & source = *static_cast<Source *>(self);
        try {
            std::string_view const piece = source.next();
            *bytes = piece.data();
            return static_cast<la_ssize_t>(piece.size());
        } catch (...) {
            source.m_error = std::current_exception();
            archive_set_error(reader, EIO, "unreadable");
            return -1;
        }
    }
    static la_int64_t seek(archive * /*reader*/, void * self, la_int64_t offset, int whence)
    {
        QFile & file = static_cast<Source *>(self)->m_file;
        la_int64_t const from = whence == SEEK_SET ? 0 : whence == SEEK_CUR ? file.pos() : file.size();
        return file.seek(from + offset) ? file.pos() : ARCHIVE_FATAL;
    }
    void rethrow() const
    {
        if (m_error) {
            std::rethrow_exception(m_error);
        }
    }

private:
    QFile & m_file;
    JobLimits m_limits;
    StopFlag m_stop;
    bool m_isZip = false;
    std::optional<GzipStream> m_gzip;
    std::array<char, 64 * 1024> m_buffer;
    long long m_unpacked = 0;
    std::size_t m_zeros = 0; // at the end of what has been read
    std::exception_ptr m_error;
};

[[noreturn]] void failOf(archive * reader, Source const & source)
{
    source.rethrow();
    QString const text = QString::fromUtf8(archive_error_string(reader)).simplified();
    throw JobError("the archive is damaged: " + (text.isEmpty() ? "unknown reason" : text.toStdString()));
}

Reader openReader(Source & source)
{
    Reader reader(archive_read_new());
    if (!reader) {
        throw std::bad_alloc();
    }
    archive * const a = reader.get();
    if (source.isZip()) {
        // By the directory at the end, which one that is cut short does not have.
        archive_read_support_format_zip_seekable(a);
        archive_read_set_seek_callback(a, &Source::seek);
    } else {
        archive_read_support_format_tar(a);
    }
#ifdef Q_OS_WIN // names would be taken for the console's code page
    archive_read_set_options(a, "hdrcharset=UTF-8");
#endif
    archive_read_set_read_callback(a, &Source::read);
    archive_read_set_callback_data(a, &source);
    if (archive_read_open1(a) != ARCHIVE_OK) {
        failOf(a, source);
    }
    return reader;
}

// The bytes of the name are UTF-8 in nearly all archives, whatever the locale. If they are not, libarchive
// knows the encoding or takes the locale's.
QString nameOf(archive_entry * entry)
{
    if (char const * const bytes = archive_entry_pathname(entry)) {
        QString name = QString::fromUtf8(bytes);
        if (name.toUtf8() == bytes) {
            return name;
        }
    }
    return QString::fromUtf8(archive_entry_pathname_utf8(entry));
}

ArchiveNames::Kind kindOf(archive_entry * entry)
{
    if (archive_entry_hardlink(entry) != nullptr || archive_entry_hardlink_utf8(entry) != nullptr) {
        return ArchiveNames::Kind::Other;
    }
    auto const type = archive_entry_filetype(entry);
    return type == AE_IFREG   ? ArchiveNames::Kind::File
           : type == AE_IFDIR ? ArchiveNames::Kind::Folder
                              : ArchiveNames::Kind::Other;
}

// Reads the entry's contents piece by piece.
template <class Take>
void forEachPiece(archive * reader, Source & source, Take take)
{
    std::array<char, 64 * 1024> buffer;
    for (;;) {
        la_ssize_t const read = archive_read_data(reader, buffer.data(), buffer.size());
        if (read == 0) {
            return;
        }
        if (read < 0) {
            failOf(reader, source);
        }
        take(buffer.data(), static_cast<long long>(read));
    }
}

class Unpacking
{
public:
    Unpacking(Source & source, QString const & folder, JobLimits const & limits, bool whole, StopFlag stop)
        : m_source(source), m_folder(folder), m_limits(limits), m_names(limits, whole), m_stop(stop)
    {
        if (whole) {
            m_limits.fileBytes = m_limits.archiveBytes;
            m_limits.bytes = m_limits.archiveBytes;
        }
    }

    // Returns the top folder of the job.
    QString run()
    {
        Reader const reader = openReader(m_source);
        for (;;) {
            m_stop.check(); // one piece may hold hundreds of small entries
            archive_entry * entry = nullptr;
            int const result = archive_read_next_header(reader.get(), &entry);
            m_source.rethrow();
            if (result == ARCHIVE_EOF) {
                break;
            }
            if (result != ARCHIVE_OK && result != ARCHIVE_WARN) {
                failOf(reader.get(), m_source);
            }
            QString const name = nameOf(entry);
            auto const [file, folder] = m_names.place(name, kindOf(entry));
            if (!folder.isEmpty() && !QDir(m_folder).mkpath(folder)) {
                throw JobError("cannot make the folder " + m_folder.filePath(folder).toStdString());
            }
            if (!file.isEmpty()) {
                write(reader.get(), file);
            }
        }
        if (!m_source.isZip()) {
            m_source.finishTar();
        }
        return m_names.job();
    }

private:
    void write(archive * reader, QString const & path)
    {
        QFile file(m_folder.filePath(path));
        if (!file.open(QIODevice::WriteOnly | QIODevice::NewOnly)) {
            throw JobError(file.fileName().toStdString() + ": " + file.errorString().toStdString());
        }
        long long size = 0;
        forEachPiece(reader, m_source, [&](char const * bytes, long long count) {
            m_stop.check(); // few bytes of a zip may hold many pieces
            size += count;
            m_written += count;
            if (m_source.isZip()) {
                m_source.count(count);
            }
            if (size > m_limits.fileBytes) {
                throw JobError(path.toStdString() + " is larger than " +
                               sizeText(m_limits.fileBytes).toStdString() + ", the limit of a file");
            }
            if (m_written > m_limits.bytes) {
                throw JobError("the files to read are larger than " + sizeText(m_limits.bytes).toStdString() +
                               ", the job's limit");
            }
            if (file.write(bytes, count) != count) {
                throw JobError(file.fileName().toStdString() + ": " + file.errorString().toStdString());
            }
        });
        if (!file.flush()) {
            throw JobError(file.fileName().toStdString() + ": " + file.errorString().toStdString());
        }
    }

    Source & m_source;
    QDir m_folder;
    JobLimits m_limits;
    ArchiveNames m_names;
    StopFlag m_stop;
    long long m_written = 0;
};

// The whole contents, in which `next` gives a piece and in the end an empty one.
template <class Next>
QByteArray gathered(long long largest, StopFlag stop, Next next)
{
    QByteArray bytes;
    for (std::string_view piece = next(); !piece.empty(); piece = next()) {
        if (bytes.size() + static_cast<long long>(piece.size()) > largest) {
            throw JobError("the unpacked file is larger than " + sizeText(largest).toStdString());
        }
        bytes.append(piece.data(), static_cast<int>(piece.size()));
        stop.check();
    }
    return bytes;
}

QByteArray unpackLzw(QFile & file, long long largest, StopFlag stop)
{
    Source source(file, {}, stop);
    Reader const reader(archive_read_new());
    archive * const a = reader.get();
    if (a == nullptr) {
        throw std::bad_alloc();
    }
    archive_read_support_filter_compress(a);
    archive_read_support_format_raw(a);
    archive_read_set_read_callback(a, &Source::read);
    archive_read_set_callback_data(a, &source);
    archive_entry * entry = nullptr;
    int const opened = archive_read_open1(a);
    int const result = opened == ARCHIVE_OK ? archive_read_next_header(a, &entry) : opened;
    if (result == ARCHIVE_EOF) {
        return {};
    }
    if (result != ARCHIVE_OK) {
        failOf(a, source);
    }
    std::array<char, 64 * 1024> buffer;
    return gathered(largest, stop, [&] {
        la_ssize_t const read = archive_read_data(a, buffer.data(), buffer.size());
        if (read < 0) {
            failOf(a, source);
        }
        return std::string_view(buffer.data(), static_cast<std::size_t>(read));
    });
}

} // namespace

QString unpackArchive(QString const & path, QString const & folder, JobLimits const & limits, bool whole,
                      StopFlag stop)
{
    try {
        QFile file;
        if (QString const reason = openRegular(file, path); !reason.isEmpty()) {
            throw JobError(reason.toStdString());
        }
        Source source(file, limits, stop);
        return QDir(folder).filePath(Unpacking(source, folder, limits, whole, stop).run());
    } catch (JobError const & error) {
        throw JobError(path.toStdString() + ": " + error.what());
    }
}

QByteArray unpackFile(QFile & file, QString const & path, long long largest, StopFlag stop)
{
    try {
        QByteArray const begin = file.peek(2);
        if (isGzip({begin.constData(), static_cast<std::size_t>(begin.size())})) {
            GzipStream stream(file);
            return gathered(largest, stop, [&stream] { return stream.next(); });
        }
        if (begin != "\x1f\x9d") {
            throw JobError("not compressed, as the name says: neither gzip nor LZW");
        }
        return unpackLzw(file, largest, stop);
    } catch (JobError const & error) {
        throw JobError(path.toStdString() + ": " + error.what());
    }
}

} // namespace KVCAM::Embedded
