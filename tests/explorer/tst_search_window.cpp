// The main window's search box: typing, Enter, Esc, Ctrl+F, and the refills while a
// search shows.
#include "explorer/ContentProgress.h"
#include "explorer/DocumentFills.h"
#include "explorer/DocumentPages.h"
#include "explorer/DocumentSearch.h"
#include "explorer/DocumentSearchDelegate.h"
#include "explorer/ExplorerFixture.h"
#include "explorer/ExplorerList.h"
#include "explorer/ListModel.h"
#include "explorer/MainWindow.h"
#include "explorer/SearchBox.h"
#include "explorer/SearchFinder.h"
#include "explorer/SearchRegister.h"
#include "harness/ScriptedPrompter.h"
#include "harness/ScriptedShell.h"
#include "harness/ServerDatabase.h"
#include "harness/TestRegister.h"
#include "store/engine/Connection.h"
#include "support/SelectionState.h"

#include <QAction>
#include <QComboBox>
#include <QDateEdit>
#include <QScopeGuard>
#include <QTest>
#include <QTreeView>

using namespace kartella;
using namespace kartella::test;

namespace {

QString categoryNode(ExplorerFixture& fx, const char* name)
{
    return "a" + QString::number(fx.id[QString::fromUtf8(name)]);
}

} // namespace

class SearchWindowTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { selection() = SelectionState(); }

    void typingListsTheMatchesAndEscGoesBack()
    {
        ExplorerFixture fx;
        ScriptedPrompter prompter;
        MainWindow& w = fx.window();
        fx.clickNode(categoryNode(fx, "Raštai"));
        QCOMPARE(fx.documentTexts(), QStringList({"letter", "note"}));
        const QString nodeTitle = w.windowTitle();

        SearchBox* box = w.findChild<SearchBox*>("txtSearch");
        QVERIFY(box);
        QCOMPARE(box->placeholderText(), QString("Search documents"));
        QCOMPARE(box->accessibleName(), QString("Search documents"));
        QTest::keyClick(&w, Qt::Key_F, Qt::ControlModifier);
        QVERIFY(box->hasFocus());

        // The name of the contact of "work" and "letter", typed without its accents; the
        // list waits for the pause after the last keystroke.
        QTest::keyClicks(box, "KAIRYS azuol");
        QCOMPARE(fx.documentTexts(), QStringList({"letter", "note"}));
        QTRY_COMPARE(fx.documentTexts(), QStringList({"letter", "work"}));
        QCOMPARE(w.windowTitle(), QString("Search — KAIRYS azuol"));
        QCOMPARE(fx.countText(), QString("2 object(s)"));
        QCOMPARE(fx.columnCaptions(fx.documents()).at(2), QString("Sender/Receiver"));
        QVERIFY(!w.relatedList()->isVisible());

        // Items of the results act as any list's: the related list of "contract".
        box->clear();
        QTest::keyClicks(box, "pasirasyta");
        QTest::keyClick(box, Qt::Key_Return);
        QCOMPARE(fx.documentTexts(), QStringList({"contract"}));
        fx.clickDocument("contract");
        QCOMPARE(selection().selectedDocumentId, fx.id["contract"]);
        QVERIFY(w.relatedList()->isVisible());
        QCOMPARE(selection().activeListName, QString("ListDokSarasas"));

        // A text nothing holds: the empty list.
        box->setFocus();
        box->selectAll();
        QTest::keyClicks(box, "nera tokio");
        QTest::keyClick(box, Qt::Key_Return);
        QCOMPARE(fx.documents().item(0).text, DocumentFills::EmptyText);
        QCOMPARE(fx.countText(), QString("0 object(s)"));

        // Esc: the node's list, title and an empty box; the selection is gone.
        QTest::keyClick(box, Qt::Key_Escape);
        QVERIFY(box->text().isEmpty());
        QCOMPARE(fx.documentTexts(), QStringList({"letter", "note"}));
        QCOMPARE(w.windowTitle(), nodeTitle);
        QVERIFY(!w.isSearching());
        QCOMPARE(selection().selectedDocumentId, 0);
        QVERIFY(!w.relatedList()->isVisible());
        QVERIFY(prompter.prompts().isEmpty());
    }

    // The words of the files: the best match first, the field's match after it, and the
    // column of the passages with the hit marked.
    void filesTextIsFoundRankedWithItsPassage()
    {
        ExplorerFixture fx;
        ScriptedPrompter prompter;
        MainWindow& w = fx.window();
        // The window reads the documents' files in the background: stopped, and the texts
        // it found given ours instead.
        w.findChild<ContentProgress*>()->stop();
        fx.reg.exec(
            QStringLiteral("INSERT OR REPLACE INTO tbl_Document_Text (RastasID, State, Body) VALUES (%1, 1, "
                           "'Kvitas: apmokėta grynaisiais, be PVM')")
                .arg(fx.id["letter"]));
        fx.reg.exec(
            QStringLiteral("INSERT OR REPLACE INTO tbl_Document_Text (RastasID, State, Body) VALUES (%1, 1, "
                           "'Pastaba dėl sutarties, kurią reikia dar kartą peržiūrėti ir pasirašyti')")
                .arg(fx.id["note"]));
        fx.reg.exec(
            QStringLiteral("INSERT OR REPLACE INTO tbl_Document_Text (RastasID, State, Body) VALUES (%1, 1, "
                           "'Nuomos sutartis ir sutarties priedas')")
                .arg(fx.id["contract"]));
        SearchBox* box = w.searchBox();
        box->setFocus();
        QTest::keyClicks(box, "APMOKETA");
        QTest::keyClick(box, Qt::Key_Return);
        QCOMPARE(fx.documentTexts(), QStringList({"letter"}));
        const QStringList captions = fx.columnCaptions(fx.documents());
        QCOMPARE(captions.size(), 6);
        QCOMPARE(captions.at(5), DocumentFills::PassageCaption);
        const QModelIndex passage = fx.documents().index(0, 5);
        QCOMPARE(passage.data().toString(), QString("Kvitas: apmokėta grynaisiais, be PVM"));
        QCOMPARE(passage.data(ListModel::MarkedTextRole).toString(),
            QString("Kvitas: ") + QChar(PassageHitStart) + "apmokėta" + QChar(PassageHitEnd)
                + " grynaisiais, be PVM");
        QTreeView* details = w.documentList()->detailsView();
        QVERIFY(qobject_cast<PassageDelegate*>(details->itemDelegateForColumn(5)));

        // "pasirasyta" is in the notes of "contract", "sutart*" in its file; the file of "note"
        // holds fewer words of "sutart*".
        box->selectAll();
        QTest::keyClicks(box, "sutart* pasirasyta");
        QTest::keyClick(box, Qt::Key_Return);
        QCOMPARE(fx.documentTexts(), QStringList({"contract"}));
        box->selectAll();
        QTest::keyClicks(box, "sutart*");
        QTest::keyClick(box, Qt::Key_Return);
        QCOMPARE(fx.documentTexts(), QStringList({"contract", "note"}));
        // In the order of the results.
        QCOMPARE(fx.documents().item(0).text, QString("contract"));
        QCOMPARE(fx.documents().index(0, 5).data(ListModel::MarkedTextRole).toString(),
            QString("Nuomos ") + QChar(PassageHitStart) + "sutartis" + QChar(PassageHitEnd)
                + " ir sutarties priedas");

        // Back to a node: the columns of a list.
        QTest::keyClick(box, Qt::Key_Escape);
        QCOMPARE(fx.columnCaptions(fx.documents()).size(), 5);
        QVERIFY(prompter.prompts().isEmpty());
    }

    // A search of words most texts hold shows its first page at once, "Searching…" in the
    // count, then its whole list under the same selection; a search started while it is
    // being found is not replaced by it.
    void broadSearchShowsItsFirstPageThenTheWholeList()
    {
        ExplorerFixture fx;
        ScriptedPrompter prompter;
        MainWindow& w = fx.window();
        w.findChild<ContentProgress*>()->stop();
        fx.reg.exec(QStringLiteral("INSERT OR REPLACE INTO tbl_Document_Text (RastasID, State, Body) SELECT "
                                   "RastasID, 1, 'Sutartis ir priedai' FROM tbl_Documents"));
        DocumentPages::setPageSize(2);
        DocumentPages::setBroadHits(1);
        const auto restore = qScopeGuard([] {
            DocumentPages::setPageSize(100);
            DocumentPages::setBroadHits(BroadHits);
        });
        SearchBox* box = w.searchBox();
        box->setFocus();
        QTest::keyClicks(box, "IR");
        QTest::keyClick(box, Qt::Key_Return);
        // "work" is of last month, the others of this one, in the order they came.
        QCOMPARE(fx.documents().itemCount(), 2);
        QCOMPARE(fx.documents().item(0).text, QString("work"));
        QCOMPARE(fx.documents().item(1).text, QString("contract"));
        QCOMPARE(fx.countText(), QString("Searching…"));
        QCOMPARE(fx.columnCaptions(fx.documents()).size(), 6);
        fx.clickDocument("contract");
        QTRY_COMPARE(fx.countText(), QString("5 object(s)"));
        QCOMPARE(fx.documentTexts(), QStringList({"contract", "letter", "loose", "note", "work"}));
        QCOMPARE(fx.documents().item(1).text, QString("contract"));
        QCOMPARE(selection().selectedDocumentId, fx.id["contract"]);
        QCOMPARE(w.documentList()->selectedRow(), 1);

        // The whole list of "priedai" is dropped when "letter" is searched for before it comes.
        box->selectAll();
        QTest::keyClicks(box, "priedai");
        QTest::keyClick(box, Qt::Key_Return);
        QCOMPARE(fx.countText(), QString("Searching…"));
        box->selectAll();
        QTest::keyClicks(box, "letter");
        QTest::keyClick(box, Qt::Key_Return);
        QCOMPARE(fx.documentTexts(), QStringList({"letter"}));
        QTRY_VERIFY(w.documentFills().searchFinder().idle());
        QCoreApplication::processEvents();
        QCOMPARE(fx.documentTexts(), QStringList({"letter"}));
        QCOMPARE(fx.countText(), QString("1 object(s)"));
        QVERIFY(prompter.prompts().isEmpty());
    }

    // A word in one text and in many fields: its first page shows the ranked hit first, then
    // the others by date, as the whole list that replaces it does.
    void rankedSearchShowsItsHitFirstThenTheWholeList()
    {
        ExplorerFixture fx;
        ScriptedPrompter prompter;
        MainWindow& w = fx.window();
        w.findChild<ContentProgress*>()->stop();
        // Ten documents hold it in their notes: more than the four times two hits of a broad list.
        for (int n = 1; n <= 5; ++n)
            fx.reg.insert(QStringLiteral("tbl_Documents"),
                {{"DokAntraste", QStringLiteral("later %1").arg(n)},
                    {"DokRegistracData", QDate(2030, 1, n)}});
        fx.reg.exec(QStringLiteral("UPDATE tbl_Documents SET DokPastaba = 'Sutartis'"));
        fx.reg.exec(QStringLiteral("INSERT OR REPLACE INTO tbl_Document_Text (RastasID, State, Body) VALUES "
                                   "(%1, 1, 'Sutartis ir priedai')")
                        .arg(fx.id["letter"]));
        DocumentPages::setPageSize(2);
        DocumentPages::setBroadHits(2);
        const auto restore = qScopeGuard([] {
            DocumentPages::setPageSize(100);
            DocumentPages::setBroadHits(BroadHits);
        });
        SearchBox* box = w.searchBox();
        box->setFocus();
        QTest::keyClicks(box, "sutartis");
        QTest::keyClick(box, Qt::Key_Return);
        QCOMPARE(fx.countText(), QString("Searching…"));
        QCOMPARE(fx.documents().itemCount(), 2);
        QCOMPARE(fx.documents().item(0).text, QString("letter"));
        QCOMPARE(fx.documents().item(1).text, QString("work"));
        QTRY_COMPARE(fx.countText(), QString("10 object(s)"));
        QCOMPARE(fx.documents().item(0).text, QString("letter"));
        QCOMPARE(fx.documents().item(1).text, QString("work"));
        QCOMPARE(fx.documents().item(2).text, QString("contract"));
        QVERIFY(prompter.prompts().isEmpty());
    }

    // The list of a search keeps the ids it found on its own connection, on either place, and
    // reads its pages and counts through them: forwards, from the end, a row never read.
    void searchListReadsTheRowsItKept_data()
    {
        QTest::addColumn<TestRegister::Where>("where");
        QTest::newRow("file") << TestRegister::File;
        QTest::newRow("server") << TestRegister::Server;
    }

    void searchListReadsTheRowsItKept()
    {
        QFETCH(TestRegister::Where, where);
        if (where == TestRegister::Server && !ServerDatabase::available())
            QSKIP(qPrintable(ServerDatabase::skipReason()));
        const TestRegister reg(where);
        Ids expected;
        for (int n = 1; n <= 9; ++n) {
            const qint32 id = addDocument(reg,
                n % 4 == 0 ? QStringLiteral("Kita %1").arg(n) : QStringLiteral("Prašymas %1").arg(n),
                QDate(2024, 3, 20).addDays(-n));
            if (n % 4 != 0)
                expected.prepend(id);
        }
        // A text alone holds it too.
        const qint32 byText = addDocument(reg, QStringLiteral("Kita 10"), QDate(2024, 1, 1));
        addText(reg, byText, QStringLiteral("Dėl prašymo: prašymas"));
        expected.prepend(byText);
        DocumentPages::setPageSize(2);
        const auto restore = qScopeGuard([] { DocumentPages::setPageSize(100); });
        for (int pass = 0; pass < 2; ++pass) {
            auto connection = std::make_unique<Connection>();
            connection->open(reg.connectionString());
            const QList<SearchTerm> terms = searchTerms(QStringLiteral("prasymas"));
            const SearchIndexes indexes = searchIndexes(*connection);
            // The second pass reads its last page first, on a connection whose table is there.
            DocumentPages pages(searchListSql(terms, indexes, 0, false, {}, {}),
                DocumentPaging::Mode::Category, 0, {}, terms, std::move(connection));
            QCOMPARE(pages.count(), int(expected.size()));
            Ids listed;
            for (int row = pass == 0 ? 0 : pages.count() - 1; row >= 0 && row < pages.count();
                 row += pass == 0 ? 1 : -1)
                listed << DocumentFills::idOfKey(pages.item(row).key);
            if (pass == 1)
                std::reverse(listed.begin(), listed.end());
            QCOMPARE(listed, expected);
            QCOMPARE(pages.rowOfKey(DocumentFills::itemKey(expected.at(5))), 5);
        }
        // Within dates: the ids kept are the documents' that meet them too.
        auto connection = std::make_unique<Connection>();
        connection->open(reg.connectionString());
        const QList<SearchTerm> terms = searchTerms(QStringLiteral("prasymas"));
        const QString within = searchListSql(
            terms, searchIndexes(*connection), 0, true, QDate(2024, 3, 11), QDate(2024, 3, 17));
        DocumentPages dated(within, DocumentPaging::Mode::Category, 0, {}, terms, std::move(connection));
        QCOMPARE(dated.count(), 5);
        QCOMPARE(DocumentFills::idOfKey(dated.item(4).key), expected.at(5));
    }

    // Ranked results read a page at a time in the order of the ranks, from either end.
    void rankedResultsPageInTheirOrder()
    {
        ExplorerFixture fx;
        ScriptedPrompter prompter;
        MainWindow& w = fx.window();
        w.findChild<ContentProgress*>()->stop();
        const QList<std::pair<const char*, const char*>> texts {{"contract", "sutartis sutartis sutartis"},
            {"letter", "sutartis ir kita ir dar daug kitu zodziu"}, {"note", "sutartis sutartis"},
            {"loose", "kita sutartis"}};
        for (const auto& [name, body] : texts) {
            fx.reg.exec(
                QStringLiteral("INSERT OR REPLACE INTO tbl_Document_Text (RastasID, State, Body) VALUES "
                               "(%1, 1, '%2')")
                    .arg(fx.id[QString::fromUtf8(name)])
                    .arg(QString::fromUtf8(body)));
        }
        // "work" holds the word in its registration index only.
        fx.reg.exec(QStringLiteral("UPDATE tbl_Documents SET DokPastaba = 'sutartis' WHERE RastasID = %1")
                        .arg(fx.id["work"]));
        DocumentPages::setPageSize(2);
        const auto restore = qScopeGuard([] { DocumentPages::setPageSize(100); });
        SearchBox* box = w.searchBox();
        box->setFocus();
        QTest::keyClicks(box, "sutartis");
        QTest::keyClick(box, Qt::Key_Return);
        QCOMPARE(fx.countText(), QString("5 object(s)"));
        // From the top, each page after the last row of the one before.
        ListModel& model = fx.documents();
        QStringList order;
        for (int row = 0; row < model.itemCount(); ++row)
            order << model.item(row).text;
        QCOMPARE(order, QStringList({"contract", "note", "loose", "letter", "work"}));
        QCOMPARE(model.rowOfKey(DocumentFills::itemKey(fx.id["letter"])), 3);
        // From the end, as Ctrl+End reads it, each page before the first row of the one after.
        QTest::keyClick(box, Qt::Key_Return);
        QCOMPARE(model.item(4).text, QString("work"));
        QCOMPARE(model.item(3).text, QString("letter"));
        QCOMPARE(model.item(1).text, QString("note"));
        QCOMPARE(model.item(0).text, QString("contract"));
        QVERIFY(prompter.prompts().isEmpty());
    }

    void directionDatesAndDeleteSearchAgain()
    {
        ExplorerFixture fx;
        ScriptedPrompter prompter;
        ScriptedShell shell;
        MainWindow& w = fx.window();
        SearchBox* box = w.searchBox();
        box->setFocus();
        // The registration indexes "SUT-1" of "contract" (this month) and "SUT-2" of "work" (last month).
        QTest::keyClicks(box, "sut-");
        QTest::keyClick(box, Qt::Key_Return);
        QCOMPARE(fx.documentTexts(), QStringList({"contract", "work"}));

        auto* direction = w.findChild<QComboBox*>("cboDirection");
        direction->setCurrentIndex(3);
        QCOMPARE(fx.documentTexts(), QStringList({"work"}));
        QCOMPARE(w.windowTitle(), QString("Search — sut-"));
        direction->setCurrentIndex(0);
        QCOMPARE(fx.documentTexts(), QStringList({"contract", "work"}));

        // A date change narrows the search to the range.
        auto* start = w.findChild<QDateEdit*>("txtStartDate");
        start->setDate(fx.thisMonth.addDays(-1));
        QCOMPARE(fx.documentTexts(), QStringList({"contract"}));
        start->setDate(fx.lastMonth);
        QCOMPARE(fx.documentTexts(), QStringList({"contract", "work"}));

        // A delete lists the search's remaining documents.
        fx.clickDocument("work");
        prompter.answer(MsgBoxResult::Yes);
        w.action("btnDelete")->trigger();
        QCOMPARE(fx.reg.scalar("SELECT COUNT(*) FROM tbl_Documents WHERE DokAntraste = 'work'").toInt(), 0);
        QCOMPARE(fx.documentTexts(), QStringList({"contract"}));
        QVERIFY(w.isSearching());

        // A node click leaves the search, also on the node last clicked (the root).
        fx.clickNode("ALL");
        QVERIFY(!w.isSearching());
        QVERIFY(box->text().isEmpty());
        QCOMPARE(fx.documentTexts(), QStringList({"contract", "letter", "loose", "note"}));
        QCOMPARE(w.windowTitle(), QString("CATEGORIES"));
        QCOMPARE(prompter.texts(), QStringList {"Delete the document \"work\" (SUT-2)?"});
    }
};

QTEST_MAIN(SearchWindowTest)
#include "tst_search_window.moc"
