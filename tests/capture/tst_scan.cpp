// Scanning through SANE's test backend, and the searchable PDF the pages become.
#include "TestPages.h"
#include "base/Error.h"
#include "capture/PageImages.h"
#include "capture/SaneScanner.h"
#include "capture/ScanDialog.h"
#include "capture/ScanSession.h"
#include "capture/TextRecognition.h"
#include "content/FileText.h"
#include "explorer/ExplorerFixture.h"
#include "explorer/MainWindow.h"
#include "harness/Lithuanian.h"
#include "harness/ScriptedPrompter.h"
#include "history/Versions.h"
#include "options/CaptureOptions.h"
#include "options/OptionStore.h"
#include "options/TrashOptions.h"
#include "platform/Prompter.h"
#include "registration/NewDocumentFixture.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QElapsedTimer>
#include <QFile>
#include <QLabel>
#include <QListWidget>
#include <QProcess>
#include <QPushButton>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <functional>

using namespace kartella;
using namespace kartella::test;

namespace {

template<typename Widget>
Widget* child(const QWidget& parent, const char* name)
{
    auto* widget = parent.findChild<Widget*>(QString::fromLatin1(name));
    if (!widget)
        qFatal("no widget %s", name);
    return widget;
}

void click(const QWidget& dialog, const char* button)
{
    QPushButton* pushButton = child<QPushButton>(dialog, button);
    QVERIFY2(pushButton->isEnabled(), button);
    QTest::mouseClick(pushButton, Qt::LeftButton);
}

int pageCountOf(const QWidget& dialog)
{
    return child<QListWidget>(dialog, "lstPages")->count();
}

// Waits for the test scanner to be found and opened, then picks the source and resolution.
void waitForScanner(const QWidget& dialog, const QString& source = QStringLiteral("Flatbed"), int dpi = 75)
{
    QTRY_VERIFY_WITH_TIMEOUT(child<QPushButton>(dialog, "cmdScanPage")->isEnabled(), 10000);
    QCOMPARE(child<QComboBox>(dialog, "cboScanner")->currentData().toString(), QStringLiteral("test:0"));
    auto* sources = child<QComboBox>(dialog, "cboSource");
    QVERIFY2(sources->findText(source) >= 0, qPrintable(source));
    sources->setCurrentIndex(sources->findText(source));
    auto* resolutions = child<QComboBox>(dialog, "cboResolution");
    QVERIFY(resolutions->findData(dpi) >= 0);
    resolutions->setCurrentIndex(resolutions->findData(dpi));
}

// Scan Page, until the page is listed as the count-th and the scanner is free again.
void scanPage(const QWidget& dialog, int count)
{
    click(dialog, "cmdScanPage");
    QTRY_COMPARE_WITH_TIMEOUT(pageCountOf(dialog), count, 10000);
    QTRY_VERIFY(child<QPushButton>(dialog, "cmdScanPage")->isEnabled());
}

// Acts on the scan window once it shows over window. The window runs modal, so a timer the
// test keeps finds it without holding up the events of the dialogs that open it.
void onScanWindow(QTimer& watch, QWidget& window, const std::function<void(ScanDialog&)>& act)
{
    watch.setInterval(10);
    QObject::connect(&watch, &QTimer::timeout, &window, [&watch, &window, act] {
        ScanDialog* scan = window.findChild<ScanDialog*>();
        if (!scan || !scan->isVisible())
            return;
        watch.stop();
        act(*scan);
    });
    watch.start();
}

} // namespace

class ScanTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void missingSaneOrScannerNamesThePackage_data();
    void missingSaneOrScannerNamesThePackage();
    void pagesArriveAndBecomeOnePdf();
    void feederScansEverySheetAndCancelKeepsNothing();
    void cancelStopsTheScannerInTheMiddleOfAPage();
    void scannerFailingMidPageKeepsEarlierPages();
    void scanningProcessGoneIsToldAndPagesKept();
    void scannerSendingNothingIsStoppedAndPagesKept();
    void searchablePdfHoldsThePagesAndTheirWords();
    void scanButtonAttachesThePdfNamedAsTheCategoryNames();
    void scanNewDocumentOpensTheScanOverNewDocument();
    void scanNewVersionReplacesOnlyAPdf();
    void scanWindowInLithuanian();

