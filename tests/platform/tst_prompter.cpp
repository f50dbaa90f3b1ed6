#include "harness/ScriptedPrompter.h"
#include "platform/WidgetPrompter.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QMessageBox>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

using namespace kartella;

Q_DECLARE_METATYPE(QMessageBox::Icon)

class PrompterTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void styleMapsToButtonsIconAndDefault_data()
    {
        QTest::addColumn<int>("style");
        QTest::addColumn<QList<int>>("buttons");
        QTest::addColumn<QMessageBox::Icon>("icon");
        QTest::addColumn<int>("defaultResult");
        QTest::addColumn<int>("escapeResult");

        using namespace MsgBoxStyle;
        using namespace MsgBoxResult;
        QTest::newRow("0 OK, no icon") << 0 << QList<int> {Ok} << QMessageBox::NoIcon << Ok << Ok;
        QTest::newRow("1 OK/Cancel") << 1 << QList<int> {Ok, Cancel} << QMessageBox::NoIcon << Ok << Cancel;
        QTest::newRow("3 Yes/No/Cancel")
            << 3 << QList<int> {Yes, No, Cancel} << QMessageBox::NoIcon << Yes << Cancel;
        QTest::newRow("4 Yes/No") << 4 << QList<int> {Yes, No} << QMessageBox::NoIcon << Yes << 0;
        QTest::newRow("16 critical") << 16 << QList<int> {Ok} << QMessageBox::Critical << Ok << Ok;
        QTest::newRow("32 question") << 4 + 32 << QList<int> {Yes, No} << QMessageBox::Question << Yes << 0;
        QTest::newRow("48 exclamation") << 48 << QList<int> {Ok} << QMessageBox::Warning << Ok << Ok;
        QTest::newRow("64 information") << 64 << QList<int> {Ok} << QMessageBox::Information << Ok << Ok;
        QTest::newRow("1+16+256 Cancel default")
            << 1 + 16 + 256 << QList<int> {Ok, Cancel} << QMessageBox::Critical << Cancel << Cancel;
        QTest::newRow("3+48+256 No default")
            << 3 + 48 + 256 << QList<int> {Yes, No, Cancel} << QMessageBox::Warning << No << Cancel;
        QTest::newRow("4+256 No default")
            << 4 + 256 << QList<int> {Yes, No} << QMessageBox::NoIcon << No << 0;
    }

    void styleMapsToButtonsIconAndDefault()
    {
        QFETCH(int, style);
        QFETCH(QList<int>, buttons);
        QFETCH(QMessageBox::Icon, icon);
        QFETCH(int, defaultResult);
        QFETCH(int, escapeResult);

        const auto box = buildMessageBox("Question?", style, {});
        QCOMPARE(box->windowTitle(), QString("Kartella"));
        QCOMPARE(box->icon(), icon);
        QList<int> shown;
        for (QAbstractButton* button : box->buttons())
            shown << button->property("msgBoxResult").toInt();
        std::sort(shown.begin(), shown.end());
        QList<int> sorted = buttons;
        std::sort(sorted.begin(), sorted.end());
        QCOMPARE(shown, sorted);
        QVERIFY(box->defaultButton());
        QCOMPARE(box->defaultButton()->property("msgBoxResult").toInt(), defaultResult);
        if (escapeResult)
            QCOMPARE(box->escapeButton()->property("msgBoxResult").toInt(), escapeResult);
        else
            QVERIFY(!box->escapeButton());
    }

    void execReturnsTheButtonPressed_data()
    {
        QTest::addColumn<int>("style");
        QTest::addColumn<int>("press");
        QTest::newRow("OK") << 0 << int(MsgBoxResult::Ok);
        QTest::newRow("Cancel of OK/Cancel") << 1 << int(MsgBoxResult::Cancel);
        QTest::newRow("No of Yes/No/Cancel") << 3 << int(MsgBoxResult::No);
        QTest::newRow("Yes of Yes/No") << 4 + 32 << int(MsgBoxResult::Yes);
        QTest::newRow("Enter takes the second default") << 4 + 256 << 0;
        QTest::newRow("Esc gives Cancel") << 3 << -1;
    }

    void execReturnsTheButtonPressed()
    {
        QFETCH(int, style);
        QFETCH(int, press);
        WidgetPrompter prompter;
        QTimer::singleShot(0, this, [press] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            QVERIFY(box);
            if (press > 0) {
                for (QAbstractButton* button : box->buttons()) {
                    if (button->property("msgBoxResult").toInt() == press)
                        button->click();
                }
            } else {
                QTest::keyClick(box, press == 0 ? Qt::Key_Return : Qt::Key_Escape);
            }
        });
        const int result = prompter.msgBox("Line one\rLine two", style, "Own title");
        const int expected = press > 0 ? press
            : press == 0               ? defaultResult(style)
                                       : int(MsgBoxResult::Cancel);
        QCOMPARE(result, expected);
    }

    // A choice shows its own button texts in order; Enter takes the first, Esc the last.
    void choiceButtonsCarryTheirTexts_data()
    {
        QTest::addColumn<int>("press"); // a button's index, or -1 Enter, -2 Esc
        QTest::addColumn<int>("expected");
        QTest::newRow("the second") << 1 << 1;
        QTest::newRow("the third") << 2 << 2;
        QTest::newRow("Enter") << -1 << 0;
        QTest::newRow("Esc") << -2 << 2;
    }

    void choiceButtonsCarryTheirTexts()
    {
        QFETCH(int, press);
        QFETCH(int, expected);
        WidgetPrompter prompter;
        QStringList shown;
        QMessageBox::Icon icon = QMessageBox::NoIcon;
        QTimer::singleShot(0, this, [&shown, &icon, press] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            QVERIFY(box);
            icon = box->icon();
            const QList<QAbstractButton*> buttons = box->buttons();
            for (QAbstractButton* button : buttons)
                shown << button->text();
            if (press >= 0)
                QTest::mouseClick(buttons.at(press), Qt::LeftButton);
            else
                QTest::keyClick(box, press == -1 ? Qt::Key_Return : Qt::Key_Escape);
        });
        const QStringList choices = {"Try Again", "Choose Another...", "Open Settings"};
        QCOMPARE(prompter.choose("Where is it?", choices, MsgBoxStyle::Exclamation, "Own title"), expected);
        QCOMPARE(shown, choices);
        QCOMPARE(icon, QMessageBox::Warning);
    }

    // A prompter of the standard buttons only asks a choice as Yes, No and Cancel.
    void choiceOfStandardButtons_data()
    {
        QTest::addColumn<int>("answer");
        QTest::addColumn<int>("expected");
        QTest::newRow("Yes") << int(MsgBoxResult::Yes) << 0;
        QTest::newRow("No") << int(MsgBoxResult::No) << 1;
        QTest::newRow("Cancel") << int(MsgBoxResult::Cancel) << 2;
    }

    void choiceOfStandardButtons()
    {
        QFETCH(int, answer);
        QFETCH(int, expected);
        test::ScriptedPrompter prompter;
        prompter.answer(answer);
        QCOMPARE(prompter.choose("Which?", {"a", "b", "c"}, MsgBoxStyle::Question, "T"), expected);
        QCOMPARE(prompter.prompts().first().style, MsgBoxStyle::YesNoCancel + MsgBoxStyle::Question);
    }

    void carriageReturnBreaksTheLine()
    {
        const auto box = buildMessageBox("Error: 1 x\rSelect correct database type and file, please!", 16,
            "Connection to database error:");
        QCOMPARE(box->text(), QString("Error: 1 x\nSelect correct database type and file, please!"));
        QCOMPARE(box->windowTitle(), QString("Connection to database error:"));
    }

    void fileDialogFilters_data()
    {
        QTest::addColumn<QString>("label");
        QTest::addColumn<QString>("pattern");
        QTest::addColumn<QString>("filter");
        QTest::newRow("all files") << "All files (*.*)"
                                   << "*.*"
                                   << "All files (*)";
        QTest::newRow("templates") << "Word templates (*.dot)"
                                   << "*.dot"
                                   << "Word templates (*.dot)";
        QTest::newRow("trailing blanks") << "Access databases (*.mdb)  "
                                         << "*.mdb  "
                                         << "Access databases (*.mdb)";
        QTest::newRow("bare label") << "Documents"
                                    << "*.doc;*.xls"
                                    << "Documents (*.doc *.xls)";
    }

    void fileDialogFilters()
    {
        QFETCH(QString, label);
        QFETCH(QString, pattern);
        QFETCH(QString, filter);
        QCOMPARE(fileDialogFilter(label, pattern), filter);
    }

    void folderChooserStartsInTheHomeFolder()
    {
        // The program's current folder is elsewhere; the chooser still starts at home.
        QTemporaryDir elsewhere;
        const QString before = QDir::currentPath();
        QVERIFY(QDir::setCurrent(elsewhere.path()));
        QString shownFolder;
        QString shownTitle;
        QTimer::singleShot(0, this, [&] {
            auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
            QVERIFY(dialog);
            shownFolder = dialog->directory().absolutePath();
            shownTitle = dialog->windowTitle();
            dialog->reject();
        });
        const QString chosen = WidgetPrompter().chooseFolder("Select Folder");
        QDir::setCurrent(before);
        QCOMPARE(chosen, QString());
        QCOMPARE(shownTitle, QString("Select Folder"));
        QCOMPARE(shownFolder, QDir(QDir::homePath()).absolutePath());
    }

    void scriptedPrompterRecordsAndAnswers()
    {
        test::ScriptedPrompter scripted;
        scripted.answer(MsgBoxResult::No).answerFile("/tmp/a.doc").answerFolder("");
        QCOMPARE(msgBox("Delete?", 4 + 32, "Confirm Deletion"), int(MsgBoxResult::No));
        QCOMPARE(Prompter::instance().openFile({"Select Document", "/tmp", "All files (*.*)", "*.*"}),
            QString("/tmp/a.doc"));
        QCOMPARE(Prompter::instance().chooseFolder("Pick"), QString());
        QCOMPARE(scripted.prompts().size(), 1);
        QCOMPARE(scripted.prompts().first().title, QString("Confirm Deletion"));
        QCOMPARE(scripted.prompts().first().style, 36);
        QCOMPARE(scripted.fileRequests.first().title, QString("Select Document"));
        QVERIFY(scripted.allAnswered());
    }
};

QTEST_MAIN(PrompterTest)
#include "tst_prompter.moc"
