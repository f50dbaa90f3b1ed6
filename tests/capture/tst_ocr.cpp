// Text recognition of scanned PDFs and images in the background reading of a register.
#include "TestPages.h"
#include "base/Error.h"
#include "capture/TextRecognition.h"
#include "content/FileText.h"
#include "content/ReadingQueue.h"
#include "content/TextIndexer.h"
#include "content/TextRecognitionPass.h"
#include "content/TextStore.h"
#include "explorer/ContentProgress.h"
#include "explorer/DocumentSearch.h"
#include "harness/TestRegister.h"
#include "store/engine/Connection.h"
#include "store/engine/Recordset.h"

#include <QDate>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QLabel>
#include <QMainWindow>
#include <QPainter>
#include <QPdfWriter>
#include <QSignalSpy>
#include <QStatusBar>
#include <QTemporaryDir>
#include <QTest>

#include <atomic>
#include <leptonica/allheaders.h>
#include <memory>
#include <vector>

using namespace kartella;
using namespace kartella::test;

namespace {

constexpr qint64 Limit = 50 * 1024 * 1024;
constexpr int Dpi = 150;

const QString PageText = QStringLiteral("Sutartis su Šiaulių bendrove dėl žemės nuomos");

QImage smallPage(const QString& text)
{
    return renderTextPage(text, Dpi, QSizeF(150, 60), 14);
}

// A PDF whose pages are pictures only, as a scanner's own software writes them.
void writeImagePdf(const QString& path, const QList<QImage>& pages)
{
    QPdfWriter writer(path);
    writer.setResolution(Dpi);
    writer.setPageSize(QPageSize(QSizeF(150, 60), QPageSize::Millimeter));
    writer.setPageMargins({});
    QPainter painter(&writer);
    for (int i = 0; i < pages.size(); ++i) {
        if (i > 0)
            writer.newPage();
        painter.drawImage(QPoint(0, 0), pages.at(i));
    }
}

void writeTiff(const QString& path, const QList<QImage>& pages)
{
    for (int i = 0; i < pages.size(); ++i) {
        const QImage& page = pages.at(i);
        Pix* pix = pixCreate(page.width(), page.height(), 8);
        for (int y = 0; y < page.height(); ++y) {
            l_uint32* line = pixGetData(pix) + qsizetype(y) * pixGetWpl(pix);
            for (int x = 0; x < page.width(); ++x)
                SET_DATA_BYTE(line, x, page.constScanLine(y)[x]);
        }
        pixSetResolution(pix, Dpi, Dpi);
        QVERIFY(
            pixWriteTiff(QFile::encodeName(path).constData(), pix, IFF_TIFF_ZIP, i == 0 ? "w" : "a") == 0);
        pixDestroy(&pix);
    }
}

struct Register
{
    TestRegister reg {TestRegister::File};
    QTemporaryDir files;

    qint32 addDocument(const QString& path) const
    {
        return reg.insert(QStringLiteral("tbl_Documents"),
            {{QStringLiteral("DokAntraste"), QStringLiteral("Nuskaitytas laiškas")},
                {QStringLiteral("RastoKel"), path}, {QStringLiteral("DokRegistracData"), QDate(2024, 5, 20)},
                {QStringLiteral("KryptisID"), 1}});
    }

    std::optional<DocumentText> row(qint32 id) const
    {
        Connection connection(reg.connectionString());
        connection.open();
        return storedDocumentText(connection, id);
    }

    IndexSummary read() const
    {
        Connection connection(reg.connectionString());
        connection.open();
        return TextIndexer(connection, Limit).run();
    }

    RecognitionSummary recognise(
        const QString& languages, std::function<bool()> cancelled = {}, qint64 limit = Limit) const
    {
        Connection connection(reg.connectionString());
        connection.open();
        TextRecognitionPass pass(connection, languages);
        pass.setCancelCheck(std::move(cancelled));
        pass.setLimitBytes(limit);
        return pass.run();
    }

    QList<qint32> found(const QString& text) const
    {
        Connection connection(reg.connectionString());
        connection.open();
        Recordset rs;
        rs.open(searchListSql(searchTerms(text), searchIndexes(connection), 0, false, {}, {}), connection);
        QList<qint32> ids;
        for (; !rs.eof(); rs.moveNext())
            ids << rs.fields(QStringLiteral("RastasID")).value().toInt();
        return ids;
    }
};

} // namespace

class OcrTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void recognisedWordsAreFoundThroughTheSearch_data();
    void recognisedWordsAreFoundThroughTheSearch();
    void largerThanTheLimitIsNotRecognised();
    void missingLanguageNamesItsPackageUntilInstalled();
    void cancelledRecognitionWritesNothing();
    void aPageWaitsForAFreeCore();
    void backgroundReadingRecognisesScansAfterItsWalk();
};

