// The search index's schema step. Nothing here may name a collation or function of ours:
// the triggers run in any program that writes the register.
#include "store/SearchIndex.h"

#include "store/SchemaSteps.h"
#include "store/engine/Connection.h"
#include "store/engine/Recordset.h"

namespace kartella {

namespace {

// The letters folded onto a base letter, as the name order folds them (SchemaSteps.cpp).
constexpr std::pair<char16_t, char16_t> LetterFolds[] = {
    {u'Ą', u'a'},
    {u'ą', u'a'},
    {u'Č', u'c'},
    {u'č', u'c'},
    {u'Ę', u'e'},
    {u'ę', u'e'},
    {u'Ė', u'e'},
    {u'ė', u'e'},
    {u'Į', u'i'},
    {u'į', u'i'},
    {u'Š', u's'},
    {u'š', u's'},
    {u'Ų', u'u'},
    {u'ų', u'u'},
    {u'Ū', u'u'},
    {u'ū', u'u'},
    {u'Ž', u'z'},
    {u'ž', u'z'},
};

QString contactNameOf(const QString& contactId)
{
    return QStringLiteral("(SELECT FullName FROM tbl_Contacts WHERE tbl_Contacts.ContactID = %1)")
        .arg(contactId);
}

QString indexRow(const QString& document)
{
    return QStringLiteral("INSERT INTO %1 (rowid, FoldedText) VALUES (%2.RastasID, %3);")
        .arg(QLatin1String(SearchTable), document,
            foldedDocumentText(document, contactNameOf(document + QStringLiteral(".ContactID"))));
}

QString dropRow(const QString& document)
{
    return QStringLiteral("DELETE FROM %1 WHERE rowid = %2.RastasID;")
        .arg(QLatin1String(SearchTable), document);
}

// The rows of the documents of a contact whose name came, changed or went.
QString reindexContact(const QString& contactIds)
{
    const QString table = QLatin1String(SearchTable);
    return QStringLiteral("DELETE FROM %1 WHERE rowid IN (SELECT RastasID FROM tbl_Documents WHERE ContactID "
                          "IN (%2)); "
                          "INSERT INTO %1 (rowid, FoldedText) SELECT RastasID, %3 FROM tbl_Documents "
                          "WHERE ContactID IN (%2);")
        .arg(table, contactIds,
            foldedDocumentText(
                QStringLiteral("tbl_Documents"), contactNameOf(QStringLiteral("tbl_Documents.ContactID"))));
}

} // namespace

QString foldSearchText(const QString& text)
{
    QString folded = text;
    for (QChar& c : folded) {
        const char16_t u = c.unicode();
        if (u >= u'A' && u <= u'Z') {
            c = QChar(u + (u'a' - u'A'));
            continue;
        }
        for (const auto& [letter, base] : LetterFolds) {
            if (u == letter) {
                c = QChar(base);
                break;
            }
        }
    }
    return folded;
}

QString foldedDocumentText(const QString& document, const QString& contactName, const QString& quote)
{
    // One blank between the fields: a searched word holds none, so no match spans two fields.
    const QString text
        = QStringLiteral("coalesce(%1.%3DokAntraste%3, '') || ' ' || coalesce(%1.%3DokRegistracIndeksas%3, "
                         "'') || ' ' || coalesce(%1.%3DokPastaba%3, '') || ' ' || coalesce(%2, '') || "
                         "' ' || coalesce(%1.%3RastoKel%3, '')")
              .arg(document, contactName, quote);
    return nameOrderKey(text);
}

void createSearchIndex(Connection& connection)
{
    const QString table = QLatin1String(SearchTable);
    connection.execute(QStringLiteral("CREATE VIRTUAL TABLE %1 USING fts5(FoldedText, tokenize = 'trigram "
                                      "case_sensitive 1')")
                           .arg(table));
    connection.execute(
        QStringLiteral("INSERT INTO %1 (rowid, FoldedText) SELECT RastasID, %2 FROM tbl_Documents")
            .arg(table,
                foldedDocumentText(QStringLiteral("tbl_Documents"),
                    contactNameOf(QStringLiteral("tbl_Documents.ContactID")))));
    const QString newRow = QStringLiteral("NEW");
    const QString oldRow = QStringLiteral("OLD");
    connection.execute(
        QStringLiteral("CREATE TRIGGER trg_Documents_Search_Insert AFTER INSERT ON tbl_Documents BEGIN ")
        + indexRow(newRow) + QStringLiteral(" END"));
    connection.execute(QStringLiteral("CREATE TRIGGER trg_Documents_Search_Update AFTER UPDATE OF RastasID, "
                                      "DokAntraste, DokRegistracIndeksas, DokPastaba, ContactID, RastoKel ON "
                                      "tbl_Documents BEGIN ")
        + dropRow(oldRow) + u' ' + indexRow(newRow) + QStringLiteral(" END"));
    connection.execute(
        QStringLiteral("CREATE TRIGGER trg_Documents_Search_Delete AFTER DELETE ON tbl_Documents BEGIN ")
        + dropRow(oldRow) + QStringLiteral(" END"));
    connection.execute(
        QStringLiteral("CREATE TRIGGER trg_Contacts_Search_Insert AFTER INSERT ON tbl_Contacts BEGIN ")
        + reindexContact(QStringLiteral("NEW.ContactID")) + QStringLiteral(" END"));
    connection.execute(QStringLiteral("CREATE TRIGGER trg_Contacts_Search_Update AFTER UPDATE OF ContactID, "
                                      "FullName ON tbl_Contacts BEGIN ")
        + reindexContact(QStringLiteral("OLD.ContactID, NEW.ContactID")) + QStringLiteral(" END"));
    connection.execute(
        QStringLiteral("CREATE TRIGGER trg_Contacts_Search_Delete AFTER DELETE ON tbl_Contacts BEGIN ")
        + reindexContact(QStringLiteral("OLD.ContactID")) + QStringLiteral(" END"));
}

SearchIndexKind searchIndexKind(Connection& connection)
{
    const bool server = connection.dialect() == SqlDialect::PostgreSql;
    Recordset found;
    found.open(server
            ? QStringLiteral("SELECT COUNT(*) AS N FROM information_schema.tables WHERE table_schema = "
                             "current_schema() AND table_name = '")
                + QLatin1String(SearchTable) + u'\''
            : QStringLiteral("SELECT COUNT(*) AS N FROM sqlite_master WHERE type = 'table' AND name = '")
                + QLatin1String(SearchTable) + u'\'',
        connection);
    const bool has = found.fields(QStringLiteral("N")).value().toInt() > 0;
    found.close();
    if (!has)
        return SearchIndexKind::None;
    return server ? SearchIndexKind::Table : SearchIndexKind::FullText;
}

bool hasSearchIndex(Connection& connection)
{
    return searchIndexKind(connection) != SearchIndexKind::None;
}

} // namespace kartella
