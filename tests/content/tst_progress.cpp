#include "TestFiles.h"
#include "content/ReadingQueue.h"
#include "content/TextIndexer.h"
#include "explorer/ContentProgress.h"
#include "explorer/MainWindow.h"
#include "harness/ScriptedPrompter.h"
#include "harness/TestRegister.h"
#include "registration/DocumentDetailsDialog.h"
#include "store/engine/Connection.h"

#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QProcess>
#include <QSignalSpy>
#include <QStatusBar>
#include <QTemporaryDir>
#include <QTest>

using namespace kartella;
using namespace kartella::test;

namespace {

qint32 addDocument(const TestRegister& reg, const QString& path)
{
    return reg.insert(QStringLiteral("tbl_Documents"),
        {{QStringLiteral("DokAntraste"), QStringLiteral("Dokumentas")}, {QStringLiteral("RastoKel"), path},
            {QStringLiteral("DokRegistracData"), QDate(2024, 5, 20)}, {QStringLiteral("KryptisID"), 1}});
}

} // namespace

class ProgressTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void statusBarShowsTheFilesBeingRead();
    void mainWindowReadsTheFilesOfTheRegisterItOpens();
    void aDocumentDialogHasItsFileReadAtOnce();
    void detailsTellWhetherTheFileWasRead();
    void toolIndexesWithAProgressLineAndASummary();
};

void ProgressTest::statusBarShowsTheFilesBeingRead()
{
    TestRegister reg;
    for (int i = 0; i < 3; ++i) {
        const QString path = reg.dir() + QStringLiteral("/note%1.txt").arg(i);
        writeBytes(path, "Pastaba " + QByteArray::number(i));
        addDocument(reg, path);
    }
    QMainWindow window;
    ContentProgress progress(&window);
    auto* panel = window.statusBar()->findChild<QLabel*>(QStringLiteral("pnReadingFiles"));
    QVERIFY(panel);
    QStringList shown;
    connect(&progress.queue(), &ReadingQueue::progress, this,
        [&] { shown << (panel->isVisibleTo(&window) ? panel->text() : QString()); });
    QSignalSpy finished(&progress.queue(), &ReadingQueue::finished);
    progress.start(reg.path());
    QVERIFY(finished.wait(20000));
    QCOMPARE(shown,
        (QStringList {"Reading files: 0 of 3", "Reading files: 1 of 3", "Reading files: 2 of 3", QString()}));
    QVERIFY(!panel->isVisibleTo(&window));
    QCOMPARE(reg.scalar(QStringLiteral("SELECT COUNT(*) FROM tbl_Document_Text WHERE State=1")).toInt(), 3);
}

void ProgressTest::mainWindowReadsTheFilesOfTheRegisterItOpens()
{
    TestRegister reg;
    writeBytes(reg.dir() + QStringLiteral("/note.txt"), "Pastaba apie \xC5\xA0iaulius");
    const qint32 id = addDocument(reg, reg.dir() + QStringLiteral("/note.txt"));
    ScriptedPrompter prompter;
    MainWindow window;
    window.show();
    window.load();
    QVERIFY(window.statusBar()->findChild<QLabel*>(QStringLiteral("pnReadingFiles")));
    QTRY_COMPARE_WITH_TIMEOUT(reg.scalar(QStringLiteral("SELECT Body FROM tbl_Document_Text WHERE RastasID=")
                                  + QString::number(id)),
        QVariant(QStringLiteral("Pastaba apie Šiaulius")), 10000);
}

