#include "explorer/DocumentFills.h"
#include "explorer/ExplorerFixture.h"
#include "explorer/ExplorerList.h"
#include "explorer/IconCache.h"
#include "explorer/ListModel.h"
#include "explorer/MainWindow.h"
#include "explorer/NavigationTree.h"
#include "harness/ScriptedPrompter.h"
#include "options/OptionStore.h"
#include "store/DefaultRegister.h"
#include "support/SelectionState.h"

#include <QComboBox>
#include <QDateEdit>
#include <QDirIterator>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QLabel>
#include <QProcess>
#include <QScopeGuard>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

using namespace kartella;
using namespace kartella::test;

namespace {

// Answers as the scripted prompter, and notes each message shown under the busy pointer.
class CursorWatch final : public Prompter
{
public:
    explicit CursorWatch(ScriptedPrompter& answers)
        : m_answers(answers)
    {
        Prompter::setInstance(this);
    }
    ~CursorWatch() override { Prompter::setInstance(&m_answers); }
    CursorWatch(const CursorWatch&) = delete;
    CursorWatch& operator=(const CursorWatch&) = delete;

    int msgBox(const QString& prompt, int style, const QString& title) override
    {
        if (QGuiApplication::overrideCursor())
            ++busyMessages;
        return m_answers.msgBox(prompt, style, title);
    }
    QString openFile(const OpenFileRequest& request) override { return m_answers.openFile(request); }
    QString chooseFolder(const QString& prompt) override { return m_answers.chooseFolder(prompt); }

    int busyMessages = 0;

private:
    ScriptedPrompter& m_answers;
};

// The names in a folder, its subfolders' included.
QStringList folderContents(const QString& folder)
{
    QStringList found;
    QDirIterator it(
        folder, QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden, QDirIterator::Subdirectories);
    while (it.hasNext())
        found.append(it.next());
    found.sort();
    return found;
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

        // The first click on the root does nothing: a document added now doesn't show.
        fx.reg.insert("tbl_Documents", {{"DokAntraste", "late"}, {"DokRegistracData", fx.thisMonth}});
        fx.clickNode("ALL");
        QCOMPARE(w.lastNodeIndex(), 1);
        QCOMPARE(fx.documents().itemCount(), 5);
        // Another node and back: the root refills.
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
        QVERIFY(!tree->nodeByKey("ID" + QString::number(fx.id["5"])));
        // A contact with no name has no node; the letters stay closed.
        QVERIFY(!tree->nodeByKey("ID" + QString::number(fx.id["company"])));
        QVERIFY(tree->nodeByIndex(1)->isExpanded());
        QVERIFY(!tree->nodeByKey("A")->isExpanded());
        QVERIFY(prompter.prompts().isEmpty());
    }

    void secondClickOnTheSameNodeDoesNothing()
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
        fx.clickNode(sutartys);
        QCOMPARE(fx.documentTexts(), names({"work"}));
        fx.clickNode("a" + QString::number(fx.id["Raštai"]));
        QCOMPARE(fx.documentTexts(), names({"letter", "note"}).mid(0, 1));
        fx.clickNode("ALL");
        QCOMPARE(fx.documentTexts(), names({"work", "letter"}));
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

    void missingRegisterIsReportedOnce()
    {
        TestRegister reg;
        setRegValue("DbLocation", reg.dir() + "/nowhere/Kartella.mdb");
        ScriptedPrompter prompter;
        prompter.answer(MsgBoxResult::Ok);
        MainWindow w;
        int settingsOpened = 0;
        w.openSettings = [&settingsOpened] { ++settingsOpened; };
        w.show();
        w.load();
        QCOMPARE(settingsOpened, 1);
        // The missing file gives way to the default, which isn't there either.
        QCOMPARE(getRegValue("DbLocation"), MainWindow::defaultDbLocation());
        QCOMPARE(prompter.prompts().size(), 1);
        const auto prompt = prompter.prompts().first();
        QCOMPARE(prompt.title, QString("Connection to database error:"));
        QCOMPARE(prompt.style, MsgBoxStyle::OkOnly + MsgBoxStyle::Critical);
        QVERIFY(prompt.text.startsWith("Error: -2147467259 "));
        QVERIFY(prompt.text.contains(MainWindow::defaultDbLocation()));
        QVERIFY(prompt.text.endsWith("\rSelect correct database type and file, please!"));
        QCOMPARE(w.documentModel()->itemCount(), 0);
        QCOMPARE(w.tree()->nodeCount(), 0);
    }

