// The search across the register, without a window: the index the schema keeps, the
// folding, and the query texts run on a real register.
#include "explorer/DocumentSearch.h"
#include "harness/ServerDatabase.h"
#include "harness/TestRegister.h"
#include "store/SchemaSteps.h"
#include "store/SearchIndex.h"
#include "store/engine/Connection.h"
#include "store/engine/Recordset.h"

#include <QHash>
#include <QProcess>
#include <QTest>

#include <algorithm>
#include <memory>
#include <sqlite3.h>

using namespace kartella;
using namespace kartella::test;

namespace {

using Ids = QList<qint32>;

// The documents found for a text, in list order.
Ids found(const TestRegister& reg, const QString& text, SearchIndexKind index, int direction = 0,
    bool withinDates = false, const QDate& start = {}, const QDate& end = {})
{
    Connection connection;
    connection.open(reg.connectionString());
    Recordset rs;
    // The files' index of the same place, where the register has it: the fields are found
    // the same with it.
    const ContentIndexKind content = index == SearchIndexKind::FullText ? ContentIndexKind::FullText
        : index == SearchIndexKind::Table                               ? ContentIndexKind::TextVector
                                                                        : ContentIndexKind::None;
    rs.open(
        searchListSql(searchTerms(text), {index, content}, direction, withinDates, start, end), connection);
    Ids ids;
    while (!rs.eof()) {
        ids << rs.fields(QStringLiteral("RastasID")).value().toInt();
        rs.moveNext();
    }
    return ids;
}

Ids found(const TestRegister& reg, const QString& text, bool indexed = true, int direction = 0,
    bool withinDates = false, const QDate& start = {}, const QDate& end = {})
{
    return found(reg, text, indexed ? SearchIndexKind::FullText : SearchIndexKind::None, direction,
        withinDates, start, end);
}

// The ways a register of each place finds documents.
QList<SearchIndexKind> indexesOf(TestRegister::Where where)
{
    if (where == TestRegister::Server)
        return {SearchIndexKind::Table};
    return {SearchIndexKind::FullText, SearchIndexKind::None};
}

qint32 addDocument(const TestRegister& reg, const QVariantMap& values)
{
    QVariantMap row = values;
    if (!row.contains(QStringLiteral("DokRegistracData")))
        row.insert(QStringLiteral("DokRegistracData"), QDate(2024, 3, 5));
    return reg.insert(QStringLiteral("tbl_Documents"), row);
}

// Runs one statement through the sqlite3 library alone, with nothing of ours registered.
void execPlain(const QString& path, const QString& sql)
{
    sqlite3* db = nullptr;
    QCOMPARE(sqlite3_open(path.toUtf8().constData(), &db), SQLITE_OK);
    char* message = nullptr;
    const int rc = sqlite3_exec(db, sql.toUtf8().constData(), nullptr, nullptr, &message);
    const QString problem = QString::fromUtf8(message ? message : "");
    sqlite3_free(message);
    sqlite3_close(db);
    QVERIFY2(rc == SQLITE_OK, qPrintable(problem));
}

} // namespace

class SearchTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // A register file and, when the tests have one, a server register.
    static void places()
    {
        QTest::addColumn<TestRegister::Where>("where");
        QTest::newRow("file") << TestRegister::File;
        QTest::newRow("server") << TestRegister::Server;
    }

    void termsAreSplitFoldedAndKeptOnce_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QList<SearchTerm>>("terms");
        QTest::newRow("words") << "  Šiaulių\tSUTARTIS šiaulių\n0823/4 "
                               << QList<SearchTerm> {{"siauliu"}, {"sutartis"}, {"0823/4"}};
        QTest::newRow("blank") << " \t " << QList<SearchTerm> {};
        QTest::newRow("phrase") << "\"Šiaulių  Banko\" sąskaita"
                                << QList<SearchTerm> {{"siauliu banko", true}, {"saskaita"}};
        QTest::newRow("lithuanian quotes")
            << "„Didelė sutartis“" << QList<SearchTerm> {{"didele sutartis", true}};
        QTest::newRow("unclosed quote") << "\"iki galo" << QList<SearchTerm> {{"iki galo", true}};
        QTest::newRow("one quoted word") << "\"aktas\" aktas" << QList<SearchTerm> {{"aktas"}};
        QTest::newRow("prefix") << "SUTART* sutart*" << QList<SearchTerm> {{"sutart", false, true}};
        QTest::newRow("lone star") << "*" << QList<SearchTerm> {{"*"}};
        QTest::newRow("quote inside a word") << "o\"brien" << QList<SearchTerm> {{"o\"brien"}};
        QTest::newRow("prefix after a phrase")
            << "\"Banko paskolos\" SUTART* aktas"
            << QList<SearchTerm> {{"banko paskolos", true}, {"sutart", false, true}, {"aktas"}};
    }

    void termsAreSplitFoldedAndKeptOnce()
    {
        QFETCH(QString, text);
        QFETCH(QList<SearchTerm>, terms);
        QCOMPARE(searchTerms(text), terms);
    }

    // One register holds a word with each letter, in upper and in lower case.
    void initTestCase()
    {
        m_letters = std::make_unique<TestRegister>(QStringLiteral("Letters.mdb"));
        for (const QString& letters : {Upper, Lower}) {
            for (const QChar letter : letters)
                m_letterDocs[letter] = addDocument(*m_letters,
                    {{"DokAntraste", QString(QStringLiteral("Xq") + letter + QStringLiteral("wy"))}});
        }
        addDocument(*m_letters, {{"DokAntraste", QStringLiteral("Xqowy")}});
    }

    void cleanupTestCase() { m_letters.reset(); }

    void foldingOfEveryLithuanianLetter_data()
    {
        QTest::addColumn<int>("letter");
        QTest::addColumn<QString>("typed");
        for (int i = 0; i < Upper.size(); ++i) {
            for (const QString& typed :
                {Upper.mid(i, 1), Lower.mid(i, 1), Base.mid(i, 1), Base.mid(i, 1).toUpper()})
                QTest::addRow("%s as %s", qPrintable(Upper.mid(i, 1)), qPrintable(typed)) << i << typed;
        }
    }

    // A letter typed in any of its forms finds the word with each form of it, through the
    // trigrams and by the scan, and with nothing before it (a piece of two characters).
    void foldingOfEveryLithuanianLetter()
    {
        QFETCH(int, letter);
        QFETCH(QString, typed);
        // Every letter folds onto its base letter: Ė and Ę, Ų and Ū are found as one.
        Ids both;
        for (int other = 0; other < Upper.size(); ++other) {
            if (Base.at(other) == Base.at(letter))
                both << m_letterDocs.value(Upper.at(other)) << m_letterDocs.value(Lower.at(other));
        }
        std::sort(both.begin(), both.end());
        for (const bool indexed : {true, false}) {
            for (const QString& text : {QString("q" + typed + "w"), QString(typed + "w")}) {
                Ids ids = found(*m_letters, text, indexed);
                std::sort(ids.begin(), ids.end());
                QCOMPARE(ids, both);
            }
        }
    }

    void everyFieldAndWordsInAnyOrder_data() { places(); }

    void everyFieldAndWordsInAnyOrder()
    {
        QFETCH(TestRegister::Where, where);
        if (where == TestRegister::Server && !ServerDatabase::available())
            QSKIP(qPrintable(ServerDatabase::skipReason()));
        TestRegister reg(where);
        const qint32 contact = reg.insert(QStringLiteral("tbl_Contacts"), {{"FullName", "Ona Petraitienė"}});
        const qint32 byDescription = addDocument(reg,
            {{"DokAntraste", "Sutartis dėl Šiaulių"}, {"DokRegistracIndeksas", "SUT-0823/4"},
                {"DokRegistracData", QDate(2024, 3, 2)}});
        const qint32 byNotes = addDocument(reg,
            {{"DokAntraste", "Sąskaita"}, {"DokPastaba", "apmokėta Šiauliuose"}, {"ContactID", contact},
                {"DokRegistracData", QDate(2024, 3, 1)}});
        const qint32 byPath = addDocument(reg,
            {{"DokAntraste", "Raštas"}, {"RastoKel", "/srv/docs/Petraitiene/rastas.odt"},
                {"DokRegistracData", QDate(2024, 3, 3)}});
        const qint32 nothing = addDocument(reg, {{"DokAntraste", "Kita"}});

        for (const SearchIndexKind indexed : indexesOf(where)) {
            QCOMPARE(found(reg, "siauliu sutartis", indexed), Ids {byDescription});
            QCOMPARE(found(reg, "SUTARTIS ŠIAULIŲ", indexed), Ids {byDescription});
            QCOMPARE(found(reg, "0823/4", indexed), Ids {byDescription});
            QCOMPARE(found(reg, "823", indexed), Ids {byDescription});
            QCOMPARE(found(reg, "apmoketa", indexed), Ids {byNotes});
            // A name, and a path, in list order (by registration date).
            QCOMPARE(found(reg, "petraitien", indexed), Ids({byNotes, byPath}));
            QCOMPARE(found(reg, "ona sask", indexed), Ids {byNotes});
            QCOMPARE(found(reg, "rastas.odt", indexed), Ids {byPath});
            // Words short of three characters, alone and beside a long one.
            QCOMPARE(found(reg, "dė", indexed), Ids {byDescription});
            QCOMPARE(found(reg, "ta", indexed), Ids({byNotes, byDescription, byPath, nothing}));
            QCOMPARE(found(reg, "ta šiaul", indexed), Ids({byNotes, byDescription}));
            QCOMPARE(found(reg, "od", indexed), Ids {byPath});
            // A word across two fields matches nothing; every word must match.
            QCOMPARE(found(reg, "siauliu sut-0823", indexed), Ids {byDescription});
            QCOMPARE(found(reg, "liųsut", indexed), Ids {});
            QCOMPARE(found(reg, "sutartis kita", indexed), Ids {});
            // Quotes and wildcards are plain characters.
            QCOMPARE(found(reg, "'\"%_*", indexed), Ids {});
            // No word at all finds nothing.
            QCOMPARE(found(reg, " \t ", indexed), Ids {});
        }
    }

    void quotesAndWildcardsArePlainCharacters_data() { places(); }

    // A quote, a percent sign or an underscore typed into the search box is looked for as
    // it stands, in the index and without it.
    void quotesAndWildcardsArePlainCharacters()
    {
        QFETCH(TestRegister::Where, where);
        if (where == TestRegister::Server && !ServerDatabase::available())
            QSKIP(qPrintable(ServerDatabase::skipReason()));
        TestRegister reg(where);
        const qint32 contact = reg.insert(QStringLiteral("tbl_Contacts"), {{"FullName", "Seán O'Brien"}});
        const qint32 percent = addDocument(
            reg, {{"DokAntraste", "Paskola 7% metinių"}, {"DokRegistracData", QDate(2024, 3, 1)}});
        const qint32 quoted = addDocument(reg, {{"DokAntraste", "Laiškas"}, {"ContactID", contact}});
        const qint32 underscore = addDocument(reg, {{"DokAntraste", "byla_2024"}});
        const qint32 plain = addDocument(reg,
            {{"DokAntraste", "Paskola 7 metams, byla 2024 O Brien"},
                {"DokRegistracData", QDate(2024, 3, 2)}});
        for (const SearchIndexKind indexed : indexesOf(where)) {
            QCOMPARE(found(reg, "7%", indexed), Ids {percent});
            QCOMPARE(found(reg, "7% metin", indexed), Ids {percent});
            QCOMPARE(found(reg, "o'brien", indexed), Ids {quoted});
            QCOMPARE(found(reg, "'", indexed), Ids {quoted});
            QCOMPARE(found(reg, "a_2", indexed), Ids {underscore});
            QCOMPARE(found(reg, "%", indexed), Ids {percent});
            QCOMPARE(found(reg, "paskola 7", indexed), Ids({percent, plain}));
        }
    }

    void editsAndDeletesShowAtOnce_data() { places(); }

    void editsAndDeletesShowAtOnce()
    {
        QFETCH(TestRegister::Where, where);
        if (where == TestRegister::Server && !ServerDatabase::available())
            QSKIP(qPrintable(ServerDatabase::skipReason()));
        TestRegister reg(where);
        const SearchIndexKind index = indexesOf(where).front();
        const qint32 contact = reg.insert(QStringLiteral("tbl_Contacts"), {{"FullName", "Jonas Žukauskas"}});
        const qint32 doc = addDocument(reg, {{"DokAntraste", "Prašymas"}, {"ContactID", contact}});
        QCOMPARE(found(reg, "zukausk", index), Ids {doc});
        reg.exec(
            QStringLiteral("UPDATE tbl_Documents SET DokAntraste = 'Įsakymas' WHERE RastasID = %1").arg(doc));
        QCOMPARE(found(reg, "prasymas", index), Ids {});
        QCOMPARE(found(reg, "isakymas", index), Ids {doc});
        // The contact's new name, and a document moved to no contact.
        reg.exec(QStringLiteral("UPDATE tbl_Contacts SET FullName = 'Jonas Čepas' WHERE ContactID = %1")
                     .arg(contact));
        QCOMPARE(found(reg, "zukausk", index), Ids {});
        QCOMPARE(found(reg, "cepas isak", index), Ids {doc});
        reg.exec(QStringLiteral("DELETE FROM tbl_Contacts WHERE ContactID = %1").arg(contact));
        QCOMPARE(found(reg, "cepas", index), Ids {});
        QCOMPARE(found(reg, "isakymas", index), Ids {doc});
        reg.exec(QStringLiteral("DELETE FROM tbl_Documents WHERE RastasID = %1").arg(doc));
        QCOMPARE(found(reg, "isakymas", index), Ids {});
        QCOMPARE(reg.scalar(QStringLiteral("SELECT COUNT(*) FROM tbl_Documents_Search")).toInt(), 0);
    }

    // The sqlite3 library alone, with no function of ours, keeps the index right.
    void anotherProgramWritesTheRegister()
    {
        TestRegister reg;
        const qint32 kept = addDocument(reg, {{"DokAntraste", "Sutartis"}});
        execPlain(reg.path(),
            QStringLiteral("INSERT INTO tbl_Contacts (ContactID, FullName) VALUES (70, 'Rūta Ąžuolienė'); "
                           "INSERT INTO tbl_Documents (RastasID, DokAntraste, ContactID, DokRegistracData) "
                           "VALUES (50, 'Šilumos aktas', 70, '2024-03-09'); "
                           "UPDATE tbl_Documents SET DokPastaba = 'ŪKIS' WHERE RastasID = %1")
                .arg(kept));
        QCOMPARE(found(reg, "silumos azuol"), Ids {50});
        QCOMPARE(found(reg, "ukis sutar"), Ids {kept});
        execPlain(reg.path(), QStringLiteral("DELETE FROM tbl_Documents WHERE RastasID = 50"));
        QCOMPARE(found(reg, "silumos"), Ids {});
    }

    // A register whose fields have no index of their own but whose files' texts have one:
    // the fields are scanned, the texts read through their index.
    void fieldsScannedAndTextsThroughTheirIndex()
    {
        TestRegister reg;
        const qint32 inFields
            = addDocument(reg, {{"DokAntraste", "Sutartis"}, {"DokRegistracData", QDate(2024, 3, 2)}});
        const qint32 inText
            = addDocument(reg, {{"DokAntraste", "Kita"}, {"DokRegistracData", QDate(2024, 3, 1)}});
        addDocument(reg, {{"DokAntraste", "Kita"}});
        reg.exec(QStringLiteral("INSERT INTO tbl_Document_Text (RastasID, FilePath, State, Body) VALUES "
                                "(%1, '/docs/a.pdf', 1, 'Sutartis ir priedas')")
                     .arg(inText));
        QCOMPARE(found(reg, "sutartis priedas", SearchIndexKind::None), Ids {});
        Connection connection;
        connection.open(reg.connectionString());
        Recordset rs;
        rs.open(searchListSql(searchTerms(QStringLiteral("SUTARTIS")),
                    {SearchIndexKind::None, ContentIndexKind::FullText}, 0, false, {}, {}),
            connection);
        Ids ids;
        for (; !rs.eof(); rs.moveNext())
            ids << rs.fields(QStringLiteral("RastasID")).value().toInt();
        QCOMPARE(ids, Ids({inText, inFields}));

        // Whether any text holds a term, before anything is ranked.
        const SearchIndexes indexes = searchIndexes(connection);
        const auto anyHit = [&](const QString& text) {
            const SearchRanking ranking
                = prepareRanking(connection, searchRanking(searchTerms(text), indexes), 1);
            if (ranking.anyHit.isEmpty())
                return -1;
            Recordset hit;
            hit.open(ranking.anyHit, connection);
            return hit.eof() ? 0 : hit.fields(0).value().toInt();
        };
        QCOMPARE(anyHit(QStringLiteral("priedas")), inText);
        QCOMPARE(anyHit(QStringLiteral("kita")), -1);
        // Each search on the connection ranks anew.
        for (int search = 0; search < 2; ++search)
            QVERIFY(
                !prepareRanking(connection, searchRanking(searchTerms(QStringLiteral("priedas")), indexes))
                     .key.isEmpty());
    }

    // A term is broad in half of the texts or more, rounded up, and in `broadHits` or more.
    void broadFromHalfTheTexts_data()
    {
        QTest::addColumn<qint64>("texts");
        QTest::addColumn<qint64>("broadHits");
        QTest::addColumn<qint64>("broad");
        QTest::newRow("half of an even count") << qint64(4) << qint64(1) << qint64(2);
        QTest::newRow("half of an odd count") << qint64(5) << qint64(1) << qint64(3);
        QTest::newRow("the hits given") << qint64(5) << qint64(4) << qint64(4);
        QTest::newRow("no text") << qint64(0) << qint64(1) << qint64(1);
    }

    void broadFromHalfTheTexts()
    {
        QFETCH(qint64, texts);
        QFETCH(qint64, broadHits);
        QFETCH(qint64, broad);
        QCOMPARE(kartella::broadHitCount(texts, broadHits), broad);
    }

    // The window searches the register the options name, with the indexes it has.
    void indexesOfTheRegisterInUse()
    {
        TestRegister reg;
        SearchIndexes indexes = registerSearchIndexes();
        QCOMPARE(indexes.fields, SearchIndexKind::FullText);
        QCOMPARE(indexes.content, ContentIndexKind::FullText);
        reg.exec(QStringLiteral("DROP TABLE tbl_Documents_Search"));
        indexes = registerSearchIndexes();
        QCOMPARE(indexes.fields, SearchIndexKind::None);
    }

    void directionAndDatesNarrow()
    {
        TestRegister reg;
        const qint32 march = addDocument(
            reg, {{"DokAntraste", "Aktas A"}, {"DokRegistracData", QDate(2024, 3, 1)}, {"KryptisID", 2}});
        const qint32 april = addDocument(
            reg, {{"DokAntraste", "Aktas B"}, {"DokRegistracData", QDate(2024, 4, 1)}, {"KryptisID", 3}});
        const qint32 may = addDocument(
            reg, {{"DokAntraste", "Aktas C"}, {"DokRegistracData", QDate(2024, 4, 2)}, {"KryptisID", 3}});
        for (const bool indexed : {true, false}) {
            QCOMPARE(found(reg, "aktas", indexed), Ids({march, april, may}));
            QCOMPARE(found(reg, "aktas", indexed, 3), Ids({april, may}));
            // Both ends of the range count.
            QCOMPARE(found(reg, "aktas", indexed, 0, true, QDate(2024, 3, 1), QDate(2024, 4, 1)),
                Ids({march, april}));
            QCOMPARE(
                found(reg, "aktas", indexed, 3, true, QDate(2024, 3, 1), QDate(2024, 4, 1)), Ids {april});
        }
    }

    // An older register gets the index of the documents it already holds.
    void upgradeIndexesTheDocumentsThereAre()
    {
        TestRegister reg;
        const qint32 doc = addDocument(reg, {{"DokAntraste", "Įgaliojimas"}});
        reg.exec(QStringLiteral("DROP TABLE tbl_Documents_Search"));
        for (const char* trigger :
            {"trg_Documents_Search_Insert", "trg_Documents_Search_Update", "trg_Documents_Search_Delete",
                "trg_Contacts_Search_Insert", "trg_Contacts_Search_Update", "trg_Contacts_Search_Delete"})
            reg.exec(QStringLiteral("DROP TRIGGER ") + QLatin1String(trigger));
        reg.exec(QStringLiteral("PRAGMA user_version = 2"));
        {
            Connection connection;
            connection.open(reg.connectionString());
            QVERIFY(!hasSearchIndex(connection));
        }
        // Without the index the scan finds the same.
        QCOMPARE(found(reg, "igaliojim", false), Ids {doc});
        const auto done = upgradeRegister(reg.path());
        QCOMPARE(int(done.size()), newestSchemaVersion() - 2);
        QCOMPARE(done.front()->version, 3);
        Connection connection;
        connection.open(reg.connectionString());
        QVERIFY(hasSearchIndex(connection));
        QCOMPARE(found(reg, "igaliojim"), Ids {doc});
    }

    void commandLinePrintsIndexDateAndDescription()
    {
        TestRegister reg;
        addDocument(reg,
            {{"DokAntraste", "Sutartis\tdėl Šiaulių"}, {"DokRegistracIndeksas", "SUT-0823/4"},
                {"DokRegistracData", QDate(2024, 3, 9)}});
        addDocument(reg, {{"DokAntraste", "Šiaulių aktas"}, {"DokRegistracData", QDate(2024, 3, 8)}});
        addDocument(reg, {{"DokAntraste", "Kita"}});
        const auto run = [&](const QStringList& arguments, int exitCode) {
            QProcess tool;
            tool.start(QStringLiteral(KARTELLA_DB_PATH), arguments);
            if (!tool.waitForFinished(60000) || tool.exitCode() != exitCode)
                return QStringLiteral("exit %1: %2")
                    .arg(tool.exitCode())
                    .arg(QString::fromUtf8(tool.readAllStandardError()));
            return QString::fromUtf8(tool.readAllStandardOutput());
        };
        QCOMPARE(run({"search", reg.path(), "SIAULIU"}, 0),
            QString("\t2024-03-08\tŠiaulių aktas\nSUT-0823/4\t2024-03-09\tSutartis dėl Šiaulių\n"));
        QCOMPARE(run({"search", reg.path(), "0823/4", "šiaul"}, 0),
            QString("SUT-0823/4\t2024-03-09\tSutartis dėl Šiaulių\n"));
        QCOMPARE(run({"search", reg.path(), "--nera"}, 0), QString());
        QVERIFY(run({"search", reg.path()}, 2).isEmpty());
        QVERIFY(run({"search", reg.dir() + "/nera.mdb", "aktas"}, 1).isEmpty());
    }

private:
    const QString Upper = QStringLiteral("ĄČĘĖĮŠŲŪŽ");
    const QString Lower = QStringLiteral("ąčęėįšųūž");
    const QString Base = QStringLiteral("aceeisuuz");
    std::unique_ptr<TestRegister> m_letters;
    QHash<QChar, qint32> m_letterDocs;
};

QTEST_GUILESS_MAIN(SearchTest)
#include "tst_search.moc"
