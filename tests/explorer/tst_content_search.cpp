// The search of the words of the documents' files: the index the schema keeps of
// tbl_Document_Text, the terms, the ranking and the passages, read as the window reads its
// list of results, on a register file and on a server.
#include "base/Error.h"
#include "explorer/DocumentPaging.h"
#include "explorer/DocumentSearch.h"
#include "explorer/SearchHits.h"
#include "explorer/SearchRegister.h"
#include "harness/ServerDatabase.h"
#include "harness/TestRegister.h"
#include "store/SchemaSteps.h"
#include "store/engine/Connection.h"
#include "store/engine/Recordset.h"
#include "store/engine/SqlText.h"

#include <QProcess>
#include <QTest>

#include <algorithm>
#include <memory>

using namespace kartella;
using namespace kartella::test;

namespace {

Ids sorted(Ids ids)
{
    std::sort(ids.begin(), ids.end());
    return ids;
}

// Whether the FTS5 index agrees with the texts it indexes (a register file).
bool indexIsWhole(const TestRegister& reg)
{
    try {
        reg.exec(QStringLiteral("INSERT INTO tbl_Document_Text_Search (tbl_Document_Text_Search) VALUES "
                                "('integrity-check')"));
        return true;
    } catch (const Error&) {
        return false;
    }
}

} // namespace

class ContentSearchTest : public QObject
{
    Q_OBJECT

    std::unique_ptr<TestRegister> m_manyDocuments;

private Q_SLOTS:
    static void places()
    {
        QTest::addColumn<TestRegister::Where>("where");
        QTest::newRow("file") << TestRegister::File;
        QTest::newRow("server") << TestRegister::Server;
    }

    void wordsOfTheFiles_data()
    {
        QTest::addColumn<TestRegister::Where>("where");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QStringList>("expected");
        const QList<std::pair<const char*, TestRegister::Where>> wheres {
            {"file", TestRegister::File}, {"server", TestRegister::Server}};
        const QList<std::pair<const char*, QStringList>> cases {
            {"sutartis", {"loan"}},
            {"SUTARTIS", {"loan"}},
            {"siauliu", {"loan", "act"}},
            {"ŠIAULIŲ", {"loan", "act"}},
            {"piemenelis", {"loan"}},
            // A piece of a word is no word of the text.
            {"sutart", {}},
            {"sutart*", {"loan"}},
            {"SIAUL*", {"loan", "act"}},
            {"\"banko paskolos\"", {"loan"}},
            {"„Banko  paskolos“", {"loan"}},
            {"\"paskolos banko\"", {}},
            {"aktas siauliu", {"act"}},
            {"sutartis aktas", {}},
            // One word in the description, the other in the file.
            {"saskaita apmokejimas", {"account"}},
            {"banko apmokejimas", {"account"}},
            {"apmokejimas nerasta", {}},
            {"nerasta", {}},
            {"o'brien", {"letter"}},
            // Words of the query language in the text searched for.
            {"\"european union\"", {"letter"}},
            {"union", {"letter"}},
            {"-", {}},
        };
        for (const auto& [place, where] : wheres) {
            for (const auto& [text, expected] : cases)
                QTest::addRow("%s: %s", place, text) << where << QString::fromUtf8(text) << expected;
        }
    }

    void wordsOfTheFiles()
    {
        QFETCH(TestRegister::Where, where);
        QFETCH(QString, text);
        QFETCH(QStringList, expected);
        if (where == TestRegister::Server && !ServerDatabase::available())
            QSKIP(qPrintable(ServerDatabase::skipReason()));
        const TestRegister reg(where);
        QHash<QString, qint32> id;
        id["loan"] = addDocument(reg, QStringLiteral("Dokumentas 1"));
        addText(
            reg, id["loan"], QStringLiteral("SUTARTIS dėl Šiaulių banko paskolos grąžinimo.\nPiemenėlis."));
        id["act"] = addDocument(reg, QStringLiteral("Dokumentas 2"));
        addText(reg, id["act"], QStringLiteral("Priėmimo aktas, pasirašytas Šiaulių mieste"));
        id["account"] = addDocument(reg, QStringLiteral("Banko sąskaita"));
        addText(reg, id["account"], QStringLiteral("Apmokėjimas grynaisiais"));
        id["letter"] = addDocument(reg, QStringLiteral("Letter"));
        addText(
            reg, id["letter"], QStringLiteral("Dear Mr O'Brien - thank you for the European Union grant"));
        id["none"] = addDocument(reg, QStringLiteral("Be failo"));

        Ids ids;
        for (const QString& name : expected)
            ids << id[name];
        QCOMPARE(sorted(found(reg, text)), sorted(ids));
    }

    void moreHitsComeFirstThenTheFieldsByDate_data() { places(); }