    // An installed program (its folder not writable) keeps its register in the user's data
    // folder and offers to create it at the first start.
    void installedProgramOffersItsDefaultRegister_data()
    {
        QTest::addColumn<bool>("create");
        QTest::newRow("Yes creates and opens it") << true;
        QTest::newRow("No gives the connection message") << false;
    }

    void installedProgramOffersItsDefaultRegister()
    {
        QFETCH(bool, create);
        TestRegister reg; // the options of a register, whose location is then lost
        QTemporaryDir data;
        qputenv("XDG_DATA_HOME", QFile::encodeName(data.path()));
        setProgramFolderWritableCheck([] { return false; });
        const auto restore = qScopeGuard([] {
            setProgramFolderWritableCheck(nullptr);
            qunsetenv("XDG_DATA_HOME");
        });
        QCOMPARE(
            defaultRegisterPath("/opt/k/bin", true), QDir::toNativeSeparators("/opt/k/bin/Kartella.mdb"));
        const QString expected = QDir::toNativeSeparators(data.path() + "/Kartella/Kartella.mdb");
        QCOMPARE(MainWindow::defaultDbLocation(), expected);

        setRegValue("DbLocation", data.filePath("nowhere/Kartella.mdb"));
        ScriptedPrompter prompter;
        prompter.answer(create ? MsgBoxResult::Yes : MsgBoxResult::No);
        if (!create)
            prompter.answer(MsgBoxResult::Ok);
        MainWindow w;
        int settingsOpened = 0;
        w.openSettings = [&settingsOpened] { ++settingsOpened; };
        w.show();
        w.load();
        QCOMPARE(getRegValue("DbLocation"), expected);
        const auto question = prompter.prompts().first();
        QCOMPARE(question.style, MsgBoxStyle::YesNo + MsgBoxStyle::Question);
        QVERIFY(question.text.contains(expected));
        QCOMPARE(QFileInfo::exists(expected), create);
        QCOMPARE(prompter.prompts().size(), create ? 1 : 2);
        QCOMPARE(settingsOpened, create ? 0 : 1);
        QCOMPARE(w.tree()->nodeCount() > 0, create);
    }

    // A register another program holds locked: the start reports it after a few seconds,
    // in the connection message, instead of waiting the full time of each statement.
    void lockedRegisterIsReportedSoon()
    {
        const QString sqlite = QStandardPaths::findExecutable("sqlite3");
        if (sqlite.isEmpty())
            QSKIP("sqlite3 is not installed: no other program can lock the register");
        TestRegister reg;
        setRegValue("DbLocation", reg.path());
        QProcess locker;
        locker.start(sqlite, {reg.path()});
        QVERIFY(locker.waitForStarted());
        locker.write("BEGIN EXCLUSIVE;\nSELECT 'locked';\n");
        QVERIFY(locker.waitForReadyRead(10000));
        QCOMPARE(locker.readAll().trimmed(), QByteArray("locked"));

        ScriptedPrompter prompter;
        prompter.answer(MsgBoxResult::Ok);
        MainWindow w;
        int settingsOffered = 0;
        w.openSettings = [&] { ++settingsOffered; };
        QElapsedTimer started;
        started.start();
        w.show();
        w.load();
        const qint64 waited = started.elapsed();
        locker.write("ROLLBACK;\n.quit\n");
        locker.closeWriteChannel();
        locker.waitForFinished();

        QCOMPARE(prompter.prompts().size(), 1);
        const auto prompt = prompter.prompts().first();
        QCOMPARE(prompt.title, QString("Connection to database error:"));
        QVERIFY2(prompt.text.contains("locked"), qPrintable(prompt.text));
        QCOMPARE(settingsOffered, 1);
        // The full wait is ten seconds a statement; the start takes a few in all.
        QVERIFY2(waited < 8000, qPrintable(QString::number(waited)));
    }

