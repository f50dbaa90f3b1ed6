// Every statement the document list runs on the documents table is served by an index:
// the plan of each, on an empty register as the program makes it, may not read the table
// row by row. The one exception is a sort of the whole register by a text column, which
// reads every row by its nature (no index can hold the order of the register's names).
#include "explorer/DocumentPaging.h"
#include "explorer/DocumentQueries.h"
#include "explorer/DocumentSearch.h"
#include "explorer/SearchAhead.h"
#include "harness/ServerDatabase.h"
#include "harness/TestRegister.h"
#include "store/Schema.h"
#include "store/SearchIndex.h"
#include "store/Store.h"
#include "store/engine/Backend.h"
#include "store/engine/Connection.h"
#include "store/engine/JetDialect.h"
#include "store/engine/Recordset.h"

#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

using namespace kartella;

namespace {

const QDate rangeStart(2024, 3, 1);
const QDate rangeEnd(2024, 4, 1);

struct ListQuery
{
    const char* name;
    QString sql;
    DocumentPaging::Mode mode;
};

QList<ListQuery> listQueries(const SearchIndexes& searchIndex)
{
    using Mode = DocumentPaging::Mode;
    const QList<SearchTerm> words = searchTerms(QStringLiteral("sutart"));
    return {
        {"root", categoryListSql(0, 0, false, rangeStart, rangeEnd), Mode::Category},
        {"root within dates", categoryListSql(0, 0, true, rangeStart, rangeEnd), Mode::Category},
        {"category", categoryListSql(7, 0, false, rangeStart, rangeEnd), Mode::Category},
        {"direction", categoryListSql(0, 3, false, rangeStart, rangeEnd), Mode::Category},
        {"category and direction", categoryListSql(7, 3, false, rangeStart, rangeEnd), Mode::Category},
        {"category within dates", categoryDatedListSql(7, 3, rangeStart, rangeEnd), Mode::Category},
        {"subcategory", subCategoryListSql(7, 12, 0, false, rangeStart, rangeEnd), Mode::Category},
        {"subcategory within dates", subCategoryDatedListSql(7, 12, 3, rangeStart, rangeEnd), Mode::Category},
        {"letter", contactDocumentSql(0, false, rangeStart, rangeEnd), Mode::Letter},
        {"letter, direction", contactDocumentSql(3, false, rangeStart, rangeEnd), Mode::Letter},
        {"letter within dates", contactDatedDocumentSql(3, rangeStart, rangeEnd), Mode::Letter},
        {"contact", contactDocumentSql(0, false, rangeStart, rangeEnd), Mode::Contact},
        {"contact within dates", contactDatedDocumentSql(3, rangeStart, rangeEnd), Mode::Contact},
        {"search", searchListSql(words, searchIndex, 0, false, rangeStart, rangeEnd), Mode::Category},
        {"search within dates", searchListSql(words, searchIndex, 3, true, rangeStart, rangeEnd),
            Mode::Category},
    };
}

// The names a server declares, for the translation of the statements to explain.
engine::ServerNames serverNames(Connection& connection)
{
    engine::ServerNames names;
    const engine::QueryResult result = connection.backend().query(
        QStringLiteral("SELECT table_name, column_name FROM information_schema.columns WHERE table_schema = "
                       "current_schema()"));
    for (int row = 0; row < result.rows.rowCount(); ++row) {
        for (int column = 0; column < 2; ++column) {
            const QString name = result.rows.value(row, column).toString();
            names.insert(name.toLower(), name);
        }
    }
    return names;
}

} // namespace

