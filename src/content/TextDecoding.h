#pragma once

#include <QByteArray>
#include <QString>

namespace kartella {

// Bytes from a file as text: in the encoding declared (a name QStringDecoder knows, e.g.
// "windows-1257", "ISO-8859-13", "utf-8"), else by a byte order mark, else as UTF-8 when
// they are valid UTF-8, else as Windows-1257 (the Baltic code page).
QString decodeText(const QByteArray& bytes, const QByteArray& declared = {});

// Whether a QStringDecoder can decode the named encoding.
bool knownEncoding(const QByteArray& name);

} // namespace kartella
