// The main window offers to upgrade a register of an earlier version when it opens it.
#include "explorer/ListModel.h"
#include "explorer/MainWindow.h"
#include "explorer/NavigationTree.h"
#include "explorer/RegisterUpgradeOffer.h"
#include "harness/OldRegister.h"
#include "harness/ScriptedPrompter.h"
#include "harness/TestRegister.h"
#include "options/OptionStore.h"
#include "store/SchemaSteps.h"
#include "store/Store.h"
#include "store/engine/Connection.h"
#include "store/engine/Recordset.h"

#include <QFile>
#include <QGuiApplication>
#include <QTest>
#include <QTreeWidgetItem>

using namespace kartella;
using namespace kartella::test;

namespace {

int versionOf(const QString& path)
{
    Connection connection(plainConnectionString(QStringLiteral("Microsoft.Jet.OLEDB.4.0"), path));
    connection.open();
    return schemaVersion(connection);
}

QStringList nodeTexts(MainWindow& window)
{
    QStringList texts;
    for (int i = 1; i <= window.tree()->nodeCount(); ++i)
        texts << window.tree()->nodeByIndex(i)->text(0);
    return texts;
}

} // namespace

class UpgradeOfferTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void yesUpgradesAndOpens()
    {
        TestRegister reg; // the options and a folder of its own
        const QString path = reg.dir() + "/Senas.mdb";
        makeOldRegister(path);
        setRegValue("DbLocation", path);
        ScriptedPrompter prompter;
        prompter.answer(MsgBoxResult::Yes);
        MainWindow w;
        int settingsOpened = 0;
        w.openSettings = [&] { ++settingsOpened; };
        w.show();
        w.load();

        QCOMPARE(prompter.prompts().size(), 1);
        const auto prompt = prompter.prompts().first();
        QCOMPARE(prompt.style, MsgBoxStyle::YesNo + MsgBoxStyle::Question);
        QVERIFY(prompt.text.contains(path));
        QCOMPARE(versionOf(path), newestSchemaVersion());
        QCOMPARE(settingsOpened, 0);
        // The tree orders the categories by name as before: Ą among the A names.
        QStringList categories;
        for (const QString& text : nodeTexts(w)) {
            if (text == "Zita" || text == "bylos" || text == QString::fromUtf8("Ąžuolynas"))
                categories << text;
        }
        QCOMPARE(categories, QStringList({QString::fromUtf8("Ąžuolynas"), "bylos", "Zita"}));
        QVERIFY(!registerNeedsUpgrade(path));
    }

    void noCountsAsAnUnusableRegister()
    {
        TestRegister reg;
        const QString path = reg.dir() + "/Senas.mdb";
        makeOldRegister(path);
        QFile file(path);
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QByteArray before = file.readAll();
        file.close();
        setRegValue("DbLocation", path);
        ScriptedPrompter prompter;
        prompter.answer(MsgBoxResult::No).answer(MsgBoxResult::Ok);
        MainWindow w;
        int settingsOpened = 0;
        w.openSettings = [&] { ++settingsOpened; };
        w.show();
        w.load();

        QCOMPARE(prompter.prompts().size(), 2);
        const auto report = prompter.prompts().at(1);
        QCOMPARE(report.title, QString("Connection to database error:"));
        QCOMPARE(report.style, MsgBoxStyle::OkOnly + MsgBoxStyle::Critical);
        QVERIFY(report.text.startsWith("Error: -2147467259 "));
        QVERIFY(report.text.contains(path));
        QCOMPARE(settingsOpened, 1);
        QCOMPARE(w.tree()->nodeCount(), 0);
        QCOMPARE(w.documentModel()->itemCount(), 0);
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(file.readAll(), before);
        QCOMPARE(getRegValue("DbLocation"), path);
    }

    // A register file that can't be read is left to the first fill to report; a server
    // that can't be reached is reported by the offer itself, so that the start doesn't
    // wait for it again at every fill. No question either way.
    void unopenedRegisterWithoutQuestion_data()
    {
        QTest::addColumn<QString>("location"); // relative to the test's folder, or a server
        QTest::addColumn<bool>("reported");
        QTest::newRow("missing file") << "nowhere/Kartella.mdb" << false;
        QTest::newRow("file that is no register") << "Junk.mdb" << false;
        QTest::newRow("unreachable server") << "postgresql://nobody@127.0.0.1:1/none" << true;
        QTest::newRow("unreachable server, postgres://") << "postgres://nobody@127.0.0.1:1/none" << true;
    }

    void unopenedRegisterWithoutQuestion()
    {
        QFETCH(QString, location);
        QFETCH(bool, reported);
        TestRegister reg;
        if (!isServerLocation(location)) {
            location = reg.dir() + "/" + location;
            QFile junk(reg.dir() + "/Junk.mdb");
            QVERIFY(junk.open(QIODevice::WriteOnly));
            junk.write("not a register");
        }
        ScriptedPrompter prompter; // fails on any prompt
        const std::optional<Error> refused = offerRegisterUpgrade(location);
        QCOMPARE(refused.has_value(), reported);
        if (refused)
            QCOMPARE(refused->number(), ErrorNumber::ConnectionFailed);
        QVERIFY(!QGuiApplication::overrideCursor());
    }

    void currentRegisterOpensWithoutQuestion()
    {
        TestRegister reg;
        ScriptedPrompter prompter; // fails on any prompt
        MainWindow w;
        w.show();
        w.load();
        QVERIFY(prompter.prompts().isEmpty());
        QVERIFY(w.tree()->nodeCount() > 0);
    }
};

QTEST_MAIN(UpgradeOfferTest)
#include "tst_upgrade_offer.moc"
