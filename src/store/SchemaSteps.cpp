#include "store/SchemaSteps.h"

#include "base/Error.h"
#include "history/HistorySchema.h"
#include "store/DueReminders.h"
#include "store/SearchIndex.h"
#include "store/Store.h"
#include "store/StoreText.h"
#include "store/engine/Connection.h"
#include "store/engine/Recordset.h"

namespace kartella {

namespace {

const QString JetProvider = QStringLiteral("Microsoft.Jet.OLEDB.4.0");

// The engine's name folding, letter by letter (see engine/TextFold.cpp).
constexpr std::pair<const char16_t*, const char16_t*> NameFolds[] = {
    {u"Ą", u"a"},
    {u"ą", u"a"},
    {u"Č", u"c"},
    {u"č", u"c"},
    {u"Ę", u"e"},
    {u"ę", u"e"},
    {u"Ė", u"e"},
    {u"ė", u"e"},
    {u"Į", u"i"},
    {u"į", u"i"},
    {u"Š", u"s"},
    {u"š", u"s"},
    {u"Ų", u"u"},
    {u"ų", u"u"},
    {u"Ū", u"u"},
    {u"ū", u"u"},
    {u"Ž", u"z"},
    {u"ž", u"z"},
};

void openRegister(Connection& connection, const QString& path)
{
    connection.open(plainConnectionString(JetProvider, path));
}

} // namespace

// The steps themselves, in SchemaForms.cpp and ServerSchemaForms.cpp.
void createFirstForm(Connection& connection);
void plainNameColumns(Connection& connection);
void createServerFirstForm(Connection& connection);
void keepServerNameColumns(Connection& connection);
void createServerSearchIndex(Connection& connection);
void addServerReminderDoneColumn(Connection& connection);
void addDayCounter(Connection& connection);
void addServerDayCounter(Connection& connection);
void addDirectionIndex(Connection& connection);
void addServerDirectionIndex(Connection& connection);
void addDocumentTextStore(Connection& connection);
void addServerDocumentTextStore(Connection& connection);
void addTrash(Connection& connection);
void addServerTrash(Connection& connection);
void addNodeListIndexes(Connection& connection);
void addServerNodeListIndexes(Connection& connection);
void orderServerListIndexes(Connection& connection);

const std::vector<SchemaStep>& schemaSteps()
{
    static const std::vector<SchemaStep> steps = {
        {1,
            QStringLiteral(QT_TRANSLATE_NOOP(
                "kartella::SchemaStep", "tables, indexes, views and triggers of the register")),
            createFirstForm, createServerFirstForm},
        {2,
            QStringLiteral(
                QT_TRANSLATE_NOOP("kartella::SchemaStep", "name columns readable by any SQLite tool")),
            plainNameColumns, keepServerNameColumns},
        {3, QStringLiteral(QT_TRANSLATE_NOOP("kartella::SchemaStep", "search index of the documents' texts")),
            createSearchIndex, createServerSearchIndex},
        {4, QStringLiteral(QT_TRANSLATE_NOOP("kartella::SchemaStep", "reminders that can be marked done")),
            addReminderDoneColumn, addServerReminderDoneColumn},
        {5,
            QStringLiteral(QT_TRANSLATE_NOOP(
                "kartella::SchemaStep", "one counter of the day's registration indexes for every user")),
            addDayCounter, addServerDayCounter},
        {6,
            QStringLiteral(
                QT_TRANSLATE_NOOP("kartella::SchemaStep", "an index for the lists of one direction")),
            addDirectionIndex, addServerDirectionIndex},
        {7,
            QStringLiteral(
                QT_TRANSLATE_NOOP("kartella::SchemaStep", "the text read from the documents' files")),
            addDocumentTextStore, addServerDocumentTextStore},
        {8,
            QStringLiteral(QT_TRANSLATE_NOOP(
                "kartella::SchemaStep", "search index of the words of the documents' files")),
            createContentIndex, createServerContentIndex},
        {9, QStringLiteral(QT_TRANSLATE_NOOP("kartella::SchemaStep", "the history of every change")),
            addHistory, addServerHistory},
        {10, QStringLiteral(QT_TRANSLATE_NOOP("kartella::SchemaStep", "the trash of deleted items")),
            addTrash, addServerTrash},
        {11,
            QStringLiteral(QT_TRANSLATE_NOOP("kartella::SchemaStep",
                "indexes for the lists of a category's directions and subcategories")),
            addNodeListIndexes, addServerNodeListIndexes},
        // A register file's indexes hold each row's id and its Nulls come first already.
        {12,
            QStringLiteral(QT_TRANSLATE_NOOP(
                "kartella::SchemaStep", "indexes that give a server's lists in their order, Nulls first")),
            [](Connection&) {}, orderServerListIndexes},
    };
    return steps;
}

int newestSchemaVersion()
{
    return schemaSteps().back().version;
}

int schemaVersion(Connection& connection)
{
    Recordset pragma;
    if (connection.dialect() == SqlDialect::PostgreSql) {
        // A database without the version's table carries no register of ours.
        pragma.open(QStringLiteral("SELECT COUNT(*) FROM information_schema.tables WHERE table_schema = "
                                   "current_schema() AND table_name = 'tbl_Schema_Version'"),
            connection);
        const bool versioned = pragma.fields(0).value().toInt() > 0;
        pragma.close();
        if (!versioned)
            return 0;
        pragma.open(QStringLiteral("SELECT Version FROM tbl_Schema_Version"), connection);
    } else {
        pragma.open(QStringLiteral("PRAGMA user_version"), connection);
    }
    const int version = pragma.eof() ? 0 : pragma.fields(0).value().toInt();
    pragma.close();
    return version;
}

namespace {

std::vector<const SchemaStep*> runEachStep(Connection& connection, int from, bool server)
{
    std::vector<const SchemaStep*> done;
    for (const SchemaStep& step : schemaSteps()) {
        if (step.version <= from)
            continue;
        connection.beginTrans();
        try {
            if (server) {
                step.applyOnServer(connection);
                connection.execute(QStringLiteral("UPDATE tbl_Schema_Version SET Version = ")
                    + QString::number(step.version));
            } else {
                step.apply(connection);
                connection.execute(QStringLiteral("PRAGMA user_version = ") + QString::number(step.version));
            }
            connection.commitTrans();
        } catch (...) {
            connection.rollbackTrans();
            throw;
        }
        done.push_back(&step);
    }
    return done;
}

} // namespace

std::vector<const SchemaStep*> runSchemaSteps(Connection& connection, int from)
{
    std::vector<const SchemaStep*> done;
    const bool server = connection.dialect() == SqlDialect::PostgreSql;
    // The steps together are one transaction too: a register is upgraded whole, or stays as
    // it was, whichever step fails.
    connection.beginTrans();
    try {
        done = runEachStep(connection, from, server);
        connection.commitTrans();
    } catch (...) {
        connection.rollbackTrans();
        throw;
    }
    return done;
}

QString nameOrderKey(const QString& column)
{
    QString key = column;
    for (const auto& [letter, base] : NameFolds)
        key = QStringLiteral("replace(%1, '%2', '%3')")
                  .arg(key, QString::fromUtf16(letter), QString::fromUtf16(base));
    return QStringLiteral("lower(") + key + u')';
}

bool databaseIsEmpty(Connection& connection)
{
    const QString sql = connection.dialect() == SqlDialect::PostgreSql
        ? QStringLiteral("SELECT COUNT(*) AS N FROM information_schema.tables WHERE table_schema = "
                         "current_schema()")
        : QStringLiteral("SELECT COUNT(*) AS N FROM sqlite_master WHERE type = 'table'");
    Recordset tables;
    tables.open(sql, connection);
    const bool empty = tables.fields(QStringLiteral("N")).value().toInt() == 0;
    tables.close();
    return empty;
}

bool registerNeedsUpgrade(const QString& path)
{
    Connection connection;
    openRegister(connection, path);
    const int version = schemaVersion(connection);
    connection.close();
    return version > 0 && version < newestSchemaVersion();
}

std::vector<const SchemaStep*> upgradeRegister(const QString& path)
{
    Connection connection;
    openRegister(connection, path);
    const int version = schemaVersion(connection);
    if (version <= 0)
        throw Error(ErrorNumber::CommandFailed,
            kartella::StoreText::tr(
                "\"%1\" was not made by Kartella: it carries no schema version. It is left as it is.")
                .arg(path));
    if (version > newestSchemaVersion())
        throw Error(ErrorNumber::CommandFailed,
            kartella::StoreText::tr(
                "\"%1\" was made by a newer Kartella (schema version %2; this program knows "
                "versions up to %3). It is left as it is.")
                .arg(path)
                .arg(version)
                .arg(newestSchemaVersion()));
    std::vector<const SchemaStep*> done = runSchemaSteps(connection, version);
    connection.close();
    return done;
}

} // namespace kartella
