#include "formats/GzipStream.h"

#include "formats/JobError.h"

#include <zlib.h>

#include <algorithm>
#include <array>
#include <new>

namespace KVCAM::Embedded {
namespace {

constexpr int gzipOnly = 15 + 16; // zlib: the largest window, with gzip's head and tail

} // namespace

struct GzipStream::State
{
    z_stream stream = {};
    std::array<char, 64 * 1024> input;
    std::array<char, 128 * 1024> output;
    bool done = false;
};

GzipStream::GzipStream(QFile & file) : m_file(file), m_state(std::make_unique<State>())
{
    if (inflateInit2(&m_state->stream, gzipOnly) != Z_OK) {
        throw std::bad_alloc();
    }
}

GzipStream::~GzipStream()
{
    inflateEnd(&m_state->stream);
}

// False at the end of the file.
bool GzipStream::refill()
{
    if (m_state->stream.avail_in != 0) {
        return true;
    }
    qint64 const read = m_file.read(m_state->input.data(), static_cast<qint64>(m_state->input.size()));
    if (read < 0) {
        throw JobError(m_file.errorString().toStdString());
    }
    m_state->stream.next_in = reinterpret_cast<Bytef *>(m_state->input.data());
    m_state->stream.avail_in = static_cast<uInt>(read);
    return read > 0;
}

// After the end of a member: another one may follow, or zeros up to the end of the file.
bool GzipStream::endsHere()
{
    z_stream & stream = m_state->stream;
    if (!refill()) {
        return true;
    }
    if (*stream.next_in != 0) {
        inflateReset(&stream);
        return false;
    }
    while (refill()) {
        if (std::any_of(stream.next_in, stream.next_in + stream.avail_in, [](Bytef b) { return b != 0; })) {
            throw JobError("something follows the compressed data");
        }
        stream.avail_in = 0;
    }
    return true;
}

std::string_view GzipStream::next()
{
    z_stream & stream = m_state->stream;
    while (!m_state->done) {
        bool const more = refill();
        stream.next_out = reinterpret_cast<Bytef *>(m_state->output.data());
        stream.avail_out = static_cast<uInt>(m_state->output.size());
        int const result = inflate(&stream, Z_NO_FLUSH);
        std::size_t const made = m_state->output.size() - stream.avail_out;
        if (result == Z_STREAM_END) {
            m_state->done = endsHere();
        } else if (result == Z_BUF_ERROR && !more) {
            throw JobError("the compressed data are cut short");
        } else if (result != Z_OK && result != Z_BUF_ERROR) {
            throw JobError(std::string("the compressed data are damaged: ") +
                           (stream.msg == nullptr ? "unknown form" : stream.msg));
        }
        if (made != 0) {
            return {m_state->output.data(), made};
        }
    }
    return {};
}

} // namespace KVCAM::Embedded
