#include "explorer/ExplorerList.h"
#include "explorer/MainWindow.h"
#include "harness/OfficeTemplates.h"
#include "harness/ScriptedOfficeSuite.h"
#include "harness/ScriptedPrompter.h"
#include "harness/ScriptedShell.h"
#include "harness/TestRegister.h"
#include "options/OptionStore.h"
#include "platform/LibreOfficeSuite.h"
#include "registration/FileNaming.h"
#include "registration/NewDocumentDialog.h"
#include "support/SelectionState.h"

#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QMimeDatabase>
#include <QPlainTextEdit>
#include <QProcess>
#include <QPushButton>
#include <QRadioButton>
#include <QStandardPaths>
#include <QStringEncoder>
#include <QTabWidget>
#include <QTableView>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QUrl>

using namespace kartella;
using namespace kartella::test;
using Kind = OfficeSuite::Kind;

namespace {

// The office suite of the program, recording what it is asked to make and whether the busy
// pointer is up meanwhile.
class RecordingSuite final : public OfficeSuite
{
public:
    struct Call
    {
        QString templatePath;
        QString target;
        bool busy = false;
    };

    RecordingSuite() { OfficeSuite::setInstance(this); }
    ~RecordingSuite() override { OfficeSuite::setInstance(nullptr); }

    void create(Kind kind, const QString& templatePath, const QString& target) override
    {
        const QCursor* cursor = QGuiApplication::overrideCursor();
        calls.append({templatePath, target, cursor && cursor->shape() == Qt::WaitCursor});
        m_real.create(kind, templatePath, target);
    }
    void show(const QString& path) override { m_real.show(path); }

    QList<Call> calls;

private:
    LibreOfficeSuite m_real;
};

QByteArray readFile(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QString today(const char* format)
{
    return QDate::currentDate().toString(QString::fromLatin1(format));
}

// A register with two categories (one with mnemonic, folder and templates, one bare), a
// subcategory without templates, and one contact; the tree's selection on the first category.
struct Fixture
{
    TestRegister reg;
    ScriptedPrompter prompter;
    ScriptedShell shell;
    RecordingSuite suite;
    QTemporaryDir files;
    QString leaseFolder = files.filePath("lease");
    qint32 contracts = 0;
    qint32 letters = 0;
    qint32 lease = 0;

    explicit Fixture(const QStringList& templates = {})
    {
        contracts = reg.insert("tbl_Document_Categories",
            {{"DokKategorija", "Contracts"}, {"Mnemonic", "AGR"}, {"DokKategDaug", files.path()},
                {"DokTemplates", templates.value(0)}, {"DokTemplatesExel", templates.value(1)},
                {"DokTemplatesPowPoint", templates.value(2)}});
        letters = reg.insert("tbl_Document_Categories", {{"DokKategorija", "Letters"}});
        lease = reg.insert("tbl_Sub_Categories",
            {{"KategID", contracts}, {"DokSubKategorija", "Leases"}, {"SubPathToFiles", leaseFolder}});
        reg.insert("tbl_Contacts", {{"FullName", "Ona Petraitiene"}});
        QDir().mkpath(leaseFolder);
        selection() = SelectionState();
        selection().currentCategoryId = contracts;
    }
    ~Fixture() { selection() = SelectionState(); }

    int documents() const { return reg.scalar("SELECT COUNT(*) FROM tbl_Documents").toInt(); }
    QVariant stored(const QString& field) const
    {
        return reg.scalar("SELECT " + field + " FROM tbl_Documents ORDER BY RastasID DESC");
    }
};

// The dialog as the user sees it, shown so that focus and keys work.
struct Dialog
{
    NewDocumentDialog dialog;

    Dialog()
    {
        dialog.show();
        dialog.activateWindow();
        if (!QTest::qWaitForWindowActive(&dialog))
            qWarning("The dialog didn't become active");
    }

    QLineEdit* box(int index) { return dialog.findChild<QLineEdit*>("txtFields_" + QString::number(index)); }
    QComboBox* combo(const char* name) { return dialog.findChild<QComboBox*>(name); }
    QTableView* grid() { return dialog.findChild<QTableView*>("grdTickler"); }
    void click(const char* button)
    {
        QTest::mouseClick(dialog.findChild<QPushButton*>(button), Qt::LeftButton);
    }
    void type(int index, const QString& text)
    {
        box(index)->setFocus();
        box(index)->selectAll();
        QTest::keyClick(box(index), Qt::Key_Delete);
        QTest::keyClicks(box(index), text);
    }
    // Picks the item of a list that starts with letter, by the keyboard.
    void choose(const char* list, char letter)
    {
        combo(list)->setFocus();
        QTest::keyClick(combo(list), letter);
    }
};

} // namespace

class NewDocumentTest : public QObject
{
    Q_OBJECT

