#include "harness/OfficeTemplates.h"

#include "platform/LibreOfficeSuite.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QStringEncoder>
#include <QUrl>

namespace kartella::test {

using Kind = OfficeSuite::Kind;

QByteArray flatDocument(Kind kind, const QByteArray& text)
{
    QByteArray body = LibreOfficeSuite::seedDocument(kind);
    const QByteArray paragraph = "<text:p>" + text + "</text:p>";
    if (kind == Kind::Word) {
        body.replace("<text:p/>", paragraph);
    } else if (kind == Kind::Excel) {
        const QByteArray cell
            = "<table:table-cell office:value-type=\"string\">" + paragraph + "</table:table-cell>";
        body.replace("<table:table-cell/>", cell);
    } else {
        const QByteArray page = "<draw:page draw:name=\"Slide1\"><draw:frame svg:x=\"2cm\" svg:y=\"2cm\" "
                                "svg:width=\"20cm\" svg:height=\"3cm\" "
                                "xmlns:svg=\"urn:oasis:names:tc:opendocument:xmlns:svg-compatible:1.0\">"
                                "<draw:text-box>"
            + paragraph + "</draw:text-box></draw:frame></draw:page>";
        body.replace("<draw:page draw:name=\"Slide1\"/>", page);
    }
    return body;
}

QString makeOfficeTemplate(Kind kind, const QString& folder, const QString& name)
{
    static const char* const filters[]
        = {"dot:MS Word 97 Vorlage", "xlt:MS Excel 97 Vorlage/Template", "pot:MS PowerPoint 97 Vorlage"};
    const QString filter = QLatin1String(filters[int(kind)]);
    const QDir dir(folder);
    const QString source = dir.filePath(name + "." + LibreOfficeSuite::seedExtension(kind));
    const QByteArray body = flatDocument(kind, "Template marker " + name.toUtf8());
    QFile file(source);
    if (!file.open(QIODevice::WriteOnly) || file.write(body) != body.size())
        return {};
    file.close();
    QProcess soffice;
    soffice.start(QStringLiteral("soffice"),
        {"--headless", "--norestore",
            "-env:UserInstallation=" + QUrl::fromLocalFile(dir.filePath("profile")).toString(),
            "--convert-to", filter, "--outdir", folder, source});
    soffice.waitForFinished(120000);
    const QString made = dir.filePath(name + "." + filter.left(3));
    return QFile::exists(made) ? made : QString();
}

bool fileHoldsText(const QString& path, const QString& text)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return false;
    const QByteArray content = file.readAll();
    QStringEncoder utf16(QStringConverter::Utf16LE);
    const QByteArray wide = utf16.encode(text);
    return content.contains(text.toLatin1()) || content.contains(wide);
}

} // namespace kartella::test
