#include "TestFiles.h"
#include "capture/TextRecognition.h"
#include "content/ReadingQueue.h"
#include "content/TextIndexer.h"
#include "content/TextRecognitionPass.h"
#include "content/TextStore.h"
#include "harness/ServerDatabase.h"
#include "harness/TestRegister.h"
#include "harness/Lithuanian.h"
#include "store/engine/Connection.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QImage>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

using namespace kartella;
using namespace kartella::test;

namespace {

constexpr qint64 Limit = 50 * 1024 * 1024;

struct Fixture
{
    std::unique_ptr<TestRegister> reg;
    QTemporaryDir files;
    QMap<QString, qint32> ids; // by file name

    qint32 addDocument(const QString& description, const QVariant& path)
    {
        return reg->insert(QStringLiteral("tbl_Documents"),
            {{QStringLiteral("DokAntraste"), description}, {QStringLiteral("RastoKel"), path},
                {QStringLiteral("DokRegistracData"), QDate(2024, 5, 20)}, {QStringLiteral("KryptisID"), 1}});
    }

    QString file(const QString& name) const { return files.filePath(name); }

    std::optional<DocumentText> row(const QString& name) const
    {
        Connection connection(reg->connectionString());
        connection.open();
        return storedDocumentText(connection, ids.value(name));
    }

    int rowCount() const
    {
        return reg->scalar(QStringLiteral("SELECT COUNT(*) FROM tbl_Document_Text")).toInt();
    }
};

// A register of either kind holding one document for each kind of outcome.
std::unique_ptr<Fixture> makeFixture(bool onServer)
{
    auto fixture = std::make_unique<Fixture>();
    fixture->reg = std::make_unique<TestRegister>(onServer ? TestRegister::Server : TestRegister::File);
    writePdf(fixture->file("contract.pdf"), {QStringLiteral("Sutartis su Šiaulių bendrove")});
    writeWordDocument(fixture->file("letter.docx"), {QStringLiteral("Laiškas Žemaitijai")});
    writeBytes(fixture->file("broken.pdf"), "%PDF-1.4\n1 0 obj <<");
    writeBytes(fixture->file("locked.pdf"), encryptedPdf());
    writeBytes(fixture->file("photo.jpg"), "\xFF\xD8\xFF\xE0");
    for (const QString name :
        {"contract.pdf", "letter.docx", "broken.pdf", "locked.pdf", "photo.jpg", "gone.odt"})
        fixture->ids.insert(name, fixture->addDocument(name, fixture->file(name)));
    fixture->ids.insert(
        QStringLiteral("no file"), fixture->addDocument(QStringLiteral("no file"), QVariant()));
    return fixture;
}

IndexSummary indexOnce(const Fixture& fixture, const TextIndexer::Progress& progress = {})
{
    Connection connection(fixture.reg->connectionString());
    connection.open();
    TextIndexer indexer(connection, Limit);
    return indexer.run(progress);
}

bool skipWithoutServer(bool onServer)
{
    if (onServer && !ServerDatabase::available()) {
        QTest::qSkip(qPrintable(ServerDatabase::skipReason()), __FILE__, __LINE__);
        return true;
    }
    return false;
}

} // namespace

class IndexerTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void recordsEveryFileAndNeverStopsAtABadOne_data();
    void recordsEveryFileAndNeverStopsAtABadOne();
    void readsAgainOnlyWhatChanged_data();
    void readsAgainOnlyWhatChanged();
    void aCancelledPassIsTakenUpWhereItStopped();
    void aCancelDuringAConversionLeavesItsFilesUnread();
    void queueReadsInTheBackgroundAndPicksUpNewDocuments();
    void progressGroupsThousandsWithASpace_data();
    void progressGroupsThousandsWithASpace();
    void aMissingLanguageIsTriedAgainWhateverLanguageSaidSo_data();
    void aMissingLanguageIsTriedAgainWhateverLanguageSaidSo();
    void statusAndProgressInLithuanian_data();
    void statusAndProgressInLithuanian();
};

void IndexerTest::recordsEveryFileAndNeverStopsAtABadOne_data()
{
    QTest::addColumn<bool>("onServer");
    QTest::newRow("register file") << false;
    QTest::newRow("server") << true;
}

