// The reading of files: a register whose documents name files of one kind, read from
// scratch by a TextIndexer pass; and the longest stall of the window's thread while the
// background queue reads.
#include "ContentBench.h"
#include "content/ReadingQueue.h"
#include "content/TextIndexer.h"
#include "platform/LibreOfficeSuite.h"
#include "store/InsertBatch.h"
#include "store/Schema.h"
#include "store/Store.h"
#include "store/engine/Connection.h"

#include <QDate>
#include <QDir>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QFile>
#include <QPainter>
#include <QPdfWriter>
#include <QProcess>
#include <QStandardPaths>
#include <QTimer>
#include <QUrl>

#include <algorithm>

namespace kartella::bench {

namespace {

constexpr qint64 Limit = 50 * 1024 * 1024;

QString connectionOf(const QString& registerPath)
{
    return plainConnectionString(QStringLiteral("Microsoft.Jet.OLEDB.4.0"), registerPath);
}

// A new register whose documents name the files given.
QString makeRegister(const QString& folder, const QString& name, const QStringList& files)
{
    const QString path = QDir(folder).filePath(name + QStringLiteral(".kartella"));
    createRegister(path);
    Connection connection(connectionOf(path));
    connection.open();
    connection.beginTrans();
    InsertBatch documents(connection, QStringLiteral("tbl_Documents"),
        {QStringLiteral("DokAntraste"), QStringLiteral("RastoKel"), QStringLiteral("DokRegistracData"),
            QStringLiteral("KryptisID")});
    for (const QString& file : files)
        documents.add({QFileInfo(file).fileName(), file, QDate(2024, 5, 20), 1});
    documents.flush();
    connection.commitTrans();
    return path;
}

QStringList makePdfs(const QString& folder, int count)
{
    QDir().mkpath(folder);
    QStringList files;
    for (int i = 0; i < count; ++i) {
        const QString path = QDir(folder).filePath(QStringLiteral("letter%1.pdf").arg(i));
        QPdfWriter writer(path);
        QPainter painter(&writer);
        painter.drawText(QRect(200, 200, 8000, 8000), Qt::TextWordWrap,
            QStringLiteral("Raštas Nr. %1. Sutartis su Šiaulių bendrove dėl ąžuolų pristatymo. Mokėjimas per "
                           "trisdešimt dienų nuo sąskaitos gavimo; ginčai sprendžiami Lietuvos teismuose.")
                .arg(i));
        files << path;
    }
    return files;
}

// A document made by LibreOffice as the program makes one (format: "docx", or "doc" from a
// .dot template), copied count times; nothing when LibreOffice is missing.
QStringList makeOfficeFiles(const QString& folder, const QString& format, int count)
{
    const QString soffice = QStandardPaths::findExecutable(QStringLiteral("soffice"));
    if (soffice.isEmpty())
        return {};
    QDir().mkpath(folder);
    const QString seed = QDir(folder).filePath(QStringLiteral("seed.fodt"));
    QByteArray body = LibreOfficeSuite::seedDocument(OfficeSuite::Kind::Word);
    body.replace("<text:p/>",
        "<text:p>Sutartis su \xC5\xA0iauli\xC5\xB3 bendrove d\xC4\x97l \xC4\x85\xC5\xBEuol\xC5\xB3 "
        "pristatymo.</text:p>"
        "<text:p>Mok\xC4\x97jimas per trisde\xC5\xA1imt dien\xC5\xB3.</text:p>");
    QFile seedFile(seed);
    if (!seedFile.open(QIODevice::WriteOnly) || seedFile.write(body) != body.size())
        return {};
    seedFile.close();
    QProcess process;
    process.start(soffice,
        {QStringLiteral("--headless"), QStringLiteral("--norestore"),
            QStringLiteral("-env:UserInstallation=")
                + QUrl::fromLocalFile(QDir(folder).filePath(QStringLiteral("profile"))).toString(),
            QStringLiteral("--convert-to"), format == QLatin1String("doc") ? QStringLiteral("dot") : format,
            QStringLiteral("--outdir"), folder, seed});
    process.waitForFinished(180 * 1000);
    QString made = QDir(folder).filePath(QStringLiteral("seed.") + format);
    if (format == QLatin1String("doc")) {
        // The .doc made from the template, as the program makes a new Word document.
        LibreOfficeSuite suite;
        suite.create(OfficeSuite::Kind::Word, QDir(folder).filePath(QStringLiteral("seed.dot")), made);
    }
    if (!QFileInfo::exists(made))
        return {};
    QStringList files;
    for (int i = 0; i < count; ++i) {
        const QString copy = QDir(folder).filePath(QStringLiteral("document%1.").arg(i) + format);
        QFile::copy(made, copy);
        files << copy;
    }
    return files;
}

double filesPerSecond(const QString& registerPath, int files)
{
    Connection connection(connectionOf(registerPath));
    connection.open();
    TextIndexer indexer(connection, Limit);
    QElapsedTimer clock;
    clock.start();
    const IndexSummary summary = indexer.run();
    const double seconds = std::max<qint64>(1, clock.elapsed()) / 1000.0;
    if (summary.read != files)
        QTextStream(stderr) << registerPath << ": " << summary.read << " of " << files << " read\n";
    return files / seconds;
}

// The longest gap between ticks of a 10 ms timer on this thread while the queue reads the
// register's files.
qint64 longestStall(const QString& registerPath)
{
    ReadingQueue queue;
    QEventLoop loop;
    QTimer tick;
    QElapsedTimer sinceLast;
    qint64 longest = 0;
    QObject::connect(
        &tick, &QTimer::timeout, &loop, [&] { longest = std::max(longest, sinceLast.restart()); });
    QObject::connect(&queue, &ReadingQueue::finished, &loop, &QEventLoop::quit);
    QObject::connect(&queue, &ReadingQueue::failed, &loop, &QEventLoop::quit);
    tick.start(10);
    sinceLast.start();
    queue.start(connectionOf(registerPath), Limit);
    loop.exec();
    // The timer's own period is no stall.
    return std::max<qint64>(0, longest - 10);
}

} // namespace

void benchReading(const QString& folder, QTextStream& out)
{
    const QDir root(folder);
    const QStringList pdfs = makePdfs(root.filePath(QStringLiteral("pdf")), 1000);
    out << "index_pdf_per_s: "
        << qRound(filesPerSecond(makeRegister(folder, QStringLiteral("pdf"), pdfs), int(pdfs.size())))
        << Qt::endl;

    const QStringList docx
        = makeOfficeFiles(root.filePath(QStringLiteral("docx")), QStringLiteral("docx"), 200);
    if (!docx.isEmpty())
        out << "index_docx_per_s: "
            << qRound(filesPerSecond(makeRegister(folder, QStringLiteral("docx"), docx), int(docx.size())))
            << Qt::endl;
    const QStringList doc = makeOfficeFiles(root.filePath(QStringLiteral("doc")), QStringLiteral("doc"), 200);
    if (!doc.isEmpty())
        out << "index_doc_per_s: "
            << qRound(filesPerSecond(makeRegister(folder, QStringLiteral("doc"), doc), int(doc.size())))
            << Qt::endl;
    if (docx.isEmpty() || doc.isEmpty())
        out << "# LibreOffice (soffice) is missing: no .docx or .doc files to read" << Qt::endl;

    // The same PDFs once more, from scratch, through the background queue.
    out << "max_ui_stall_ms: " << longestStall(makeRegister(folder, QStringLiteral("stall"), pdfs))
        << Qt::endl;
}

} // namespace kartella::bench
