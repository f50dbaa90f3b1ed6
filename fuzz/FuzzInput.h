// What the fuzz targets share: the input as bytes, as text or cut into parts, and a check
// that ends the run with the condition that failed, which libFuzzer reports as a crash.
#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

#define FUZZ_CHECK(condition)                                                                                \
    do {                                                                                                     \
        if (!(condition)) {                                                                                  \
            std::fprintf(stderr, "%s:%d: check failed: %s\n", __FILE__, __LINE__, #condition);               \
            std::abort();                                                                                    \
        }                                                                                                    \
    } while (false)

namespace kartella::fuzz {

inline QByteArray bytes(const std::uint8_t* data, std::size_t size)
{
    return QByteArray(reinterpret_cast<const char*>(data), qsizetype(size));
}

inline QString text(const std::uint8_t* data, std::size_t size)
{
    return QString::fromUtf8(reinterpret_cast<const char*>(data), qsizetype(size));
}

// The input cut at each byte 0, for a target that takes more than one argument; a missing
// part reads as empty.
inline QList<QByteArray> parts(const std::uint8_t* data, std::size_t size, qsizetype count)
{
    QList<QByteArray> result = bytes(data, size).split('\0');
    while (result.size() < count)
        result.append(QByteArray());
    return result;
}

} // namespace kartella::fuzz