private:
    void writeBackends(const QByteArray& backends);

    QTemporaryDir m_config;
    QTemporaryDir m_files;
};

void ScanTest::writeBackends(const QByteArray& backends)
{
    QFile file(m_config.filePath(QStringLiteral("dll.conf")));
    QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
    file.write(backends);
}

void ScanTest::initTestCase()
{
    // SANE reads its configuration folder once, at the first start.
    writeBackends("");
    qputenv("SANE_CONFIG_DIR", QFile::encodeName(m_config.path()));
    ScanSession::setScanningProgram(QStringLiteral(KARTELLA_SCANNER_PROGRAM));
}

void ScanTest::missingSaneOrScannerNamesThePackage_data()
{
    QTest::addColumn<QString>("library");
    QTest::addColumn<QString>("package");
    // In this order: SANE keeps the library it loaded.
    QTest::newRow("SANE not installed") << "libsane-not-installed.so.1"
                                        << "libsane1";
    QTest::newRow("no scanner") << "libsane.so.1"
                                << "sane-utils";
}

void ScanTest::missingSaneOrScannerNamesThePackage()
{
    QFETCH(QString, library);
    QFETCH(QString, package);
    SaneScanner::setLibraryName(library);
    ScriptedPrompter prompter;
    prompter.answer(MsgBoxResult::Ok);
    ScanDialog dialog([] { return QString(); });
    dialog.show();
    QTRY_COMPARE_WITH_TIMEOUT(prompter.prompts().size(), 1, 10000);
    QVERIFY2(prompter.texts().value(0).contains(package), qPrintable(prompter.texts().value(0)));
    QCOMPARE(child<QLabel>(dialog, "lblStatus")->text(), prompter.texts().value(0));
    for (const char* name : {"cmdScanPage", "cmdScanFeeder", "cmdDone"})
        QVERIFY2(!child<QPushButton>(dialog, name)->isEnabled(), name);
    click(dialog, "cmdCancel");
    QCOMPARE(dialog.result(), int(QDialog::Rejected));
}

void ScanTest::pagesArriveAndBecomeOnePdf()
{
    writeBackends("test\n");
    ScriptedPrompter prompter;
    const QString path = m_files.filePath(QStringLiteral("AGR00001.pdf"));
    int asked = 0;
    ScanDialog dialog([&] {
        ++asked;
        return path;
    });
    dialog.show();
    waitForScanner(dialog);

    // 80 by 100 mm, the test scanner's page, at 75 dpi.
    const QSize page(236, 295);
    scanPage(dialog, 1);
    scanPage(dialog, 2);
    QCOMPARE(dialog.pages().at(0).size(), page);
    QCOMPARE(pageResolution(dialog.pages().at(0), 0), 75);

    auto* list = child<QListWidget>(dialog, "lstPages");
    list->setCurrentRow(0);
    click(dialog, "cmdRotate");
    QCOMPARE(dialog.pages().at(0).size(), page.transposed());
    QCOMPARE(dialog.pages().at(1).size(), page);
    click(dialog, "cmdRescan");
    QTRY_VERIFY_WITH_TIMEOUT(child<QPushButton>(dialog, "cmdScanPage")->isEnabled(), 10000);
    QCOMPARE(pageCountOf(dialog), 2);
    QCOMPARE(dialog.pages().at(0).size(), page);
    list->setCurrentRow(1);
    list->setFocus();
    QTest::keyClick(list, Qt::Key_Delete);
    QCOMPARE(pageCountOf(dialog), 1);
    QCOMPARE(dialog.pages().size(), 1);
    QCOMPARE(list->item(0)->text(), QStringLiteral("Page 1"));

    QCOMPARE(asked, 0);
    click(dialog, "cmdDone");
    QTRY_VERIFY_WITH_TIMEOUT(!dialog.isVisible(), 20000);
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
    QCOMPARE(asked, 1);
    QCOMPARE(dialog.savedPath(), path);
    QCOMPARE(pageCount(path), 1);
    QVERIFY(prompter.prompts().isEmpty());
    // The choices are remembered for the next scan.
    QCOMPARE(scanSettings().device, QStringLiteral("test:0"));
    QCOMPARE(scanSettings().source, QStringLiteral("Flatbed"));
    QCOMPARE(scanSettings().resolution, 75);
}