void OcrTest::initTestCase()
{
    useCNumericLocale();
    QVERIFY2(missingLanguageMessage(QStringLiteral("lit+eng")).isEmpty(),
        qPrintable(missingLanguageMessage(QStringLiteral("lit+eng"))));
}

void OcrTest::recognisedWordsAreFoundThroughTheSearch_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("stateAfterReading");
    QTest::newRow("png") << "letter.png" << int(TextState::NoText);
    QTest::newRow("jpeg") << "letter.jpg" << int(TextState::NoText);
    QTest::newRow("two-page tiff") << "letter.tif" << int(TextState::NoText);
    QTest::newRow("two-page pdf without text") << "letter.pdf" << int(TextState::NeedsOcr);
}

void OcrTest::recognisedWordsAreFoundThroughTheSearch()
{
    QFETCH(QString, name);
    QFETCH(int, stateAfterReading);
    Register reg;
    const QString path = reg.files.filePath(name);
    const QImage first = smallPage(PageText);
    const QImage second = smallPage(QStringLiteral("Antrame puslapyje Klaipėdos uostas"));
    if (name.endsWith(QLatin1String(".pdf")))
        writeImagePdf(path, {first, second});
    else if (name.endsWith(QLatin1String(".tif")))
        writeTiff(path, {first, second});
    else
        QVERIFY(first.save(path));
    const qint32 scanned = reg.addDocument(path);
    const qint32 other = reg.addDocument(QString());

    reg.read();
    QCOMPARE(int(reg.row(scanned)->state), stateAfterReading);
    QVERIFY(reg.found(QStringLiteral("Šiaulių")).isEmpty());

    const RecognitionSummary summary = reg.recognise(QStringLiteral("lit+eng"));
    QCOMPARE(summary.read, 1);
    const auto row = reg.row(scanned);
    QCOMPARE(row->state, TextState::Read);
    QVERIFY2(wordAccuracy(PageText, row->body) >= 0.85, qPrintable(row->body));
    // The stamp stays the file's, so that the reading pass leaves the row alone.
    QCOMPARE(row->file, TextIndexer::currentStamp(path));
    QCOMPARE(reg.read().unchanged, 1);

    for (const QString& words :
        {QStringLiteral("Šiaulių"), QStringLiteral("siauliu zemes"), QStringLiteral("SUTARTIS")})
        QCOMPARE(reg.found(words), QList<qint32> {scanned});
    QVERIFY(reg.found(QStringLiteral("Panevėžio")).isEmpty());
    const bool twoPages = name.endsWith(QLatin1String(".pdf")) || name.endsWith(QLatin1String(".tif"));
    QCOMPARE(reg.found(QStringLiteral("Klaipėdos")), twoPages ? QList<qint32> {scanned} : QList<qint32> {});
    Q_UNUSED(other);

    // Read once: a second pass finds nothing to do.
    QCOMPARE(reg.recognise(QStringLiteral("lit+eng")).read, 0);
}

void OcrTest::largerThanTheLimitIsNotRecognised()
{
    Register reg;
    const QString path = reg.files.filePath(QStringLiteral("poster.png"));
    QVERIFY(smallPage(PageText).save(path));
    const qint32 id = reg.addDocument(path);
    reg.read();
    const qint64 size = QFileInfo(path).size();
    QCOMPARE(reg.recognise(QStringLiteral("lit+eng"), {}, size - 1).failed, 1);
    QCOMPARE(reg.row(id)->state, TextState::Failed);
    QCOMPARE(reg.row(id)->reason, TextReason::tooLarge(size - 1));
    QVERIFY(reg.found(QStringLiteral("Šiaulių")).isEmpty());
}

void OcrTest::missingLanguageNamesItsPackageUntilInstalled()
{
    Register reg;
    const QString path = reg.files.filePath(QStringLiteral("page.png"));
    QVERIFY(smallPage(PageText).save(path));
    const qint32 id = reg.addDocument(path);
    reg.read();

    const QString message = missingLanguageMessage(QStringLiteral("lit+xqz"));
    QVERIFY2(message.contains(QStringLiteral("tesseract-ocr-xqz")), qPrintable(message));
    QVERIFY(message.contains(QStringLiteral("\"xqz\"")));
    QVERIFY(!message.contains(QStringLiteral("tesseract-ocr-lit")));
    QVERIFY(
        missingLanguageMessage(QStringLiteral("chi_sim")).contains(QStringLiteral("tesseract-ocr-chi-sim")));

    const RecognitionSummary summary = reg.recognise(QStringLiteral("lit+xqz"));
    QCOMPARE(summary.failed, 1);
    QCOMPARE(reg.row(id)->state, TextState::Failed);
    QCOMPARE(reg.row(id)->reason, message);
    QVERIFY(reg.row(id)->body.isEmpty());
    try {
        TextRecognizer recognizer(QStringLiteral("xqz"));
        QFAIL("an engine without its language was made");
    } catch (const Error& error) {
        QCOMPARE(error.number(), RecognitionError::MissingLanguage);
    }

    // With the language there (the option changed, or the package installed), the document is read.
    QCOMPARE(reg.recognise(QStringLiteral("lit+eng")).read, 1);
    QCOMPARE(reg.row(id)->state, TextState::Read);
    QVERIFY(reg.found(QStringLiteral("Šiaulių")).contains(id));
}

