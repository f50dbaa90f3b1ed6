#include "explorer/DocumentFills.h"
#include "explorer/ExplorerList.h"
#include "explorer/ListModel.h"
#include "explorer/MainWindow.h"
#include "harness/ScriptedPrompter.h"
#include "harness/ScriptedShell.h"
#include "harness/TestRegister.h"
#include "options/OptionStore.h"
#include "platform/OfficeSuite.h"
#include "registration/CopyFileDialog.h"
#include "registration/DocumentDetailsDialog.h"
#include "registration/RelatedDocumentDialog.h"
#include "registration/StoredPaths.h"
#include "support/RecordsetModel.h"
#include "support/SelectionState.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDateEdit>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTableView>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

using namespace kartella;
using namespace kartella::test;

namespace {

// An office suite that writes a small file of its own at the target.
class WritingSuite final : public OfficeSuite
{
public:
    WritingSuite() { OfficeSuite::setInstance(this); }
    ~WritingSuite() override { OfficeSuite::setInstance(nullptr); }
    void create(Kind, const QString& templatePath, const QString& target) override
    {
        templates << templatePath;
        QFile file(target);
        if (file.open(QIODevice::WriteOnly))
            file.write("made");
    }
    void show(const QString&) override { }
    QStringList templates;
};

QByteArray readFile(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void writeFile(const QString& path, const QByteArray& content)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(content);
}

// A register with a category (mnemonic, folder), a contact, two documents and a related
// document of the first; a file for each.
struct Fixture
{
    TestRegister reg;
    ScriptedPrompter prompter;
    ScriptedShell shell;
    WritingSuite suite;
    QTemporaryDir files;
    qint32 contracts = 0;
    qint32 letters = 0;
    qint32 contact = 0;
    qint32 lease = 0;
    qint32 other = 0;
    qint32 annex = 0;
    QString leaseFile = files.filePath("lease.doc");
    QString annexFile = files.filePath("annex.doc");

    Fixture()
    {
        contracts = reg.insert("tbl_Document_Categories",
            {{"DokKategorija", "Contracts"}, {"Mnemonic", "AGR"}, {"DokKategDaug", files.path()}});
        letters = reg.insert("tbl_Document_Categories", {{"DokKategorija", "Letters"}});
        contact = reg.insert("tbl_Contacts", {{"FullName", "Ona Petraitiene"}});
        lease = reg.insert("tbl_Documents",
            {{"DokAntraste", "Sutartis"}, {"KategID", contracts}, {"RastoKel", leaseFile},
                {"DokRegistracIndeksas", "AGR-1"}, {"DokGavSiuntData", QDate(2024, 1, 31)},
                {"DokRegistracData", QDate(2024, 2, 1)}, {"KryptisID", QVariant()}});
        other = reg.insert("tbl_Documents",
            {{"DokAntraste", "Other"}, {"KategID", letters}, {"RastoKel", files.filePath("other.doc")},
                {"KryptisID", 2}});
        annex = reg.insert("tbl_Sub_Documents",
            {{"RastasID", lease}, {"SubDocDescript", "Annex"}, {"SubRastoKelias", annexFile}});
        reg.insert("tbl_Tickler", {{"RastasID", lease}, {"TicklerText", "Call back"}});
        reg.insert("tbl_Tickler", {{"RastasID", other}, {"TicklerText", "Other's"}});
        writeFile(leaseFile, "lease");
        writeFile(annexFile, "annex");
        selection() = SelectionState();
        selection().currentCategoryId = contracts;
        selection().activeListName = "ListDokSarasas";
        selection().selectedDocumentId = lease;
        selection().selectedItemText = "Sutartis";
        selection().selectedFilePath = leaseFile;
    }
    ~Fixture() { selection() = SelectionState(); }

