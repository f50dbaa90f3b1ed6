#pragma once

#include <QDateTime>
#include <QHash>
#include <QString>

#include <optional>

namespace kartella {

class Connection;

// The text read from each document's file, kept in the register in tbl_Document_Text so
// that everyone working on the register shares it. One row per document:
//
//   RastasID      the document (tbl_Documents.RastasID); the row goes with its document
//                 (a trigger on a register file, a foreign key ON DELETE CASCADE on a server)
//   FilePath      the file as it was read (its absolute path)
//   FileSize      its size in bytes when read
//   FileModified  its modification time when read: ISO 8601, UTC, with milliseconds
//   State         one of TextState below
//   Reason        why nothing was read, for a user to see ("damaged", "password-protected",
//                 "larger than 50 MB", "file not found"); empty when read
//   Body          the text, plain, UTF-8; empty unless State is Read
//   ReadAt        when it was read: ISO 8601, UTC, with milliseconds
//
// The full-text index over Body is kept by the register itself; writers here only put
// rows in and take them out.

enum class TextState {
    NotRead = 0, // no row yet, or a row another program left without a state
    Read = 1, // Body holds the file's text (it may be empty: a file without words)
    NoText = 2, // a kind of file that has no text to read (an image, an archive, ...)
    NeedsOcr = 3, // a PDF without a text layer: its text has to be recognised from the pages
    Failed = 4, // the file could not be read; Reason says why
};

// What identifies a file's version: when any of the three differs, the file is read again.
struct FileStamp
{
    QString path;
    qint64 size = -1;
    QString modified; // ISO 8601, UTC, milliseconds

    bool operator==(const FileStamp&) const = default;
};

// The modification time as FileModified holds it.
QString stampTime(const QDateTime& time);

struct DocumentText
{
    qint32 documentId = 0;
    FileStamp file;
    TextState state = TextState::NotRead;
    QString reason;
    QString body;
    QString readAt;
};

// Writes the row of text.documentId in a transaction of its own, replacing the one there
// was. A document that is gone meanwhile gets no row. Throws kartella::Error.
void storeDocumentText(Connection& connection, const DocumentText& text);

// Writes the rows of several documents in one transaction: all of them, or none.
void storeDocumentTexts(Connection& connection, const QList<DocumentText>& texts);

// The row of a document, with its body when withBody; nothing when it has none.
std::optional<DocumentText> storedDocumentText(
    Connection& connection, qint32 documentId, bool withBody = true);

// The stamps of every row, by document.
QHash<qint32, FileStamp> storedFileStamps(Connection& connection);

// Takes out the row of a document (a document whose file was taken away).
void removeDocumentText(Connection& connection, qint32 documentId);

// The state and reason as a user reads them in the document's details: "Read", "No text in
// this kind of file", "Needs text recognition (a scanned PDF)", "Not read: <reason>",
// "Not read yet".
QString textStatusText(TextState state, const QString& reason);

} // namespace kartella