class QueryPlansTest : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_dir;
    // The server's register of the nodes' lists, made once.
    std::unique_ptr<test::ServerDatabase> m_nodes;

    // The plan of each statement, one line per step.
    static QStringList plan(Connection& connection, const QString& sql)
    {
        QStringList lines;
        if (connection.dialect() == SqlDialect::Sqlite) {
            const engine::QueryResult result = connection.backend().query(
                QStringLiteral("EXPLAIN QUERY PLAN ") + engine::translateJetToSqlite(sql));
            for (int row = 0; row < result.rows.rowCount(); ++row)
                lines << result.rows.value(row, 3).toString();
        } else {
            static engine::ServerNames names;
            if (names.isEmpty())
                names = serverNames(connection);
            const engine::QueryResult result = connection.backend().query(
                QStringLiteral("EXPLAIN ") + engine::translateJetToPostgres(sql, names));
            for (int row = 0; row < result.rows.rowCount(); ++row)
                lines << result.rows.value(row, 0).toString();
        }
        return lines;
    }

    // The steps that read the documents table row by row, without an index.
    static QStringList fullScans(const QStringList& plan)
    {
        static const QRegularExpression sqlite(QStringLiteral("^SCAN tbl_Documents(?:$| (?!USING))"));
        static const QRegularExpression server(QStringLiteral("Seq Scan on \"?tbl_Documents\"?"));
        QStringList scans;
        for (const QString& line : plan) {
            if (sqlite.match(line).hasMatch() || server.match(line).hasMatch())
                scans << line;
        }
        return scans;
    }

    void checkAll(const QString& location)
    {
        Connection connection(plainConnectionString(QStringLiteral("Microsoft.Jet.OLEDB.4.0"), location));
        connection.open();
        // A server reads a small table through; it is to pick an index wherever one serves.
        if (connection.dialect() == SqlDialect::PostgreSql)
            connection.execute(QStringLiteral("SET enable_seqscan = off"));
        const SearchIndexes searchIndex = searchIndexes(connection);
        PageKey dated {QVariant(QDate(2024, 3, 5)), 40};
        PageKey named {QVariant(QStringLiteral("Šarūnas")), 40};
        PageKey none {QVariant(), 40};
        QStringList failures;
        auto check = [&](const QString& what, const QString& sql) {
            const QStringList steps = plan(connection, sql);
            const QStringList scans = fullScans(steps);
            if (!scans.isEmpty())
                failures << what + QStringLiteral(": ") + steps.join(QStringLiteral(" | "))
                        + QStringLiteral("\n  ") + sql;
        };
        for (const ListQuery& query : listQueries(searchIndex)) {
            const QString name = QString::fromLatin1(query.name);
            for (int column : {-1, 0, 1, 2, 3, 4}) {
                for (bool descending : {false, true}) {
                    const bool wholeRegisterByText = column != -1 && column != 3
                        && query.mode == DocumentPaging::Mode::Category
                        && name.startsWith(QStringLiteral("root"));
                    if (wholeRegisterByText)
                        continue;
                    DocumentPaging paging(query.sql, query.mode, 9, u'A');
                    if (connection.dialect() == SqlDialect::PostgreSql)
                        paging.matchLetterOnServer();
                    paging.setSort(column, descending);
                    const QString what
                        = name + QStringLiteral(", column %1%2").arg(column).arg(descending ? " down" : "");
                    const PageKey& key = column == 3 || column == -1 ? dated : named;
                    check(what + QStringLiteral(", count"), paging.countSql());
                    check(what + QStringLiteral(", any row"), paging.anyRowSql());
                    check(what + QStringLiteral(", first page"), paging.pageSql(nullptr, 100));
                    check(what + QStringLiteral(", next page"), paging.pageSql(&key, 100));
                    check(what + QStringLiteral(", page after a Null"), paging.pageSql(&none, 100));
                    check(what + QStringLiteral(", last page"), paging.reversePageSql(nullptr, 100));
                    check(what + QStringLiteral(", page before"), paging.reversePageSql(&key, 100, 200));
                    check(what + QStringLiteral(", row of an id"), paging.rowByIdSql(40));
                    if (column == -1 || column == 3)
                        check(what + QStringLiteral(", row of a key"), paging.rowOfKeySql(key));
                }
            }
        }
        for (const QString& failure : std::as_const(failures))
            qWarning("%s", qPrintable(failure));
        QVERIFY2(failures.isEmpty(),
            qPrintable(QStringLiteral("%1 statements read the documents through").arg(failures.size())));
    }

