#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

namespace KVCAM::Testing {

/// An entry of an archive; a name that ends in '/' is a folder.
struct Packed
{
    QByteArray name;
    QByteArray bytes = {};
    char type = '0'; ///< of tar: '0' file, '1' hard link, '2' symbolic link, '3' device; ignored by zip
    QByteArray target = {}; ///< of a link
};

inline quint32 crc32(QByteArray const & bytes)
{
    quint32 crc = ~0U;
    for (char const byte : bytes) {
        crc ^= static_cast<uchar>(byte);
        for (int bit = 0; bit < 8; ++bit) {
            crc = (crc >> 1) ^ ((crc & 1) != 0 ? 0xEDB88320U : 0U);
        }
    }
    return ~crc;
}

inline QByteArray little(quint32 value, int bytes)
{
    QByteArray text;
    for (int i = 0; i < bytes; ++i) {
        text.append(static_cast<char>(value >> (8 * i)));
    }
    return text;
}

/// Without the end mark of two blocks of zeros.
inline QByteArray tarEntries(QList<Packed> const & entries)
{
    QByteArray tar;
    for (Packed const & entry : entries) {
        auto const octal = [](int value, int width) {
            return QByteArray::number(value, 8).rightJustified(width, '0') + '\0';
        };
        QByteArray head = entry.name.leftJustified(100, '\0', true) + octal(0644, 7) + octal(0, 7) +
                          octal(0, 7) + octal(entry.bytes.size(), 11) + octal(0, 11) + QByteArray(8, ' ') +
                          (entry.name.endsWith('/') ? '5' : entry.type) +
                          entry.target.leftJustified(100, '\0', true) + QByteArray("ustar\00000", 8);
        head = head.leftJustified(512, '\0');
        int sum = 0;
        for (char const c : head) {
            sum += static_cast<uchar>(c);
        }
        head.replace(148, 8, octal(sum, 6) + ' ');
        tar += head + entry.bytes.leftJustified((entry.bytes.size() + 511) / 512 * 512, '\0');
    }
    return tar;
}

inline QByteArray tar(QList<Packed> const & entries)
{
    return tarEntries(entries) + QByteArray(1024, '\0');
}

inline QByteArray gzip(QByteArray const & bytes)
{
    QByteArray const packed = qCompress(bytes, 9); // a length, zlib's two bytes, the data, a checksum
    return QByteArray("\x1f\x8b\x08\0\0\0\0\0\0\xff", 10) + packed.mid(6, packed.size() - 10) +
           little(crc32(bytes), 4) + little(static_cast<quint32>(bytes.size()), 4);
}

/// LZW by literals only, 9 bits each: for less than 250 bytes.
inline QByteArray lzw(QByteArray const & bytes)
{
    QByteArray packed(bytes.size() * 9 / 8 + 1, '\0');
    for (int i = 0; i < bytes.size() * 9; ++i) {
        int const code = static_cast<uchar>(bytes[i / 9]);
        packed[i / 8] = static_cast<char>(packed[i / 8] | ((code >> (i % 9)) & 1) << (i % 8));
    }
    return "\x1f\x9d\x90" + packed;
}

inline QByteArray zip(QList<Packed> const & entries)
{
    QByteArray files;
    QByteArray directory;
    for (Packed const & entry : entries) {
        auto const size = static_cast<quint32>(entry.bytes.size());
        QByteArray const common = QByteArray(8, 0) + little(crc32(entry.bytes), 4) + little(size, 4) +
                                  little(size, 4) + little(static_cast<quint32>(entry.name.size()), 2) +
                                  little(0, 2);
        directory += QByteArray("PK\x01\x02") + little(20, 2) + little(20, 2) + common + QByteArray(10, 0) +
                     little(static_cast<quint32>(files.size()), 4) + entry.name;
        files += QByteArray("PK\x03\x04") + little(20, 2) + common + entry.name + entry.bytes;
    }
    auto const count = static_cast<quint32>(entries.size());
    return files + directory + QByteArray("PK\x05\x06") + little(0, 4) + little(count, 2) + little(count, 2) +
           little(static_cast<quint32>(directory.size()), 4) + little(static_cast<quint32>(files.size()), 4) +
           little(0, 2);
}

} // namespace KVCAM::Testing