    QTemporaryDir m_templates;
    QStringList m_templatePaths; // Word, Excel, PowerPoint
    // Only the tests that make real Office files need LibreOffice; the rest run without it.
    bool m_officeMissing = false;

private Q_SLOTS:
    void initTestCase()
    {
        m_officeMissing = QStandardPaths::findExecutable("soffice").isEmpty();
        if (m_officeMissing)
            return;
        m_templatePaths = {test::makeOfficeTemplate(Kind::Word, m_templates.path(), "Word"),
            test::makeOfficeTemplate(Kind::Excel, m_templates.path(), "Excel"),
            test::makeOfficeTemplate(Kind::PowerPoint, m_templates.path(), "PowerPoint")};
        QVERIFY2(!m_templatePaths.contains(QString()), "LibreOffice made no template");
    }

    // OK with no button pressed, a file attached and OK, and Cancel: the file, the row and
    // the day's number.
    void openingTable_data()
    {
        QTest::addColumn<bool>("attach");
        QTest::addColumn<bool>("ok");
        QTest::newRow("OK at once") << false << true;
        QTest::newRow("Add Existing, then OK") << true << true;
        QTest::newRow("Cancel") << false << false;
    }

    void openingTable()
    {
        QFETCH(bool, attach);
        QFETCH(bool, ok);
        Fixture fx;
        const QString existing = fx.files.filePath("scan.pdf");
        QFile(existing).open(QIODevice::WriteOnly);
        Dialog d;
        QCOMPARE(d.box(3)->text(), "AGR-" + today("yyyyMMdd") + "/1");
        if (attach) {
            fx.prompter.answerFile(existing);
            d.click("cmdAddExisting");
            QCOMPARE(fx.prompter.fileRequests.first().title, "Select Document");
            QCOMPARE(fx.prompter.fileRequests.first().filterLabel, "All files (*.*)");
            QCOMPARE(fx.prompter.fileRequests.first().pattern, "*.*");
            QCOMPARE(d.box(5)->text(), existing);
        }
        d.click(ok ? "cmdOK" : "cmdCancel");
        QVERIFY(!d.dialog.isVisible());
        QCOMPARE(fx.documents(), ok ? 1 : 0);
        QCOMPARE(getRegValue("TodayNumber"), ok ? "2" : "1");
        QVERIFY(QFile::exists(existing));
        QVERIFY(fx.suite.calls.isEmpty());
        if (!ok)
            return;
        QCOMPARE(fx.stored("RastoKel").toString(), attach ? existing : QString());
        QCOMPARE(fx.stored("DokRegistracIndeksas").toString(), "AGR-" + today("yyyyMMdd") + "/1");
        QCOMPARE(fx.stored("DokGavSiuntData").toDate(), QDate::currentDate());
        QCOMPARE(fx.stored("DokRegistracData").toDate(), QDate::currentDate());
        QCOMPARE(fx.stored("KryptisID").toInt(), 1);
        QCOMPARE(fx.stored("KategID").toInt(), fx.contracts);
        QVERIFY(fx.stored("DokAntraste").isNull());
    }

    // Each creating button makes its file from the category's template in the category's
    // folder, shows it, and fills the Location box; pressed again it does nothing. The row
    // follows only with OK; Cancel leaves the file.
    void createsFromTemplates_data()
    {
        QTest::addColumn<QString>("button");
        QTest::addColumn<QString>("extension");
        QTest::addColumn<QString>("stream");
        QTest::addColumn<bool>("templateText");
        QTest::addColumn<bool>("ok");
        QTest::newRow("Word, OK") << "cmdWord"
                                  << ".doc"
                                  << "WordDocument" << true << true;
        QTest::newRow("Excel, Cancel") << "cmdExcel"
                                       << ".xls"
                                       << "Workbook" << true << false;
        QTest::newRow("PowerPoint, OK") << "cmdPower"
                                        << ".ppt"
                                        << "PowerPoint Document" << false << true;
    }