void ScanTest::feederScansEverySheetAndCancelKeepsNothing()
{
    writeBackends("test\n");
    ScriptedPrompter prompter;
    const QString path = m_files.filePath(QStringLiteral("feeder.pdf"));
    int asked = 0;
    ScanDialog dialog([&] {
        ++asked;
        return path;
    });
    dialog.show();
    waitForScanner(dialog, QStringLiteral("Automatic Document Feeder"), 75);
    click(dialog, "cmdScanFeeder");
    QTRY_VERIFY_WITH_TIMEOUT(child<QPushButton>(dialog, "cmdScanFeeder")->isEnabled(), 20000);
    QCOMPARE(pageCountOf(dialog), 10);
    QVERIFY2(prompter.prompts().isEmpty(), qPrintable(prompter.texts().join(u'\n')));

    click(dialog, "cmdCancel");
    QCOMPARE(dialog.result(), int(QDialog::Rejected));
    QCOMPARE(asked, 0);
    QVERIFY(dialog.pages().isEmpty());
    QVERIFY(!QFile::exists(path));
}

void ScanTest::cancelStopsTheScannerInTheMiddleOfAPage()
{
    writeBackends("test\n");
    ScriptedPrompter prompter;
    int asked = 0;
    auto dialog = std::make_unique<ScanDialog>([&asked] {
        ++asked;
        return QString();
    });
    dialog->show();
    waitForScanner(*dialog, QStringLiteral("Automatic Document Feeder"), 300);
    auto* modes = child<QComboBox>(*dialog, "cboMode");
    modes->setCurrentIndex(modes->findText(QStringLiteral("Color")));
    click(*dialog, "cmdScanFeeder");
    QCOMPARE(child<QLabel>(*dialog, "lblStatus")->text(), QStringLiteral("Scanning..."));
    QVERIFY(!child<QPushButton>(*dialog, "cmdScanFeeder")->isEnabled());

    // Cancel while the feeder runs: the scanner stops within one read and the window goes
    // with nothing kept.
    QElapsedTimer clock;
    clock.start();
    click(*dialog, "cmdCancel");
    QCOMPARE(dialog->result(), int(QDialog::Rejected));
    QVERIFY(dialog->pages().isEmpty());
    dialog.reset();
    QVERIFY2(clock.elapsed() < 3000, "Cancel waited for the feeder");
    QCOMPARE(asked, 0);
    QVERIFY(prompter.prompts().isEmpty());
}

