// OpenDocument and Office Open XML: the text of their XML parts, read from the zip.
#include "content/FileText.h"

#include <QFile>
#include <QMap>
#include <QRegularExpression>
#include <QSet>
#include <QXmlStreamReader>

#include <memory>
#include <optional>
#include <zip.h>

namespace kartella {

namespace {

struct ZipCloser
{
    void operator()(zip_t* archive) const { zip_discard(archive); }
};
using Archive = std::unique_ptr<zip_t, ZipCloser>;

// How the text of one kind of XML part is gathered.
struct XmlWalk
{
    QSet<QString> textIn; // only character data inside these elements counts; all when empty
    QSet<QString> newLineAfter; // a paragraph
    QSet<QString> spaceAfter; // a cell
    QSet<QString> spaceAt; // a tab, a space, a line break as an element of its own
};

QString walkXml(const QByteArray& xml, const XmlWalk& walk)
{
    QXmlStreamReader reader(xml);
    QString out;
    int textDepth = 0;
    int cellDepth = 0;
    while (!reader.atEnd()) {
        switch (reader.readNext()) {
        case QXmlStreamReader::StartElement: {
            const QString name = reader.name().toString();
            if (walk.textIn.contains(name))
                ++textDepth;
            if (walk.spaceAfter.contains(name))
                ++cellDepth;
            if (walk.spaceAt.contains(name))
                out += u' ';
            break;
        }
        case QXmlStreamReader::EndElement: {
            const QString name = reader.name().toString();
            if (walk.textIn.contains(name))
                --textDepth;
            if (walk.spaceAfter.contains(name)) {
                --cellDepth;
                while (!out.isEmpty() && out.back().isSpace())
                    out.chop(1);
                out += u'\t';
            } else if (walk.newLineAfter.contains(name))
                // The paragraphs of a cell run on in one line: a line is a row.
                out += cellDepth > 0 ? u' ' : u'\n';
            break;
        }
        case QXmlStreamReader::Characters:
            if (walk.textIn.isEmpty() || textDepth > 0)
                out += reader.text();
            break;
        default:
            break;
        }
    }
    if (reader.hasError())
        throw TextReason::Damaged;
    return out;
}

// One entry of the archive; nothing when it is not there. Throws the reason when the
// entry is there but can't be read.
std::optional<QByteArray> entry(zip_t* archive, const QString& name)
{
    zip_stat_t stat;
    zip_stat_init(&stat);
    const QByteArray entryName = name.toUtf8();
    if (zip_stat(archive, entryName.constData(), 0, &stat) != 0)
        return std::nullopt;
    if ((stat.valid & ZIP_STAT_ENCRYPTION_METHOD) && stat.encryption_method != ZIP_EM_NONE)
        throw TextReason::PasswordProtected;
    zip_file_t* file = zip_fopen(archive, entryName.constData(), 0);
    if (!file)
        throw zip_get_error(archive)->zip_err == ZIP_ER_NOPASSWD ? TextReason::PasswordProtected
                                                                 : TextReason::Damaged;
    QByteArray bytes;
    char buffer[65536];
    zip_int64_t read = 0;
    while ((read = zip_fread(file, buffer, sizeof buffer)) > 0)
        bytes.append(buffer, qsizetype(read));
    zip_fclose(file);
    if (read < 0)
        throw TextReason::Damaged;
    return bytes;
}

// The entries under folder whose names are prefix<number>.xml, in the order of the numbers.
QStringList numberedEntries(zip_t* archive, const QString& prefix)
{
    const QRegularExpression pattern(QRegularExpression::escape(prefix) + QStringLiteral("(\\d+)\\.xml"));
    QMap<int, QString> found;
    const zip_int64_t count = zip_get_num_entries(archive, 0);
    for (zip_int64_t i = 0; i < count; ++i) {
        const QString name = QString::fromUtf8(zip_get_name(archive, zip_uint64_t(i), 0));
        const QRegularExpressionMatch match = pattern.match(name);
        if (match.hasMatch() && match.capturedLength() == name.size())
            found.insert(match.captured(1).toInt(), name);
    }
    return found.values();
}

QString openDocumentText(zip_t* archive)
{
    const auto content = entry(archive, QStringLiteral("content.xml"));
    if (!content)
        throw TextReason::Damaged;
    XmlWalk walk;
    walk.newLineAfter = {QStringLiteral("p"), QStringLiteral("h"), QStringLiteral("table-row")};
    walk.spaceAfter = {QStringLiteral("table-cell")};
    walk.spaceAt = {QStringLiteral("s"), QStringLiteral("tab"), QStringLiteral("line-break")};
    return walkXml(*content, walk);
}

QString wordText(zip_t* archive)
{
    const auto document = entry(archive, QStringLiteral("word/document.xml"));
    if (!document)
        throw TextReason::Damaged;
    XmlWalk walk;
    walk.textIn = {QStringLiteral("t")};
    walk.newLineAfter = {QStringLiteral("p")};
    walk.spaceAfter = {QStringLiteral("tc")};
    walk.spaceAt = {QStringLiteral("tab"), QStringLiteral("br")};
    return walkXml(*document, walk);
}

QString presentationText(zip_t* archive)
{
    XmlWalk walk;
    walk.textIn = {QStringLiteral("t")};
    walk.newLineAfter = {QStringLiteral("p")};
    QString out;
    for (const QString& name : numberedEntries(archive, QStringLiteral("ppt/slides/slide"))) {
        if (const auto slide = entry(archive, name))
            out += walkXml(*slide, walk);
    }
    return out;
}

// The cells of every sheet, a tab between cells and a line a row; a cell of shared text
// looks its text up in the shared strings.
QString spreadsheetText(zip_t* archive)
{
    QStringList shared;
    if (const auto strings = entry(archive, QStringLiteral("xl/sharedStrings.xml"))) {
        QXmlStreamReader reader(*strings);
        QString current;
        bool inText = false;
        while (!reader.atEnd()) {
            const auto token = reader.readNext();
            if (token == QXmlStreamReader::StartElement && reader.name() == QLatin1String("t"))
                inText = true;
            else if (token == QXmlStreamReader::EndElement && reader.name() == QLatin1String("t"))
                inText = false;
            else if (token == QXmlStreamReader::Characters && inText)
                current += reader.text();
            else if (token == QXmlStreamReader::EndElement && reader.name() == QLatin1String("si")) {
                shared << current;
                current.clear();
            }
        }
    }
    QString out;
    for (const QString& name : numberedEntries(archive, QStringLiteral("xl/worksheets/sheet"))) {
        const auto sheet = entry(archive, name);
        if (!sheet)
            continue;
        QXmlStreamReader reader(*sheet);
        QString type;
        QString value;
        bool inValue = false;
        while (!reader.atEnd()) {
            const auto token = reader.readNext();
            const auto element = reader.name();
            if (token == QXmlStreamReader::StartElement && element == QLatin1String("c")) {
                type = reader.attributes().value(QLatin1String("t")).toString();
                value.clear();
            } else if (token == QXmlStreamReader::StartElement
                && (element == QLatin1String("v") || element == QLatin1String("t")))
                inValue = true;
            else if (token == QXmlStreamReader::Characters && inValue)
                value += reader.text();
            else if (token == QXmlStreamReader::EndElement
                && (element == QLatin1String("v") || element == QLatin1String("t")))
                inValue = false;
            else if (token == QXmlStreamReader::EndElement && element == QLatin1String("c")) {
                const int index = value.toInt();
                out += (type == QLatin1String("s")
                               ? (index >= 0 && index < shared.size() ? shared.at(index) : QString())
                               : value)
                    + u'\t';
            } else if (token == QXmlStreamReader::EndElement && element == QLatin1String("row"))
                out += u'\n';
        }
    }
    return out;
}

// An Office Open XML file saved with a password is no zip but an OLE compound file.
bool isCompoundFile(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly)
        && file.read(8) == QByteArray("\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1", 8);
}

} // namespace

FileText readOfficeXmlText(const QString& path, const QString& extension)
{
    int error = 0;
    Archive archive(zip_open(QFile::encodeName(path).constData(), ZIP_RDONLY | ZIP_CHECKCONS, &error));
    if (!archive) {
        if (error == ZIP_ER_NOZIP && extension.size() == 4 && isCompoundFile(path))
            return FileText::failed(TextReason::PasswordProtected);
        if (error == ZIP_ER_OPEN || error == ZIP_ER_READ)
            return FileText::failed(QStringLiteral("can't be opened"));
        return FileText::failed(TextReason::Damaged);
    }
    try {
        QString text;
        if (extension.startsWith(u'o'))
            text = openDocumentText(archive.get());
        else if (extension == QLatin1String("docx"))
            text = wordText(archive.get());
        else if (extension == QLatin1String("xlsx"))
            text = spreadsheetText(archive.get());
        else
            text = presentationText(archive.get());
        return FileText::read(text.trimmed());
    } catch (const QString& reason) {
        return FileText::failed(reason);
    }
}

} // namespace kartella
