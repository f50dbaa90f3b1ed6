#pragma once

#include <QByteArray>
#include <QString>

namespace kartella {

// Decoding of contact files, which come as UTF-8 (with or without a byte order mark) or
// in a Windows code page.

// Whether text is well-formed UTF-8 (an empty text is).
bool isUtf8(const QByteArray& text);

// The 8-bit code page that reads text best when it is not UTF-8: "windows-1257" when
// the bytes of the Lithuanian letters Š, Ž, š, ž are frequent (in windows-1252 they are
// the rare Icelandic Ð, Þ, ð, þ), else "windows-1252".
QString guessCodePage(const QByteArray& text);

// Whether Qt can decode with the code page or character set of that name.
bool isKnownCodePage(const QString& name);

// text decoded with the named character set; an unknown name decodes as windows-1252.
QString decodeText(const QByteArray& text, const QString& charset);

} // namespace kartella
