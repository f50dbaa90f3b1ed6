#include "explorer/DocumentFills.h"
#include "explorer/ExplorerFixture.h"
#include "explorer/ExplorerList.h"
#include "explorer/ListModel.h"
#include "explorer/MainWindow.h"
#include "explorer/NavigationTree.h"
#include "options/OptionStore.h"
#include "preview/PdfViewer.h"
#include "preview/PreviewCache.h"
#include "preview/PreviewFiles.h"
#include "preview/PreviewPane.h"
#include "support/SelectionState.h"

#include <QAction>
#include <QApplication>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QPdfDocument>
#include <QPdfView>
#include <QPlainTextEdit>
#include <QProcess>
#include <QSignalSpy>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

using namespace kartella;
using namespace kartella::test;

namespace {

// Shows path in the pane and waits until it is on show.
bool showAndWait(PreviewPane& pane, const QString& path, int timeoutMs = 10000)
{
    QSignalSpy shown(&pane, &PreviewPane::shown);
    pane.showFile(path);
    return shown.wait(timeoutMs) || (!pane.isBusy() && pane.shownPath() == path);
}

void touch(const QString& path, const QDateTime& when)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadWrite) || !file.setFileTime(when, QFileDevice::FileModificationTime))
        qFatal("can't set the time of %s", qPrintable(path));
}

// The cache's entries, by the names of the sources they were stored for.
QStringList entriesOf(const PreviewCache& cache, const QStringList& sources)
{
    QStringList present;
    for (const QString& source : sources) {
        if (QFile::exists(cache.entryPath(QFileInfo(source), QStringLiteral("pdf"))))
            present << QFileInfo(source).fileName();
    }
    return present;
}

} // namespace