    void moreHitsComeFirstThenTheFieldsByDate()
    {
        QFETCH(TestRegister::Where, where);
        if (where == TestRegister::Server && !ServerDatabase::available())
            QSKIP(qPrintable(ServerDatabase::skipReason()));
        const TestRegister reg(where);
        const qint32 once = addDocument(reg, QStringLiteral("Pirmas"));
        addText(reg, once,
            QStringLiteral("Nuomos sutartis dėl patalpų, kurių plotas didelis, su priedais ir planais"));
        const qint32 often = addDocument(reg, QStringLiteral("Antras"));
        addText(reg, often, QStringLiteral("Nuomos sutartis. Sutartis pasirašyta, sutartis galioja"));
        const qint32 later = addDocument(reg, QStringLiteral("Sutartis be teksto"), QDate(2024, 5, 1));
        const qint32 earlier = addDocument(reg, QStringLiteral("Sutartis sena"), QDate(2023, 1, 2));
        const qint32 other = addDocument(reg, QStringLiteral("Kita"));
        addText(reg, other, QStringLiteral("Nieko bendro"));
        QCOMPARE(found(reg, QStringLiteral("sutartis")), Ids({often, once, earlier, later}));
        QCOMPARE(found(reg, QStringLiteral("sutartis nuomos")), Ids({often, once}));
    }

    void wordOfMostFilesListsByDate_data()
    {
        QTest::addColumn<qint64>("broadHits");
        QTest::addColumn<bool>("byDate");
        // Two texts of three hold the word: half of them or more.
        QTest::newRow("two hits are broad") << qint64(2) << true;
        QTest::newRow("three hits are broad") << qint64(3) << false;
    }

    void wordOfMostFilesListsByDate()
    {
        QFETCH(qint64, broadHits);
        QFETCH(bool, byDate);
        const TestRegister reg(TestRegister::File);
        const qint32 once = addDocument(reg, QStringLiteral("Pirmas"));
        addText(reg, once, QStringLiteral("Nuomos sutartis dėl patalpų, su priedais ir planais"));
        const qint32 often = addDocument(reg, QStringLiteral("Antras"));
        addText(reg, often, QStringLiteral("Sutartis pasirašyta, sutartis galioja"));
        const qint32 later = addDocument(reg, QStringLiteral("Sutartis be teksto"), QDate(2024, 5, 1));
        const qint32 earlier = addDocument(reg, QStringLiteral("Sutartis sena"), QDate(2023, 1, 2));
        addText(reg, addDocument(reg, QStringLiteral("Kita")), QStringLiteral("Nieko bendro"));
        QCOMPARE(found(reg, QStringLiteral("sutartis"), broadHits),
            byDate ? Ids({earlier, once, often, later}) : Ids({often, once, earlier, later}));
        QCOMPARE(found(reg, QStringLiteral("planais"), broadHits), Ids({once}));
    }