    void createsFromTemplates()
    {
        if (m_officeMissing)
            QSKIP("LibreOffice isn't installed: this test makes real Office files");
        QFETCH(QString, button);
        QFETCH(QString, extension);
        QFETCH(QString, stream);
        QFETCH(bool, templateText);
        QFETCH(bool, ok);
        Fixture fx(m_templatePaths);
        Dialog d;
        d.type(4, "Lease of the yard");
        d.click(qPrintable(button));
        const QString path = QDir(fx.files.path()).filePath("AGR00001" + extension);
        QCOMPARE(d.box(5)->text(), path);
        QCOMPARE(fx.suite.calls.size(), 1);
        QVERIFY(fx.suite.calls.first().busy);
        QVERIFY(!QGuiApplication::overrideCursor());
        const QMimeType type = QMimeDatabase().mimeTypeForFile(path, QMimeDatabase::MatchContent);
        QVERIFY2(type.inherits("application/x-ole-storage"), qPrintable(type.name()));
        QVERIFY(test::fileHoldsText(path, stream));
        if (templateText)
            QVERIFY(test::fileHoldsText(path, "Template marker " + button.mid(3, 4)));
        QCOMPARE(fx.shell.calls().size(), 1);
        QCOMPARE(fx.shell.calls().first().path, path);

        d.click(qPrintable(button));
        QCOMPARE(fx.suite.calls.size(), 1);
        QVERIFY(fx.prompter.prompts().isEmpty());

        d.click(ok ? "cmdOK" : "cmdCancel");
        QVERIFY(QFile::exists(path));
        QCOMPARE(fx.documents(), ok ? 1 : 0);
        QCOMPARE(getRegValue("TodayNumber"), ok ? "2" : "1");
        if (ok) {
            QCOMPARE(fx.stored("RastoKel").toString(), path);
            QCOMPARE(fx.stored("DokAntraste").toString(), "Lease of the yard");
        }
    }

    // A template whose file is gone: OK makes a blank document, Cancel makes nothing.
    void missingTemplate_data()
    {
        QTest::addColumn<int>("answer");
        QTest::newRow("OK") << int(MsgBoxResult::Ok);
        QTest::newRow("Cancel") << int(MsgBoxResult::Cancel);
    }

    void missingTemplate()
    {
        if (m_officeMissing)
            QSKIP("LibreOffice isn't installed: this test makes real Office files");
        QFETCH(int, answer);
        const QString gone = m_templates.filePath("gone.dot");
        Fixture fx({gone});
        Dialog d;
        d.type(4, "Lease");
        fx.prompter.answer(answer);
        d.click("cmdWord");
        const auto prompt = fx.prompter.take();
        QCOMPARE(prompt.size(), 1);
        QCOMPARE(prompt.first().title, "Warning: Desired template not found");
        QVERIFY(prompt.first().text.startsWith("Can't achieve desired template " + gone + "."));
        const QString path = QDir(fx.files.path()).filePath("AGR00001.doc");
        const bool made = answer == MsgBoxResult::Ok;
        QCOMPARE(QFile::exists(path), made);
        QCOMPARE(d.box(5)->text(), made ? path : QString());
        QCOMPARE(fx.suite.calls.size(), made ? 1 : 0);
        if (made)
            QCOMPARE(fx.suite.calls.first().templatePath, QString());
    }

    // The checks before a file is made, with each button's title; a full Location box then
    // makes the button do nothing.
    void creatingButtonsCheckFirst_data()
    {
        QTest::addColumn<QString>("button");
        QTest::addColumn<QString>("title");
        QTest::newRow("Word") << "cmdWord"
                              << "Unable to create a New Word Document";
        QTest::newRow("Excel") << "cmdExcel"
                               << "Unable to create a New Excel Document";
        QTest::newRow("PowerPoint") << "cmdPower"
                                    << "Unable to create a New PowerPoint Document";
    }