private Q_SLOTS:
    void initTestCase() { QVERIFY(m_dir.isValid()); }
    void cleanupTestCase() { m_nodes.reset(); }

    void listStatementsUseIndexes_data()
    {
        QTest::addColumn<bool>("server");
        QTest::newRow("register file") << false;
        QTest::newRow("server") << true;
    }

    void listStatementsUseIndexes()
    {
        QFETCH(bool, server);
        if (server && !test::ServerDatabase::available())
            QSKIP("KARTELLA_TEST_POSTGRESQL is not set: no PostgreSQL server");
        std::unique_ptr<test::ServerDatabase> database;
        QString location = m_dir.filePath(QStringLiteral("Kartella.mdb"));
        if (server) {
            database = std::make_unique<test::ServerDatabase>();
            location = database->location();
        }
        createRegister(location);
        checkAll(location);
    }

    // A node's count reads an index alone, and its first and last pages come in the index's
    // order: neither reads every document of the category to check its subcategory or
    // direction, nor sorts them. A server's indexes give the order too, its Nulls first and
    // each date's documents by id.
    void nodeListsReadAnIndexAlone_data()
    {
        QTest::addColumn<QString>("sql");
        QTest::addColumn<bool>("server");
        const QList<std::pair<const char*, QString>> lists = {
            {"root", categoryListSql(0, 0, false, rangeStart, rangeEnd)},
            {"category", categoryListSql(7, 0, false, rangeStart, rangeEnd)},
            {"direction", categoryListSql(0, 3, false, rangeStart, rangeEnd)},
            {"category and direction", categoryListSql(7, 3, false, rangeStart, rangeEnd)},
            {"category, direction, dates", categoryListSql(7, 3, true, rangeStart, rangeEnd)},
            {"subcategory", subCategoryListSql(7, 12, 0, false, rangeStart, rangeEnd)},
            {"subcategory and direction", subCategoryListSql(7, 12, 3, false, rangeStart, rangeEnd)},
            {"subcategory within dates", subCategoryDatedListSql(7, 12, 0, rangeStart, rangeEnd)},
            {"subcategory, direction, dates", subCategoryDatedListSql(7, 12, 3, rangeStart, rangeEnd)},
        };
        for (const bool server : {false, true}) {
            for (const auto& [name, sql] : lists)
                QTest::addRow("%s%s", name, server ? ", server" : "") << sql << server;
        }
    }

    void nodeListsReadAnIndexAlone()
    {
        QFETCH(QString, sql);
        QFETCH(bool, server);
        if (server && !test::ServerDatabase::available())
            QSKIP("KARTELLA_TEST_POSTGRESQL is not set: no PostgreSQL server");
        QString location = m_dir.filePath(QStringLiteral("Nodes.mdb"));
        if (server && !m_nodes) {
            m_nodes = std::make_unique<test::ServerDatabase>();
            createRegister(m_nodes->location());
        } else if (!server && !QFile::exists(location)) {
            createRegister(location);
        }
        if (server)
            location = m_nodes->location();
        Connection connection(plainConnectionString(QStringLiteral("Microsoft.Jet.OLEDB.4.0"), location));
        connection.open();
        DocumentPaging paging(sql, DocumentPaging::Mode::Category);
        if (server) {
            // A few rows sort quicker than an index reads them: the sort is to be the last resort.
            connection.execute(QStringLiteral("SET enable_seqscan = off"));
            connection.execute(QStringLiteral("SET enable_sort = off"));
        } else if (!sql.contains(QStringLiteral("WHERE"))) {
            const QString count = plan(connection, paging.countSql()).join(QStringLiteral(" | "));
            QVERIFY2(count.contains(QStringLiteral("COVERING INDEX")), qPrintable(count));
        }
        const PageKey dated {QVariant(QDate(2024, 3, 5)), 40};
        for (const QString& page : {paging.pageSql(nullptr, 100), paging.reversePageSql(nullptr, 100),
                 paging.pageSql(&dated, 100), paging.reversePageSql(&dated, 100)}) {
            const QString steps = plan(connection, page).join(QStringLiteral(" | "));
            QVERIFY2(!steps.contains(server ? QStringLiteral("Sort") : QStringLiteral("B-TREE")),
                qPrintable(steps));
        }
        // A server's whole register sorted by description, either way, reads its index.
        if (server && !sql.contains(QStringLiteral("WHERE"))) {
            for (const bool descending : {false, true}) {
                paging.setSort(0, descending);
                for (const QString& page :
                    {paging.pageSql(nullptr, 100), paging.reversePageSql(nullptr, 100)}) {
                    const QString steps = plan(connection, page).join(QStringLiteral(" | "));
                    QVERIFY2(!steps.contains(QStringLiteral("Sort")), qPrintable(steps));
                }
            }
        }
    }

    // A search keeps its documents' ids once, from its indexes alone; the count reads them,
    // not the documents. Many of them are paged in date order through the index of the
    // dates, a few by their ids and then sorted.
    void aSearchsKeptRowsAreReadByTheirNumber_data()
    {
        QTest::addColumn<int>("kept");
        QTest::addColumn<bool>("byDates");
        QTest::newRow("a few") << 40 << false;
        QTest::newRow("one short of many") << 4999 << false;
        QTest::newRow("many") << 5000 << true;
        QTest::newRow("most of a register") << 800000 << true;
    }

    void aSearchsKeptRowsAreReadByTheirNumber()
    {
        QFETCH(int, kept);
        QFETCH(bool, byDates);
        const QString location = m_dir.filePath(QStringLiteral("Kept.mdb"));
        QFile::remove(location);
        createRegister(location);
        Connection connection(plainConnectionString(QStringLiteral("Microsoft.Jet.OLEDB.4.0"), location));
        connection.open();
        const QString sql = searchListSql(
            searchTerms(QStringLiteral("sutart")), searchIndexes(connection), 0, false, rangeStart, rangeEnd);
        DocumentPaging paging(sql, DocumentPaging::Mode::Category);
        const QString keep = paging.keepRowsSql(QStringLiteral("found"));
        QVERIFY2(!keep.contains(QStringLiteral("tbl_Documents ")), qPrintable(keep));
        connection.execute(QStringLiteral("CREATE TEMP TABLE found (RastasID INTEGER PRIMARY KEY)"));
        connection.execute(keep);
        paging.readKeptRows(QStringLiteral("found"));
        paging.setKeptRowCount(kept);
        QVERIFY(!paging.countSql().contains(QStringLiteral("tbl_Documents")));

        const PageKey dated {QVariant(QDate(2024, 3, 5)), 40};
        const QStringList pages = {paging.pageSql(nullptr, 100), paging.pageSql(&dated, 100),
            paging.reversePageSql(nullptr, 100), paging.reversePageSql(&dated, 100)};
        for (const QString& page : pages) {
            const QString steps = plan(connection, page).join(QStringLiteral(" | "));
            QVERIFY2(
                steps.contains(QStringLiteral("idx_Documents_RegistracData")) == byDates, qPrintable(steps));
            QVERIFY2(steps.contains(QStringLiteral("B-TREE FOR ORDER BY")) != byDates, qPrintable(steps));
        }
        // Sorted by a text column or ranked, the kept rows are read by their ids whatever their number.
        paging.setSort(0, false);
        const QString steps = plan(connection, paging.pageSql(nullptr, 100)).join(QStringLiteral(" | "));
        QVERIFY2(fullScans(plan(connection, paging.pageSql(nullptr, 100))).isEmpty(), qPrintable(steps));
    }

    // A letter's documents are those of the names that start with it, in either case, the
    // letter exactly: on a server through its own LIKE of the two cases, as Like finds them.
    void aLettersDocumentsOnEitherPlace_data()
    {
        QTest::addColumn<test::TestRegister::Where>("where");
        QTest::newRow("file") << test::TestRegister::File;
        QTest::newRow("server") << test::TestRegister::Server;
    }

    void aLettersDocumentsOnEitherPlace()
    {
        QFETCH(test::TestRegister::Where, where);
        if (where == test::TestRegister::Server && !test::ServerDatabase::available())
            QSKIP("KARTELLA_TEST_POSTGRESQL is not set: no PostgreSQL server");
        const test::TestRegister reg(where);
        QHash<QString, qint32> documents;
        for (const char* name : {"Antanas", "agnė", "Bronė", "Ąžuolas", "Žaneta"}) {
            const qint32 contact
                = reg.insert(QStringLiteral("tbl_Contacts"), {{"FullName", QString::fromUtf8(name)}});
            documents.insert(QString::fromUtf8(name),
                reg.insert(QStringLiteral("tbl_Documents"),
                    {{"DokAntraste", QString::fromUtf8(name)}, {"ContactID", contact},
                        {"DokRegistracData", QDate(2024, 3, 1)}}));
        }
        Connection connection(reg.connectionString());
        connection.open();
        const auto lettersDocuments = [&](QChar letter) {
            DocumentPaging paging(
                contactDocumentSql(0, false, rangeStart, rangeEnd), DocumentPaging::Mode::Letter, 0, letter);
            if (where == test::TestRegister::Server)
                paging.matchLetterOnServer();
            Recordset rs;
            rs.open(paging.pageSql(nullptr, 100), connection);
            QStringList names;
            while (!rs.eof()) {
                names << rs.fields(QStringLiteral("DokAntraste")).value().toString();
                rs.moveNext();
            }
            names.sort();
            Recordset count;
            count.open(paging.countSql(), connection);
            return std::make_pair(names, count.fields(0).value().toInt());
        };
        QCOMPARE(lettersDocuments(u'A'), std::make_pair(QStringList({"Antanas", "agnė"}), 2));
        QCOMPARE(lettersDocuments(u'b'), std::make_pair(QStringList({"Bronė"}), 1));
        // Lithuanian letters are not folded: "Ąžuolas" is not an A, "Žaneta" not a Z.
        QCOMPARE(lettersDocuments(u'Z'), std::make_pair(QStringList(), 0));
    }

    // A ranked search's first page reads its few ranks and looks their documents up.
    void aFirstPageReadsTheRanksFirst()
    {
        const test::TestRegister reg;
        for (int n = 1; n <= 30; ++n) {
            const qint32 id = reg.insert(QStringLiteral("tbl_Documents"),
                {{"DokAntraste", QStringLiteral("Raštas %1").arg(n)},
                    {"DokRegistracData", QDate(2024, 3, 1)}});
            if (n % 10 == 0)
                reg.exec(QStringLiteral(
                    "INSERT INTO tbl_Document_Text (RastasID, State, Body) VALUES (%1, 1, 'raštas')")
                             .arg(id));
        }
        Connection connection(reg.connectionString());
        connection.open();
        const std::optional<SearchAhead> ahead = SearchAhead::of(
            connection, searchTerms(QStringLiteral("rastas")), searchIndexes(connection), 10, true, 1);
        QVERIFY(ahead && !ahead->ranking().join.isEmpty());
        const QString steps = plan(connection, ahead->rankedQuery(QString())).join(QStringLiteral(" | "));
        QVERIFY2(steps.startsWith(QStringLiteral("SCAN ranks")), qPrintable(steps));
        QVERIFY2(!steps.contains(QRegularExpression(QStringLiteral("SCAN tbl_Documents(?: |$)"))),
            qPrintable(steps));
    }

    // The check itself: a statement that reads the documents through is caught.
    void aScanIsCaught()
    {
        const QString location = m_dir.filePath(QStringLiteral("Scan.mdb"));
        createRegister(location);
        Connection connection(plainConnectionString(QStringLiteral("Microsoft.Jet.OLEDB.4.0"), location));
        connection.open();
        QCOMPARE(
            fullScans(plan(connection,
                          QStringLiteral(
                              "SELECT COUNT(*) FROM tbl_Documents WHERE tbl_Documents.DokPastaba = 'x'")))
                .size(),
            1);
    }
};

QTEST_GUILESS_MAIN(QueryPlansTest)
#include "tst_query_plans.moc"