// SANE runs in a process of its own: when it is missing, or ends in the middle of a scan
// (a backend that crashed or was stuck and ended), the window says so and keeps its pages.
void ScanTest::scanningProcessGoneIsToldAndPagesKept()
{
    writeBackends("test\n");
    {
        ScanSession::setScanningProgram(m_files.filePath(QStringLiteral("no-such-scanner")));
        ScriptedPrompter prompter;
        prompter.answer(MsgBoxResult::Ok);
        ScanDialog dialog([] { return QString(); });
        dialog.show();
        QTRY_COMPARE_WITH_TIMEOUT(prompter.prompts().size(), 1, 10000);
        QVERIFY2(prompter.texts().value(0).contains(QStringLiteral("no-such-scanner")),
            qPrintable(prompter.texts().value(0)));
        QVERIFY(!child<QPushButton>(dialog, "cmdScanPage")->isEnabled());
        ScanSession::setScanningProgram(QStringLiteral(KARTELLA_SCANNER_PROGRAM));
    }

    ScriptedPrompter prompter;
    ScanDialog dialog([] { return QString(); });
    dialog.show();
    waitForScanner(dialog);
    scanPage(dialog, 1);

    // A slow page, and the process ends under it.
    dialog.setScannerOption(QStringLiteral("read-delay"), QStringLiteral("true"));
    dialog.setScannerOption(QStringLiteral("read-delay-duration"), QStringLiteral("200000"));
    prompter.answer(MsgBoxResult::Ok);
    click(dialog, "cmdScanPage");
    auto* process = dialog.findChild<QProcess*>();
    QVERIFY(process);
    QTRY_COMPARE(process->state(), QProcess::Running);
    process->kill();
    QTRY_COMPARE_WITH_TIMEOUT(prompter.prompts().size(), 1, 10000);
    QVERIFY2(prompter.texts().value(0).contains(QStringLiteral("kartella-scanner")),
        qPrintable(prompter.texts().value(0)));
    QCOMPARE(pageCountOf(dialog), 1);
    QCOMPARE(dialog.pages().size(), 1);
    QVERIFY(child<QPushButton>(dialog, "cmdDone")->isEnabled());
}

// A scanner that stops sending in the middle of a page, without an error, is taken to hang
// once the stall limit passes: its process is ended, the window says so and keeps its pages.
void ScanTest::scannerSendingNothingIsStoppedAndPagesKept()
{
    writeBackends("test\n");
    ScriptedPrompter prompter;
    ScanDialog dialog([] { return QString(); });
    dialog.show();
    waitForScanner(dialog);
    scanPage(dialog, 1);

    // Each part of the page now comes 0.2 s after the one before: longer than the limit.
    const int limit = ScanSession::stallLimitMs();
    ScanSession::setStallLimitMs(100);
    dialog.setScannerOption(QStringLiteral("read-delay"), QStringLiteral("true"));
    dialog.setScannerOption(QStringLiteral("read-delay-duration"), QStringLiteral("200000"));
    prompter.answer(MsgBoxResult::Ok);
    click(dialog, "cmdScanPage");
    QTRY_COMPARE_WITH_TIMEOUT(prompter.prompts().size(), 1, 10000);
    ScanSession::setStallLimitMs(limit);
    QVERIFY2(prompter.texts().value(0).startsWith(QStringLiteral("The scanner sent nothing for 1 seconds")),
        qPrintable(prompter.texts().value(0)));
    QCOMPARE(dialog.findChild<QProcess*>()->state(), QProcess::NotRunning);
    QCOMPARE(dialog.pages().size(), 1);
    QVERIFY(child<QPushButton>(dialog, "cmdDone")->isEnabled());
}

void ScanTest::scannerFailingMidPageKeepsEarlierPages()
{
    writeBackends("test\n");
    ScriptedPrompter prompter;
    ScanDialog dialog([] { return QString(); });
    dialog.show();
    waitForScanner(dialog);
    scanPage(dialog, 1);

    dialog.setScannerOption(QStringLiteral("read-return-value"), QStringLiteral("SANE_STATUS_IO_ERROR"));
    prompter.answer(MsgBoxResult::Ok);
    click(dialog, "cmdScanPage");
    QTRY_COMPARE_WITH_TIMEOUT(prompter.prompts().size(), 1, 10000);
    QVERIFY2(prompter.texts().value(0).contains(QStringLiteral("stopped in the middle of a page")),
        qPrintable(prompter.texts().value(0)));
    QCOMPARE(pageCountOf(dialog), 1);
    QVERIFY(child<QPushButton>(dialog, "cmdDone")->isEnabled());
    QVERIFY(child<QPushButton>(dialog, "cmdScanPage")->isEnabled());
}