// A file that a document dialog named is read when the dialog closes, not at the next rescan
// half a minute later.
void ProgressTest::aDocumentDialogHasItsFileReadAtOnce()
{
    TestRegister reg;
    ScriptedPrompter prompter;
    MainWindow window;
    window.show();
    window.load();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    writeBytes(reg.dir() + QStringLiteral("/new.txt"), "Nauja nuomos sutartis");
    qint32 id = 0;
    // The New Document dialog, as it stores a document with its file.
    window.setDialog(QStringLiteral("frmNewDocument"),
        [&](const QString&) { id = addDocument(reg, reg.dir() + QStringLiteral("/new.txt")); });
    QTest::keyClick(&window, Qt::Key_N, Qt::ControlModifier);
    QVERIFY(id > 0);
    QTRY_COMPARE_WITH_TIMEOUT(reg.scalar(QStringLiteral("SELECT Body FROM tbl_Document_Text WHERE RastasID=")
                                  + QString::number(id)),
        QVariant(QStringLiteral("Nauja nuomos sutartis")), 5000);
}

void ProgressTest::detailsTellWhetherTheFileWasRead()
{
    TestRegister reg;
    writePdf(reg.dir() + QStringLiteral("/read.pdf"), {QStringLiteral("Sutartis")});
    writeBytes(reg.dir() + QStringLiteral("/broken.pdf"), "%PDF-1.4 cut");
    writeImagePdf(reg.dir() + QStringLiteral("/scan.pdf"));
    const qint32 read = addDocument(reg, reg.dir() + QStringLiteral("/read.pdf"));
    const qint32 broken = addDocument(reg, reg.dir() + QStringLiteral("/broken.pdf"));
    const qint32 scan = addDocument(reg, reg.dir() + QStringLiteral("/scan.pdf"));
    {
        Connection connection(reg.connectionString());
        connection.open();
        TextIndexer(connection, 1024 * 1024).run();
    }
    const qint32 later = addDocument(reg, reg.dir() + QStringLiteral("/read.pdf"));
    for (const auto& [id, expected] : {std::pair {read, "Read"}, std::pair {broken, "Not read: damaged"},
             std::pair {scan, "Needs text recognition (a scanned PDF)"}, std::pair {later, "Not read yet"}}) {
        DocumentDetailsDialog dialog(id);
        auto* status = dialog.findChild<QLineEdit*>(QStringLiteral("txtFileText"));
        QVERIFY(status);
        QCOMPARE(status->text(), QString::fromUtf8(expected));
        QVERIFY(status->isReadOnly());
        const QList<QLabel*> labels = dialog.findChildren<QLabel*>();
        QVERIFY(std::any_of(
            labels.cbegin(), labels.cend(), [status](QLabel* label) { return label->buddy() == status; }));
    }
}

void ProgressTest::toolIndexesWithAProgressLineAndASummary()
{
    TestRegister reg;
    writeBytes(reg.dir() + QStringLiteral("/a.txt"), "Alfa");
    writeBytes(reg.dir() + QStringLiteral("/b.pdf"), "not a pdf");
    addDocument(reg, reg.dir() + QStringLiteral("/a.txt"));
    addDocument(reg, reg.dir() + QStringLiteral("/b.pdf"));
    addDocument(reg, reg.dir() + QStringLiteral("/missing.doc"));
    for (const auto& [summary, progress] :
        {std::pair {"Files read: 1\nUnchanged since last read: 0\nNo text in their kind: 0\n"
                    "Needing OCR (PDF without text): 0\nNot read: 2\n  damaged: 1\n  file not found: 1\n",
             "\rReading files: 0 of 3"},
            std::pair {"Files read: 0\nUnchanged since last read: 3\nNo text in their kind: 0\n"
                       "Needing OCR (PDF without text): 0\nNot read: 0\n",
                "\rReading files: 0 of 0"}}) {
        QProcess tool;
        tool.start(QStringLiteral(KARTELLA_DB_PATH), {QStringLiteral("index"), reg.path()});
        QVERIFY(tool.waitForFinished(60000));
        QCOMPARE(tool.exitCode(), 0);
        QCOMPARE(QString::fromUtf8(tool.readAllStandardOutput()), QString::fromUtf8(summary));
        QVERIFY(QString::fromUtf8(tool.readAllStandardError()).startsWith(QString::fromUtf8(progress)));
    }
}

int runProgressTest(int argc, char** argv)
{
    ProgressTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_progress.moc"
