#pragma once

#include <QByteArray>
#include <QList>
#include <QPair>
#include <QString>
#include <QStringList>

namespace kartella::test {

// Files of every kind the readers take, made by the tests themselves.

// Writes bytes to path; fails the test (QVERIFY) when it can't.
void writeBytes(const QString& path, const QByteArray& bytes);
// A zip of the given entries (name, content), as OpenDocument and Office Open XML files are.
void writeZip(const QString& path, const QList<QPair<QString, QByteArray>>& entries);
// A PDF with one page of text per element of pages, written by Qt.
void writePdf(const QString& path, const QStringList& pages);
// A PDF of one page with a drawing and no text, as a scan is.
void writeImagePdf(const QString& path);
// A PDF whose opening needs a password.
QByteArray encryptedPdf();

// The minimal parts of each kind holding the given paragraphs.
void writeOpenDocument(const QString& path, const QStringList& paragraphs);
void writeWordDocument(const QString& path, const QStringList& paragraphs);
void writeSpreadsheet(const QString& path, const QStringList& cells);
void writePresentation(const QString& path, const QStringList& slides);

// Converts source with LibreOffice to the format (extension) given, into folder; the new
// file's path, or empty text when LibreOffice is missing or failed.
QString convertWithLibreOffice(const QString& source, const QString& format, const QString& folder);
bool hasLibreOffice();

} // namespace kartella::test
