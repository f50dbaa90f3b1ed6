#include "content/TextStore.h"

#include "store/engine/Backend.h"
#include "store/engine/Connection.h"
#include "store/engine/SqlText.h"
#include "store/engine/Value.h"

#include <QCoreApplication>
#include <QRegularExpression>

namespace kartella {

namespace {

QString textOf(const QVariant& value)
{
    return isNull(value) ? QString() : value.toString();
}

qint64 numberOf(const QVariant& value, qint64 fallback)
{
    return isNull(value) ? fallback : value.toLongLong();
}

// Text bound for a database: a NUL a file brought is no character a server accepts.
QString storable(QString text)
{
    text.remove(QChar(u'\0'));
    return text;
}

} // namespace

QString stampTime(const QDateTime& time)
{
    return time.isValid() ? time.toUTC().toString(Qt::ISODateWithMs) : QString();
}

namespace {

void writeDocumentText(Connection& connection, const DocumentText& text)
{
    const QString id = QString::number(text.documentId);
    // Selected from the document's own row, so that a document deleted meanwhile gets no
    // row (a register file has no foreign key to refuse it).
    const QString insert = QStringLiteral("INSERT INTO tbl_Document_Text (RastasID, FilePath, FileSize, "
                                          "FileModified, State, Reason, Body, ReadAt) SELECT RastasID, ")
        + sqlString(storable(text.file.path)) + u',' + QString::number(text.file.size) + u','
        + sqlString(text.file.modified) + u',' + QString::number(int(text.state)) + u','
        + sqlString(storable(text.reason)) + u',' + sqlString(storable(text.body)) + u','
        + sqlString(text.readAt) + QStringLiteral(" FROM tbl_Documents WHERE RastasID=") + id;
    connection.execute(QStringLiteral("DELETE FROM tbl_Document_Text WHERE RastasID=") + id);
    connection.execute(insert);
}

} // namespace

void storeDocumentText(Connection& connection, const DocumentText& text)
{
    storeDocumentTexts(connection, {text});
}

void storeDocumentTexts(Connection& connection, const QList<DocumentText>& texts)
{
    connection.beginTrans();
    try {
        for (const DocumentText& text : texts)
            writeDocumentText(connection, text);
        connection.commitTrans();
    } catch (...) {
        connection.rollbackTrans();
        throw;
    }
}

std::optional<DocumentText> storedDocumentText(Connection& connection, qint32 documentId, bool withBody)
{
    const engine::QueryResult result = connection.backend().query(
        QStringLiteral("SELECT FilePath, FileSize, FileModified, State, Reason, ReadAt")
        + (withBody ? QStringLiteral(", Body") : QString())
        + QStringLiteral(" FROM tbl_Document_Text WHERE RastasID=") + QString::number(documentId));
    if (result.rows.rowCount() == 0)
        return std::nullopt;
    DocumentText text;
    text.documentId = documentId;
    text.file.path = textOf(result.rows.value(0, 0));
    text.file.size = numberOf(result.rows.value(0, 1), -1);
    text.file.modified = textOf(result.rows.value(0, 2));
    text.state = TextState(numberOf(result.rows.value(0, 3), 0));
    text.reason = textOf(result.rows.value(0, 4));
    text.readAt = textOf(result.rows.value(0, 5));
    if (withBody)
        text.body = textOf(result.rows.value(0, 6));
    return text;
}

QHash<qint32, FileStamp> storedFileStamps(Connection& connection)
{
    const engine::QueryResult result = connection.backend().query(
        QStringLiteral("SELECT RastasID, FilePath, FileSize, FileModified FROM tbl_Document_Text"));
    QHash<qint32, FileStamp> stamps;
    stamps.reserve(result.rows.rowCount());
    for (int row = 0; row < result.rows.rowCount(); ++row) {
        FileStamp stamp;
        stamp.path = textOf(result.rows.value(row, 1));
        stamp.size = numberOf(result.rows.value(row, 2), -1);
        stamp.modified = textOf(result.rows.value(row, 3));
        stamps.insert(qint32(result.rows.value(row, 0).toLongLong()), stamp);
    }
    return stamps;
}

void removeDocumentText(Connection& connection, qint32 documentId)
{
    connection.execute(
        QStringLiteral("DELETE FROM tbl_Document_Text WHERE RastasID=") + QString::number(documentId));
}

namespace {

// The register keeps a reason as the reader gave it, in English (TextReason); the ones the
// readers give are shown in the interface's language, others (the system's) as they are.
QString reasonText(const QString& reason)
{
    static const char* const known[] = {QT_TRANSLATE_NOOP("kartella::TextStore", "damaged"),
        QT_TRANSLATE_NOOP("kartella::TextStore", "password-protected"),
        QT_TRANSLATE_NOOP("kartella::TextStore", "file not found"),
        QT_TRANSLATE_NOOP("kartella::TextStore", "LibreOffice or catdoc is not installed"),
        QT_TRANSLATE_NOOP("kartella::TextStore", "can't be opened")};
    for (const char* text : known) {
        if (reason == QLatin1String(text))
            return QCoreApplication::translate("kartella::TextStore", text);
    }
    static const QRegularExpression tooLarge(QStringLiteral("^larger than (\\d+) MB$"));
    const QRegularExpressionMatch match = tooLarge.match(reason);
    if (match.hasMatch())
        return QCoreApplication::translate("kartella::TextStore", "larger than %1 MB").arg(match.captured(1));
    return reason;
}

} // namespace

QString textStatusText(TextState state, const QString& reason)
{
    switch (state) {
    case TextState::Read:
        return QCoreApplication::translate("kartella::TextStore", "Read");
    case TextState::NoText:
        return QCoreApplication::translate("kartella::TextStore", "No text in this kind of file");
    case TextState::NeedsOcr:
        return QCoreApplication::translate("kartella::TextStore", "Needs text recognition (a scanned PDF)");
    case TextState::Failed:
        return QCoreApplication::translate("kartella::TextStore", "Not read: %1")
            .arg(reason.isEmpty() ? QCoreApplication::translate("kartella::TextStore", "unknown reason")
                                  : reasonText(reason));
    case TextState::NotRead:
        break;
    }
    return QCoreApplication::translate("kartella::TextStore", "Not read yet");
}

} // namespace kartella
