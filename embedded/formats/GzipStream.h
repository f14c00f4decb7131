#pragma once

#include <QFile>

#include <memory>
#include <string_view>

namespace KVCAM::Embedded {

/// The contents of a gzip file by the piece, checked against the checksums in it.
class GzipStream
{
public:
    /// Continues at the file's position.
    explicit GzipStream(QFile & file);
    ~GzipStream();
    GzipStream(GzipStream const &) = delete;
    GzipStream & operator=(GzipStream const &) = delete;

    /// The next piece, valid until the next call; empty at the end. Throws JobError, without the path, if the
    /// file is damaged or cut short.
    std::string_view next();

private:
    struct State;
    bool refill();
    bool endsHere();

    QFile & m_file;
    std::unique_ptr<State> m_state;
};

/// Whether bytes begin like a gzip file.
inline bool isGzip(std::string_view begin)
{
    return begin.substr(0, 2) == "\x1f\x8b";
}

} // namespace KVCAM::Embedded
