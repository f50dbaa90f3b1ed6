#include "store/engine/TextFold.h"

#include <QChar>

#include <cstring>

namespace kartella::engine {

namespace {

using Byte = unsigned char;

// Decodes one character at p and advances p; a malformed byte stands for itself.
inline char32_t decode(const Byte*& p, const Byte* end)
{
    const Byte lead = *p;
    if (lead < 0x80) {
        ++p;
        return lead;
    }
    int length = 0;
    char32_t c = 0;
    if ((lead & 0xE0) == 0xC0) {
        length = 2;
        c = lead & 0x1F;
    } else if ((lead & 0xF0) == 0xE0) {
        length = 3;
        c = lead & 0x0F;
    } else if ((lead & 0xF8) == 0xF0) {
        length = 4;
        c = lead & 0x07;
    } else {
        ++p;
        return lead;
    }
    if (end - p < length) {
        ++p;
        return lead;
    }
    for (int i = 1; i < length; ++i) {
        if ((p[i] & 0xC0) != 0x80) {
            ++p;
            return lead;
        }
        c = (c << 6) | (p[i] & 0x3F);
    }
    p += length;
    return c;
}

inline char32_t asciiLower(char32_t c)
{
    return (c >= 'A' && c <= 'Z') ? c + ('a' - 'A') : c;
}

// Case folded, then the Lithuanian letters onto their base letters.
inline char32_t foldName(char32_t c)
{
    if (c < 0x80)
        return asciiLower(c);
    c = foldCase(c);
    switch (c) {
    case 0x0105: // ą
        return 'a';
    case 0x010D: // č
        return 'c';
    case 0x0119: // ę
    case 0x0117: // ė
        return 'e';
    case 0x012F: // į
        return 'i';
    case 0x0161: // š
        return 's';
    case 0x0173: // ų
    case 0x016B: // ū
        return 'u';
    case 0x017E: // ž
        return 'z';
    default:
        return c;
    }
}

inline char32_t foldLike(char32_t c)
{
    return c < 0x80 ? asciiLower(c) : foldCase(c);
}

int compareBytes(const char* a, std::size_t aSize, const char* b, std::size_t bSize)
{
    const int common = std::memcmp(a, b, aSize < bSize ? aSize : bSize);
    if (common != 0)
        return common;
    return aSize < bSize ? -1 : (aSize > bSize ? 1 : 0);
}

} // namespace

char32_t foldCase(char32_t c)
{
    if (c < 0x80)
        return asciiLower(c);
    return QChar::toCaseFolded(c);
}

int compareNames(const char* a, std::size_t aSize, const char* b, std::size_t bSize)
{
    const Byte* p = reinterpret_cast<const Byte*>(a);
    const Byte* pEnd = p + aSize;
    const Byte* q = reinterpret_cast<const Byte*>(b);
    const Byte* qEnd = q + bSize;
    while (p < pEnd && q < qEnd) {
        // Plain ASCII letters compare without decoding.
        if (*p < 0x80 && *q < 0x80) {
            const char32_t x = asciiLower(*p++);
            const char32_t y = asciiLower(*q++);
            if (x != y)
                return x < y ? -1 : 1;
            continue;
        }
        const char32_t x = foldName(decode(p, pEnd));
        const char32_t y = foldName(decode(q, qEnd));
        if (x != y)
            return x < y ? -1 : 1;
    }
    if (p < pEnd)
        return 1;
    if (q < qEnd)
        return -1;
    return compareBytes(a, aSize, b, bSize);
}

bool likeMatches(
    const char* pattern, std::size_t patternSize, const char* text, std::size_t textSize, char32_t escape)
{
    const Byte* p = reinterpret_cast<const Byte*>(pattern);
    const Byte* const pEnd = p + patternSize;
    const Byte* t = reinterpret_cast<const Byte*>(text);
    const Byte* const tEnd = t + textSize;
    // Where to resume after the last %: the pattern behind it and the text it has taken.
    const Byte* starPattern = nullptr;
    const Byte* starText = nullptr;

    while (t < tEnd) {
        if (p < pEnd) {
            const Byte* next = p;
            char32_t pc = decode(next, pEnd);
            bool literal = false;
            if (escape != 0 && pc == escape && next < pEnd) {
                pc = decode(next, pEnd);
                literal = true;
            }
            if (!literal && pc == '%') {
                p = next;
                starPattern = p;
                starText = t;
                continue;
            }
            const Byte* afterText = t;
            const char32_t tc = decode(afterText, tEnd);
            if ((!literal && pc == '_') || foldLike(pc) == foldLike(tc)) {
                p = next;
                t = afterText;
                continue;
            }
        }
        if (starPattern == nullptr)
            return false;
        // Let the last % take one more character and try again behind it.
        decode(starText, tEnd);
        t = starText;
        p = starPattern;
    }
    while (p < pEnd && *p == '%')
        ++p;
    return p == pEnd;
}

bool likeMatches(const QString& pattern, const QString& text)
{
    const QByteArray p = pattern.toUtf8();
    const QByteArray t = text.toUtf8();
    return likeMatches(p.constData(), std::size_t(p.size()), t.constData(), std::size_t(t.size()));
}

} // namespace kartella::engine