void ScanTest::searchablePdfHoldsThePagesAndTheirWords()
{
    useCNumericLocale();
    const QString first = QStringLiteral("Sutartis su Šiaulių bendrove dėl žemės nuomos");
    const QString second = QStringLiteral("Antrame puslapyje Klaipėdos uostas");
    const QList<QImage> pages
        = {renderTextPage(first, 150, QSizeF(150, 60), 14), renderTextPage(second, 150, QSizeF(150, 60), 14)};
    const QString path = m_files.filePath(QStringLiteral("scan.pdf"));
    writeSearchablePdf(pages, 150, path, QStringLiteral("lit+eng"));

    QCOMPARE(pageCount(path), 2);
    const QImage rendered = pageImage(path, 0, 150);
    QVERIFY(qAbs(rendered.width() - pages.at(0).width()) <= 2);
    QVERIFY(qAbs(rendered.height() - pages.at(0).height()) <= 2);
    const FileText text = readPdfText(path);
    QCOMPARE(text.state, TextState::Read);
    QVERIFY2(wordAccuracy(first + u' ' + second, text.body) >= 0.85, qPrintable(text.body));

    // The file there is kept: nothing is written over it.
    const QByteArray before = [&path] {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }();
    QVERIFY_THROWS_EXCEPTION(Error, writeSearchablePdf(pages, 150, path, QStringLiteral("lit+eng")));
    QFile after(path);
    QVERIFY(after.open(QIODevice::ReadOnly));
    QCOMPARE(after.readAll(), before);
    QVERIFY(!QFile::exists(path + QStringLiteral(".partial")));
}

// Scan in the New Document dialog: the scan window opens over it; the pages scanned and
// Done give the document a PDF named and placed as a file made from a template, and Cancel
// in the scan window gives it nothing and uses no number. The description may follow the
// scan, unless the files are named by it. Cancel of the document takes the PDF back.
void ScanTest::scanButtonAttachesThePdfNamedAsTheCategoryNames()
{
    writeBackends("test\n");
    Fixture fx;
    const QString path = QDir(fx.files.path()).filePath(QStringLiteral("AGR00001.pdf"));
    {
        Dialog d;
        // What the user does in the scan window, once it is up over the dialog.
        const auto inScanWindow = [&d](bool done) {
            QTimer::singleShot(0, &d.dialog, [&d, done] {
                ScanDialog* scan = nullptr;
                QTRY_VERIFY((scan = d.dialog.findChild<ScanDialog*>()) && scan->isVisible());
                waitForScanner(*scan);
                click(*scan, "cmdScanPage");
                QTRY_COMPARE_WITH_TIMEOUT(pageCountOf(*scan), 1, 10000);
                QTRY_VERIFY(child<QPushButton>(*scan, "cmdDone")->isEnabled());
                click(*scan, done ? "cmdDone" : "cmdCancel");
            });
        };

        inScanWindow(false);
        d.click("cmdScan");
        QVERIFY(d.box(5)->text().isEmpty());
        QVERIFY(!QFile::exists(path));

        inScanWindow(true);
        d.click("cmdScan");
        QTRY_COMPARE_WITH_TIMEOUT(d.box(5)->text(), path, 20000);
        QCOMPARE(pageCount(path), 1);
        QVERIFY(fx.prompter.prompts().isEmpty());

        fx.prompter.answer(MsgBoxResult::Ok);
        d.click("cmdScan");
        QVERIFY(
            fx.prompter.take().value(0).text.startsWith(QStringLiteral("The document has its file already")));

        fx.prompter.answer(MsgBoxResult::Yes);
        d.click("cmdCancel");
        QVERIFY(fx.prompter.take().value(0).text.startsWith(QStringLiteral("Discard the new document")));
        QVERIFY(!QFile::exists(path));
        QCOMPARE(fx.documents(), 0);
    }

    setRegValue(QStringLiteral("FileName"), QStringLiteral("1"));
    Dialog d;
    fx.prompter.answer(MsgBoxResult::Ok);
    d.click("cmdScan");
    QCOMPARE(fx.prompter.take().value(0).text, QStringLiteral("Document Description Required!"));
    QVERIFY(!d.dialog.findChild<ScanDialog*>());
    d.click("cmdCancel");
}

