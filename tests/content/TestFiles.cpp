#include "TestFiles.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>
#include <QUrl>

#include <zip.h>

namespace kartella::test {

namespace {

QString escaped(const QString& text)
{
    return text.toHtmlEscaped();
}

} // namespace

void writeBytes(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    QVERIFY2(file.open(QIODevice::WriteOnly | QIODevice::Truncate), qPrintable(path));
    QCOMPARE(file.write(bytes), bytes.size());
}

void writeZip(const QString& path, const QList<QPair<QString, QByteArray>>& entries)
{
    QFile::remove(path);
    int error = 0;
    zip_t* archive = zip_open(QFile::encodeName(path).constData(), ZIP_CREATE | ZIP_TRUNCATE, &error);
    QVERIFY(archive);
    // The sources hold the bytes until the archive is written on closing.
    QList<QByteArray> kept;
    for (const auto& [name, content] : entries) {
        kept << content;
        zip_source_t* source
            = zip_source_buffer(archive, kept.last().constData(), zip_uint64_t(kept.last().size()), 0);
        QVERIFY(source);
        QVERIFY(zip_file_add(archive, name.toUtf8().constData(), source, ZIP_FL_ENC_UTF_8) >= 0);
    }
    QCOMPARE(zip_close(archive), 0);
}

void writePdf(const QString& path, const QStringList& pages)
{
    QPdfWriter writer(path);
    writer.setPageSize(QPageSize(QPageSize::A4));
    writer.setResolution(300);
    QPainter painter(&writer);
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPointSize(12);
    painter.setFont(font);
    for (qsizetype i = 0; i < pages.size(); ++i) {
        if (i > 0)
            writer.newPage();
        painter.drawText(QRect(100, 100, 2000, 2000), Qt::TextWordWrap, pages.at(i));
    }
}

void writeImagePdf(const QString& path)
{
    QPdfWriter writer(path);
    QPainter painter(&writer);
    painter.fillRect(QRect(100, 100, 3000, 2000), Qt::darkGray);
}

// Standard security, RC4 40 bits: the empty user password does not open it, so a reader
// without the password finds it locked.
QByteArray encryptedPdf()
{
    const QByteArray filler = QByteArray(32, '\x5a').toHex().toUpper();
    QList<QByteArray> objects = {
        "<< /Type /Catalog /Pages 2 0 R >>",
        "<< /Type /Pages /Kids [3 0 R] /Count 1 >>",
        "<< /Type /Page /Parent 2 0 R /MediaBox [0 0 612 792] >>",
        "<< /Filter /Standard /V 1 /R 2 /O <" + filler + "> /U <" + filler + "> /P -44 >>",
    };
    QByteArray pdf = "%PDF-1.4\n";
    QList<qsizetype> offsets;
    for (qsizetype i = 0; i < objects.size(); ++i) {
        offsets << pdf.size();
        pdf += QByteArray::number(i + 1) + " 0 obj\n" + objects.at(i) + "\nendobj\n";
    }
    const qsizetype xref = pdf.size();
    pdf += "xref\n0 " + QByteArray::number(objects.size() + 1) + "\n0000000000 65535 f \n";
    for (const qsizetype offset : offsets)
        pdf += QByteArray::number(offset).rightJustified(10, '0') + " 00000 n \n";
    pdf += "trailer\n<< /Size " + QByteArray::number(objects.size() + 1)
        + " /Root 1 0 R /Encrypt 4 0 R /ID [<0123456789ABCDEF0123456789ABCDEF> "
          "<0123456789ABCDEF0123456789ABCDEF>] >>\nstartxref\n"
        + QByteArray::number(xref) + "\n%%EOF\n";
    return pdf;
}

void writeOpenDocument(const QString& path, const QStringList& paragraphs)
{
    QString body;
    for (const QString& paragraph : paragraphs)
        body += QStringLiteral("<text:p>") + escaped(paragraph) + QStringLiteral("</text:p>");
    const QString content = QStringLiteral(
        "<?xml version=\"1.0\" encoding=\"UTF-8\"?><office:document-content "
        "xmlns:office=\"urn:oasis:names:tc:opendocument:xmlns:office:1.0\" "
        "xmlns:text=\"urn:oasis:names:tc:opendocument:xmlns:text:1.0\" "
        "xmlns:table=\"urn:oasis:names:tc:opendocument:xmlns:table:1.0\"><office:body><office:text>%1"
        "<table:table><table:table-row><table:table-cell><text:p>langelis</text:p></table:table-cell>"
        "<table:table-cell><text:p>kitas</text:p></table:table-cell></table:table-row></table:table>"
        "</office:text></office:body></office:document-content>")
                                .arg(body);
    writeZip(path,
        {{QStringLiteral("mimetype"), "application/vnd.oasis.opendocument.text"},
            {QStringLiteral("content.xml"), content.toUtf8()}});
}

void writeWordDocument(const QString& path, const QStringList& paragraphs)
{
    QString body;
    for (const QString& paragraph : paragraphs) {
        // Words split over runs, as Word writes them, join again.
        const qsizetype half = paragraph.size() / 2;
        body += QStringLiteral("<w:p><w:r><w:t>%1</w:t></w:r><w:r><w:t>%2</w:t></w:r></w:p>")
                    .arg(escaped(paragraph.left(half)), escaped(paragraph.mid(half)));
    }
    const QString document = QStringLiteral(
        "<?xml version=\"1.0\" encoding=\"UTF-8\"?><w:document "
        "xmlns:w=\"http://schemas.openxmlformats.org/wordprocessingml/2006/main\"><w:body>%1<w:p><w:r>"
        "<w:instrText>PAGE</w:instrText></w:r></w:p></w:body></w:document>")
                                 .arg(body);
    writeZip(path,
        {{QStringLiteral("[Content_Types].xml"), "<Types/>"},
            {QStringLiteral("word/document.xml"), document.toUtf8()}});
}

void writeSpreadsheet(const QString& path, const QStringList& cells)
{
    QString shared;
    QString row;
    for (qsizetype i = 0; i < cells.size(); ++i) {
        shared += QStringLiteral("<si><t>%1</t></si>").arg(escaped(cells.at(i)));
        row += QStringLiteral("<c t=\"s\"><v>%1</v></c>").arg(i);
    }
    row += QStringLiteral("<c><v>1234.5</v></c>");
    const QString ns = QStringLiteral("xmlns=\"http://schemas.openxmlformats.org/spreadsheetml/2006/main\"");
    writeZip(path,
        {{QStringLiteral("xl/sharedStrings.xml"),
             QStringLiteral("<sst %1>%2</sst>").arg(ns, shared).toUtf8()},
            {QStringLiteral("xl/worksheets/sheet1.xml"),
                QStringLiteral("<worksheet %1><sheetData><row>%2</row></sheetData></worksheet>")
                    .arg(ns, row)
                    .toUtf8()}});
}

void writePresentation(const QString& path, const QStringList& slides)
{
    QList<QPair<QString, QByteArray>> entries;
    for (qsizetype i = 0; i < slides.size(); ++i) {
        entries.append({QStringLiteral("ppt/slides/slide%1.xml").arg(i + 1),
            QStringLiteral("<p:sld xmlns:p=\"http://schemas.openxmlformats.org/presentationml/2006/main\" "
                           "xmlns:a=\"http://schemas.openxmlformats.org/drawingml/2006/main\"><p:cSld>"
                           "<p:spTree><p:sp><p:txBody><a:p><a:r><a:t>%1</a:t></a:r></a:p></p:txBody></p:sp>"
                           "</p:spTree></p:cSld></p:sld>")
                .arg(escaped(slides.at(i)))
                .toUtf8()});
    }
    writeZip(path, entries);
}

bool hasLibreOffice()
{
    return !QStandardPaths::findExecutable(QStringLiteral("soffice")).isEmpty();
}

QString convertWithLibreOffice(const QString& source, const QString& format, const QString& folder)
{
    if (!hasLibreOffice())
        return {};
    QTemporaryDir profile;
    QProcess process;
    process.start(QStandardPaths::findExecutable(QStringLiteral("soffice")),
        {QStringLiteral("--headless"), QStringLiteral("--norestore"),
            QStringLiteral("-env:UserInstallation=") + QUrl::fromLocalFile(profile.path()).toString(),
            QStringLiteral("--convert-to"), format, QStringLiteral("--outdir"), folder, source});
    if (!process.waitForFinished(120 * 1000))
        return {};
    const QString converted = QDir(folder).filePath(QFileInfo(source).completeBaseName() + u'.' + format);
    return QFileInfo::exists(converted) ? converted : QString();
}

} // namespace kartella::test
