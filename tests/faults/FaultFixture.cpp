#include "faults/FaultFixture.h"

#include "store/engine/SqliteBackend.h"

#include <QCryptographicHash>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QProcess>
#include <QTest>

#include <sqlite3.h>

namespace kartella::test {

namespace {

// A read-only handle of the register's file that closes itself.
class ReadOnlyDatabase
{
public:
    explicit ReadOnlyDatabase(const QString& path)
    {
        if (sqlite3_open_v2(QFile::encodeName(path).constData(), &m_db, SQLITE_OPEN_READONLY, nullptr)
            != SQLITE_OK)
            QTest::qFail(qPrintable(QStringLiteral("can't open ") + path), __FILE__, __LINE__);
        // Registers of the first schema name the engine's collation.
        engine::registerTextFunctions(m_db);
        // The program's background reading may be committing the files' text just then.
        sqlite3_busy_timeout(m_db, 10000);
    }
    ~ReadOnlyDatabase() { sqlite3_close_v2(m_db); }
    ReadOnlyDatabase(const ReadOnlyDatabase&) = delete;
    ReadOnlyDatabase& operator=(const ReadOnlyDatabase&) = delete;

    // Calls row(statement) for each row of sql.
    template<typename Row>
    void forEach(const QByteArray& sql, Row row)
    {
        sqlite3_stmt* statement = nullptr;
        if (sqlite3_prepare_v2(m_db, sql.constData(), -1, &statement, nullptr) != SQLITE_OK) {
            QTest::qFail(sqlite3_errmsg(m_db), __FILE__, __LINE__);
            return;
        }
        while (sqlite3_step(statement) == SQLITE_ROW)
            row(statement);
        sqlite3_finalize(statement);
    }

private:
    sqlite3* m_db = nullptr;
};

} // namespace

RegisterSnapshot RegisterSnapshot::take(const QString& registerPath, const QString& filesFolder)
{
    RegisterSnapshot snapshot;
    ReadOnlyDatabase db(registerPath);
    // A full-text index's own tables are left out: their rows change with any write, and
    // integrity_check covers them.
    QStringList tables;
    QStringList indexes;
    db.forEach("SELECT name, sql LIKE 'CREATE VIRTUAL%' FROM sqlite_master WHERE type = 'table' "
               "AND name NOT LIKE 'sqlite%' ORDER BY name",
        [&](sqlite3_stmt* row) {
            const QString name
                = QString::fromUtf8(reinterpret_cast<const char*>(sqlite3_column_text(row, 0)));
            (sqlite3_column_int(row, 1) ? indexes : tables) << name;
        });
    for (const QString& index : std::as_const(indexes))
        tables.removeIf([&](const QString& table) { return table.startsWith(index + u'_'); });
    for (const QString& table : std::as_const(tables)) {
        auto& rows = snapshot.tables[table];
        db.forEach("SELECT * FROM \"" + table.toUtf8() + "\"", [&](sqlite3_stmt* row) {
            QCryptographicHash hash(QCryptographicHash::Sha1);
            for (int column = 0; column < sqlite3_column_count(row); ++column) {
                const int type = sqlite3_column_type(row, column);
                hash.addData(QByteArray::number(type));
                const auto* data = static_cast<const char*>(sqlite3_column_blob(row, column));
                hash.addData(QByteArrayView(data, sqlite3_column_bytes(row, column)));
                hash.addData("|");
            }
            // Keyed by the first column, the table's key in every register table.
            const QString key = QString::fromUtf8(reinterpret_cast<const char*>(sqlite3_column_text(row, 0)));
            rows.insert(key, hash.result());
        });
    }
    if (!filesFolder.isEmpty()) {
        const QDir root(filesFolder);
        QDirIterator it(filesFolder, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
        while (it.hasNext()) {
            const QString path = it.next();
            QFile file(path);
            QCryptographicHash hash(QCryptographicHash::Sha1);
            if (file.open(QIODevice::ReadOnly))
                hash.addData(&file);
            snapshot.files.insert(root.relativeFilePath(path), hash.result());
        }
    }
    return snapshot;
}

QStringList RegisterSnapshot::lostOrChanged(const RegisterSnapshot& before) const
{
    QStringList problems;
    for (auto table = before.tables.cbegin(); table != before.tables.cend(); ++table) {
        const auto now = tables.value(table.key());
        for (auto row = table->cbegin(); row != table->cend(); ++row) {
            if (!now.contains(row.key()))
                problems << QStringLiteral("%1: row %2 lost").arg(table.key(), row.key());
            else if (now.value(row.key()) != row.value())
                problems << QStringLiteral("%1: row %2 changed").arg(table.key(), row.key());
        }
    }
    for (auto file = before.files.cbegin(); file != before.files.cend(); ++file) {
        if (!files.contains(file.key()))
            problems << QStringLiteral("file %1 lost").arg(file.key());
        else if (files.value(file.key()) != file.value())
            problems << QStringLiteral("file %1 changed").arg(file.key());
    }
    return problems;
}

QString integrityCheck(const QString& registerPath)
{
    ReadOnlyDatabase db(registerPath);
    QStringList answer;
    db.forEach("PRAGMA integrity_check", [&](sqlite3_stmt* row) {
        answer << QString::fromUtf8(reinterpret_cast<const char*>(sqlite3_column_text(row, 0)));
    });
    return answer.join(u'\n');
}

QByteArray contactsVCard(int count, const QString& namePrefix)
{
    QByteArray data;
    for (int i = 1; i <= count; ++i) {
        const QByteArray n = QByteArray::number(i);
        data += "BEGIN:VCARD\r\nVERSION:3.0\r\nFN:" + namePrefix.toUtf8() + ' ' + n + "\r\nORG:UAB Įmonė " + n
            + "\r\nTEL;TYPE=WORK:+370 5 " + n + "\r\nTEL;TYPE=CELL:+370 6 " + n
            + "\r\nURL:https://example.lt/" + n + "\r\nEND:VCARD\r\n";
    }
    return data;
}

ToolRun runTool(const QStringList& arguments, int timeoutMs)
{
    QProcess process;
    process.start(QStringLiteral(KARTELLA_DB_PATH), arguments);
    ToolRun run;
    run.finished = process.waitForFinished(timeoutMs) && process.exitStatus() == QProcess::NormalExit;
    run.exitCode = process.exitCode();
    run.out = QString::fromUtf8(process.readAllStandardOutput());
    run.err = QString::fromUtf8(process.readAllStandardError());
    return run;
}

} // namespace kartella::test