    void creatingButtonsCheckFirst()
    {
        QFETCH(QString, button);
        QFETCH(QString, title);
        Fixture fx(m_templatePaths);
        selection().currentCategoryId = 0;
        Dialog d;
        fx.prompter.answer(MsgBoxResult::Ok).answer(MsgBoxResult::Ok);
        d.click(qPrintable(button));
        d.choose("cmbCategory", 'C');
        d.click(qPrintable(button));
        const auto prompts = fx.prompter.take();
        QCOMPARE(prompts.size(), 2);
        QCOMPARE(prompts[0].text, "Select any Category, please!");
        QCOMPARE(prompts[1].text, "Document Description Required!");
        for (const auto& prompt : prompts) {
            QCOMPARE(prompt.title, title);
            QCOMPARE(prompt.style, MsgBoxStyle::OkOnly | MsgBoxStyle::Exclamation);
        }
        d.type(4, "Lease");
        d.dialog.setLocation("/tmp/dropped.doc");
        d.click(qPrintable(button));
        QVERIFY(fx.prompter.prompts().isEmpty());
        QVERIFY(fx.suite.calls.isEmpty());
        QCOMPARE(d.box(5)->text(), "/tmp/dropped.doc");
    }

    // A name already taken, and "Like Registration Index" with the index emptied: a message,
    // and no file.
    void noFileWhenNoName()
    {
        Fixture fx(m_templatePaths);
        const QString taken = QDir(fx.files.path()).filePath("AGR00001.doc");
        QFile(taken).open(QIODevice::WriteOnly);
        Dialog d;
        d.type(4, "Lease");
        fx.prompter.answer(MsgBoxResult::Ok);
        d.click("cmdWord");
        auto prompt = fx.prompter.take();
        QCOMPARE(prompt.size(), 1);
        QCOMPARE(prompt.first().text, fileExistsMessage(taken));
        QCOMPARE(prompt.first().title, "Can't create a file");
        QCOMPARE(readFile(taken), QByteArray());

        setRegValue("FileName", "2");
        d.type(3, QString());
        fx.prompter.answer(MsgBoxResult::Ok);
        d.click("cmdWord");
        prompt = fx.prompter.take();
        QCOMPARE(prompt.size(), 1);
        QCOMPARE(prompt.first().title, "The file name must be like Registration Index");
        QCOMPARE(prompt.first().text,
            "Can't create a file, because the Registration Index is empty. Enter valid Registration Index, "
            "please.");
        QVERIFY(fx.suite.calls.isEmpty());
        QCOMPARE(d.box(5)->text(), QString());
        QCOMPARE(QDir(fx.files.path()).entryList(QDir::Files), QStringList {"AGR00001.doc"});
    }

    // The subcategory's own template or none, never its category's; and its folder.
    void subCategoryWithoutTemplate()
    {
        if (m_officeMissing)
            QSKIP("LibreOffice isn't installed: this test makes real Office files");
        Fixture fx(m_templatePaths);
        selection().currentSubCategoryId = fx.lease;
        Dialog d;
        QCOMPARE(d.combo("cmbSubCategory")->currentText(), "Leases");
        d.type(4, "Yard");
        d.click("cmdWord");
        const QString path = QDir(fx.leaseFolder).filePath("AGR00001.doc");
        QCOMPARE(d.box(5)->text(), path);
        QCOMPARE(fx.suite.calls.size(), 1);
        QCOMPARE(fx.suite.calls.first().templatePath, QString());
        QVERIFY(test::fileHoldsText(path, "WordDocument"));
        QVERIFY(!test::fileHoldsText(path, "Template marker"));
    }

    // While the file is made the dialog's buttons are off, so that a click in the window
    // (which keeps painting) starts no second file and doesn't close the dialog; after it
    // they are on again.
    void buttonsRestWhileTheFileIsMade()
    {
        Fixture fx(m_templatePaths);
        ScriptedOfficeSuite scripted;
        Dialog d;
        const QStringList names = {"cmdWord", "cmdExcel", "cmdPower", "cmdAddExisting", "cmdOK", "cmdCancel"};
        QStringList enabledMeanwhile;
        scripted.whileCreating = [&] {
            for (const QString& name : names) {
                if (d.dialog.findChild<QPushButton*>(name)->isEnabled())
                    enabledMeanwhile << name;
            }
        };
        d.type(4, "Yard");
        d.click("cmdWord");
        QCOMPARE(scripted.made.size(), 1);
        QCOMPARE(enabledMeanwhile, QStringList());
        QCOMPARE(d.box(5)->text(), scripted.made.first().target);
        for (const QString& name : names)
            QVERIFY2(d.dialog.findChild<QPushButton*>(name)->isEnabled(), qPrintable(name));
    }

    // With no category chosen in the tree: with AutoRegIndex on the load stops at the index
    // (no index, dates, direction or grid columns, and no index later either); off, it goes
    // through.
    void noCurrentCategory_data()
    {
        QTest::addColumn<bool>("autoIndex");
        QTest::newRow("AutoRegIndex on") << true;
        QTest::newRow("AutoRegIndex off") << false;
    }

