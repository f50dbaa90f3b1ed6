// The documents a search keeps on a register file, whichever way it takes, and the hits of the
// files' text it counts on the way, which the ranking takes instead of counting them again:
// each counted whole, or as far as it takes to know the term is broad, and only those of the
// search just kept.
#include "explorer/DocumentSearch.h"
#include "explorer/SearchHits.h"
#include "explorer/SearchRegister.h"
#include "harness/TestRegister.h"
#include "store/engine/Connection.h"
#include "store/engine/Recordset.h"
#include "store/engine/SqlText.h"

#include <QTest>

#include <algorithm>

using namespace kartella;
using namespace kartella::test;

namespace {

// The ids a query lists, in the order of their numbers.
Ids sortedIdsOf(Connection& connection, const QString& sql)
{
    Ids ids = idsOf(connection, sql);
    std::sort(ids.begin(), ids.end());
    return ids;
}

} // namespace

class SearchHitsTest : public QObject
{
    Q_OBJECT

    std::unique_ptr<TestRegister> m_reg;
    QHash<QString, qint32> m_ids;

    void add(const QString& description, const QString& text = {})
    {
        const qint32 id = m_reg->insert(QStringLiteral("tbl_Documents"),
            {{"DokAntraste", description}, {"DokRegistracData", QDate(2024, 3, 1).addDays(m_ids.size())}});
        m_ids.insert(description, id);
        if (!text.isEmpty())
            m_reg->exec(
                QStringLiteral("INSERT INTO tbl_Document_Text (RastasID, FilePath, State, Body) VALUES "
                               "(%1, '/docs/%1.pdf', 1, %2)")
                    .arg(id)
                    .arg(sqlString(text)));
    }

    Ids idsNamed(const QString& names) const
    {
        Ids ids;
        for (const QString& name : names.split(u',', Qt::SkipEmptyParts))
            ids << m_ids.value(name);
        std::sort(ids.begin(), ids.end());
        return ids;
    }

private Q_SLOTS:
    // Five texts: below a threshold of three, a term in three of them or more is broad.
    void initTestCase()
    {
        m_reg = std::make_unique<TestRegister>();
        add(QStringLiteral("Sutartis"), QStringLiteral("sutartis aktas priedas"));
        add(QStringLiteral("Aktas"), QStringLiteral("aktas priedas"));
        add(QStringLiteral("Priedas"), QStringLiteral("priedas"));
        add(QStringLiteral("Raštas"), QStringLiteral("priedas kita"));
        add(QStringLiteral("Kita"));
        add(QStringLiteral("Be teksto"));
        add(QStringLiteral("Kita byla"), QStringLiteral("priedas"));
    }

    void cleanupTestCase() { m_reg.reset(); }

    void keptAndCounted_data()
    {
        QTest::addColumn<QString>("search");
        QTest::addColumn<qint64>("broadHits");
        QTest::addColumn<QString>("kept");

        QTest::newRow("one word, copied whole")
            << "priedas" << qint64(1) << "Sutartis,Aktas,Priedas,Raštas,Kita byla";
        QTest::newRow("two words of the texts, counted as far as broad")
            << "priedas aktas" << qint64(1) << "Sutartis,Aktas";
        QTest::newRow("two words, broad past the register's half")
            << "aktas priedas" << qint64(3) << "Sutartis,Aktas";
        // A prefix through the texts' index, and as the rows a short piece is looked up in.
        QTest::newRow("a prefix after a word, through the texts' index")
            << "sutartis pried*" << qint64(1) << "Sutartis";
        QTest::newRow("a short piece looked up in the rows of a prefix")
            << "ak pried*" << qint64(1) << "Aktas";
        // A short piece turns the search to the look-ups: the rarest word copied, the rest looked up.
        QTest::newRow("two words and a short piece") << "priedas aktas ak" << qint64(1) << "Aktas";
        QTest::newRow("a word of the fields of a text with the other")
            << "kita priedas" << qint64(1) << "Raštas,Kita byla";
        QTest::newRow("a term of punctuation, in no text") << "%%% aktas" << qint64(1) << "";
        QTest::newRow("a word of the fields alone") << "teksto" << qint64(1) << "Be teksto";
    }

    void keptAndCounted()
    {
        QFETCH(QString, search);
        QFETCH(qint64, broadHits);
        QFETCH(QString, kept);
        Connection connection;
        connection.open(m_reg->connectionString());
        const SearchIndexes indexes = searchIndexes(connection);
        QVERIFY(SearchHits::canKeep(indexes));
        connection.execute(QStringLiteral("CREATE TEMP TABLE kept (RastasID INTEGER PRIMARY KEY)"));
        SearchHits found;
        // A search kept before leaves neither its rows nor its counts.
        found.keep(
            connection, QStringLiteral("kept"), searchTerms(QStringLiteral("kita")), indexes, {}, broadHits);
        const QList<SearchTerm> terms = searchTerms(search);
        found.keep(connection, QStringLiteral("kept"), terms, indexes, {}, broadHits);
        QCOMPARE(sortedIdsOf(connection, QStringLiteral("SELECT RastasID FROM temp.kept")), idsNamed(kept));
        // Each count is the query's whole, or as far as broad; none is of the search before.
        const qint64 broad = broadHitCount(connection, broadHits);
        QStringList queries;
        for (const SearchTerm& term : terms) {
            const QString query = searchRanking({term}, indexes).fullTextQueries.value(0);
            queries << query;
            if (!found.contentHits().contains(query))
                continue;
            const qint64 whole = firstNumber(connection,
                QStringLiteral(
                    "SELECT COUNT(*) FROM tbl_Document_Text_Search WHERE tbl_Document_Text_Search MATCH ")
                    + sqlString(query));
            const qint64 hits = found.contentHits().value(query);
            QVERIFY2(hits == whole || hits == std::min(whole, broad),
                qPrintable(QStringLiteral("%1: %2 of %3").arg(query).arg(hits).arg(whole)));
        }
        for (auto hit = found.contentHits().cbegin(); hit != found.contentHits().cend(); ++hit)
            QVERIFY2(queries.contains(hit.key()), qPrintable(hit.key()));
    }

    // Without the texts' index a search keeps the documents whose fields hold its terms.
    void fieldsAloneWithoutTheTextsIndex()
    {
        Connection connection;
        connection.open(m_reg->connectionString());
        connection.execute(QStringLiteral("CREATE TEMP TABLE kept (RastasID INTEGER PRIMARY KEY)"));
        SearchHits found;
        found.keep(connection, QStringLiteral("kept"), searchTerms(QStringLiteral("priedas")),
            {SearchIndexKind::FullText, ContentIndexKind::None}, {});
        QCOMPARE(sortedIdsOf(connection, QStringLiteral("SELECT RastasID FROM temp.kept")),
            idsNamed(QStringLiteral("Priedas")));
        QVERIFY(found.contentHits().isEmpty());
    }
};

QTEST_GUILESS_MAIN(SearchHitsTest)
#include "tst_search_hits.moc"