    // The documents kept term by term, rarest first, are those the list query finds: whichever
    // term comes first, whether few documents are kept (each looked up) or many (each term
    // read once), with a prefix, a phrase, a piece too short for the trigrams, a direction and
    // dates.
    void keptRowsAreThoseTheQueryFinds_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("direction");
        QTest::addColumn<bool>("withinDates");
        QTest::addColumn<int>("expected");
        QTest::newRow("a word of the text") << "sutartis" << 0 << false << 1;
        QTest::newRow("a word of every filler") << "apmokejimas" << 0 << false << 301;
        QTest::newRow("the rare term second") << "saskaita 17" << 0 << false << 13;
        QTest::newRow("the rare term first") << "17 saskaita" << 0 << false << 13;
        QTest::newRow("fields and text, many kept") << "saskaita apmokejimas" << 0 << false << 301;
        QTest::newRow("a prefix after a rare term") << "aktas siaul*" << 0 << false << 1;
        QTest::newRow("a prefix after many") << "saskaita apmok*" << 0 << false << 301;
        QTest::newRow("a prefix first") << "apmok* 250" << 0 << false << 1;
        QTest::newRow("a phrase") << "\"banko paskolos\" siauliu" << 0 << false << 1;
        QTest::newRow("a short piece") << "ir" << 0 << false << 300;
        QTest::newRow("a short piece after a rarer term") << "2 ir" << 0 << false << 138;
        QTest::newRow("a short piece of the fields only") << "ko" << 0 << false << 1;
        QTest::newRow("one term in the fields, the other in the text")
            << "banko apmokejimas" << 0 << false << 1;
        QTest::newRow("no document") << "sutartis nerasta" << 0 << false << 0;
        QTest::newRow("a direction") << "saskaita" << 2 << false << 100;
        QTest::newRow("dates") << "apmokejimas" << 0 << true << 31;
        QTest::newRow("a direction and dates") << "ir apmokejimas" << 3 << true << 10;
    }

    void keptRowsAreThoseTheQueryFinds()
    {
        QFETCH(QString, text);
        QFETCH(int, direction);
        QFETCH(bool, withinDates);
        QFETCH(int, expected);
        // One register for every row: more documents than are looked up one by one.
        if (!m_manyDocuments) {
            m_manyDocuments = std::make_unique<TestRegister>();
            const TestRegister& reg = *m_manyDocuments;
            addText(reg, addDocument(reg, QStringLiteral("Dokumentas 1")),
                QStringLiteral("SUTARTIS dėl Šiaulių banko paskolos grąžinimo."));
            addText(reg, addDocument(reg, QStringLiteral("Aktas")),
                QStringLiteral("Priėmimo aktas, pasirašytas Šiaulių mieste"));
            addText(reg, addDocument(reg, QStringLiteral("Banko sąskaita")),
                QStringLiteral("Apmokėjimas grynaisiais"));
            for (int n = 1; n <= 300; ++n) {
                const qint32 id = reg.insert(QStringLiteral("tbl_Documents"),
                    {{"DokAntraste", QStringLiteral("Sąskaita %1").arg(n)}, {"KryptisID", 1 + n % 3},
                        {"DokRegistracData", QDate(2024, 1, 1).addDays(n)}});
                addText(reg, id, QStringLiteral("Apmokėjimas ir grąžinimas %1").arg(n));
            }
        }

        Connection connection;
        connection.open(m_manyDocuments->connectionString());
        const SearchIndexes indexes = searchIndexes(connection);
        QVERIFY(SearchHits::canKeep(indexes));
        const QList<SearchTerm> terms = searchTerms(text);
        const QDate start(2024, 2, 1);
        const QDate end(2024, 3, 2);
        const Ids queried
            = idsOf(connection, searchListSql(terms, indexes, direction, withinDates, start, end));
        QCOMPARE(queried.size(), expected);

        // The direction and the dates as they follow the terms in the list query.
        QStringList filter;
        if (direction != 0)
            filter << QStringLiteral("tbl_Documents.KryptisID=%1").arg(direction);
        if (withinDates)
            filter << QStringLiteral("tbl_Documents.DokRegistracData between #2024-02-01# and #2024-03-02#");
        connection.execute(QStringLiteral("CREATE TEMP TABLE kept (RastasID INTEGER PRIMARY KEY)"));
        SearchHits hits;
        hits.keep(connection, QStringLiteral("kept"), terms, indexes, filter.join(QStringLiteral(" AND ")));
        QCOMPARE(
            sorted(idsOf(connection, QStringLiteral("SELECT RastasID FROM temp.kept"))), sorted(queried));
    }

    void changedAndDeletedTextsLeaveTheIndex_data() { places(); }

    void changedAndDeletedTextsLeaveTheIndex()
    {
        QFETCH(TestRegister::Where, where);
        if (where == TestRegister::Server && !ServerDatabase::available())
            QSKIP(qPrintable(ServerDatabase::skipReason()));
        const TestRegister reg(where);
        const qint32 doc = addDocument(reg, QStringLiteral("Raštas"));
        addText(reg, doc, QStringLiteral("Įsakymas dėl atostogų"));
        const qint32 kept = addDocument(reg, QStringLiteral("Kitas"));
        addText(reg, kept, QStringLiteral("Įsakymas dėl komandiruotės"));
        QCOMPARE(sorted(found(reg, QStringLiteral("isakymas"))), sorted({doc, kept}));

        // The file read again.
        reg.exec(
            QStringLiteral("UPDATE tbl_Document_Text SET Body = 'Prašymas dėl atostogų' WHERE RastasID = %1")
                .arg(doc));
        QCOMPARE(found(reg, QStringLiteral("isakymas")), Ids {kept});
        QCOMPARE(found(reg, QStringLiteral("prasymas")), Ids {doc});
        if (where == TestRegister::File) {
            // A row written again whole, as INSERT OR REPLACE does.
            reg.exec(
                QStringLiteral("INSERT OR REPLACE INTO tbl_Document_Text (RastasID, State, Body) VALUES (%1, "
                               "1, 'Skundas')")
                    .arg(doc));
            QCOMPARE(found(reg, QStringLiteral("prasymas")), Ids {});
            QCOMPARE(found(reg, QStringLiteral("skundas")), Ids {doc});
            QVERIFY(indexIsWhole(reg));
        }

        reg.exec(QStringLiteral("DELETE FROM tbl_Documents WHERE RastasID = %1").arg(doc));
        QCOMPARE(found(reg, QStringLiteral("skundas")), Ids {});
        QCOMPARE(found(reg, QStringLiteral("prasymas")), Ids {});
        QCOMPARE(found(reg, QStringLiteral("atostogu")), Ids {});
        QCOMPARE(found(reg, QStringLiteral("isakymas")), Ids {kept});
        if (where == TestRegister::File) {
            QVERIFY(indexIsWhole(reg));
            QCOMPARE(reg.scalar(QStringLiteral("SELECT COUNT(*) FROM tbl_Document_Text_Search WHERE "
                                               "tbl_Document_Text_Search MATCH 'atostogu'"))
                         .toInt(),
                0);
        }
    }

    // Registers of schema 7 (texts read, no index) and 6 (no texts yet).
    void upgradeIndexesTheTextsThereAre_data()
    {
        QTest::addColumn<TestRegister::Where>("where");
        QTest::addColumn<int>("version");
        QTest::newRow("file 7") << TestRegister::File << 7;
        QTest::newRow("file 6") << TestRegister::File << 6;
        QTest::newRow("server 7") << TestRegister::Server << 7;
    }

    void upgradeIndexesTheTextsThereAre()
    {
        QFETCH(TestRegister::Where, where);
        QFETCH(int, version);
        if (where == TestRegister::Server && !ServerDatabase::available())
            QSKIP(qPrintable(ServerDatabase::skipReason()));
        const TestRegister reg(where);
        const qint32 doc = addDocument(reg, QStringLiteral("Raštas"));
        if (where == TestRegister::File) {
            reg.exec(QStringLiteral("DROP TABLE tbl_Document_Text_Search"));
            for (const char* trigger : {"trg_Document_Text_Search_Replace", "trg_Document_Text_Search_Insert",
                     "trg_Document_Text_Search_Update", "trg_Document_Text_Search_Delete"})
                reg.exec(QStringLiteral("DROP TRIGGER ") + QLatin1String(trigger));
            if (version == 6) {
                reg.exec(QStringLiteral("DROP TRIGGER trg_Document_Text_Delete"));
                reg.exec(QStringLiteral("DROP TABLE tbl_Document_Text"));
            }
            reg.exec(QStringLiteral("PRAGMA user_version = %1").arg(version));
        } else {
            reg.exec(QStringLiteral("DROP TRIGGER \"trg_Document_Text_Words\" ON \"tbl_Document_Text\""));
            reg.exec(QStringLiteral("DROP FUNCTION \"trg_Document_Text_Words\"()"));
            reg.exec(QStringLiteral("DROP FUNCTION fold_search_text(text)"));
            reg.exec(QStringLiteral("ALTER TABLE \"tbl_Document_Text\" DROP COLUMN \"BodyWords\""));
            reg.exec(QStringLiteral("UPDATE tbl_Schema_Version SET Version = %1").arg(version));
        }
        if (version == 7)
            addText(reg, doc, QStringLiteral("Įgaliojimas atstovauti"));
        {
            Connection connection;
            connection.open(reg.connectionString());
            QCOMPARE(contentIndexKind(connection), ContentIndexKind::None);
        }
        // Without the index the files' text is not searched, and nothing fails.
        QCOMPARE(found(reg, QStringLiteral("igaliojimas")), Ids {});

        const auto done = upgradeRegister(reg.path());
        QCOMPARE(done.back()->version, newestSchemaVersion());
        Connection connection;
        connection.open(reg.connectionString());
        QVERIFY(contentIndexKind(connection) != ContentIndexKind::None);
        if (version == 6)
            addText(reg, doc, QStringLiteral("Įgaliojimas atstovauti"));
        QCOMPARE(found(reg, QStringLiteral("igaliojimas")), Ids {doc});
        QCOMPARE(found(reg, QStringLiteral("\"igaliojimas atstovauti\"")), Ids {doc});
    }

    void commandLinePrintsThePassage()
    {
        const TestRegister reg;
        const qint32 doc = reg.insert(QStringLiteral("tbl_Documents"),
            {{"DokAntraste", "Sutartis"}, {"DokRegistracIndeksas", "SUT-1"},
                {"DokRegistracData", QDate(2024, 3, 9)}});
        addText(reg, doc, QStringLiteral("Šalys susitarė:\ttiekėjas pristato prekes per 10 dienų."));
        reg.insert(QStringLiteral("tbl_Documents"),
            {{"DokAntraste", "Tiekėjas"}, {"DokRegistracData", QDate(2024, 3, 8)}});
        QProcess tool;
        tool.start(QStringLiteral(KARTELLA_DB_PATH), {"search", reg.path(), "tiekejas"});
        QVERIFY(tool.waitForFinished(60000));
        QCOMPARE(tool.exitCode(), 0);
        QCOMPARE(QString::fromUtf8(tool.readAllStandardOutput()),
            QString("SUT-1\t2024-03-09\tSutartis\tŠalys susitarė: [tiekėjas] pristato prekes per 10 dienų\n"
                    "\t2024-03-08\tTiekėjas\n"));
    }
};

QTEST_GUILESS_MAIN(ContentSearchTest)
#include "tst_content_search.moc"
