#include "WorkgroupCheck.h"

#include "WorkgroupClient.h"
#include "store/InsertBatch.h"
#include "store/Store.h"
#include "store/engine/Connection.h"
#include "store/engine/Recordset.h"

#include <QDate>
#include <QHash>
#include <QSet>

namespace kartella::bench {

namespace {

void note(CheckResult& result, const QString& problem)
{
    ++result.failures;
    if (result.problems.size() < 12)
        result.problems << problem;
}

// Every row of sql as its fields' values.
QList<QVariantList> rowsOf(Connection& connection, const QString& sql)
{
    QList<QVariantList> rows;
    Recordset records;
    records.open(sql, connection);
    while (!records.eof()) {
        QVariantList row;
        for (int i = 0; i < records.fieldCount(); ++i)
            row << records.fields(i).value();
        rows << row;
        records.moveNext();
    }
    return rows;
}

// Names or indexes held more than once, letter case aside: the copies beyond the first.
int extraCopies(const QList<QVariantList>& rows)
{
    QHash<QString, int> seen;
    int extra = 0;
    for (const QVariantList& row : rows) {
        if (row.first().isNull() || row.first().toString().isEmpty())
            continue;
        if (seen[row.first().toString().toCaseFolded()]++ > 0)
            ++extra;
    }
    return extra;
}

QString integrityOf(Connection& connection)
{
    if (connection.dialect() == SqlDialect::Sqlite) {
        QStringList answers;
        for (const QVariantList& row : rowsOf(connection, QStringLiteral("PRAGMA integrity_check")))
            answers << row.first().toString();
        return answers.join(QStringLiteral("; "));
    }
    // A server keeps its files sound itself; its tables are counted and read whole.
    for (const QString& table : {QStringLiteral("tbl_Documents"), QStringLiteral("tbl_Contacts"),
             QStringLiteral("tbl_Phones"), QStringLiteral("tbl_Day_Counter")})
        rowsOf(connection, QStringLiteral("SELECT COUNT(*) FROM ") + table);
    return QStringLiteral("ok");
}

} // namespace

void seedRegister(const QString& location)
{
    Connection connection(plainConnectionString(JetProvider, location));
    connection.open();
    connection.beginTrans();
    {
        InsertBatch categories(connection, QStringLiteral("tbl_Document_Categories"),
            {QStringLiteral("KategID"), QStringLiteral("DokKategorija")});
        const QStringList names = {QStringLiteral("Sutartys"), QStringLiteral("Laiškai"),
            QStringLiteral("Įsakymai"), QStringLiteral("Kita")};
        for (int i = 0; i < names.size(); ++i)
            categories.add({i + 1, names[i]});
        categories.flush();
        const QDate today = QDate::currentDate();
        InsertBatch documents(connection, QStringLiteral("tbl_Documents"),
            {QStringLiteral("RastasID"), QStringLiteral("DokAntraste"),
                QStringLiteral("DokRegistracIndeksas"), QStringLiteral("DokRegistracData"),
                QStringLiteral("DokGavSiuntData"), QStringLiteral("KategID"), QStringLiteral("KryptisID")});
        for (int i = 1; i <= SeedDocuments; ++i) {
            const QDate day = today.addDays(-(i % 40));
            documents.add({i, QStringLiteral("Seed document %1").arg(i), QStringLiteral("S-%1").arg(i), day,
                day, 1 + i % 4, 1 + i % 4});
        }
        documents.flush();
        InsertBatch contacts(connection, QStringLiteral("tbl_Contacts"),
            {QStringLiteral("ContactID"), QStringLiteral("FullName"), QStringLiteral("City")});
        for (int i = 0; i < SeedContacts; ++i)
            contacts.add({i + 1, seedContactName(i), QStringLiteral("Kaunas")});
        contacts.flush();
    }
    connection.commitTrans();
    connection.raiseKeyCounter(QStringLiteral("tbl_Documents"), SeedDocuments);
    connection.raiseKeyCounter(QStringLiteral("tbl_Contacts"), SeedContacts);
    connection.raiseKeyCounter(QStringLiteral("tbl_Document_Categories"), 4);
}

CheckResult checkRegister(const QString& location, const QList<LoggedOperation>& operations)
{
    CheckResult result;
    Connection connection(plainConnectionString(JetProvider, location));
    connection.open();
    result.integrity = integrityOf(connection);
    if (result.integrity != u"ok")
        note(result, QStringLiteral("integrity: ") + result.integrity);

    QHash<qint64, QString> descriptions;
    for (const QVariantList& row :
        rowsOf(connection, QStringLiteral("SELECT RastasID, DokAntraste FROM tbl_Documents")))
        descriptions.insert(row[0].toLongLong(), row[1].toString());
    result.duplicateIndexes
        = extraCopies(rowsOf(connection, QStringLiteral("SELECT DokRegistracIndeksas FROM tbl_Documents")));
    const QList<QVariantList> contacts
        = rowsOf(connection, QStringLiteral("SELECT FullName, ContactID FROM tbl_Contacts"));
    result.duplicateContacts = extraCopies(contacts);
    QHash<QString, qint64> contactIds;
    for (const QVariantList& row : contacts)
        contactIds.insert(row[0].toString(), row[1].toLongLong());
    QHash<qint64, int> phones;
    for (const QVariantList& row : rowsOf(connection, QStringLiteral("SELECT ContactID FROM tbl_Phones")))
        ++phones[row[0].toLongLong()];

    QSet<qint64> deleted;
    for (const LoggedOperation& operation : operations) {
        if (operation.kind == u"delete" && operation.result == LoggedOperation::Result::Done)
            deleted.insert(operation.key);
    }
    // The edits of each document that stands, by the description each of them read.
    QHash<qint64, QHash<QString, int>> editsByRead;
    QHash<qint64, QSet<QString>> stored;
    for (const LoggedOperation& operation : operations) {
        const bool done = operation.result == LoggedOperation::Result::Done;
        if (operation.result == LoggedOperation::Result::Failed)
            note(result, operation.kind + QStringLiteral(" failed: ") + operation.detail);
        if (operation.kind == u"new" && done && descriptions.value(operation.key) != operation.value)
            note(result,
                QStringLiteral("new document %1 (%2) missing").arg(operation.key).arg(operation.value));
        if (operation.kind == u"delete" && done && descriptions.contains(operation.key))
            note(result, QStringLiteral("deleted document %1 still there").arg(operation.key));
        if (operation.kind == u"contact" && done
            && (!contactIds.contains(operation.value)
                || phones.value(contactIds.value(operation.value)) != 2))
            note(result, QStringLiteral("contact %1 missing or without its two phones").arg(operation.value));
        if (operation.kind == u"import" && done) {
            for (int i = 0; i < ImportSize; ++i) {
                if (!contactIds.contains(importedName(int(operation.key), i)))
                    note(result,
                        QStringLiteral("imported %1 missing").arg(importedName(int(operation.key), i)));
            }
        }
        if (operation.kind != u"edit" || deleted.contains(operation.key)
            || !descriptions.contains(operation.key))
            continue;
        if (done) {
            ++editsByRead[operation.key][operation.read];
            stored[operation.key].insert(operation.value);
        } else if (operation.result == LoggedOperation::Result::Refused
            && descriptions.value(operation.key) == operation.value) {
            note(result, QStringLiteral("refused edit of %1 stored").arg(operation.key));
        }
    }
    // Each stored description was read by at most one later edit that stored: two edits that
    // read the same text and both stored means the later overwrote the earlier unseen. The
    // text the document holds is the last edit's.
    for (auto document = editsByRead.cbegin(); document != editsByRead.cend(); ++document) {
        for (const int readers : document.value())
            result.lostUpdates += readers - 1;
        if (!stored.value(document.key()).contains(descriptions.value(document.key())))
            ++result.lostUpdates;
    }
    return result;
}

} // namespace kartella::bench