    QVariant document(const QString& field, qint32 id) const
    {
        return reg.scalar("SELECT " + field + " FROM tbl_Documents WHERE RastasID=" + QString::number(id));
    }
    QVariant related(const QString& field, qint32 id) const
    {
        return reg.scalar(
            "SELECT " + field + " FROM tbl_Sub_Documents WHERE SubRastasID=" + QString::number(id));
    }
    QString reminders() const
    {
        return reg
            .scalar("SELECT group_concat(RastasID || ':' || TicklerText, ',') FROM "
                    "(SELECT * FROM tbl_Tickler ORDER BY TicklerID)")
            .toString();
    }
    void selectRelated()
    {
        selection().activeListName = "ListSusieti";
        selection().selectedSubDocumentId = annex;
        selection().selectedItemText = "Annex";
        selection().selectedFilePath = annexFile;
    }
};

template<typename D>
void showActive(D& dialog)
{
    dialog.show();
    dialog.activateWindow();
    if (!QTest::qWaitForWindowActive(&dialog))
        qWarning("The dialog didn't become active");
}

QLineEdit* box(QWidget& dialog, int index)
{
    return dialog.findChild<QLineEdit*>("txtFields_" + QString::number(index));
}

void retype(QLineEdit* box, const QString& text)
{
    box->setFocus();
    box->selectAll();
    QTest::keyClick(box, Qt::Key_Delete);
    QTest::keyClicks(box, text);
}

void click(QWidget& dialog, const char* button)
{
    QTest::mouseClick(dialog.findChild<QPushButton*>(button), Qt::LeftButton);
}

const QString ApplyQuestion
    = "You have details changes that have not applied.\n\nDo you want to apply these now?";

} // namespace

class DetailsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // The row shows as stored (a Null direction as "Other"), its reminders alone in the
    // grid; Apply stores the edits of row and grid and keeps the dialog; the other rows
    // stay as they were.
    void detailsShowAndApply()
    {
        Fixture fx;
        DocumentDetailsDialog dialog;
        showActive(dialog);
        QCOMPARE(dialog.windowTitle(), "Sutartis Description");
        QCOMPARE(box(dialog, 7)->text(), "Sutartis");
        QCOMPARE(box(dialog, 14)->text(), fx.leaseFile);
        QCOMPARE(box(dialog, 3)->text(), "AGR-1");
        QCOMPARE(dialog.findChild<QDateEdit*>("DTPicker1")->date(), QDate(2024, 1, 31));
        QCOMPARE(dialog.findChild<QDateEdit*>("DTPicker2")->date(), QDate(2024, 2, 1));
        QCOMPARE(dialog.findChild<QComboBox*>("cmbCategory")->currentText(), "Contracts");
        QVERIFY(dialog.findChild<QRadioButton*>("Option_4")->isChecked());
        QCOMPARE(dialog.findChild<QLabel*>("imdgLIcon")->property("noFile").toBool(), false);
        auto* apply = dialog.findChild<QPushButton*>("cmdButton_2");
        QVERIFY(!apply->isEnabled());
        QVERIFY(!dialog.detailsChanged());
        auto* grid = dialog.findChild<QTableView*>("grdTickler");
        QCOMPARE(grid->model()->index(0, 3).data().toString(), "Call back");
        QVERIFY(grid->model()->setData(grid->model()->index(0, 3), "Call at noon"));

        retype(box(dialog, 7), "Sutartis nr. 2");
        dialog.findChild<QRadioButton*>("Option_4")->setFocus();
        QTest::keyClick(dialog.findChild<QRadioButton*>("Option_4"), Qt::Key_Up);
        dialog.findChild<QDateEdit*>("DTPicker1")->setDate(QDate(2000, 2, 29));
        QVERIFY(apply->isEnabled());
        QTest::keyClick(apply, Qt::Key_Space);
        QVERIFY(dialog.isVisible());
        QVERIFY(!apply->isEnabled());
        QCOMPARE(fx.document("DokAntraste", fx.lease).toString(), "Sutartis nr. 2");
        QCOMPARE(fx.document("KryptisID", fx.lease).toInt(), 3);
        QCOMPARE(fx.document("DokGavSiuntData", fx.lease).toDate(), QDate(2000, 2, 29));
        QCOMPARE(fx.document("DokRegistracData", fx.lease).toDate(), QDate(2024, 2, 1));
        QCOMPARE(fx.reminders(),
            QString::number(fx.lease) + ":Call at noon," + QString::number(fx.other) + ":Other's");
        QCOMPARE(fx.document("DokAntraste", fx.other).toString(), "Other");
        QCOMPARE(fx.document("KryptisID", fx.other).toInt(), 2);
        QVERIFY(fx.prompter.prompts().isEmpty());
    }

    // A document without a reachable file shows the no-file icon; OK without a change
    // writes nothing, the Null direction included.
    void noFileAndNoChange()
    {
        Fixture fx;
        QFile::remove(fx.leaseFile);
        DocumentDetailsDialog dialog;
        showActive(dialog);
        QCOMPARE(dialog.findChild<QLabel*>("imdgLIcon")->property("noFile").toBool(), true);
        click(dialog, "cmdButton_0");
        QVERIFY(!dialog.isVisible());
        QVERIFY(fx.document("KryptisID", fx.lease).isNull());
        QCOMPARE(fx.document("DokAntraste", fx.lease).toString(), "Sutartis");
    }

    // Esc: without a change it closes at once; with one it asks, and Yes applies and stays
    // (a second Esc then closes), No drops and closes, Cancel stays with the change.
    void escape_data()
    {
        QTest::addColumn<bool>("change");
        QTest::addColumn<int>("answer");
        QTest::addColumn<bool>("stored");
        QTest::addColumn<bool>("open");
        QTest::newRow("no change") << false << 0 << false << false;
        QTest::newRow("Yes") << true << int(MsgBoxResult::Yes) << true << true;
        QTest::newRow("No") << true << int(MsgBoxResult::No) << false << false;
        QTest::newRow("Cancel") << true << int(MsgBoxResult::Cancel) << false << true;
    }

    void escape()
    {
        QFETCH(bool, change);
        QFETCH(int, answer);
        QFETCH(bool, stored);
        QFETCH(bool, open);
        Fixture fx;
        DocumentDetailsDialog dialog;
        showActive(dialog);
        if (change)
            retype(box(dialog, 7), "Changed");
        if (answer)
            fx.prompter.answer(answer);
        QTest::keyClick(box(dialog, 7), Qt::Key_Escape);
        const auto prompts = fx.prompter.take();
        QCOMPARE(prompts.size(), change ? 1 : 0);
        if (change) {
            QCOMPARE(prompts.first().text, ApplyQuestion);
            QCOMPARE(prompts.first().title, "Warning");
            QCOMPARE(prompts.first().style, MsgBoxStyle::YesNoCancel | MsgBoxStyle::Exclamation);
        }
        QCOMPARE(dialog.isVisible(), open);
        QCOMPARE(fx.document("DokAntraste", fx.lease).toString(), stored ? "Changed" : "Sutartis");
        if (answer == MsgBoxResult::Yes) {
            QVERIFY(!dialog.findChild<QPushButton*>("cmdButton_2")->isEnabled());
            QTest::keyClick(box(dialog, 7), Qt::Key_Escape);
            QVERIFY(!dialog.isVisible());
        }
    }

    // The close box asks Yes/No when something changed; it closes either way.
    void closeBox_data()
    {
        QTest::addColumn<int>("answer");
        QTest::newRow("Yes") << int(MsgBoxResult::Yes);
        QTest::newRow("No") << int(MsgBoxResult::No);
    }

    void closeBox()
    {
        QFETCH(int, answer);
        Fixture fx;
        DocumentDetailsDialog dialog;
        showActive(dialog);
        retype(box(dialog, 3), "AGR-2");
        fx.prompter.answer(answer);
        dialog.close();
        const auto prompts = fx.prompter.take();
        QCOMPARE(prompts.size(), 1);
        QCOMPARE(prompts.first().text, ApplyQuestion);
        QCOMPARE(prompts.first().style, MsgBoxStyle::YesNo | MsgBoxStyle::Exclamation);
        QVERIFY(!dialog.isVisible());
        QCOMPARE(fx.document("DokRegistracIndeksas", fx.lease).toString(),
            answer == MsgBoxResult::Yes ? "AGR-2" : "AGR-1");
    }

    // Choosing another category (by the keyboard) refills the subcategory list only: the
    // row keeps its subcategory until another one is chosen.
    void categoryChangeKeepsTheSubCategory()
    {
        Fixture fx;
        const qint32 leases = fx.reg.insert(
            "tbl_Sub_Categories", {{"KategID", fx.contracts}, {"DokSubKategorija", "Leases"}});
        const qint32 inbound
            = fx.reg.insert("tbl_Sub_Categories", {{"KategID", fx.letters}, {"DokSubKategorija", "Inbound"}});
        fx.reg.exec("UPDATE tbl_Documents SET SubKategID=" + QString::number(leases)
            + " WHERE RastasID=" + QString::number(fx.lease));
        DocumentDetailsDialog dialog;
        showActive(dialog);
        auto* subCategory = dialog.findChild<QComboBox*>("cmbSubCategory");
        QCOMPARE(subCategory->currentText(), "Leases");
        auto* category = dialog.findChild<QComboBox*>("cmbCategory");
        category->setFocus();
        QTest::keyClick(category, 'L');
        QCOMPARE(category->currentText(), "Letters");
        QVERIFY(dialog.detailsChanged());
        QCOMPARE(subCategory->count(), 1);
        QCOMPARE(subCategory->itemText(0), "Inbound");
        QVERIFY(dialog.apply());
        QCOMPARE(fx.document("KategID", fx.lease).toInt(), fx.letters);
        QCOMPARE(fx.document("SubKategID", fx.lease).toInt(), leases);
        QCOMPARE(fx.document("DokRegistracIndeksas", fx.lease).toString(), "AGR-1");
        Q_UNUSED(inbound);
    }

    // A write the register refuses is reported as an error with its number; the row stays
    // as stored, the dialog open with its changes.
    void refusedApplyLeavesTheRow()
    {
        Fixture fx;
        fx.reg.exec("CREATE TRIGGER refuse BEFORE UPDATE ON tbl_Documents BEGIN SELECT RAISE(ABORT, "
                    "'refused here'); END");
        DocumentDetailsDialog dialog;
        showActive(dialog);
        retype(box(dialog, 7), "Changed");
        fx.prompter.answer(MsgBoxResult::Ok);
        click(dialog, "cmdButton_0");
        const auto prompts = fx.prompter.take();
        QCOMPARE(prompts.size(), 1);
        QVERIFY2(prompts.first().text.startsWith("Error: ") && prompts.first().text.contains("refused here"),
            qPrintable(prompts.first().text));
        QCOMPARE(prompts.first().style, MsgBoxStyle::Critical);
        QVERIFY(dialog.isVisible());
        QVERIFY(dialog.detailsChanged());
        QCOMPARE(fx.document("DokAntraste", fx.lease).toString(), "Sutartis");
    }

    // A new related document with an existing file: stored under the selected document with
    // its description, today's date and the file; the file stays where it is.
    void newRelatedWithExistingFile()
    {
        Fixture fx;
        const QString scan = fx.files.filePath("scan.pdf");
        writeFile(scan, "scan");
        RelatedDocumentDialog dialog(RelatedDocumentDialog::Mode::Creating);
        showActive(dialog);
        QCOMPARE(dialog.objectName(), "frmRelated");
        QCOMPARE(dialog.findChild<QLineEdit*>("txtParent")->text(), "Sutartis");
        QTest::keyClicks(dialog.findChild<QPlainTextEdit*>("txtFields_1"), "Receipt");
        fx.prompter.answerFile(scan);
        click(dialog, "cmdAddExisting");
        QCOMPARE(fx.prompter.fileRequests.first().title, "Select the Document");
        QCOMPARE(box(dialog, 5)->text(), scan);
        click(dialog, "cmdOK");
        QVERIFY(!dialog.isVisible());
        const QVariant id = fx.reg.scalar("SELECT MAX(SubRastasID) FROM tbl_Sub_Documents");
        QCOMPARE(fx.related("RastasID", id.toInt()).toInt(), fx.lease);
        QCOMPARE(fx.related("SubDocDescript", id.toInt()).toString(), "Receipt");
        QCOMPARE(fx.related("SubRastoKelias", id.toInt()).toString(), scan);
        QCOMPARE(fx.related("SubRastGavimoData", id.toInt()).toDate(), QDate::currentDate());
        QCOMPARE(readFile(scan), "scan");
        QCOMPARE(fx.related("SubDocDescript", fx.annex).toString(), "Annex");
    }

    // The Word button makes a file without template in the current category's folder, named
    // under each naming system; only the file-number system moves its counter, and the day's
    // number never moves.
    void relatedFileUnderNamingSystems_data()
    {
        QTest::addColumn<QString>("system");
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("fileNumber");
        QTest::newRow("Mnemonic+Number") << "0"
                                         << "AGR00001.doc"
                                         << "2";
        QTest::newRow("Like Registration Index")
            << "2"
            << "AGR-" + QDate::currentDate().toString("yyyyMMdd") + "p1.doc"
            << "2";
    }

    void relatedFileUnderNamingSystems()
    {
        QFETCH(QString, system);
        QFETCH(QString, name);
        QFETCH(QString, fileNumber);
        Fixture fx;
        setRegValue("FileName", system);
        RelatedDocumentDialog dialog(RelatedDocumentDialog::Mode::Creating);
        showActive(dialog);
        QTest::keyClicks(dialog.findChild<QPlainTextEdit*>("txtFields_1"), "Receipt");
        click(dialog, "cmdWord");
        const QString path = QDir(fx.files.path()).filePath(name);
        QCOMPARE(box(dialog, 5)->text(), path);
        QCOMPARE(readFile(path), "made");
        QCOMPARE(fx.suite.templates, QStringList {QString()});
        QCOMPARE(getRegValue("FileNumber").trimmed(), fileNumber);
        QCOMPARE(getRegValue("TodayNumber"), "1");
        // Pressed again with a file in place, the button does nothing.
        click(dialog, "cmdWord");
        QCOMPARE(fx.suite.templates.size(), 1);
        QVERIFY(fx.prompter.prompts().isEmpty());
    }

    // The creating buttons' checks: a description first (each button's own words), then a
    // category chosen in the tree; the dialog stays open.
    void relatedCreatingChecks()
    {
        Fixture fx;
        RelatedDocumentDialog dialog(RelatedDocumentDialog::Mode::Creating);
        showActive(dialog);
        fx.prompter.answer(MsgBoxResult::Ok).answer(MsgBoxResult::Ok).answer(MsgBoxResult::Ok);
        click(dialog, "cmdExcel");
        click(dialog, "cmdPower");
        selection().currentCategoryId = 0;
        QTest::keyClicks(dialog.findChild<QPlainTextEdit*>("txtFields_1"), "Receipt");
        click(dialog, "cmdWord");
        const auto prompts = fx.prompter.take();
        QCOMPARE(prompts.size(), 3);
        QCOMPARE(prompts[0].text, "Document Description Required!");
        QCOMPARE(prompts[0].title, "Unable to create a new Excel Document");
        QCOMPARE(prompts[0].style, MsgBoxStyle::Critical);
        QCOMPARE(prompts[1].text, "SubDocument Description Required!");
        QCOMPARE(prompts[2].text, "Select any Category, please!");
        QVERIFY(dialog.isVisible());
        QVERIFY(fx.suite.templates.isEmpty());
    }

    // Editing a related document: its row shows; OK writes the description and the current
    // selected document as its parent; Esc after a change asks, No drops.
    void editRelated()
    {
        Fixture fx;
        fx.selectRelated();
        {
            RelatedDocumentDialog dialog(RelatedDocumentDialog::Mode::Editing);
            showActive(dialog);
            QCOMPARE(dialog.objectName(), "frmRelDescr");
            QCOMPARE(dialog.findChild<QLineEdit*>("txtParent")->text(), "Annex");
            QCOMPARE(box(dialog, 4)->text(), fx.annexFile);
            QVERIFY(!dialog.findChild<QPushButton*>("cmdWord"));
            QTest::keyClick(dialog.findChild<QPlainTextEdit*>("txtFields_1"), Qt::Key_End);
            QTest::keyClicks(dialog.findChild<QPlainTextEdit*>("txtFields_1"), " 2");
            fx.prompter.answer(MsgBoxResult::No);
            QTest::keyClick(dialog.findChild<QPlainTextEdit*>("txtFields_1"), Qt::Key_Escape);
            QCOMPARE(fx.prompter.take().first().text, ApplyQuestion);
            QVERIFY(!dialog.isVisible());
            QCOMPARE(fx.related("SubDocDescript", fx.annex).toString(), "Annex");
        }
        selection().selectedDocumentId = fx.other;
        RelatedDocumentDialog dialog(RelatedDocumentDialog::Mode::Editing);
        showActive(dialog);
        QTest::keyClick(dialog.findChild<QPlainTextEdit*>("txtFields_1"), Qt::Key_End);
        QTest::keyClicks(dialog.findChild<QPlainTextEdit*>("txtFields_1"), " 2");
        click(dialog, "cmdOK");
        QCOMPARE(fx.related("SubDocDescript", fx.annex).toString(), "Annex 2");
        QCOMPARE(fx.related("RastasID", fx.annex).toInt(), fx.other);
        QCOMPARE(fx.related("SubRastoKelias", fx.annex).toString(), fx.annexFile);
    }

    // Copy leaves row and source; Move rewrites the row of the right table (through a
    // folder with an apostrophe), the selection and the shown path; the other table and
    // rows stay as they were.
    void copyAndMove_data()
    {
        QTest::addColumn<bool>("related");
        QTest::newRow("document") << false;
        QTest::newRow("related document") << true;
    }

    void copyAndMove()
    {
        QFETCH(bool, related);
        Fixture fx;
        if (related)
            fx.selectRelated();
        const QString source = related ? fx.annexFile : fx.leaseFile;
        const QByteArray content = readFile(source);
        const QString copies = fx.files.filePath("copies");
        const QString moved = fx.files.filePath("O'Brien's");
        QDir().mkpath(copies);
        QDir().mkpath(moved);
        CopyFileDialog dialog;
        QVERIFY(dialog.hasFile());
        showActive(dialog);
        QCOMPARE(dialog.findChild<QLineEdit*>("txtDocument")->text(), related ? "Annex" : "Sutartis");
        QCOMPARE(dialog.findChild<QLabel*>("txtPathNow")->text(), source);
        QCOMPARE(dialog.findChild<QLabel*>("txtFileSize")->text(), QString::number(content.size()));

        fx.prompter.answerFolder(copies);
        click(dialog, "cmdDestFolder");
        QCOMPARE(fx.prompter.folderPrompts, QStringList {"Select a Folder in which you'll to copy/move:"});
        click(dialog, "cmdCopy");
        QCOMPARE(readFile(QDir(copies).filePath(fileNameOf(source))), content);
        QCOMPARE(readFile(source), content);
        QCOMPARE(selection().selectedFilePath, source);

        retype(dialog.findChild<QLineEdit*>("txtDestination"), moved);
        click(dialog, "cmdMove");
        const QString target = QDir(moved).filePath(fileNameOf(source));
        QVERIFY(!QFile::exists(source));
        QCOMPARE(readFile(target), content);
        QCOMPARE(selection().selectedFilePath, target);
        QCOMPARE(dialog.findChild<QLabel*>("txtPathNow")->text(), target);
        QCOMPARE(fx.document("RastoKel", fx.lease).toString(), related ? fx.leaseFile : target);
        QCOMPARE(fx.related("SubRastoKelias", fx.annex).toString(), related ? target : fx.annexFile);
        QCOMPARE(fx.document("RastoKel", fx.other).toString(), fx.files.filePath("other.doc"));
        QVERIFY(fx.prompter.prompts().isEmpty());
    }

    // A target already there: the shell asks, and a refusal changes nothing, neither file
    // nor row; an empty destination is told.
    void refusedOverwriteChangesNothing()
    {
        Fixture fx;
        const QString folder = fx.files.filePath("taken");
        QDir().mkpath(folder);
        const QString taken = QDir(folder).filePath("lease.doc");
        writeFile(taken, "older");
        CopyFileDialog dialog;
        showActive(dialog);
        fx.prompter.answer(MsgBoxResult::Ok);
        click(dialog, "cmdMove");
        QCOMPARE(fx.prompter.take().first().text, "Select the destination folder, please!");
        dialog.findChild<QLineEdit*>("txtDestination")->setText(folder);
        fx.shell.refuse();
        click(dialog, "cmdMove");
        QCOMPARE(fx.shell.questions().size(), 1);
        QCOMPARE(readFile(taken), "older");
        QCOMPARE(readFile(fx.leaseFile), "lease");
        QCOMPARE(fx.document("RastoKel", fx.lease).toString(), fx.leaseFile);
        QCOMPARE(selection().selectedFilePath, fx.leaseFile);
        QCOMPARE(dialog.findChild<QLabel*>("txtPathNow")->text(), fx.leaseFile);
    }

    // Nothing clicked, or a file that has gone: told, and the dialog isn't to be shown.
    void copyWithoutFile_data()
    {
        QTest::addColumn<bool>("clicked");
        QTest::newRow("nothing clicked") << false;
        QTest::newRow("file gone") << true;
    }

    void copyWithoutFile()
    {
        QFETCH(bool, clicked);
        Fixture fx;
        if (clicked)
            QFile::remove(fx.leaseFile);
        else
            selection().activeListName.clear();
        fx.prompter.answer(MsgBoxResult::Ok);
        CopyFileDialog dialog;
        QVERIFY(!dialog.hasFile());
        QCOMPARE(fx.prompter.take().size(), 1);
    }

    // Through the main window: after a move the clicked item leads to the new path at once.
    void moveShowsInTheList()
    {
        Fixture fx;
        MainWindow window;
        window.load();
        window.listCategory(fx.contracts, 0);
        const int row = window.documentModel()->rowOfKey(DocumentFills::itemKey(fx.lease));
        QVERIFY(row >= 0);
        window.onDocumentClicked(row);
        const QString folder = fx.files.filePath("moved");
        QDir().mkpath(folder);
        QTimer responder;
        connect(&responder, &QTimer::timeout, this, [&] {
            auto* dialog = qobject_cast<CopyFileDialog*>(QApplication::activeModalWidget());
            if (!dialog)
                return;
            responder.stop();
            dialog->findChild<QLineEdit*>("txtDestination")->setText(folder);
            QTest::mouseClick(dialog->findChild<QPushButton*>("cmdMove"), Qt::LeftButton);
            QTest::mouseClick(dialog->findChild<QPushButton*>("cmdClose"), Qt::LeftButton);
        });
        responder.start(20);
        QAction* move = window.action("mnuMove");
        QVERIFY(move->isEnabled());
        move->trigger();
        const QString target = QDir(folder).filePath("lease.doc");
        QCOMPARE(window.documentModel()->item(row).tag, target);
        window.onDocumentClicked(row);
        QCOMPARE(selection().selectedFilePath, target);
    }

    // Files dropped on the related list open New Related Document one after another, each
    // with its file in the Location box and marked as changed, so that Esc asks; Show
    // Details opens the dialog of the list last clicked.
    void dropOnTheRelatedListAndShowDetails()
    {
        Fixture fx;
        MainWindow window;
        window.load();
        window.listCategory(fx.contracts, 0);
        window.onDocumentClicked(window.documentModel()->rowOfKey(DocumentFills::itemKey(fx.lease)));
        const QStringList paths = {fx.files.filePath("a.pdf"), fx.files.filePath("b.pdf")};
        QStringList seen;
        QList<bool> changed;
        QTimer responder;
        connect(&responder, &QTimer::timeout, this, [&] {
            auto* dialog = qobject_cast<RelatedDocumentDialog*>(QApplication::activeModalWidget());
            if (!dialog || !dialog->isVisible())
                return;
            seen << dialog->objectName() + ":" + dialog->findChild<QLineEdit*>("txtFields_5")->text();
            changed << dialog->relatedChanged();
            QTest::mouseClick(
                dialog->findChild<QPushButton*>(seen.size() == 1 ? "cmdOK" : "cmdCancel"), Qt::LeftButton);
        });
        responder.start(20);
        Q_EMIT window.relatedList()->filesDropped(paths);
        QCOMPARE(seen, QStringList({"frmRelated:" + paths[0], "frmRelated:" + paths[1]}));
        QCOMPARE(changed, QList<bool>({true, true}));
        QCOMPARE(
            fx.reg
                .scalar("SELECT COUNT(*) FROM tbl_Sub_Documents WHERE RastasID=" + QString::number(fx.lease))
                .toInt(),
            2);

        QStringList shown;
        disconnect(&responder, nullptr, this, nullptr);
        connect(&responder, &QTimer::timeout, this, [&] {
            auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            if (!dialog || !dialog->isVisible())
                return;
            shown << dialog->objectName();
            QTest::keyClick(dialog, Qt::Key_Escape);
        });
        window.action("mnuShowDetails")->trigger();
        window.fillRelatedList();
        window.onRelatedClicked(window.relatedModel()->rowOfKey(DocumentFills::itemKey(fx.annex)));
        window.action("mnuShowDetails")->trigger();
        responder.stop();
        QCOMPARE(shown, QStringList({"frmNew", "frmRelDescr"}));
    }

    void storedPathQuotesApostrophes()
    {
        QCOMPARE(storedPathStatement(false, 7, "/a/O'B/x.doc"),
            "UPDATE tbl_Documents SET tbl_Documents.RastoKel = '/a/O''B/x.doc' WHERE "
            "(((tbl_Documents.RastasID)=7));");
        QCOMPARE(fileNameOf("C:\\docs\\a.doc"), "a.doc");
        QCOMPARE(fileNameOf("plain.doc"), "plain.doc");
    }
};

QTEST_MAIN(DetailsTest)
#include "tst_details.moc"
