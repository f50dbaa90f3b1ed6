#include "store/SampleFiles.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace kartella::sample {

namespace {

QString plainBody(const FileContent& content)
{
    QString body = content.title + u'\n';
    if (!content.index.isEmpty())
        body += content.index + u'\n';
    body += content.date.toString(Qt::ISODate) + QStringLiteral("\n\n") + content.text + u'\n';
    return body;
}

QByteArray rtfBody(const FileContent& content)
{
    QByteArray rtf = "{\\rtf1\\ansi\\ansicpg1257\\deff0{\\fonttbl{\\f0 Times New Roman;}}\\f0\\fs24 ";
    const QString body = plainBody(content);
    for (const QChar c : body) {
        if (c == u'\n')
            rtf += "\\par\n";
        else if (c == u'\\' || c == u'{' || c == u'}')
            rtf += '\\' + QByteArray(1, char(c.unicode()));
        else if (c.unicode() < 128)
            rtf += char(c.unicode());
        else
            rtf += "\\u" + QByteArray::number(qint16(c.unicode())) + '?';
    }
    return rtf + "}\n";
}

// Latin letters keep their base letter in the PDF's standard font; others show as "?".
char pdfChar(QChar c)
{
    if (c.unicode() < 128)
        return char(c.unicode());
    const QString decomposed = c.decomposition();
    if (!decomposed.isEmpty() && decomposed.at(0).unicode() < 128)
        return char(decomposed.at(0).unicode());
    return '?';
}

// A one-page PDF that shows the title and the date.
QByteArray pdfBody(const FileContent& content)
{
    QByteArray title;
    const QString line = content.title + QStringLiteral("  ") + content.date.toString(Qt::ISODate);
    for (const QChar c : line) {
        if (c == u'(' || c == u')' || c == u'\\')
            title += '\\';
        title += pdfChar(c);
    }
    const QByteArray stream = "BT /F1 14 Tf 72 760 Td (" + title + ") Tj ET";
    const QList<QByteArray> objects = {
        "<< /Type /Catalog /Pages 2 0 R >>",
        "<< /Type /Pages /Kids [3 0 R] /Count 1 >>",
        "<< /Type /Page /Parent 2 0 R /MediaBox [0 0 595 842] /Contents 4 0 R "
        "/Resources << /Font << /F1 5 0 R >> >> >>",
        "<< /Length " + QByteArray::number(stream.size()) + " >>\nstream\n" + stream + "\nendstream",
        "<< /Type /Font /Subtype /Type1 /BaseFont /Helvetica >>",
    };
    QByteArray pdf = "%PDF-1.4\n";
    QList<qsizetype> offsets;
    for (int i = 0; i < objects.size(); ++i) {
        offsets << pdf.size();
        pdf += QByteArray::number(i + 1) + " 0 obj\n" + objects.at(i) + "\nendobj\n";
    }
    const qsizetype xref = pdf.size();
    pdf += "xref\n0 " + QByteArray::number(objects.size() + 1) + "\n0000000000 65535 f \n";
    for (const qsizetype offset : offsets)
        pdf += QByteArray::number(offset).rightJustified(10, '0') + " 00000 n \n";
    pdf += "trailer\n<< /Size " + QByteArray::number(objects.size() + 1) + " /Root 1 0 R >>\nstartxref\n"
        + QByteArray::number(xref) + "\n%%EOF\n";
    return pdf;
}

} // namespace

bool writeSampleFile(const QString& path, const FileContent& content)
{
    const QFileInfo info(path);
    if (!QDir().mkpath(info.absolutePath()))
        return false;
    const QString suffix = info.suffix().toLower();
    QByteArray bytes;
    if (suffix == u"doc")
        bytes = rtfBody(content);
    else if (suffix == u"pdf")
        bytes = pdfBody(content);
    else
        bytes = plainBody(content).toUtf8();
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate))
        return false;
    return file.write(bytes) == bytes.size();
}

} // namespace kartella::sample
