#pragma once

#include "content/TextStore.h"

#include <QString>
#include <QStringList>

#include <functional>

namespace kartella {

// What reading one file gave: its text, or the state and reason why there is none.
struct FileText
{
    TextState state = TextState::NoText;
    QString reason;
    QString body;

    static FileText read(QString body) { return {TextState::Read, {}, std::move(body)}; }
    static FileText failed(QString reason) { return {TextState::Failed, std::move(reason), {}}; }
};

// The reasons a user reads in the document's details.
namespace TextReason {
inline const QString Damaged = QStringLiteral("damaged");
inline const QString PasswordProtected = QStringLiteral("password-protected");
inline const QString FileNotFound = QStringLiteral("file not found");
inline const QString NoConverter = QStringLiteral("LibreOffice or catdoc is not installed");
QString tooLarge(qint64 limitBytes); // "larger than 50 MB"
} // namespace TextReason

// Readers by kind of file. Each takes the path of an existing file and never throws: a
// file it can't read comes back Failed with its reason.
FileText readPdfText(const QString& path);
// .odt .ods .odp .docx .xlsx .pptx, by the extension given (lower case, no dot).
FileText readOfficeXmlText(const QString& path, const QString& extension);
// .doc and .xls through Debian's catdoc and xls2csv.
FileText readOldOfficeText(const QString& path, const QString& extension);
FileText readPlainText(const QString& path);
FileText readHtmlText(const QString& path);
FileText readRtfText(const QString& path);
FileText readMailText(const QString& path);

// The old binary formats that LibreOffice converts first, many files in one call.
bool convertsInBatches(const QString& extension);
// Reads each of paths (all of a kind convertsInBatches accepts) through one LibreOffice
// call; the results are in the order of paths. timeoutMs bounds the whole call; cancelled,
// asked every tenth of a second, stops LibreOffice early (the files then come back Failed).
QList<FileText> readConvertedTexts(
    const QStringList& paths, int timeoutMs = 10 * 60 * 1000, const std::function<bool()>& cancelled = {});

// The reader for a file by its extension: any file, existing or not, larger than limitBytes
// or not, gives a result (a kind we have no reader for: NoText). Kinds convertsInBatches
// accepts are read one by one here; a queue gathers them for readConvertedTexts instead.
FileText readFileText(const QString& path, qint64 limitBytes);

// The extensions readFileText reads (lower case, no dot).
QStringList readableExtensions();

} // namespace kartella
