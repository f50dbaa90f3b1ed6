// The index of the words of the documents' files: its schema step on a register file and
// on a server. On a register file nothing here may name a collation or function of ours.
#include "base/Error.h"
#include "store/SearchIndex.h"
#include "store/engine/Connection.h"
#include "store/engine/Recordset.h"

namespace kartella {

namespace {

// An FTS5 row as the index holds it: the index of a table with external content learns what
// a row held only from these statements, so the text given to 'delete' must be the one
// indexed.
QString forgetRow(const QString& id, const QString& body)
{
    return QStringLiteral("INSERT INTO %1 (%1, rowid, Body) VALUES ('delete', %2, %3);")
        .arg(QLatin1String(ContentSearchTable), id, body);
}

QString indexRow(const QString& id, const QString& body)
{
    return QStringLiteral("INSERT INTO %1 (rowid, Body) VALUES (%2, %3);")
        .arg(QLatin1String(ContentSearchTable), id, body);
}

bool hasTable(Connection& connection, const QString& name)
{
    Recordset found;
    found.open(QStringLiteral("SELECT COUNT(*) AS N FROM sqlite_master WHERE type = 'table' AND name = '")
            + name + u'\'',
        connection);
    const bool has = found.fields(QStringLiteral("N")).value().toInt() > 0;
    found.close();
    return has;
}

bool hasServerColumn(Connection& connection, const QString& table, const QString& column)
{
    Recordset found;
    found.open(QStringLiteral("SELECT COUNT(*) AS N FROM information_schema.columns WHERE table_schema = "
                              "current_schema() AND table_name = '%1' AND column_name = '%2'")
                   .arg(table, column),
        connection);
    const bool has = found.fields(QStringLiteral("N")).value().toInt() > 0;
    found.close();
    return has;
}

bool serverHasExtension(Connection& connection, const QString& name)
{
    Recordset found;
    found.open(
        QStringLiteral("SELECT COUNT(*) AS N FROM pg_available_extensions WHERE name = '") + name + u'\'',
        connection);
    const bool has = found.fields(QStringLiteral("N")).value().toInt() > 0;
    found.close();
    return has;
}

// Whether unaccent can be used: installed, or installed now. A user without the right to
// install it gets the folding of case and the Lithuanian letters only.
bool useUnaccent(Connection& connection)
{
    if (!serverHasExtension(connection, QStringLiteral("unaccent")))
        return false;
    try {
        connection.execute(QStringLiteral("CREATE EXTENSION IF NOT EXISTS unaccent"));
        return true;
    } catch (const Error&) {
        return false;
    }
}

} // namespace

void createContentIndex(Connection& connection)
{
    const QString index = QLatin1String(ContentSearchTable);
    connection.execute(QStringLiteral(
        "CREATE VIRTUAL TABLE IF NOT EXISTS %1 USING fts5(Body, content = 'tbl_Document_Text', "
        "content_rowid = 'RastasID', tokenize = 'unicode61 remove_diacritics 2')")
                           .arg(index));
    connection.execute(QStringLiteral("INSERT INTO %1 (%1) VALUES ('rebuild')").arg(index));
    // INSERT OR REPLACE removes the row it replaces without its delete triggers (unless a
    // connection turns recursive triggers on): the row's words are forgotten before.
    connection.execute(QStringLiteral(
        "CREATE TRIGGER IF NOT EXISTS trg_Document_Text_Search_Replace BEFORE INSERT ON tbl_Document_Text "
        "BEGIN "
        "INSERT INTO %1 (%1, rowid, Body) SELECT 'delete', RastasID, Body FROM tbl_Document_Text "
        "WHERE RastasID = NEW.RastasID; END")
                           .arg(index));
    connection.execute(QStringLiteral("CREATE TRIGGER IF NOT EXISTS trg_Document_Text_Search_Insert AFTER "
                                      "INSERT ON tbl_Document_Text BEGIN ")
        + indexRow(QStringLiteral("NEW.RastasID"), QStringLiteral("NEW.Body")) + QStringLiteral(" END"));
    connection.execute(
        QStringLiteral(
            "CREATE TRIGGER IF NOT EXISTS trg_Document_Text_Search_Update AFTER UPDATE OF RastasID, "
            "Body ON tbl_Document_Text BEGIN ")
        + forgetRow(QStringLiteral("OLD.RastasID"), QStringLiteral("OLD.Body")) + u' '
        + indexRow(QStringLiteral("NEW.RastasID"), QStringLiteral("NEW.Body")) + QStringLiteral(" END"));
    connection.execute(QStringLiteral("CREATE TRIGGER IF NOT EXISTS trg_Document_Text_Search_Delete AFTER "
                                      "DELETE ON tbl_Document_Text BEGIN ")
        + forgetRow(QStringLiteral("OLD.RastasID"), QStringLiteral("OLD.Body")) + QStringLiteral(" END"));
}

void createServerContentIndex(Connection& connection)
{
    const QString lithuanian = QStringLiteral("translate(%1, 'ĄČĘĖĮŠŲŪŽąčęėįšųūž', 'aceeisuuzaceeisuuz')");
    const QString folded = useUnaccent(connection) ? lithuanian.arg(QStringLiteral("lower(unaccent($1))"))
                                                   : lithuanian.arg(QStringLiteral("lower($1)"));
    // The query folds its words with the same function, so that both sides always agree.
    connection.execute(
        QStringLiteral("CREATE OR REPLACE FUNCTION fold_search_text(text) RETURNS text LANGUAGE sql "
                       "IMMUTABLE AS $$ SELECT %1 $$")
            .arg(folded));
    connection.execute(
        QStringLiteral("ALTER TABLE \"tbl_Document_Text\" ADD COLUMN IF NOT EXISTS \"BodyWords\" tsvector"));
    // A text of more distinct words than a tsvector holds (1 MB) is indexed by its beginning.
    connection.execute(QStringLiteral(
        "CREATE OR REPLACE FUNCTION \"trg_Document_Text_Words\"() RETURNS trigger LANGUAGE plpgsql AS $$ "
        "BEGIN "
        "BEGIN NEW.\"BodyWords\" := to_tsvector('simple', fold_search_text(coalesce(NEW.\"Body\", ''))); "
        "EXCEPTION WHEN program_limit_exceeded THEN "
        "NEW.\"BodyWords\" := to_tsvector('simple', fold_search_text(left(NEW.\"Body\", 100000))); END; "
        "RETURN NEW; END $$"));
    connection.execute(
        QStringLiteral("DROP TRIGGER IF EXISTS \"trg_Document_Text_Words\" ON \"tbl_Document_Text\""));
    connection.execute(QStringLiteral("CREATE TRIGGER \"trg_Document_Text_Words\" BEFORE INSERT OR UPDATE OF "
                                      "\"Body\" ON \"tbl_Document_Text\" FOR EACH ROW EXECUTE FUNCTION "
                                      "\"trg_Document_Text_Words\"()"));
    // The texts there are: each row written again through the trigger.
    connection.execute(QStringLiteral("UPDATE \"tbl_Document_Text\" SET \"Body\" = \"Body\""));
    connection.execute(QStringLiteral("CREATE INDEX IF NOT EXISTS \"idx_Document_Text_Words\" ON "
                                      "\"tbl_Document_Text\" USING gin (\"BodyWords\")"));
}

ContentIndexKind contentIndexKind(Connection& connection)
{
    if (connection.dialect() == SqlDialect::PostgreSql)
        return hasServerColumn(connection, QStringLiteral("tbl_Document_Text"), QStringLiteral("BodyWords"))
            ? ContentIndexKind::TextVector
            : ContentIndexKind::None;
    return hasTable(connection, QLatin1String(ContentSearchTable)) ? ContentIndexKind::FullText
                                                                   : ContentIndexKind::None;
}

} // namespace kartella