    // A register on a server is opened as the options name it: never replaced by the
    // default register, never created, never looked for on disk. One that can't be reached
    // fails as a register file that can't be opened: the connection message, then the
    // settings, with no busy pointer left over either.
    void serverLocationIsKeptAtStart_data()
    {
        QTest::addColumn<QString>("location");
        QTest::addColumn<bool>("installed");
        const QString refused = "postgresql://nobody@127.0.0.1:1/none";
        QTest::newRow("postgresql://") << refused << false;
        QTest::newRow("installed program") << refused << true;
        QTest::newRow("postgres://, upper case") << "POSTGRES://nobody@127.0.0.1:1/none" << false;
        QTest::newRow("parameters") << refused + "?connect_timeout=5&application_name=k" << true;
        QTest::newRow("blanks around") << "  " + refused + " " << false;
    }

    void serverLocationIsKeptAtStart()
    {
        QFETCH(QString, location);
        QFETCH(bool, installed);
        TestRegister reg;
        QTemporaryDir data;
        qputenv("XDG_DATA_HOME", QFile::encodeName(data.path()));
        if (installed)
            setProgramFolderWritableCheck([] { return false; });
        const auto restore = qScopeGuard([] {
            setProgramFolderWritableCheck(nullptr);
            qunsetenv("XDG_DATA_HOME");
        });
        const bool defaultThere = QFileInfo::exists(MainWindow::defaultDbLocation());
        setRegValue("DbLocation", location);
        const QStringList registerFolder = folderContents(reg.dir());
        const QStringList workingFolder = folderContents(QDir::currentPath());

        ScriptedPrompter prompter;
        prompter.answer(MsgBoxResult::Ok);
        CursorWatch watch(prompter);
        MainWindow w;
        int settingsOpened = 0;
        bool busyOverSettings = false;
        w.openSettings = [&] {
            ++settingsOpened;
            busyOverSettings = QGuiApplication::overrideCursor() != nullptr;
        };
        w.show();
        w.load();

        QCOMPARE(getRegValue("DbLocation"), location);
        QCOMPARE(w.findChild<QLabel*>("pnSource")->text(), "Source : " + location + "   ");
        QCOMPARE(prompter.prompts().size(), 1);
        const auto prompt = prompter.prompts().first();
        QCOMPARE(prompt.title, QString("Connection to database error:"));
        QCOMPARE(prompt.style, MsgBoxStyle::OkOnly + MsgBoxStyle::Critical);
        QVERIFY2(prompt.text.startsWith("Error: -2147467259 "), qPrintable(prompt.text));
        QVERIFY(prompt.text.endsWith("\rSelect correct database type and file, please!"));
        QCOMPARE(settingsOpened, 1);
        QCOMPARE(watch.busyMessages, 0);
        QVERIFY(!busyOverSettings);
        QVERIFY(!QGuiApplication::overrideCursor());
        QCOMPARE(w.documentModel()->itemCount(), 0);
        QCOMPARE(w.tree()->nodeCount(), 0);
        // Nothing made on disk: no default register, nothing beside the test's register,
        // nothing in the working folder (where a location taken as a relative path would go).
        QCOMPARE(QFileInfo::exists(MainWindow::defaultDbLocation()), defaultThere);
        QCOMPARE(folderContents(data.path()), QStringList());
        QCOMPARE(folderContents(reg.dir()), registerFolder);
        QCOMPARE(folderContents(QDir::currentPath()), workingFolder);
    }

    // A zero-byte file named as the register fails like any file that is no register.
    void emptyFileIsNoRegister()
    {
        TestRegister reg;
        const QString empty = reg.dir() + "/Empty.mdb";
        QFile file(empty);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.close();
        setRegValue("DbLocation", empty);
        ScriptedPrompter prompter;
        prompter.answer(MsgBoxResult::Ok);
        MainWindow w;
        int settingsOffered = 0;
        w.openSettings = [&] { ++settingsOffered; };
        w.show();
        w.load();
        QCOMPARE(prompter.prompts().size(), 1);
        const auto prompt = prompter.prompts().first();
        QCOMPARE(prompt.title, QString("Connection to database error:"));
        QCOMPARE(prompt.style, MsgBoxStyle::OkOnly + MsgBoxStyle::Critical);
        QVERIFY(prompt.text.startsWith("Error: -2147467259 "));
        QVERIFY(prompt.text.contains(empty));
        QCOMPARE(settingsOffered, 1);
        QCOMPARE(QFileInfo(empty).size(), 0);
        QCOMPARE(getRegValue("DbLocation"), empty);
    }
};

QTEST_MAIN(MainWindowTest)
#include "tst_main_window.moc"