void IndexerTest::recordsEveryFileAndNeverStopsAtABadOne()
{
    QFETCH(bool, onServer);
    if (skipWithoutServer(onServer))
        return;
    const auto fixture = makeFixture(onServer);
    const IndexSummary summary = indexOnce(*fixture);
    QCOMPARE(summary.read, 2);
    QCOMPARE(summary.noText, 1);
    QCOMPARE(summary.failed, 3);
    QCOMPARE(summary.failures.value("damaged"), 1);
    QCOMPARE(summary.failures.value("password-protected"), 1);
    QCOMPARE(summary.failures.value("file not found"), 1);
    // A document without a file has no row.
    QCOMPARE(fixture->rowCount(), 6);

    const auto contract = fixture->row("contract.pdf");
    QVERIFY(contract);
    QCOMPARE(contract->state, TextState::Read);
    QVERIFY2(
        contract->body.contains(QStringLiteral("Sutartis su Šiaulių bendrove")), qPrintable(contract->body));
    QCOMPARE(contract->file.path, fixture->file("contract.pdf"));
    QCOMPARE(contract->file.size, QFileInfo(fixture->file("contract.pdf")).size());
    QVERIFY(contract->file.modified.endsWith(u'Z'));
    QVERIFY(!contract->readAt.isEmpty());
    QVERIFY(fixture->row("letter.docx")->body.contains(QStringLiteral("Laiškas Žemaitijai")));
    for (const auto& [name, state, reason] : {std::tuple {"broken.pdf", TextState::Failed, "damaged"},
             std::tuple {"locked.pdf", TextState::Failed, "password-protected"},
             std::tuple {"gone.odt", TextState::Failed, "file not found"},
             std::tuple {"photo.jpg", TextState::NoText, ""}}) {
        const auto row = fixture->row(name);
        QVERIFY(row);
        QCOMPARE(row->state, state);
        QCOMPARE(row->reason, QString::fromUtf8(reason));
        QVERIFY(row->body.isEmpty());
    }

    // A deleted document's text goes with it.
    fixture->reg->exec(
        "DELETE FROM tbl_Documents WHERE RastasID=" + QString::number(fixture->ids.value("contract.pdf")));
    QVERIFY(!fixture->row("contract.pdf"));
    QCOMPARE(fixture->rowCount(), 5);
}

void IndexerTest::readsAgainOnlyWhatChanged_data()
{
    recordsEveryFileAndNeverStopsAtABadOne_data();
}

void IndexerTest::readsAgainOnlyWhatChanged()
{
    QFETCH(bool, onServer);
    if (skipWithoutServer(onServer))
        return;
    const auto fixture = makeFixture(onServer);
    indexOnce(*fixture);
    const QString contractReadAt = fixture->row("contract.pdf")->readAt;
    const QString letterReadAt = fixture->row("letter.docx")->readAt;
    QTest::qWait(20);

    IndexSummary summary = indexOnce(*fixture);
    QCOMPARE(summary.unchanged, 6);
    QCOMPARE(summary.total(), 6);
    QCOMPARE(fixture->row("contract.pdf")->readAt, contractReadAt);

    // The letter is written again (its time moved on), the missing file appears, the
    // photo's document is given another file.
    writeWordDocument(fixture->file("letter.docx"), {QStringLiteral("Naujas tekstas apie Kauną")});
    QFile letter(fixture->file("letter.docx"));
    QVERIFY(letter.open(QIODevice::ReadWrite));
    QVERIFY(letter.setFileTime(QDateTime::currentDateTime().addSecs(60), QFileDevice::FileModificationTime));
    letter.close();
    writeOpenDocument(fixture->file("gone.odt"), {QStringLiteral("Atsirado")});
    writeBytes(fixture->file("note.txt"), "Pastaba");
    fixture->reg->exec("UPDATE tbl_Documents SET RastoKel='" + fixture->file("note.txt")
        + "' WHERE RastasID=" + QString::number(fixture->ids.value("photo.jpg")));
    fixture->reg->exec("UPDATE tbl_Documents SET RastoKel=Null WHERE RastasID="
        + QString::number(fixture->ids.value("broken.pdf")));

    summary = indexOnce(*fixture);
    QCOMPARE(summary.read, 3);
    QCOMPARE(summary.unchanged, 2);
    QCOMPARE(fixture->row("contract.pdf")->readAt, contractReadAt);
    const auto letterRow = fixture->row("letter.docx");
    QVERIFY(letterRow->readAt != letterReadAt);
    QVERIFY(letterRow->body.contains(QStringLiteral("Kauną")));
    QVERIFY(!letterRow->body.contains(QStringLiteral("Žemaitijai")));
    QCOMPARE(fixture->row("gone.odt")->state, TextState::Read);
    QCOMPARE(fixture->row("photo.jpg")->body, QStringLiteral("Pastaba"));
    QCOMPARE(fixture->row("photo.jpg")->file.path, fixture->file("note.txt"));
    // A document whose file was taken away keeps no text.
    QVERIFY(!fixture->row("broken.pdf"));
}

