#include "explorer/DocumentFills.h"
#include "explorer/ExplorerFixture.h"
#include "explorer/ExplorerList.h"
#include "explorer/IconCache.h"
#include "explorer/ListModel.h"
#include "harness/Lithuanian.h"
#include "explorer/MainWindow.h"
#include "explorer/NavigationTree.h"
#include "harness/ScriptedPrompter.h"
#include "options/OptionStore.h"
#include "support/SelectionState.h"

#include <QComboBox>
#include <QDateEdit>
#include <QHeaderView>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QTest>
#include <QTreeView>

using namespace kartella;
using namespace kartella::test;

namespace {

// The captions the document list's header shows.
QStringList shownHeaders(MainWindow& window)
{
    QStringList captions;
    QAbstractItemModel* model = window.documentList()->detailsView()->model();
    for (int column = 0; column < model->columnCount(); ++column)
        captions << model->headerData(column, Qt::Horizontal).toString();
    return captions;
}

QStringList names(std::initializer_list<const char*> list)
{
    QStringList out;
    for (const char* name : list)
        out << QString::fromUtf8(name);
    out.sort();
    return out;
}

} // namespace

class MainWindowTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { selection() = SelectionState(); }

    void loadShowsAllDocumentsAndTheCategoryTree()
    {
        ExplorerFixture fx;
        ScriptedPrompter prompter;
        MainWindow& w = fx.window();
        QCOMPARE(w.windowTitle(), QString("Kartella"));
        QCOMPARE(fx.documentTexts(), names({"contract", "work", "letter", "note", "loose"}));
        QCOMPARE(fx.countText(), QString("5 object(s)"));
        QCOMPARE(w.findChild<QLabel*>("pnSource")->text(), "Source : " + fx.reg.path() + "   ");
        QCOMPARE(w.findChild<QComboBox*>("cboDirection")->currentIndex(), 0);
        const QDate today = QDate::currentDate();
        QCOMPARE(w.findChild<QDateEdit*>("txtStartDate")->date(), QDate(today.year(), today.month(), 1));
        QCOMPARE(w.findChild<QDateEdit*>("txtEndDate")->date(),
            QDate(today.year(), today.month(), 1).addMonths(1));
        QVERIFY(!w.relatedList()->isVisible());
        QCOMPARE(selection().currentNodeKind, QString("a"));
        QVERIFY(selection().documentListFilled);

        // The tree: root, categories by name, subcategories; the nameless and the orphan
        // subcategories are gone from the table.
        NavigationTree* tree = w.tree();
        QCOMPARE(NavigationTree::nodeKey(tree->currentItem()), QString("ALL"));
        QCOMPARE(tree->nodeByIndex(1)->text(0), QString("CATEGORIES"));
        QCOMPARE(tree->nodeByIndex(2)->text(0), QString("Raštai"));
        QCOMPARE(tree->nodeByIndex(3)->text(0), QString("Sutartys"));
        QCOMPARE(tree->nodeByKey("a" + QString::number(fx.id["Sutartys"]))->childCount(), 2);
        QVERIFY(tree->nodeByKey("b" + QString::number(fx.id["Nuomos"])));
        QCOMPARE(fx.reg.scalar("SELECT COUNT(*) FROM tbl_Sub_Categories").toInt(), 2);

        // A click on the root, shown already, fills it again: a document added now shows.
        fx.reg.insert("tbl_Documents", {{"DokAntraste", "late"}, {"DokRegistracData", fx.thisMonth}});
        fx.clickNode("ALL");
        QCOMPARE(w.lastNodeIndex(), 1);
        QCOMPARE(fx.documents().itemCount(), 6);
        fx.clickNode("a" + QString::number(fx.id["Raštai"]));
        fx.clickNode("ALL");
        QCOMPARE(fx.documents().itemCount(), 6);
        QCOMPARE(w.windowTitle(), QString("CATEGORIES"));
        QVERIFY(prompter.prompts().isEmpty());
    }

    void nodeClicksShowTheirDocuments_data()
    {
        QTest::addColumn<bool>("contactView");
        QTest::addColumn<QString>("node");
        QTest::addColumn<QStringList>("shown");
        QTest::addColumn<QString>("thirdColumn");
        QTest::addColumn<QString>("caption");

        QTest::newRow("category with its subcategories")
            << false << "aSutartys" << names({"contract", "work"}) << "Sender/Receiver"
            << "Exploring Category — Sutartys";
        QTest::newRow("subcategory") << false << "bDarbo" << names({"work"}) << "Sender/Receiver"
                                     << "Exploring Category — Darbo";
        QTest::newRow("category without subcategories")
            << false << "aRaštai" << names({"letter", "note"}) << "Sender/Receiver"
            << "Exploring Category — Raštai";
        QTest::newRow("letter: exact first letter") << true << "A" << names({"contract"}) << "Sender/Receiver"
                                                    << "Exploring  — A";
        QTest::newRow("letter: lower-case name") << true << "B" << names({"note"}) << "Sender/Receiver"
                                                 << "Exploring  — B";
        QTest::newRow("contact under its paired letter")
            << true << "IDĄžuolas" << names({"work", "letter"}) << "Category"
            << "Exploring Contact  — Ąžuolas Kairys";
        QTest::newRow("contact root")
            << true << "ALL" << names({"contract", "work", "letter", "note", "loose"}) << "Sender/Receiver"
            << "CONTACTS";
    }

    void nodeClicksShowTheirDocuments()
    {
        QFETCH(bool, contactView);
        QFETCH(QString, node);
        QFETCH(QStringList, shown);
        QFETCH(QString, thirdColumn);
        QFETCH(QString, caption);

        ExplorerFixture fx;
        ScriptedPrompter prompter;
        MainWindow& w = fx.window();
        if (contactView) {
            w.tree()->clearNodes();
            w.setCategoryView(false);
            w.fillContactTree();
        }
        // Keys name rows by their fixture names: resolve them to ids.
        QString key = node;
        for (const QString& prefix : {QString("ID"), QString("a"), QString("b")}) {
            const QString name = node.mid(prefix.size());
            if (node.startsWith(prefix) && fx.id.contains(name)) {
                key = prefix + QString::number(fx.id[name]);
                break;
            }
        }
        fx.clickNode(key);
        QCOMPARE(fx.documentTexts(), shown);
        QCOMPARE(fx.columnCaptions(fx.documents()).value(2), thirdColumn);
        QCOMPARE(w.windowTitle(), caption);
        QCOMPARE(fx.countText(), QString::number(shown.size()) + " object(s)");
        QCOMPARE(selection().selectedDocumentId, 0);
        QVERIFY(!w.relatedList()->isVisible());
        QVERIFY(prompter.prompts().isEmpty());
    }

    void contactTreeWalksTheAlphabet()
    {
        ExplorerFixture fx;
        ScriptedPrompter prompter;
        MainWindow& w = fx.window();
        w.tree()->clearNodes();
        w.setCategoryView(false);
        w.fillContactTree();
        NavigationTree* tree = w.tree();
        QCOMPARE(tree->nodeByIndex(1)->text(0), QString("CONTACTS"));
        QCOMPARE(tree->nodeByIndex(1)->childCount(), 26);
        auto childrenOf = [&](const QString& letter) {
            QStringList out;
            QTreeWidgetItem* node = tree->nodeByKey(letter);
            for (int i = 0; i < node->childCount(); ++i)
                out << node->child(i)->text(0);
            return out;
        };
        QCOMPARE(childrenOf("A"), QStringList({"Antanas Petraitis", "Ąžuolas Kairys"}));
        QCOMPARE(childrenOf("B"), QStringList({"benas Jonaitis"}));
        QCOMPARE(childrenOf("S"), QStringList({"Šarūnas Vilkas"}));
        // A name no letter takes ("5 skyrius", "Ūla") is passed over without stopping the walk.
        QCOMPARE(childrenOf("U"), QStringList());
        QCOMPARE(childrenOf("Y"), QStringList({"Yla Rimkutė"}));
        QCOMPARE(childrenOf("Z"), QStringList({"Zita Zabielienė"}));
        // Numbered in the order of the walk: each letter, then its contacts.
        QCOMPARE(NavigationTree::nodeKey(tree->nodeByIndex(2)), QString("A"));
        QCOMPARE(tree->nodeByIndex(4)->text(0), QString("Ąžuolas Kairys"));
        QCOMPARE(tree->nodeByIndex(4)->parent(), tree->nodeByKey("A"));
        QCOMPARE(NavigationTree::nodeKey(tree->nodeByIndex(5)), QString("B"));
        QCOMPARE(NavigationTree::nodeIndex(tree->nodeByKey("Y")->child(0)),
            NavigationTree::nodeIndex(tree->nodeByKey("Y")) + 1);
        QVERIFY(!tree->nodeByKey("ID" + QString::number(fx.id["5"])));
        // A contact with no name has no node; the letters stay closed.
        QVERIFY(!tree->nodeByKey("ID" + QString::number(fx.id["company"])));
        QVERIFY(tree->nodeByIndex(1)->isExpanded());
        QVERIFY(!tree->nodeByKey("A")->isExpanded());
        QVERIFY(prompter.prompts().isEmpty());
    }

    void secondClickOnTheSameNodeFillsItAgain()
    {
        ExplorerFixture fx;
        ScriptedPrompter prompter;
        MainWindow& w = fx.window();
        const QString sutartys = "a" + QString::number(fx.id["Sutartys"]);
        fx.clickNode(sutartys);
        QCOMPARE(fx.documents().itemCount(), 2);
        // Direction "Incoming": the list narrows, and the direction stays for later clicks.
        w.findChild<QComboBox*>("cboDirection")->setCurrentIndex(3);
        QCOMPARE(fx.documentTexts(), names({"work"}));
        // The second click keeps the direction and shows what another program added, with the
        // highlighted document still highlighted.
        fx.reg.insert("tbl_Documents",
            {{"DokAntraste", "late"}, {"KategID", fx.id["Sutartys"]}, {"KryptisID", 3},
                {"DokRegistracData", fx.thisMonth}});
        fx.clickDocument("work");
        fx.clickNode(sutartys);
        QCOMPARE(fx.documentTexts(), names({"late", "work"}));
        QCOMPARE(selection().selectedDocumentId, fx.id["work"]);
        QCOMPARE(fx.documents().item(w.documentList()->selectedRow()).text, QString("work"));
        fx.clickNode("a" + QString::number(fx.id["Raštai"]));
        QCOMPARE(fx.documentTexts(), names({"letter", "note"}).mid(0, 1));
        fx.clickNode("ALL");
        QCOMPARE(fx.documentTexts(), names({"late", "work", "letter"}));
        QVERIFY(prompter.prompts().isEmpty());
    }

    void datesNarrowTheListUntilTheNextNodeClick()
    {
        ExplorerFixture fx;
        ScriptedPrompter prompter;
        MainWindow& w = fx.window();
        auto* start = w.findChild<QDateEdit*>("txtStartDate");
        auto* end = w.findChild<QDateEdit*>("txtEndDate");
        fx.clickNode("a" + QString::number(fx.id["Sutartys"]));
        QCOMPARE(fx.documents().itemCount(), 2);
        // A change of date applies the range even with option Filter off.
        end->setDate(end->date().addDays(1));
        QCOMPARE(fx.documentTexts(), names({"contract"}));

        // End before start: the message, the picker keeps the value, the list stays.
        prompter.answer(MsgBoxResult::Ok);
        end->setDate(start->date().addDays(-1));
        QCOMPARE(prompter.prompts().size(), 1);
        QCOMPARE(
            prompter.prompts().last().text, QString("Select End Date GREATHER then Start Date, please."));
        QCOMPARE(prompter.prompts().last().title, QString("Date Set Error"));
        QCOMPARE(prompter.prompts().last().style, MsgBoxStyle::OkOnly + MsgBoxStyle::Exclamation);
        QCOMPARE(end->date(), start->date().addDays(-1));
        QCOMPARE(fx.documentTexts(), names({"contract"}));
        prompter.answer(MsgBoxResult::Ok);
        start->setDate(start->date().addDays(1));
        QCOMPARE(prompter.prompts().last().text, QString("Select Start Date LESS then End Date, please"));

        // Equal dates pass: last month's 10th alone.
        start->setDate(fx.lastMonth);
        end->setDate(fx.lastMonth);
        QCOMPARE(prompter.prompts().size(), 2);
        QCOMPARE(fx.documentTexts(), names({"work"}));

        // The next node click shows the node's documents unfiltered again.
        fx.clickNode("ALL");
        QCOMPARE(fx.documents().itemCount(), 5);

        // With option Filter on, a node click applies the range too.
        setRegValue("Filter", 1);
        fx.clickNode("a" + QString::number(fx.id["Raštai"]));
        QCOMPARE(fx.documents().itemCount(), 1);
        QCOMPARE(fx.documents().item(0).key, QString("Empty"));
        QCOMPARE(fx.countText(), QString("0 object(s)"));
    }

    void emptyStates()
    {
        // No document at all: the one "Empty" item.
        {
            TestRegister empty;
            ScriptedPrompter prompter;
            MainWindow w;
            w.show();
            w.load();
            ListModel& model = *w.documentModel();
            QCOMPARE(model.columns().size(), 1);
            QCOMPARE(model.columns().first().caption, QString("Documents"));
            QCOMPARE(model.itemCount(), 1);
            QCOMPARE(model.item(0).text, QString("There aren't any data to display!"));
            QCOMPARE(model.item(0).key, QString("Empty"));
            QVERIFY(model.item(0).iconKey.isEmpty());
            QCOMPARE(w.findChild<QLabel*>("pnCount")->text(), QString("0 object(s)"));
            QVERIFY(!selection().documentListFilled);
            // A click on it changes nothing.
            selection().selectedDocumentId = 77;
            w.onDocumentClicked(0);
            QCOMPARE(selection().selectedDocumentId, 77);
            QVERIFY(selection().activeListName.isEmpty());
            QVERIFY(prompter.prompts().isEmpty());
        }
        // A contact without documents among others: five columns, no items.
        ExplorerFixture fx;
        ScriptedPrompter prompter;
        MainWindow& w = fx.window();
        w.tree()->clearNodes();
        w.setCategoryView(false);
        w.fillContactTree();
        fx.clickNode("ID" + QString::number(fx.id["Yla"]));
        QCOMPARE(fx.columnCaptions(fx.documents()),
            QStringList({"Doc. description", "Reg.index", "Category", "Date", "Notes"}));
        QCOMPARE(fx.documents().itemCount(), 0);
        QCOMPARE(fx.countText(), QString("0 object(s)"));
        QVERIFY(selection().documentListFilled);
    }

    void rowsShowMarksKeysTagsAndIcons()
    {
        ExplorerFixture fx;
        ScriptedPrompter prompter;
        MainWindow& w = fx.window();
        auto rowOf = [&](const QString& name) {
            return fx.documents().item(fx.documents().rowOfKey(DocumentFills::itemKey(fx.id[name])));
        };
        QCOMPARE(fx.columnCaptions(fx.documents()),
            QStringList({"Doc. description", "Reg.index", "Sender/Receiver", "Date", "Notes"}));
        const ListItem& contract = rowOf("contract");
        QCOMPARE(contract.key, "a " + QString::number(fx.id["contract"]));
        QCOMPARE(contract.subItems[0], QString("SUT-1"));
        QCOMPARE(contract.subItems[1], QString("Antanas Petraitis"));
        QCOMPARE(contract.subItems[3], QString("Pasirašyta"));
        QVERIFY(contract.tagIsNull);
        QCOMPARE(contract.iconKey, QString("pctEmpty"));
        const ListItem& loose = rowOf("loose");
        QCOMPARE(loose.subItems[0], QString("*_*_*_*"));
        QCOMPARE(loose.subItems[1], QString("*_*_*_*"));
        QCOMPARE(loose.subItems[3], QString("*_*_*_*"));
        // A file that has gone keeps its path and shows the "no file" picture.
        const ListItem& note = rowOf("note");
        QCOMPARE(note.tag, fx.reg.dir() + "/gone.doc");
        QCOMPARE(note.iconKey, QString("pctEmpty"));
        // A real file is keyed by its type, and its pictures are cached once.
        const ListItem& letter = rowOf("letter");
        QCOMPARE(letter.tag, fx.existingFile);
        QVERIFY(letter.iconKey != "pctEmpty");
        QVERIFY(IconCache::shared().contains(letter.iconKey));
        QVERIFY(IconCache::shared().contains("pctEmpty"));
        QCOMPARE(fx.related().itemCount(), 0);

        // Contact mode: the category's name, the mark for a document without category.
        w.tree()->clearNodes();
        w.setCategoryView(false);
        w.fillContactTree();
        fx.clickNode("ID" + QString::number(fx.id["Ąžuolas"]));
        QCOMPARE(rowOf("letter").subItems[1], QString("Raštai"));
        fx.reg.exec(
            "UPDATE tbl_Documents SET KategID = Null WHERE RastasID=" + QString::number(fx.id["work"]));
        fx.clickNode("ID" + QString::number(fx.id["Antanas"]));
        fx.clickNode("ID" + QString::number(fx.id["Ąžuolas"]));
        QCOMPARE(rowOf("work").subItems[1], QString("*_*_*_*"));
        QVERIFY(prompter.prompts().isEmpty());
    }

    void itemClicksAndTheRelatedList()
    {
        ExplorerFixture fx;
        ScriptedPrompter prompter;
        MainWindow& w = fx.window();
        fx.clickDocument("contract");
        QCOMPARE(selection().selectedDocumentId, fx.id["contract"]);
        QCOMPARE(selection().selectedItemText, QString("contract"));
        QCOMPARE(selection().activeListName, QString("ListDokSarasas"));
        QVERIFY(selection().selectedFilePath.isEmpty());
        QVERIFY(w.relatedList()->isVisible());
        QCOMPARE(
            fx.columnCaptions(fx.related()), QStringList({"Doc. Description", "Sender/Receiver", "Date"}));
        QCOMPARE(fx.related().itemCount(), 2);
        const ListItem& annex
            = fx.related().item(fx.related().rowOfKey(DocumentFills::itemKey(fx.id["annex"])));
        QCOMPARE(annex.subItems[0], QString("Antanas Petraitis"));
        const ListItem& copy
            = fx.related().item(fx.related().rowOfKey(DocumentFills::itemKey(fx.id["copy"])));
        QCOMPARE(copy.subItems[0], QString("*_*_*_*"));
        QCOMPARE(copy.tag, fx.existingFile);
        // The document list takes 0.8 of the tree's height.
        QVERIFY(qAbs(w.documentList()->height() - int(w.tree()->height() * 0.8)) <= 8);
        QCOMPARE(fx.countText(), QString("5 object(s)"));

        // A related item: the parent stays selected, the related list stays.
        w.onRelatedClicked(fx.related().rowOfKey(DocumentFills::itemKey(fx.id["copy"])));
        QCOMPARE(selection().activeListName, QString("ListSusieti"));
        QCOMPARE(selection().selectedSubDocumentId, fx.id["copy"]);
        QCOMPARE(selection().selectedDocumentId, fx.id["contract"]);
        QCOMPARE(selection().selectedFilePath, fx.existingFile);
        QVERIFY(w.relatedList()->isVisible());

        // A document without related documents hides the list; so does the root.
        fx.clickDocument("letter");
        QCOMPARE(selection().selectedFilePath, fx.existingFile);
        QVERIFY(!w.relatedList()->isVisible());
        fx.clickDocument("contract");
        QVERIFY(w.relatedList()->isVisible());
        fx.clickNode("a" + QString::number(fx.id["Raštai"]));
        QVERIFY(!w.relatedList()->isVisible());
        QCOMPARE(selection().selectedDocumentId, 0);
        QVERIFY(prompter.prompts().isEmpty());
    }

    // The main window in Lithuanian: menus with their access keys apart, the tree's fixed
    // nodes, the list's header and count, a message; the direction, the arrangement and the
    // empty state still work by what they mean, not by the words shown.
    void mainWindowInLithuanian()
    {
        const Lithuanian lithuanian;
        QVERIFY(lithuanian.language().startsWith("lt"));
        {
            TestRegister empty;
            ScriptedPrompter prompter;
            MainWindow w;
            w.show();
            w.load();
            QCOMPARE(shownHeaders(w), QStringList {"Dokumentai"});
            QCOMPARE(w.documentModel()->item(0).text, QString("Nėra duomenų, kuriuos būtų galima parodyti!"));
            QCOMPARE(w.findChild<QLabel*>("pnCount")->text(), QString("Objektų: 0"));
            selection().selectedDocumentId = 77;
            w.onDocumentClicked(0);
            QCOMPARE(selection().selectedDocumentId, 77);
            QVERIFY(prompter.prompts().isEmpty());
        }
        selection() = SelectionState();
        ExplorerFixture fx;
        ScriptedPrompter prompter;
        MainWindow& w = fx.window();

        QStringList titles;
        for (QAction* menu : w.menuBar()->actions())
            titles << menu->text();
        QCOMPARE(
            titles, QStringList({"&Failas", "&Rodinys", "&Eiti", "&Priemonės", "&Ataskaitos", "&Žinynas"}));
        QVERIFY(clashingAccessKeys(titles).isEmpty());
        QList<QMenu*> menus = w.findChildren<QMenu*>();
        QVERIFY(menus.size() >= 12);
        for (const QMenu* menu : std::as_const(menus)) {
            if (!menu->objectName().startsWith("mnu") && menu->objectName() != "btnViewMenu")
                continue;
            const QStringList texts = actionTexts(menu->actions());
            QVERIFY2(clashingAccessKeys(texts).isEmpty(),
                qPrintable(menu->objectName() + ": " + texts.join(", ")));
        }
        QCOMPARE(w.action("mnuDelete")->text(), QString("Ša&linti dokumentą"));
        QCOMPARE(w.action("btnNewDocument")->toolTip(), QString("Naujas dokumentas (Ctrl+N)"));
        QCOMPARE(w.action("btnNewDocument")->text(), QString("Naujas dokumentas"));

        NavigationTree* tree = w.tree();
        QCOMPARE(tree->nodeByIndex(1)->text(0), QString("KATEGORIJOS"));
        QCOMPARE(tree->nodeByIndex(2)->text(0), QString("Raštai"));
        QCOMPARE(shownHeaders(w),
            QStringList({"Dok. aprašymas", "Reg. indeksas", "Siuntėjas / gavėjas", "Data", "Pastabos"}));
        QCOMPARE(fx.countText(), QString("Objektų: 5"));
        fx.clickNode("a" + QString::number(fx.id["Raštai"]));
        QCOMPARE(w.windowTitle(), QString("Naršoma kategorija — Raštai"));
        fx.clickNode("ALL");

        // "Gaunami" picked by its first letter, as a user types it, narrows to the incoming.
        auto* direction = w.findChild<QComboBox*>("cboDirection");
        QCOMPARE(direction->itemText(3), QString("Gaunami"));
        direction->setFocus();
        QTest::keyClick(direction, Qt::Key_G);
        QCOMPARE(direction->currentIndex(), 3);
        QCOMPARE(fx.documentTexts(), names({"work", "letter"}));
        // "pagal d&atą" sorts the column headed "Data".
        w.action("mnubyDate")->trigger();
        QHeaderView* header = w.documentList()->detailsView()->header();
        QCOMPARE(header->sortIndicatorSection(), 3);
        QCOMPARE(shownHeaders(w).at(header->sortIndicatorSection()), QString("Data"));

        // A start date after the end date: the message and its title in Lithuanian.
        auto* start = w.findChild<QDateEdit*>("txtStartDate");
        const QDate end = w.findChild<QDateEdit*>("txtEndDate")->date();
        prompter.answer(MsgBoxResult::Ok);
        start->setDate(end.addDays(1));
        const QList<ScriptedPrompter::Prompt> prompts = prompter.take();
        QCOMPARE(prompts.size(), 1);
        QCOMPARE(prompts.first().text, QString("Pasirinkite pradžios datą, ANKSTESNĘ už pabaigos datą"));
        QCOMPARE(prompts.first().title, QString("Datos nustatymo klaida"));
    }
};

QTEST_MAIN(MainWindowTest)
#include "tst_main_window.moc"