    void noCurrentCategory()
    {
        QFETCH(bool, autoIndex);
        Fixture fx;
        selection().currentCategoryId = 0;
        setRegValue("AutoRegIndex", autoIndex ? "1" : "0");
        Dialog d;
        QCOMPARE(d.dialog.indexProposed(), !autoIndex);
        QCOMPARE(d.box(3)->text(), QString());
        QCOMPARE(d.box(1)->text().isEmpty(), autoIndex);
        QCOMPARE(d.dialog.findChild<QRadioButton*>("Option_1")->isChecked(), !autoIndex);
        QAbstractItemModel* reminders = d.grid()->model();
        QCOMPARE(reminders->headerData(1, Qt::Horizontal).toString(), autoIndex ? "TicklerDate" : "Date");
        QCOMPARE(d.grid()->isColumnHidden(0), !autoIndex);

        d.choose("cmbCategory", 'C');
        QCOMPARE(d.combo("cmbCategory")->currentText(), "Contracts");
        QCOMPARE(d.combo("cmbSubCategory")->count(), 1);
        QCOMPARE(d.box(3)->text(), QString());
        d.click("cmdOK");
        QCOMPARE(fx.documents(), 1);
        QCOMPARE(fx.stored("KategID").toInt(), fx.contracts);
        QCOMPARE(fx.stored("KryptisID").isNull(), autoIndex);
        QCOMPARE(fx.stored("DokRegistracData").isNull(), autoIndex);
        QCOMPARE(getRegValue("TodayNumber"), "2");
    }

    // Proposals reserve nothing; a change of category proposes anew and clears the
    // subcategory; a new day restarts the count.
    void indexProposals()
    {
        Fixture fx;
        selection().currentSubCategoryId = fx.lease;
        const QString first = "AGR-" + today("yyyyMMdd") + "/1";
        {
            Dialog d;
            QCOMPARE(d.box(3)->text(), first);
            d.type(3, "typed");
            d.choose("cmbCategory", 'L');
            QCOMPARE(d.box(3)->text(), today("yyyyMMdd") + "/1");
            QCOMPARE(d.combo("cmbSubCategory")->currentIndex(), -1);
            QCOMPARE(d.combo("cmbSubCategory")->count(), 0);
            d.click("cmdCancel");
        }
        {
            Dialog d;
            QCOMPARE(d.box(3)->text(), first);
            QTest::keyClick(&d.dialog, Qt::Key_Escape);
            QVERIFY(!d.dialog.isVisible());
        }
        QCOMPARE(fx.documents(), 0);

        setRegValue("Date", QDate::currentDate().addDays(-1).toString("yyyy MM dd"));
        setRegValue("TodayNumber", "7");
        {
            Dialog d;
            QCOMPARE(d.box(3)->text(), first);
            QCOMPARE(getRegValue("Date"), today("yyyy MM dd"));
            d.click("cmdOK");
        }
        QCOMPARE(getRegValue("TodayNumber"), "2");
        QCOMPARE(fx.stored("SubKategID").toInt(), fx.lease);
        Dialog d;
        QCOMPARE(d.box(3)->text(), "AGR-" + today("yyyyMMdd") + "/2");
    }

    // Enter moves on from a box as Tab does, from the Notes box too, without a line end.
    void enterActsAsTab()
    {
        Fixture fx;
        Dialog d;
        d.box(4)->setFocus();
        QTest::keyClick(d.box(4), Qt::Key_Return);
        QCOMPARE(QApplication::focusWidget(), d.combo("cmbSender"));
        d.box(3)->setFocus();
        QTest::keyClick(d.box(3), Qt::Key_Enter);
        QCOMPARE(QApplication::focusWidget(), d.combo("cmbCategory"));
        d.dialog.findChild<QTabWidget*>("SSTab1")->setCurrentIndex(2);
        auto* notes = d.dialog.findChild<QPlainTextEdit*>("txtFields_6");
        notes->setFocus();
        QTest::keyClicks(notes, "Urgent");
        QTest::keyClick(notes, Qt::Key_Return);
        QVERIFY(QApplication::focusWidget() != notes);
        d.click("cmdOK");
        QCOMPARE(fx.stored("DokPastaba").toString(), "Urgent");
    }

