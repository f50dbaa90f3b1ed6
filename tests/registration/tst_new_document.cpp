#include "NewDocumentFixture.h"
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
#include <QLocale>
#include <QMimeDatabase>
#include <QPlainTextEdit>
#include <QProcess>
#include <QPushButton>
#include <QRadioButton>
#include <QScopeGuard>
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

// The New Document dialog making its file: templates, names, folders and the checks first.
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

    // OK with no button pressed, a file attached (and a sender chosen) and OK, and Cancel: the
    // file, the row and the day's number.
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
            d.choose("cmbSender", 'O');
        }
        d.click(ok ? "cmdOK" : "cmdCancel");
        QVERIFY(!d.dialog.isVisible());
        QCOMPARE(fx.documents(), ok ? 1 : 0);
        QCOMPARE(fx.dayCounter(), ok ? today("yyyy-MM-dd") + "=1" : QString());
        QVERIFY(QFile::exists(existing));
        QVERIFY(fx.suite.calls.isEmpty());
        if (!ok)
            return;
        QCOMPARE(fx.stored("RastoKel").toString(), attach ? existing : QString());
        QCOMPARE(fx.stored("ContactID"),
            attach ? fx.reg.scalar("SELECT ContactID FROM tbl_Contacts") : QVariant());
        QCOMPARE(fx.stored("DokRegistracIndeksas").toString(), "AGR-" + today("yyyyMMdd") + "/1");
        QCOMPARE(fx.stored("DokGavSiuntData").toDate(), QDate::currentDate());
        QCOMPARE(fx.stored("DokRegistracData").toDate(), QDate::currentDate());
        QCOMPARE(fx.stored("KryptisID").toInt(), 1);
        QCOMPARE(fx.stored("KategID").toInt(), fx.contracts);
        QVERIFY(fx.stored("DokAntraste").isNull());
    }

    // Each creating button makes its file from the category's template in the category's
    // folder, shows it, and fills the Location box; pressed again it does nothing. The row
    // follows only with OK; Cancel takes the file back.
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

        if (!ok)
            fx.prompter.answer(MsgBoxResult::Yes);
        d.click(ok ? "cmdOK" : "cmdCancel");
        QCOMPARE(QFile::exists(path), ok);
        QCOMPARE(fx.documents(), ok ? 1 : 0);
        QCOMPARE(fx.dayCounter(), ok ? today("yyyy-MM-dd") + "=1" : QString());
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

    // An option the file name needs that can't be read is named in a message; no file is made.
    void unreadableOptionIsNamed()
    {
        Fixture fx(m_templatePaths);
        const QString fileNumber = getRegValue("FileNumber");
        const auto restore = qScopeGuard([&fileNumber] { setRegValue("FileNumber", fileNumber); });
        setRegValue("FileNumber", "abc");
        Dialog d;
        d.type(4, "Lease");
        fx.prompter.answer(MsgBoxResult::Ok);
        d.click("cmdWord");
        const auto prompt = fx.prompter.take();
        QCOMPARE(prompt.size(), 1);
        QVERIFY2(prompt.first().text.contains("FileNumber"), qPrintable(prompt.first().text));
        QVERIFY(fx.suite.calls.isEmpty());
        QCOMPARE(d.box(5)->text(), QString());
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

    // A subcategory with templates of its own gives Word and Excel their own ones; a
    // presentation is saved empty all the same.
    void subCategoryTemplates_data()
    {
        QTest::addColumn<QString>("button");
        QTest::addColumn<int>("kind");
        QTest::newRow("Word") << "cmdWord" << 0;
        QTest::newRow("Excel") << "cmdExcel" << 1;
        QTest::newRow("PowerPoint") << "cmdPower" << 2;
    }

    void subCategoryTemplates()
    {
        if (m_officeMissing)
            QSKIP("LibreOffice isn't installed: this test makes real Office templates");
        QFETCH(QString, button);
        QFETCH(int, kind);
        Fixture fx(m_templatePaths);
        ScriptedOfficeSuite scripted;
        QStringList own;
        for (const QString& path : std::as_const(m_templatePaths)) {
            own << QFileInfo(path).dir().filePath("Sub" + QFileInfo(path).fileName());
            QFile::copy(path, own.last());
        }
        fx.reg.exec(QString("UPDATE tbl_Sub_Categories SET SubDokTemplates='%1', SubDokTemplatesExel='%2', "
                            "SubDokTemplatesPowPoint='%3' WHERE SubKategID=%4")
                        .arg(own[0], own[1], own[2])
                        .arg(fx.lease));
        selection().currentSubCategoryId = fx.lease;
        Dialog d;
        d.type(4, "Yard");
        d.click(qPrintable(button));
        QCOMPARE(scripted.made.size(), 1);
        QCOMPARE(scripted.made.first().templatePath, kind == 2 ? QString() : own[kind]);
        QVERIFY(fx.prompter.prompts().isEmpty());
    }

    // While the file is made the dialog's buttons are off, so that a click in the window
    // (which keeps painting) starts no second file and doesn't close the dialog; after it
    // they are on again.
    void buttonsRestWhileTheFileIsMade()
    {
        Fixture fx(m_templatePaths);
        ScriptedOfficeSuite scripted;
        Dialog d;
        const QStringList names
            = {"cmdWord", "cmdExcel", "cmdPower", "cmdAddExisting", "cmdScan", "cmdOK", "cmdCancel"};
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

    // Closing without OK after a creating button made the file asks first; Yes deletes the
    // file and stores nothing, No keeps the dialog and the file for OK. A file attached with
    // Add Existing is the user's own: no question, and it stays.
    void closingTakesBackTheMadeFile_data()
    {
        QTest::addColumn<QString>("close");
        QTest::addColumn<bool>("made");
        QTest::addColumn<int>("answer");
        QTest::newRow("Esc, Yes") << "Esc" << true << int(MsgBoxResult::Yes);
        QTest::newRow("Esc, No") << "Esc" << true << int(MsgBoxResult::No);
        QTest::newRow("Cancel, Yes") << "Cancel" << true << int(MsgBoxResult::Yes);
        QTest::newRow("window closed, No") << "close" << true << int(MsgBoxResult::No);
        QTest::newRow("attached, Esc") << "Esc" << false << 0;
    }

    void closingTakesBackTheMadeFile()
    {
        QFETCH(QString, close);
        QFETCH(bool, made);
        QFETCH(int, answer);
        Fixture fx;
        ScriptedOfficeSuite scripted;
        const QString other = fx.files.filePath("other.pdf");
        QFile(other).open(QIODevice::WriteOnly);
        Dialog d;
        d.type(4, "Yard");
        QString path = other;
        if (made) {
            d.click("cmdWord");
            QCOMPARE(scripted.made.size(), 1);
            path = scripted.made.first().target;
        } else {
            fx.prompter.answerFile(other);
            d.click("cmdAddExisting");
        }
        QCOMPARE(d.box(5)->text(), path);
        QVERIFY(QFile::exists(path));
        if (answer)
            fx.prompter.answer(answer);
        if (close == "Esc")
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
        else if (close == "Cancel")
            d.click("cmdCancel");
        else
            d.dialog.close();
        QVERIFY(fx.prompter.allAnswered());
        const auto prompts = fx.prompter.take();
        QCOMPARE(prompts.size(), answer ? 1 : 0);
        if (answer) {
            QCOMPARE(prompts[0].text,
                "Discard the new document and delete the file \"" + path + "\" made for it?");
            QCOMPARE(prompts[0].title, "New Document");
            QCOMPARE(prompts[0].style, MsgBoxStyle::YesNo | MsgBoxStyle::Question);
        }
        const bool kept = answer == MsgBoxResult::No;
        QCOMPARE(d.dialog.isVisible(), kept);
        QCOMPARE(QFile::exists(path), kept || !made);
        QVERIFY(QFile::exists(other));
        QCOMPARE(fx.documents(), 0);
        QCOMPARE(getRegValue("TodayNumber"), "1");
        if (!kept)
            return;
        d.click("cmdOK");
        QVERIFY(!d.dialog.isVisible());
        QCOMPARE(fx.stored("RastoKel").toString(), path);
        QVERIFY(QFile::exists(path));
    }

    // Opened from the root of the tree, or with an index that can't be proposed: the dialog
    // opens with its dates, direction and grid, the index where one can be made, and choosing
    // a category then proposes anew. "D" stands for today's date in the index.
    void opensWithoutCategory_data()
    {
        QTest::addColumn<bool>("goneCategory");
        QTest::addColumn<QString>("option");
        QTest::addColumn<QString>("value");
        QTest::addColumn<QString>("indexAtOpen");
        QTest::addColumn<QString>("indexAfterChoice");
        QTest::newRow("root") << false << QString() << QString() << "D/1"
                              << "AGR-D/1";
        QTest::newRow("root, AutoRegIndex off") << false << "AutoRegIndex"
                                                << "0" << QString() << QString();
        QTest::newRow("category deleted meanwhile")
            << true << QString() << QString() << QString() << "AGR-D/1";
        QTest::newRow("Date unreadable") << false << "Date"
                                         << "yesterday" << QString() << QString();
    }

    void opensWithoutCategory()
    {
        QFETCH(bool, goneCategory);
        QFETCH(QString, option);
        QFETCH(QString, value);
        QFETCH(QString, indexAtOpen);
        QFETCH(QString, indexAfterChoice);
        Fixture fx;
        selection().currentCategoryId = goneCategory ? 999 : 0;
        if (!option.isEmpty())
            setRegValue(option, value);
        const QString date = today("yyyyMMdd");
        Dialog d;
        QVERIFY(d.dialog.indexProposed());
        QCOMPARE(d.box(3)->text(), indexAtOpen.replace("D", date));
        const QString todayText = QLocale::system().toString(QDate::currentDate(), QLocale::ShortFormat);
        QCOMPARE(d.box(1)->text(), todayText);
        QCOMPARE(d.box(2)->text(), todayText);
        QVERIFY(d.dialog.findChild<QRadioButton*>("Option_1")->isChecked());
        QCOMPARE(d.grid()->model()->headerData(1, Qt::Horizontal).toString(), "Date");
        QVERIFY(d.grid()->isColumnHidden(0));

        d.choose("cmbCategory", 'C');
        QCOMPARE(d.combo("cmbCategory")->currentText(), "Contracts");
        QCOMPARE(d.combo("cmbSubCategory")->count(), 1);
        QCOMPARE(d.box(3)->text(), indexAfterChoice.replace("D", date));
        d.click("cmdOK");
        QCOMPARE(fx.documents(), 1);
        QCOMPARE(fx.stored("KategID").toInt(), fx.contracts);
        QCOMPARE(fx.stored("KryptisID").toInt(), 1);
        QCOMPARE(fx.stored("DokRegistracData").toDate(), QDate::currentDate());
        QCOMPARE(fx.stored("DokRegistracIndeksas").toString(), indexAfterChoice);
    }
};

QTEST_MAIN(NewDocumentTest)
#include "tst_new_document.moc"