void IndexerTest::aCancelledPassIsTakenUpWhereItStopped()
{
    const auto fixture = makeFixture(false);
    QList<int> seen;
    indexOnce(*fixture, [&seen](int done, int total) {
        seen << done;
        Q_UNUSED(total);
        return done < 2;
    });
    QCOMPARE(seen, (QList<int> {0, 1, 2}));
    QCOMPARE(fixture->rowCount(), 2);

    QList<QPair<int, int>> progress;
    const IndexSummary summary = indexOnce(*fixture, [&progress](int done, int total) {
        progress.append({done, total});
        return true;
    });
    QCOMPARE(summary.unchanged, 2);
    QCOMPARE(progress.first(), qMakePair(0, 4));
    QCOMPARE(progress.last(), qMakePair(4, 4));
    QCOMPARE(fixture->rowCount(), 6);
}

void IndexerTest::aCancelDuringAConversionLeavesItsFilesUnread()
{
    if (!hasLibreOffice())
        QSKIP("LibreOffice (soffice) is not installed: there is no conversion to cancel");
    TestRegister reg;
    for (const QString name : {"a.ppt", "b.ppt"}) {
        writeBytes(reg.dir() + u'/' + name, "\xD0\xCF\x11\xE0 slides");
        reg.insert(QStringLiteral("tbl_Documents"),
            {{QStringLiteral("RastoKel"), QString(reg.dir() + u'/' + name)}});
    }
    Connection connection(reg.connectionString());
    connection.open();
    TextIndexer indexer(connection, Limit);
    QElapsedTimer clock;
    clock.start();
    indexer.setCancelCheck([&clock] { return clock.elapsed() > 200; });
    const IndexSummary summary = indexer.run();
    QCOMPARE(summary.total(), 0);
    QCOMPARE(reg.scalar(QStringLiteral("SELECT COUNT(*) FROM tbl_Document_Text")).toInt(), 0);
    QVERIFY2(clock.elapsed() < 5000, "the conversion was waited for");
}

void IndexerTest::queueReadsInTheBackgroundAndPicksUpNewDocuments()
{
    const auto fixture = makeFixture(false);
    ReadingQueue queue;
    QSignalSpy progress(&queue, &ReadingQueue::progress);
    QSignalSpy finished(&queue, &ReadingQueue::finished);
    queue.start(fixture->reg->connectionString(), Limit, 300);
    QVERIFY(finished.wait(20000));
    QCOMPARE(progress.last(), (QVariantList {6, 6}));
    QCOMPARE(fixture->rowCount(), 6);

    // A document registered while the program runs is read at the next walk of the timer.
    writeBytes(fixture->file("new.txt"), "Naujas dokumentas");
    fixture->ids.insert("new.txt", fixture->addDocument("new", fixture->file("new.txt")));
    QTRY_VERIFY_WITH_TIMEOUT(fixture->row("new.txt").has_value(), 10000);
    QCOMPARE(fixture->row("new.txt")->body, QStringLiteral("Naujas dokumentas"));
    queue.stop();
    QVERIFY(!queue.isRunning());
}

void IndexerTest::progressGroupsThousandsWithASpace_data()
{
    QTest::addColumn<int>("done");
    QTest::addColumn<int>("total");
    QTest::addColumn<QString>("text");
    QTest::newRow("thousands") << 120 << 3400 << "Reading files: 120 of 3 400";
    QTest::newRow("none") << 0 << 0 << "Reading files: 0 of 0";
    QTest::newRow("999 and 1000") << 999 << 1000 << "Reading files: 999 of 1 000";
    QTest::newRow("millions") << 1234567 << 10000000 << "Reading files: 1 234 567 of 10 000 000";
}