    // A reminder typed in the grid's new-row line, Enter moving on from date to text, is
    // stored with the new document's key.
    void reminderGetsTheNewKey()
    {
        Fixture fx;
        const qint32 older = fx.reg.insert("tbl_Documents", {{"DokAntraste", "Older"}});
        Dialog d;
        d.dialog.findChild<QTabWidget*>("SSTab1")->setCurrentIndex(1);
        QTableView* grid = d.grid();
        grid->setFocus();
        grid->setCurrentIndex(grid->model()->index(0, 1));
        QTest::keyClick(grid, '2');
        QTest::keyClicks(QApplication::focusWidget(), "024.05.01");
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        QCOMPARE(grid->currentIndex().column(), 3);
        QTest::keyClick(grid, 'C');
        QTest::keyClicks(QApplication::focusWidget(), "all the bank");
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        QCOMPARE(grid->currentIndex().row(), 1);
        QCOMPARE(grid->model()->rowCount(), 2);
        d.click("cmdOK");
        const qint32 key = fx.stored("RastasID").toInt();
        QVERIFY(key != older);
        QCOMPARE(fx.reg.scalar(QString("SELECT RastasID FROM tbl_Tickler WHERE TicklerText='Call the bank'"))
                     .toInt(),
            key);
        QCOMPARE(fx.reg.scalar("SELECT TicklerDate FROM tbl_Tickler").toDate(), QDate(2024, 5, 1));
        QCOMPARE(fx.reg.scalar("SELECT COUNT(*) FROM tbl_Tickler").toInt(), 1);
    }

    // An unreadable date stops OK with a message: the dialog stays, nothing is stored and the
    // day's number stays; corrected, OK stores it.
    void refusedSaveKeepsTheDialog()
    {
        Fixture fx;
        Dialog d;
        d.type(4, "Lease");
        d.type(1, "2024.99.99");
        fx.prompter.answer(MsgBoxResult::Ok);
        d.click("cmdOK");
        const auto prompt = fx.prompter.take();
        QCOMPARE(prompt.size(), 1);
        QVERIFY2(
            prompt.first().text.contains("2024.99.99") && prompt.first().text.contains("Send/Receive Date"),
            qPrintable(prompt.first().text));
        QCOMPARE(prompt.first().style, MsgBoxStyle::OkOnly);
        QVERIFY(d.dialog.isVisible());
        QCOMPARE(fx.documents(), 0);
        QCOMPARE(getRegValue("TodayNumber"), "1");

        d.type(1, "2024.09.30");
        d.click("cmdOK");
        QVERIFY(!d.dialog.isVisible());
        QCOMPARE(fx.stored("DokGavSiuntData").toDate(), QDate(2024, 9, 30));
        QCOMPARE(getRegValue("TodayNumber"), "2");
    }

    // Three files dropped on the main window's document list open the dialog three times, one
    // after another, each with its file in the Location box.
    void dropOnTheDocumentList()
    {
        Fixture fx;
        MainWindow window;
        window.load();
        window.show();
        QStringList paths;
        for (const char* name : {"a.doc", "b.xls", "c.pdf"})
            paths << fx.files.filePath(QString::fromLatin1(name));
        QStringList seen;
        const QList<const char*> answers = {"cmdOK", "cmdCancel", "cmdOK"};
        QTimer responder;
        connect(&responder, &QTimer::timeout, this, [&] {
            auto* dialog = qobject_cast<NewDocumentDialog*>(QApplication::activeModalWidget());
            if (!dialog || !dialog->isVisible() || seen.size() >= answers.size())
                return;
            seen << dialog->findChild<QLineEdit*>("txtFields_5")->text();
            QTest::mouseClick(dialog->findChild<QPushButton*>(answers[seen.size() - 1]), Qt::LeftButton);
        });
        responder.start(20);
        // The list's drop handling turns the dropped data into this signal.
        Q_EMIT window.documentList()->filesDropped(paths);
        responder.stop();
        QCOMPARE(seen, paths);
        QCOMPARE(fx.reg.scalar("SELECT COUNT(*) FROM tbl_Documents").toInt(), 2);
        QCOMPARE(fx.reg
                     .scalar("SELECT COUNT(*) FROM tbl_Documents WHERE RastoKel='" + paths[0]
                         + "' OR RastoKel='" + paths[2] + "'")
                     .toInt(),
            2);
    }
};

QTEST_MAIN(NewDocumentTest)
#include "tst_new_document.moc"