void OcrTest::cancelledRecognitionWritesNothing()
{
    Register reg;
    const QString path = reg.files.filePath(QStringLiteral("scan.pdf"));
    writeImagePdf(path, {smallPage(PageText), smallPage(PageText), smallPage(PageText)});
    const qint32 id = reg.addDocument(path);
    reg.read();
    const auto before = reg.row(id);
    QCOMPARE(before->state, TextState::NeedsOcr);

    std::atomic_int asked = 0;
    const RecognitionSummary summary
        = reg.recognise(QStringLiteral("lit+eng"), [&asked] { return ++asked > 3; });
    QCOMPARE(summary.read, 0);
    const auto after = reg.row(id);
    QCOMPARE(after->state, TextState::NeedsOcr);
    QCOMPARE(after->readAt, before->readAt);
    QVERIFY(after->body.isEmpty());
}

// While every core reads a page (a scan window's PDF, the background pool), another page
// waits for one: a cancel ends its wait with nothing read; a core freed reads it.
void OcrTest::aPageWaitsForAFreeCore()
{
    TextRecognizer recognizer(QStringLiteral("lit+eng"));
    const QImage page = smallPage(PageText);
    std::vector<std::unique_ptr<RecognitionSlot>> busy;
    for (int core = 0; core < RecognitionSlot::count(); ++core) {
        busy.push_back(std::make_unique<RecognitionSlot>());
        QVERIFY(busy.back()->held());
    }
    QElapsedTimer waited;
    waited.start();
    try {
        recognizer.recognise(page, Dpi, [&waited] { return waited.elapsed() > 300; });
        QFAIL("a page was read while every core had one");
    } catch (const Error& error) {
        QCOMPARE(error.number(), RecognitionError::Cancelled);
    }
    QVERIFY(waited.elapsed() >= 300);
    busy.pop_back();
    QVERIFY2(
        recognizer.recognise(page, Dpi).contains(QStringLiteral("Šiaulių")), "the freed core read nothing");
}

// The background reading of the program: after its walk over the files, the scans are
// recognised, with their own progress, and their words reach the search.
void OcrTest::backgroundReadingRecognisesScansAfterItsWalk()
{
    Register reg;
    const QString text = reg.files.filePath(QStringLiteral("note.txt"));
    QFile note(text);
    QVERIFY(note.open(QIODevice::WriteOnly));
    note.write("Pastaba");
    note.close();
    reg.addDocument(text);
    const QString scan = reg.files.filePath(QStringLiteral("scan.pdf"));
    writeImagePdf(scan, {smallPage(PageText)});
    const qint32 scanned = reg.addDocument(scan);

    // The main window's status bar shows the recognition where it showed the reading.
    QMainWindow window;
    ContentProgress shown(&window);
    ReadingQueue& queue = shown.queue();
    auto* panel = window.statusBar()->findChild<QLabel*>(QStringLiteral("pnReadingFiles"));
    QVERIFY(panel);
    QStringList texts;
    connect(&queue, &ReadingQueue::recognitionProgress, this,
        [&] { texts << (panel->isVisibleTo(&window) ? panel->text() : QString()); });
    QSignalSpy walked(&queue, &ReadingQueue::finished);
    QSignalSpy progress(&queue, &ReadingQueue::recognitionProgress);
    QSignalSpy recognised(&queue, &ReadingQueue::recognitionFinished);
    queue.start(reg.reg.connectionString(), Limit, 60 * 1000);
    QVERIFY(recognised.wait(30000));
    QCOMPARE(walked.size(), 1);
    QCOMPARE(progress.first(), (QVariantList {0, 1}));
    QCOMPARE(progress.last(), (QVariantList {1, 1}));
    QCOMPARE(texts, (QStringList {QStringLiteral("Recognising text: 0 of 1"), QString()}));
    QVERIFY(!panel->isVisibleTo(&window));
    QCOMPARE(reg.row(scanned)->state, TextState::Read);
    QCOMPARE(reg.found(QStringLiteral("žemės")), QList<qint32> {scanned});
    QCOMPARE(recognitionProgressText(1200, 3400), QStringLiteral("Recognising text: 1 200 of 3 400"));

    // A walk with nothing to recognise says nothing of it.
    queue.rescan();
    QVERIFY(walked.wait(10000));
    QTest::qWait(100);
    QCOMPARE(recognised.size(), 1);
    queue.stop();
}

QTEST_MAIN(OcrTest)
#include "tst_ocr.moc"