void IndexerTest::progressGroupsThousandsWithASpace()
{
    QFETCH(int, done);
    QFETCH(int, total);
    QFETCH(QString, text);
    QCOMPARE(readingProgressText(done, total), text);
}

// The recognition takes up a scanned page that failed for want of a language's data once the
// data is there, whether the reason was stored by an English or a Lithuanian desktop; a page
// that failed for another reason stays as it was.
void IndexerTest::aMissingLanguageIsTriedAgainWhateverLanguageSaidSo_data()
{
    QTest::addColumn<QString>("reason");
    QTest::addColumn<bool>("triedAgain");
    QTest::newRow("English") << "Text recognition has no data for the language \"xqz\" in /usr/share/"
                                "tesseract-ocr/5/tessdata. Install the Debian package tesseract-ocr-xqz."
                             << true;
    QTest::newRow("Lithuanian") << "Teksto atpažinimas neturi kalbos „xqz“ duomenų aplanke /usr/share/"
                                   "tesseract-ocr/5/tessdata. Įdiekite Debian paketą tesseract-ocr-xqz."
                                << true;
    QTest::newRow("damaged") << "damaged" << false;
    QTest::newRow("a folder of that name") << "file not found: /srv/tesseract-ocr/5/page.png" << false;
}

void IndexerTest::aMissingLanguageIsTriedAgainWhateverLanguageSaidSo()
{
    QFETCH(QString, reason);
    QFETCH(bool, triedAgain);
    TestRegister reg;
    const QString path = reg.dir() + QStringLiteral("/page.png");
    QImage page(120, 60, QImage::Format_Grayscale8);
    page.fill(Qt::white);
    QVERIFY(page.save(path));
    const qint32 id = reg.insert(QStringLiteral("tbl_Documents"),
        {{QStringLiteral("DokAntraste"), QStringLiteral("Nuskaitytas")}, {QStringLiteral("RastoKel"), path}});
    Connection connection(reg.connectionString());
    connection.open();
    storeDocumentText(connection,
        {id, TextIndexer::currentStamp(path), TextState::Failed, reason, {}, QStringLiteral("x")});
    useCNumericLocale();
    TextRecognitionPass(connection, QStringLiteral("eng")).run();
    const std::optional<DocumentText> stored = storedDocumentText(connection, id);
    QVERIFY(stored);
    QVERIFY2((stored->state != TextState::Failed) == triedAgain, qPrintable(stored->reason));
    if (!triedAgain)
        QCOMPARE(stored->reason, reason);
}

// The register keeps a reason in English; the details show the readers' own reasons in the
// interface's language and the system's as they came.
void IndexerTest::statusAndProgressInLithuanian_data()
{
    QTest::addColumn<int>("state");
    QTest::addColumn<QString>("reason");
    QTest::addColumn<QString>("shown");
    QTest::newRow("read") << int(TextState::Read) << ""
                          << "Perskaitytas";
    QTest::newRow("not yet") << int(TextState::NotRead) << ""
                             << "Dar neperskaitytas";
    QTest::newRow("damaged") << int(TextState::Failed) << "damaged"
                             << "Neperskaitytas: pažeistas";
    QTest::newRow("too large") << int(TextState::Failed) << "larger than 50 MB"
                               << "Neperskaitytas: didesnis nei 50 MB";
    QTest::newRow("no reason") << int(TextState::Failed) << ""
                               << "Neperskaitytas: priežastis nežinoma";
    QTest::newRow("the system's") << int(TextState::Failed) << "Permission denied"
                                  << "Neperskaitytas: Permission denied";
}

void IndexerTest::statusAndProgressInLithuanian()
{
    QFETCH(int, state);
    QFETCH(QString, reason);
    const Lithuanian lithuanian;
    QTEST(textStatusText(TextState(state), reason), "shown");
    QCOMPARE(readingProgressText(1234, 5000), QStringLiteral("Skaitomi failai: 1 234 iš 5 000"));
    QCOMPARE(recognitionProgressText(3, 12), QStringLiteral("Atpažįstamas tekstas: 3 iš 12"));
}

int runIndexerTest(int argc, char** argv)
{
    IndexerTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_indexer.moc"
