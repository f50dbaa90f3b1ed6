#pragma once

#include <QString>

#include <optional>

namespace kartella {

// What the desktop has to open a kind of content, asked before a file or a link is handed
// over: the desktop's opener fails only on the terminal when nothing takes it.

// The desktop entry of the default program for mimeType (a type such as "application/pdf"
// or a link scheme such as "x-scheme-handler/tel"), as "xdg-mime query default" names it;
// empty text when there is none, nothing when the desktop can't be asked (no xdg-mime, or a
// system without it), so that the caller simply tries.
std::optional<QString> defaultProgramFor(const QString& mimeType);

// Whether the desktop has a program for the file's type, or for a type it is a kind of (a
// C source is plain text); true when it can't be asked.
bool desktopOpensFile(const QString& path);
// Whether the desktop has a program for tel: links; true when it can't be asked.
bool desktopPlacesCalls();

// The file's type in a message's words: its description, its MIME type and its extension,
// as in "PDF document (application/pdf, .pdf)".
QString fileTypeDescription(const QString& path);

} // namespace kartella
