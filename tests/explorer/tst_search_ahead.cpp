// A search's first page read ahead of its whole list: when it is, and that it holds the
// whole list's first rows, on a register file and on a server.
#include "explorer/DocumentSearch.h"
#include "explorer/SearchAhead.h"
#include "explorer/SearchRegister.h"
#include "harness/ServerDatabase.h"
#include "harness/TestRegister.h"
#include "store/engine/Connection.h"

#include <QHash>
#include <QTest>

#include <optional>
#include <vector>

using namespace kartella;
using namespace kartella::test;

class SearchAheadTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // The first page of a search read ahead of its results: only when every term is in the
    // texts of half of the documents or more (none ranks) or in the fields of enough
    // documents, and then the same documents, in the same order, as the first of the whole
    // list; a prefix held only by the fields too.
    void firstPageAheadOnlyWhenNoTermRanks_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("ahead");
        QTest::newRow("a word of most texts") << "ir" << true;
        QTest::newRow("a piece of most fields, no text") << "rastas" << true;
        QTest::newRow("a piece of a few fields, no text") << "kopija" << false;
        QTest::newRow("a word of most texts, a piece of most fields") << "ir rastas" << true;
        QTest::newRow("a word of a few") << "kita" << false;
        QTest::newRow("a phrase of most") << "\"ir su\"" << true;
        QTest::newRow("a phrase of none") << "\"su ir\"" << false;
        QTest::newRow("a prefix of most") << "sutart*" << true;
        QTest::newRow("a prefix of a few") << "kit*" << false;
        QTest::newRow("two of most") << "ir sutart*" << true;
        QTest::newRow("one of most, one of a few") << "ir kita" << false;
        QTest::newRow("no word") << "-" << false;
    }

    void firstPageAheadOnlyWhenNoTermRanks()
    {
        QFETCH(QString, text);
        QFETCH(bool, ahead);
        const TestRegister reg;
        for (int n = 1; n <= 10; ++n) {
            const qint32 id = addDocument(reg,
                n == 3 ? QStringLiteral("Sutarties kopija") : QStringLiteral("Raštas %1").arg(n),
                QDate(2024, 3, 1).addDays(n));
            if (n == 3)
                addText(reg, id, QStringLiteral("Ir su kita"));
            else if (n <= 8)
                addText(reg, id, QStringLiteral("Sutartis ir su priedais, sutarties nr. %1").arg(n));
            else
                addText(reg, id, QStringLiteral("Kita %1").arg(n));
        }
        // Later documents without a text: "kopija" is in the fields of one in 60.
        for (int n = 1; n <= 50; ++n)
            addDocument(reg, QStringLiteral("Priedas %1").arg(n), QDate(2025, 1, 1).addDays(n));
        Connection connection;
        connection.open(reg.connectionString());
        const SearchIndexes indexes = searchIndexes(connection);
        const QList<SearchTerm> terms = searchTerms(text);
        const std::optional<SearchAhead> found = SearchAhead::of(connection, terms, indexes, 1, true, 1);
        QCOMPARE(found.has_value(), ahead);
        if (!ahead)
            return;
        const Ids listed = idsOf(connection, searchListSql(terms, indexes, 0, false, {}, {}));
        QVERIFY(listed.size() >= 5);
        bool complete = false;
        const std::vector<qint32> first = found->firstIds(connection, {}, 3, 100, complete);
        QVERIFY(complete);
        QCOMPARE(Ids(first.begin(), first.end()), listed.mid(0, 3));
        // Looked for among the first two documents only: the walk is not complete.
        const std::vector<qint32> walked = found->firstIds(connection, {}, 3, 2, complete);
        QVERIFY(!complete);
        QVERIFY(walked.size() <= 2);
        for (const SearchTerm& term : terms) {
            const qint64 hits
                = found->contentHits().value(searchRanking({term}, indexes).fullTextQueries.value(0));
            QVERIFY(hits == 0 || hits >= 5);
        }
        QCOMPARE(found->anyContentHit(), !text.contains(QStringLiteral("rastas")) || text.contains(u' '));
    }

    // A word in few texts ranks them: its first page read ahead holds the ranked hits that
    // hold every term, best first, then the other documents by date, as the whole list does
    // (by date alone in a list sorted by date); only when many fields hold the term. A server
    // looks every term up in each document by date.
    void firstPageAheadOfRankedHits_data()
    {
        QTest::addColumn<TestRegister::Where>("where");
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("byRank");
        QTest::addColumn<int>("rows");
        QTest::addColumn<bool>("ahead");
        for (const TestRegister::Where where : {TestRegister::File, TestRegister::Server}) {
            const char* place = where == TestRegister::File ? "file" : "server";
            QTest::addRow("%s: ranked hits fill the page", place) << where << "rastas" << true << 2 << true;
            QTest::addRow("%s: ranked hits, then by date", place) << where << "rastas" << true << 6 << true;
            QTest::addRow("%s: no ranked hit holds the other term", place)
                << where << "rastas 1" << true << 3 << true;
            QTest::addRow("%s: a list by date", place) << where << "rastas" << false << 6 << true;
            QTest::addRow("%s: in few fields", place) << where << "kita" << true << 6 << false;
            // One in twelve: enough for a walk, too few for a list worth reading ahead.
            QTest::addRow("%s: in the fields of too few documents", place)
                << where << "sutartis" << true << 6 << false;
        }
        QTest::newRow("file: a ranked hit and a broad piece")
            << TestRegister::File << "rastas ra" << true << 6 << true;
        QTest::newRow("file: a ranked prefix")
            << TestRegister::File << "rastas sutart*" << true << 6 << false;
        QTest::newRow("server: in no field")
            << TestRegister::Server << "atsakymas rastas" << true << 1 << false;
    }

    void firstPageAheadOfRankedHits()
    {
        QFETCH(TestRegister::Where, where);
        QFETCH(QString, text);
        QFETCH(bool, byRank);
        QFETCH(int, rows);
        QFETCH(bool, ahead);
        if (where == TestRegister::Server && !ServerDatabase::available())
            QSKIP(qPrintable(ServerDatabase::skipReason()));
        const TestRegister reg(where);
        QHash<int, qint32> ids;
        for (int n = 1; n <= 12; ++n) {
            ids[n]
                = addDocument(reg, n == 4 ? QStringLiteral("Sutartis 4") : QStringLiteral("Raštas %1").arg(n),
                    QDate(2024, 3, 1).addDays(n));
        }
        addText(reg, ids[5], QStringLiteral("Raštas, raštas dėl sutarties"));
        addText(reg, ids[9], QStringLiteral("Raštas ir kiti"));
        addText(reg, ids[4], QStringLiteral("Atsakymas į raštą: raštas"));
        addText(reg, ids[2], QStringLiteral("Kita"));
        // Three texts of four hold "rastas": fewer than the four hits that make a word broad.
        constexpr qint64 BroadAt = 4;
        Connection connection;
        connection.open(reg.connectionString());
        const SearchIndexes indexes = searchIndexes(connection);
        const QList<SearchTerm> terms = searchTerms(text);
        const std::optional<SearchAhead> first = where == TestRegister::File
            ? SearchAhead::of(connection, terms, indexes, BroadAt, byRank, BroadAt)
            : SearchAhead::onServer(connection, terms, indexes, BroadAt, byRank, BroadAt);
        QCOMPARE(first.has_value(), ahead);
        if (!ahead)
            return;
        QCOMPARE(first->ranking().join.isEmpty(), !byRank);
        QVERIFY(first->anyContentHit());
        const Ids listed = byRank ? found(reg, text, BroadAt)
                                  : idsOf(connection, searchListSql(terms, indexes, 0, false, {}, {}));
        QVERIFY(listed.size() > rows);
        bool complete = false;
        const std::vector<qint32> page = first->firstIds(connection, {}, rows, 100, complete);
        QCOMPARE(Ids(page.begin(), page.end()), listed.mid(0, rows));
        // The whole list ranks the same hits as the first page did.
        if (where == TestRegister::File) {
            QCOMPARE(
                first->contentHits().value(
                    searchRanking(searchTerms(QStringLiteral("rastas")), indexes).fullTextQueries.value(0)),
                3);
        }
        // Looked for among the first three documents by date alone.
        if (!byRank) {
            QVERIFY(complete);
            const std::vector<qint32> walked = first->firstIds(connection, {}, rows, 3, complete);
            QVERIFY(!complete);
            QCOMPARE(Ids(walked.begin(), walked.end()), listed.mid(0, 3));
        }
    }

    // Documents without a date come first: a walk that ends among them looks at them alone.
    void aWalkEndingAmongUndatedDocuments()
    {
        const TestRegister reg;
        for (int n = 1; n <= 8; ++n) {
            reg.insert(QStringLiteral("tbl_Documents"),
                {{"DokAntraste", QStringLiteral("Raštas %1").arg(n)},
                    {"DokRegistracData", n <= 4 ? QVariant() : QVariant(QDate(2024, 3, n))}});
        }
        Connection connection;
        connection.open(reg.connectionString());
        const SearchIndexes indexes = searchIndexes(connection);
        const QList<SearchTerm> terms = searchTerms(QStringLiteral("rastas"));
        const std::optional<SearchAhead> first = SearchAhead::of(connection, terms, indexes, 1, true, 1);
        QVERIFY(first);
        const Ids listed = idsOf(connection, searchListSql(terms, indexes, 0, false, {}, {}));
        bool complete = true;
        const std::vector<qint32> page = first->firstIds(connection, {}, 6, 2, complete);
        QVERIFY(!complete);
        QCOMPARE(Ids(page.begin(), page.end()), listed.mid(0, 4));
    }

    // Past the ranked hits the walk looks for a ranked word in the fields alone (its texts
    // are all ranked), but for a word of many texts in the texts too.
    void aWalkPastRankedHitsReadsABroadWordsTexts()
    {
        const TestRegister reg;
        QHash<int, qint32> ids;
        for (int n = 1; n <= 12; ++n)
            ids[n] = addDocument(reg, QStringLiteral("Raštas %1").arg(n), QDate(2024, 3, 1).addDays(n));
        addText(reg, ids[5], QStringLiteral("Raštas ir priedai"));
        for (const int n : {2, 3, 6, 7})
            addText(reg, ids[n], QStringLiteral("Ir kiti %1").arg(n));
        constexpr qint64 BroadAt = 4;
        Connection connection;
        connection.open(reg.connectionString());
        const QString text = QStringLiteral("rastas ir");
        const std::optional<SearchAhead> first = SearchAhead::of(
            connection, searchTerms(text), searchIndexes(connection), BroadAt, true, BroadAt);
        QVERIFY(first);
        const Ids listed = found(reg, text, BroadAt);
        QCOMPARE(listed, Ids({ids[5], ids[2], ids[3], ids[6], ids[7]}));
        bool complete = false;
        const std::vector<qint32> page = first->firstIds(connection, {}, 4, 100, complete);
        QCOMPARE(Ids(page.begin(), page.end()), listed.mid(0, 4));
    }
};

QTEST_GUILESS_MAIN(SearchAheadTest)
#include "tst_search_ahead.moc"