class TestPreview : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { selection() = SelectionState(); }

    void viewerForEachKind_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<int>("kind");
        QTest::addColumn<QString>("shows");

        const QString lithuanian = QStringLiteral("Šiaulių ąžuolas, ėglė, ūkis, čia");
        QTest::newRow("text in UTF-8")
            << "laiskas.txt" << lithuanian.toUtf8() << int(PreviewKind::Text) << lithuanian;
        QTest::newRow("text in Windows-1257")
            << "laiskas.txt" << QByteArray("\xD0iauli\xF8 \xE0\xFEuolas, \xEBgl\xEB, \xFBkis, \xE8ia")
            << int(PreviewKind::Text) << lithuanian;
        QTest::newRow("text with a byte order mark")
            << "notes.log" << QByteArray("\xEF\xBB\xBF") + lithuanian.toUtf8() << int(PreviewKind::Text)
            << lithuanian;
        QTest::newRow("unknown kind") << "duomenys.xyz" << QByteArray("\x01\x02\x00\x7F\xFE", 5)
                                      << int(PreviewKind::Other) << "No preview for this kind of file";
        QTest::newRow("missing file")
            << "dingo.pdf" << QByteArray() << int(PreviewKind::Missing) << "File not found";
        QTest::newRow("damaged PDF") << "sugadintas.pdf" << QByteArray("%PDF-1.4\nniekas")
                                     << int(PreviewKind::Pdf) << "damaged";
        QTest::newRow("PDF") << "sutartis.pdf" << QByteArray() << int(PreviewKind::Pdf) << "Page 1 of 3";
        QTest::newRow("PNG") << "scan.png" << QByteArray() << int(PreviewKind::Image) << "300x200";
        QTest::newRow("JPEG") << "photo.jpg" << QByteArray() << int(PreviewKind::Image) << "300x200";
    }

    void viewerForEachKind()
    {
        QFETCH(QString, name);
        QFETCH(QByteArray, bytes);
        QFETCH(int, kind);
        QFETCH(QString, shows);
        QTemporaryDir dir;
        const QString path = dir.filePath(name);
        if (name == QLatin1String("sutartis.pdf"))
            writePdf(path, 3);
        else if (name.endsWith(QLatin1String(".png")) || name.endsWith(QLatin1String(".jpg"))) {
            QImage image(300, 200, QImage::Format_RGB32);
            image.fill(Qt::darkGreen);
            QVERIFY(image.save(path));
        } else if (name != QLatin1String("dingo.pdf"))
            writeBytes(path, bytes);

        PreviewPane pane;
        pane.resize(400, 600);
        pane.show();
        QVERIFY(showAndWait(pane, path));
        QCOMPARE(int(pane.shownKind()), kind);
        QCOMPARE(pane.viewer()->accessibleName(), QStringLiteral("Preview"));
        switch (PreviewKind(kind)) {
        case PreviewKind::Text:
            QCOMPARE(pane.viewer(), pane.textViewer());
            QCOMPARE(pane.textViewer()->toPlainText(), shows);
            break;
        case PreviewKind::Image:
            QCOMPARE(QStringLiteral("%1x%2").arg(pane.image().width()).arg(pane.image().height()), shows);
            break;
        case PreviewKind::Pdf:
            if (pane.message().isEmpty()) {
                QCOMPARE(pane.viewer(), static_cast<QWidget*>(pane.pdfViewer()->view()));
                QCOMPARE(pane.pdfViewer()->pageText(), shows);
                break;
            }
            QVERIFY2(pane.message().contains(shows), qPrintable(pane.message()));
            break;
        default:
            QVERIFY2(pane.message().contains(shows), qPrintable(pane.message()));
            break;
        }
        // Nothing selected: an empty pane.
        QVERIFY(showAndWait(pane, {}));
        QCOMPARE(int(pane.shownKind()), int(PreviewKind::Nothing));
        QVERIFY(pane.message().isEmpty());
    }

    // The zoom buttons change the size of the pages; the page number follows the scrolling.
    void pdfZoomsAndNumbersItsPages()
    {
        QTemporaryDir dir;
        const QString path = dir.filePath(QStringLiteral("knyga.pdf"));
        writePdf(path, 20);
        PreviewPane pane;
        pane.resize(400, 600);
        pane.show();
        QVERIFY(showAndWait(pane, path));
        PdfViewer* viewer = pane.pdfViewer();
        QCOMPARE(viewer->pageText(), QStringLiteral("Page 1 of 20"));
        const qreal fitted = viewer->zoom();
        QTest::mouseClick(viewer->findChild<QWidget*>(QStringLiteral("btnZoomIn")), Qt::LeftButton);
        QVERIFY(viewer->zoom() > fitted * 1.2);
        QTest::keyClick(viewer->view(), Qt::Key_Minus, Qt::ControlModifier);
        QTest::keyClick(viewer->view(), Qt::Key_Minus, Qt::ControlModifier);
        QVERIFY(viewer->zoom() < fitted);
        viewer->view()->setFocus();
        QTest::keyClick(viewer->view(), Qt::Key_End, Qt::ControlModifier);
        QTRY_COMPARE(viewer->pageText(), QStringLiteral("Page 20 of 20"));
    }

    // Oldest used first out; a lookup counts as a use.
    void cacheKeepsToItsLimit()
    {
        QTemporaryDir dir;
        PreviewCache cache(dir.filePath(QStringLiteral("cache")), 2500);
        QStringList sources;
        const QDateTime start = QDateTime::currentDateTimeUtc().addSecs(-100);
        for (const char* name : {"a.doc", "b.doc", "c.doc", "d.doc"}) {
            sources << dir.filePath(QLatin1String(name));
            writeBytes(sources.last(), name);
        }
        auto storeFor = [&](int source, int second) {
            const QString made = dir.filePath(QStringLiteral("made.pdf"));
            writeBytes(made, QByteArray(1000, 'x'));
            const QString entry = cache.store(made, QFileInfo(sources[source]), QStringLiteral("pdf"));
            QVERIFY(!entry.isEmpty());
            QVERIFY(!QFile::exists(made));
            touch(entry, start.addSecs(second));
        };
        storeFor(0, 1);
        storeFor(1, 2);
        QCOMPARE(entriesOf(cache, sources), QStringList({"a.doc", "b.doc"}));
        storeFor(2, 3);
        QCOMPARE(entriesOf(cache, sources), QStringList({"b.doc", "c.doc"}));
        QVERIFY(cache.usedBytes() <= 2500);
        // b is used now: c is the oldest when d comes.
        QVERIFY(!cache.find(QFileInfo(sources[1]), QStringLiteral("pdf")).isEmpty());
        storeFor(3, 4);
        QCOMPARE(entriesOf(cache, sources), QStringList({"b.doc", "d.doc"}));
    }

    // An Office file is converted once; a changed one again, under a key of its own.
    void changedFileIsConvertedAgain()
    {
        QTemporaryDir dir;
        const QString office = dir.filePath(QStringLiteral("pasiulymas.docx"));
        const QString text = dir.filePath(QStringLiteral("kita.txt"));
        writeBytes(office, "PK first");
        writeBytes(text, "kita");
        PreviewPane pane;
        pane.cache() = PreviewCache(dir.filePath(QStringLiteral("cache")), 10 * 1024 * 1024);
        auto* converter = new ScriptedConverter;
        pane.setConverter(converter);
        pane.show();

        auto convertedPdf = [&] {
            const QString made = dir.filePath(QStringLiteral("made.pdf"));
            writePdf(made, 2);
            return made;
        };
        pane.showFile(office);
        QTRY_COMPARE(converter->started, QStringList {office});
        QVERIFY(pane.isBusy());
        QSignalSpy shown(&pane, &PreviewPane::shown);
        converter->finish(convertedPdf());
        QVERIFY(shown.wait());
        QCOMPARE(int(pane.shownKind()), int(PreviewKind::Office));
        QCOMPARE(pane.pdfViewer()->pageText(), QStringLiteral("Page 1 of 2"));

        QVERIFY(showAndWait(pane, text));
        QVERIFY(showAndWait(pane, office));
        QCOMPARE(pane.pdfViewer()->pageText(), QStringLiteral("Page 1 of 2"));
        QCOMPARE(converter->started.size(), 1);

        QVERIFY(showAndWait(pane, text));
        writeBytes(office, "PK second, longer");
        touch(office, QDateTime::currentDateTimeUtc().addSecs(5));
        pane.showFile(office);
        QTRY_COMPARE(converter->started, QStringList({office, office}));
    }

    // Moving to another document drops the conversion under way; its late result is ignored.
    void selectionChangeAbandonsConversion()
    {
        ExplorerFixture fx;
        const QString office = fx.reg.dir() + QStringLiteral("/pasiulymas.odt");
        writeBytes(office, "PK");
        fx.id["offer"] = fx.reg.insert(QStringLiteral("tbl_Documents"),
            {{"DokAntraste", "offer"}, {"KategID", fx.id["Raštai"]}, {"KryptisID", 3},
                {"DokRegistracData", QVariant(fx.thisMonth)}, {"RastoKel", office}});
        MainWindow& w = fx.window();
        w.action(QStringLiteral("mnuPreviewPane"))->trigger();
        PreviewPane* pane = w.previewPane();
        pane->cache() = PreviewCache(fx.reg.dir() + QStringLiteral("/cache"), 10 * 1024 * 1024);
        auto* converter = new ScriptedConverter;
        pane->setConverter(converter);

        fx.clickDocument("offer");
        QTRY_COMPARE(converter->started, QStringList {office});
        fx.clickDocument("letter");
        QTRY_COMPARE(int(pane->shownKind()), int(PreviewKind::Text));
        QCOMPARE(converter->abandoned, QStringList {office});
        QCOMPARE(pane->textViewer()->toPlainText(), QStringLiteral("Laiškas\n"));

        const QString late = fx.reg.dir() + QStringLiteral("/late.pdf");
        writePdf(late, 1);
        converter->finish(late, office);
        QTest::qWait(100);
        QCOMPARE(int(pane->shownKind()), int(PreviewKind::Text));
        QCOMPARE(pane->shownPath(), fx.existingFile);
        QVERIFY(!QFile::exists(late));

        // A document whose file is gone: its name and a message, no message box.
        fx.clickDocument("note");
        QTRY_COMPARE(int(pane->shownKind()), int(PreviewKind::Missing));
        QVERIFY(pane->message().startsWith(QStringLiteral("File not found")));
    }

    void viewActionTogglesPaneAndIsRemembered()
    {
        ExplorerFixture fx;
        MainWindow& w = fx.window();
        QAction* toggle = w.action(QStringLiteral("mnuPreviewPane"));
        QVERIFY(toggle->isCheckable());
        QVERIFY(!toggle->isChecked());
        QVERIFY(!w.previewPane()->isVisible());
        fx.clickDocument("letter");
        toggle->trigger();
        QVERIFY(w.previewPane()->isVisible());
        QVERIFY(w.previewPane()->x() > w.documentList()->x());
        QTRY_COMPARE(w.previewPane()->shownPath(), fx.existingFile);
        QCOMPARE(readRegValue(Hive::CurrentUser, optionsKeyPath(), QStringLiteral("PreviewPane"), {}), "1");
        {
            MainWindow again;
            again.resize(1000, 700);
            again.show();
            QTRY_VERIFY(again.previewPane()->width() > 250);
            QVERIFY(again.action(QStringLiteral("mnuPreviewPane"))->isChecked());
            QVERIFY(again.previewPane()->isVisible());
        }
        toggle->trigger();
        QVERIFY(!w.previewPane()->isVisible());
        QCOMPARE(readRegValue(Hive::CurrentUser, optionsKeyPath(), QStringLiteral("PreviewPane"), {}), "0");
        MainWindow hidden;
        hidden.show();
        QVERIFY(!hidden.action(QStringLiteral("mnuPreviewPane"))->isChecked());
        QVERIFY(!hidden.previewPane()->isVisible());
    }

    void f6CyclesTreeListAndPane()
    {
        ExplorerFixture fx;
        MainWindow& w = fx.window();
        w.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&w));
        w.action(QStringLiteral("mnuPreviewPane"))->trigger();
        fx.clickDocument("letter");
        QTRY_COMPARE(int(w.previewPane()->shownKind()), int(PreviewKind::Text));
        w.tree()->setFocus();
        QTRY_VERIFY(w.tree()->hasFocus());

        auto press = [](Qt::KeyboardModifiers modifiers) {
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_F6, modifiers);
        };
        press(Qt::NoModifier);
        QCOMPARE(QApplication::focusWidget(), w.documentList()->currentView());
        press(Qt::NoModifier);
        QCOMPARE(QApplication::focusWidget(), w.previewPane()->viewer());
        QCOMPARE(QApplication::focusWidget()->accessibleName(), QStringLiteral("Preview"));
        press(Qt::NoModifier);
        QCOMPARE(QApplication::focusWidget(), static_cast<QWidget*>(w.tree()));
        press(Qt::ShiftModifier);
        QCOMPARE(QApplication::focusWidget(), w.previewPane()->viewer());
        press(Qt::ShiftModifier);
        QCOMPARE(QApplication::focusWidget(), w.documentList()->currentView());
    }

    void largeIconsShowPdfThumbnail()
    {
        ExplorerFixture fx;
        const QString pdf = fx.reg.dir() + QStringLiteral("/planas.pdf");
        writePdf(pdf, 2);
        fx.id["plan"] = fx.reg.insert(QStringLiteral("tbl_Documents"),
            {{"DokAntraste", "plan"}, {"KategID", fx.id["Raštai"]}, {"KryptisID", 3},
                {"DokRegistracData", QVariant(fx.thisMonth)}, {"RastoKel", pdf}});
        MainWindow& w = fx.window();
        w.action(QStringLiteral("mnuLargeIcons"))->trigger();
        ListModel& model = fx.documents();
        const int row = model.rowOfKey(DocumentFills::itemKey(fx.id["plan"]));
        QVERIFY(row >= 0);
        // A portrait page, 96 pixels high, once made.
        auto thumbnailSize = [&] {
            const QIcon icon = model.data(model.index(row, 0), Qt::DecorationRole).value<QIcon>();
            const QList<QSize> sizes = icon.availableSizes();
            return sizes.isEmpty() ? QSize() : sizes.first();
        };
        QTRY_COMPARE(thumbnailSize().height(), 96);
        QVERIFY(thumbnailSize().width() < 96);
        const QString cached = PreviewCache().entryPath(QFileInfo(pdf), QStringLiteral("png"));
        QVERIFY2(QFile::exists(cached), qPrintable(cached));
        // The details view keeps the type's small picture.
        w.action(QStringLiteral("mnuDetails"))->trigger();
        QVERIFY(thumbnailSize().height() != 96);
    }

    // A real .odt converted by LibreOffice, where it is installed.
    void officeFileThroughLibreOffice()
    {
        const QString soffice = QStandardPaths::findExecutable(QStringLiteral("soffice"));
        if (soffice.isEmpty())
            QSKIP("LibreOffice (soffice) is not installed: the conversion of an .odt is not tested");
        QTemporaryDir dir;
        const QString flat = dir.filePath(QStringLiteral("raštas.fodt"));
        writeBytes(flat,
            "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
            "<office:document xmlns:office=\"urn:oasis:names:tc:opendocument:xmlns:office:1.0\" "
            "xmlns:text=\"urn:oasis:names:tc:opendocument:xmlns:text:1.0\" office:version=\"1.2\" "
            "office:mimetype=\"application/vnd.oasis.opendocument.text\"><office:body><office:text>"
            "<text:p>Sutartis d\xC4\x97l nuomos</text:p></office:text></office:body></office:document>\n");
        QProcess make;
        make.start(soffice,
            {QStringLiteral("--headless"), QStringLiteral("--norestore"),
                QStringLiteral("-env:UserInstallation=file://") + dir.filePath(QStringLiteral("p")),
                QStringLiteral("--convert-to"), QStringLiteral("odt"), QStringLiteral("--outdir"), dir.path(),
                flat});
        QVERIFY(make.waitForFinished(180000));
        const QString odt = dir.filePath(QStringLiteral("raštas.odt"));
        QVERIFY2(QFile::exists(odt), make.readAll().constData());

        PreviewPane pane;
        pane.cache() = PreviewCache(dir.filePath(QStringLiteral("cache")), 10 * 1024 * 1024);
        pane.show();
        QVERIFY(showAndWait(pane, odt, 180000));
        QVERIFY2(pane.message().isEmpty(), qPrintable(pane.message()));
        QCOMPARE(int(pane.shownKind()), int(PreviewKind::Office));
        QCOMPARE(pane.pdfViewer()->pageText(), QStringLiteral("Page 1 of 1"));
        QVERIFY(QFile::exists(pane.cache().entryPath(QFileInfo(odt), QStringLiteral("pdf"))));
    }
};

QTEST_MAIN(TestPreview)
#include "tst_preview.moc"