// File > Scan New Document...: the New Document dialog of the category chosen in the tree,
// with its scan window open at once.
void ScanTest::scanNewDocumentOpensTheScanOverNewDocument()
{
    writeBackends("test\n");
    ScriptedPrompter prompter;
    ExplorerFixture fx;
    MainWindow& window = fx.window();
    fx.clickNode("a" + QString::number(fx.id["Sutartys"]));
    QAction* scanNew = window.action(QStringLiteral("mnuScanNew"));
    QVERIFY(scanNew);
    QCOMPARE(scanNew->text(), QStringLiteral("Sc&an New Document..."));
    QVERIFY(scanNew->isEnabled());

    bool scanOverNewDocument = false;
    QString category;
    // The New Document dialog loads (and runs events) before it shows.
    QTimer watch;
    onScanWindow(watch, window, [&](ScanDialog& scan) {
        auto* newDocument = qobject_cast<QDialog*>(scan.parentWidget());
        scanOverNewDocument = newDocument && newDocument->objectName() == QLatin1String("frmNewDocument")
            && newDocument->isVisible();
        if (newDocument) {
            const QList<QComboBox*> boxes = newDocument->findChildren<QComboBox*>();
            for (QComboBox* box : boxes) {
                if (box->currentText() == QLatin1String("Sutartys"))
                    category = box->currentText();
            }
            QTimer::singleShot(0, newDocument, &QDialog::reject);
        }
        click(scan, "cmdCancel");
    });
    scanNew->trigger();
    QVERIFY(scanOverNewDocument);
    QCOMPARE(category, QStringLiteral("Sutartys"));
    QVERIFY(!window.findChild<ScanDialog*>());
}

// Document > Scan New Version...: the pages scanned take the place of the document's PDF, the
// earlier file kept as a version; a document whose file is no PDF is told so and keeps it.
void ScanTest::scanNewVersionReplacesOnlyAPdf()
{
    writeBackends("test\n");
    ScriptedPrompter prompter;
    ExplorerFixture fx;
    const auto fileOf = [&](const QString& name, const QString& document) {
        const QString path = fx.reg.dir() + "/" + name;
        QFile file(path);
        file.open(QIODevice::WriteOnly);
        file.write("earlier");
        file.close();
        fx.reg.exec(QString("UPDATE tbl_Documents SET RastoKel = '%1' WHERE RastasID = %2")
                        .arg(path)
                        .arg(fx.id[document]));
        return path;
    };
    const QString letter = fileOf("letter.doc", "letter");
    const QString contract = fileOf("contract.pdf", "contract");
    MainWindow& window = fx.window();
    QAction* scanVersion = window.action(QStringLiteral("mnuScanNewVersion"));
    QVERIFY(scanVersion);

    fx.clickNode("a" + QString::number(fx.id["Raštai"]));
    fx.clickDocument("letter");
    prompter.answer(MsgBoxResult::Ok);
    scanVersion->trigger();
    const QList<ScriptedPrompter::Prompt> refused = prompter.take();
    QCOMPARE(refused.size(), 1);
    QVERIFY2(refused.first().text.contains(QStringLiteral("letter.doc is not one")),
        qPrintable(refused.first().text));
    QVERIFY(!window.findChild<ScanDialog*>());

    fx.clickNode("a" + QString::number(fx.id["Sutartys"]));
    fx.clickDocument("contract");
    QTimer watch;
    onScanWindow(watch, window, [](ScanDialog& scan) {
        waitForScanner(scan);
        scanPage(scan, 1);
        click(scan, "cmdDone");
    });
    scanVersion->trigger();
    QVERIFY(prompter.texts().isEmpty());
    QFile scanned(contract);
    QVERIFY(scanned.open(QIODevice::ReadOnly));
    QVERIFY(scanned.read(5) == "%PDF-");
    const QList<FileVersion> kept
        = Versions(versionsFolderFor(fx.reg.path()), DefaultVersionsPerDocument).list(fx.id["contract"]);
    QCOMPARE(kept.size(), 1);
    QFile earlier(kept.first().path);
    QVERIFY(earlier.open(QIODevice::ReadOnly));
    QCOMPARE(earlier.readAll(), QByteArray("earlier"));
    QFile untouched(letter);
    QVERIFY(untouched.open(QIODevice::ReadOnly));
    QCOMPARE(untouched.readAll(), QByteArray("earlier"));
}

