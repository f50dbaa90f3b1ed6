#pragma once

#include <QString>

namespace kartella {

// Path routines over the platform's separator (QDir::separator(): "/" here, "\" on Windows).

// Whether file operations go through the desktop shell: always, where the program runs.
bool hasShell();

// The path with one separator at its end: one is added when the last character isn't a
// separator; an empty path gives a single separator.
QString normalizePath(const QString& path);

// Removes one separator from the end of path, if there is one (only one).
void denormalizePath(QString& path);

// Positions found by getFullPath, as indexes into its result.
struct FullPathParts
{
    int name = 0; // first character of the name (the length for a path ending in a separator)
    int extension = 0; // the extension's dot, or the length when the name has none
    int rootEnd = 0; // last character of the root ("/" here; "C:\" or "\\server\" on Windows)
};

// The absolute form of path: relative to the current folder, "." and ".." resolved, a
// trailing separator kept. An empty path gives empty text and leaves parts alone.
// Throws kartella::Error when the path can't be expanded.
QString getFullPath(const QString& path, FullPathParts& parts);
QString getFullPath(const QString& path, int& namePosition, int& extensionPosition, int& rootEnd);

// The file name with its extension: what follows the last separator of the full path.
// Empty for an empty path and for a folder path with a final separator.
QString getFileBaseExt(const QString& path);

// The text before its first NUL character; all of it when there is none.
QString trimAtNull(const QString& text);

// The system's text for an error code of the operating system's file interface
// (2, 3, 5, 123, 161, 206); empty for a code it doesn't know.
QString apiErrorText(qint32 code);
// The number that an operating system error travels under: code + 0x80047148.
long apiErrorNumber(qint32 code);
// Throws kartella::Error for an operating system error code: apiErrorNumber(code), the
// code's text, source "Kartella.Windows".
[[noreturn]] void raiseApiError(qint32 code);

} // namespace kartella
