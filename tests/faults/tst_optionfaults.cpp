// Saving the settings where the options can't be written (their disk full, their folder
// read-only): the save says so and the files keep every value they had.
#include "dialogs/SettingsStore.h"
#include "faults/TestMounts.h"
#include "harness/ScriptedPrompter.h"
#include "options/FirstRun.h"
#include "options/OptionStore.h"
#include "platform/Prompter.h"

#include <QFile>
#include <QTest>

using namespace kartella;
using namespace kartella::test;

namespace {

QByteArray contentOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(unreadable)");
}

} // namespace

class OptionFaultsTest : public QObject
{
    Q_OBJECT

    QByteArray m_previousConfig;

private Q_SLOTS:
    void init() { m_previousConfig = qgetenv("XDG_CONFIG_HOME"); }
    void cleanup() { qputenv("XDG_CONFIG_HOME", m_previousConfig); }

    void settingsSaveKeepsTheOptions_data()
    {
        QTest::addColumn<QString>("fault");
        QTest::newRow("disk full") << "disk full";
        QTest::newRow("read-only folder") << "read-only folder";
    }

    void settingsSaveKeepsTheOptions()
    {
        QFETCH(QString, fault);
        SmallDisk disk(512 * 1024);
        if (!disk.isMounted())
            QSKIP(qPrintable(disk.skipReason()));
        qputenv("XDG_CONFIG_HOME", disk.path().toUtf8());
        QVERIFY(seedOptionsIfMissing());
        ConfirmedSettings settings;
        settings.defaultFolder = QStringLiteral("/srv/dokumentai/");
        settings.company = QStringLiteral("UAB Senoji");
        settings.dbLocation = QStringLiteral("/srv/registras/Senas.mdb");
        QVERIFY(writeConfirmedSettings(settings));
        const QByteArray ini = contentOf(iniFilePath());
        const QByteArray options = contentOf(optionsFilePath());

        ScriptedPrompter prompter;
        std::unique_ptr<ReadOnlyFolder> readOnly;
        if (fault == "disk full") {
            disk.leaveFree(0);
        } else {
            readOnly = std::make_unique<ReadOnlyFolder>(disk.path());
            if (!readOnly->isMounted())
                QSKIP(qPrintable(readOnly->skipReason()));
        }
        // Values long enough to need a block more than the files have.
        settings.defaultFolder = QString(3000, u'ž');
        settings.company = QStringLiteral("UAB Naujoji");
        settings.dbLocation = QStringLiteral("/srv/registras/Naujas.mdb");
        QVERIFY(!writeConfirmedSettings(settings));
        QVERIFY2(prompter.prompts().isEmpty(), qPrintable(prompter.texts().join('\n')));
        QCOMPARE(contentOf(iniFilePath()), ini);
        QCOMPARE(contentOf(optionsFilePath()), options);

        // A single option refused: the message, and the old value kept.
        prompter.answer(MsgBoxResult::Ok);
        setRegValue(QStringLiteral("DbLocation"), QString(3000, u'ą'));
        QCOMPARE(prompter.take().size(), 1);
        QCOMPARE(contentOf(optionsFilePath()), options);
        QCOMPARE(getRegValue(QStringLiteral("DbLocation")), QStringLiteral("/srv/registras/Senas.mdb"));

        readOnly.reset();
        disk.leaveFree(-1);
        QVERIFY(writeConfirmedSettings(settings));
        QCOMPARE(getRegValue(QStringLiteral("DbLocation")), QStringLiteral("/srv/registras/Naujas.mdb"));
    }
};

int runOptionFaultsTest(int argc, char** argv)
{
    OptionFaultsTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_optionfaults.moc"