// A Lithuanian desktop: the window's buttons, labels, pages and messages are Lithuanian; what
// the scanner calls its sources stays as the scanner names them.
void ScanTest::scanWindowInLithuanian()
{
    writeBackends("test\n");
    ScriptedPrompter prompter;
    Lithuanian language;
    QVERIFY(language.installed());
    ScanDialog dialog([] { return QString(); });
    dialog.show();
    QCOMPARE(dialog.windowTitle(), QStringLiteral("Skenavimas"));
    waitForScanner(dialog);
    QCOMPARE(child<QPushButton>(dialog, "cmdScanPage")->text(), QStringLiteral("Skenuoti &puslapį"));
    QCOMPARE(child<QPushButton>(dialog, "cmdDone")->text(), QStringLiteral("Atlikta"));
    QCOMPARE(child<QComboBox>(dialog, "cboResolution")->currentText(), QStringLiteral("75 dpi"));
    QStringList labels;
    for (const QLabel* label : dialog.findChildren<QLabel*>()) {
        if (label->buddy())
            labels << label->text();
    }
    labels.sort();
    QCOMPARE(labels, (QStringList {"&Raiška:", "&Spalvų režimas:", "S&keneris:", "Š&altinis:"}));
    QCOMPARE(clashingAccessKeys(&dialog), QStringList());

    // Alt and the label's letter reach its box.
    QTest::keyClick(&dialog, Qt::Key_K, Qt::AltModifier);
    QCOMPARE(QApplication::focusWidget(), child<QComboBox>(dialog, "cboScanner"));

    scanPage(dialog, 1);
    QCOMPARE(child<QListWidget>(dialog, "lstPages")->item(0)->text(), QStringLiteral("Puslapis 1"));
    QCOMPARE(child<QLabel>(dialog, "lblStatus")->text(), QStringLiteral("Puslapių: 1"));

    dialog.setScannerOption(QStringLiteral("read-return-value"), QStringLiteral("SANE_STATUS_IO_ERROR"));
    prompter.answer(MsgBoxResult::Ok);
    click(dialog, "cmdScanPage");
    QTRY_COMPARE_WITH_TIMEOUT(prompter.prompts().size(), 1, 10000);
    QVERIFY2(prompter.texts().value(0).startsWith(QStringLiteral("Skeneris sustojo puslapio viduryje: ")),
        qPrintable(prompter.texts().value(0)));
    QCOMPARE(prompter.prompts().value(0).title, QStringLiteral("Skenavimas"));
    QTRY_VERIFY(child<QPushButton>(dialog, "cmdScanPage")->isEnabled());
    click(dialog, "cmdCancel");
}

int main(int argc, char** argv)
{
    // SANE's test backend reads in a child process and ends it with a signal at a cancel;
    // the child, a copy of this program, would print the test library's crash report.
    qputenv("QTEST_DISABLE_STACK_DUMP", "1");
    QApplication app(argc, argv);
    ScanTest test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_scan.moc"
