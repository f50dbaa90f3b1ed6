#include "dialogs/AboutDialog.h"
#include "dialogs/SystemInfo.h"
#include "harness/ScriptedPrompter.h"

#include <QFile>
#include <QLabel>
#include <QPushButton>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

using namespace kartella;
using namespace kartella::test;

class AboutTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aboutBox()
    {
        ScriptedPrompter prompter;
        AboutDialog about;
        about.show();
        QCOMPARE(about.windowTitle(), "About Kartella");
        QCOMPARE(about.findChild<QLabel*>("lblTitle")->text(), "Kartella");
        QVERIFY(QRegularExpression("^Version \\d+\\.\\d+\\.\\d+$")
                    .match(about.findChild<QLabel*>("lblVersion")->text())
                    .hasMatch());
        QCOMPARE(about.findChild<QLabel*>("lblVersion")->text(), programVersionLine());
        QCOMPARE(about.findChild<QLabel*>("lblDescription")->text(),
            "The Documents Management Application for single users and small workgroups.");
        prompter.answer(MsgBoxResult::Ok);
        auto* sysInfo = about.findChild<QPushButton*>("cmdSysInfo");
        sysInfo->setFocus();
        QTest::keyClick(sysInfo, Qt::Key_Space);
        QCOMPARE(prompter.prompts().size(), 1);
        QCOMPARE(prompter.prompts().first().text, "System Information Is Unavailable At This Time");
        QCOMPARE(prompter.prompts().first().style, MsgBoxStyle::OkOnly);
        QCOMPARE(prompter.prompts().first().title, "Kartella");
        QVERIFY(about.isVisible());
        QTest::keyClick(&about, Qt::Key_Return);
        QVERIFY(!about.isVisible());
    }

    // Where the tool is found: the first key names it; the second names its folder, and
    // counts only when the file is there.
    void systemInfoTool_data()
    {
        QTest::addColumn<bool>("firstKey");
        QTest::addColumn<bool>("secondKey");
        QTest::addColumn<bool>("fileThere");
        QTest::addColumn<QString>("found"); // "path", "folder", or empty
        QTest::newRow("neither key") << false << false << false << "";
        QTest::newRow("first key") << true << false << false << "path";
        QTest::newRow("both keys") << true << true << true << "path";
        QTest::newRow("second key, tool there") << false << true << true << "folder";
        QTest::newRow("second key, tool gone") << false << true << false << "";
    }

    void systemInfoTool()
    {
        QFETCH(bool, firstKey);
        QFETCH(bool, secondKey);
        QFETCH(bool, fileThere);
        QFETCH(QString, found);
        QTemporaryDir folder;
        const QString tool = folder.filePath("MSINFO32.EXE");
        if (fileThere)
            QFile(tool).open(QIODevice::WriteOnly);
        const QString direct = "/opt/tools/msinfo32";
        const auto reader = [&](const QString& key, const QString& name) -> std::optional<QString> {
            if (firstKey && key == "SOFTWARE\\Microsoft\\Shared Tools\\MSINFO" && name == "PATH")
                return direct;
            if (secondKey && key == "SOFTWARE\\Microsoft\\Shared Tools Location" && name == "MSINFO")
                return folder.path();
            return std::nullopt;
        };
        const QString expected = found == "path" ? direct : found == "folder" ? tool : QString();
        QCOMPARE(findSystemInfoTool(reader), expected);
    }
};

QTEST_MAIN(AboutTest)
#include "tst_about.moc"
