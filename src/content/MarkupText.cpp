// Plain text and HTML: the text in the encoding the file declares.
#include "content/MarkupText.h"

#include "content/FileText.h"
#include "content/TextDecoding.h"

#include <QFile>
#include <QHash>
#include <QRegularExpression>

namespace kartella {

namespace {

// The tags after which the text goes on on a new line.
bool breaksLine(const QString& tag)
{
    static const QStringList blocks = {QStringLiteral("p"), QStringLiteral("br"), QStringLiteral("div"),
        QStringLiteral("li"), QStringLiteral("tr"), QStringLiteral("h1"), QStringLiteral("h2"),
        QStringLiteral("h3"), QStringLiteral("h4"), QStringLiteral("h5"), QStringLiteral("h6"),
        QStringLiteral("table"), QStringLiteral("ul"), QStringLiteral("ol"), QStringLiteral("title"),
        QStringLiteral("blockquote"), QStringLiteral("pre")};
    return blocks.contains(tag);
}

QString entity(const QString& name)
{
    static const QHash<QString, QString> named = {{QStringLiteral("amp"), QStringLiteral("&")},
        {QStringLiteral("lt"), QStringLiteral("<")}, {QStringLiteral("gt"), QStringLiteral(">")},
        {QStringLiteral("quot"), QStringLiteral("\"")}, {QStringLiteral("apos"), QStringLiteral("'")},
        {QStringLiteral("nbsp"), QStringLiteral(" ")}, {QStringLiteral("ndash"), QStringLiteral("–")},
        {QStringLiteral("mdash"), QStringLiteral("—")}, {QStringLiteral("bdquo"), QStringLiteral("„")},
        {QStringLiteral("ldquo"), QStringLiteral("“")}, {QStringLiteral("rdquo"), QStringLiteral("”")},
        {QStringLiteral("scaron"), QStringLiteral("š")}, {QStringLiteral("Scaron"), QStringLiteral("Š")},
        {QStringLiteral("zcaron"), QStringLiteral("ž")}, {QStringLiteral("Zcaron"), QStringLiteral("Ž")}};
    if (name.startsWith(u'#')) {
        bool ok = false;
        const uint code = name.startsWith(QLatin1String("#x"), Qt::CaseInsensitive)
            ? name.mid(2).toUInt(&ok, 16)
            : name.mid(1).toUInt(&ok, 10);
        if (ok && code > 0 && code <= 0x10FFFF) {
            const char32_t character = code;
            return QString::fromUcs4(&character, 1);
        }
        return {};
    }
    return named.value(name);
}

} // namespace

QByteArray declaredHtmlCharset(const QByteArray& bytes)
{
    static const QRegularExpression charset(
        QStringLiteral("<meta[^>]*charset\\s*=\\s*[\"']?([A-Za-z0-9_:.-]+)"),
        QRegularExpression::CaseInsensitiveOption);
    const QRegularExpressionMatch match = charset.match(QString::fromLatin1(bytes.left(4096)));
    return match.hasMatch() ? match.captured(1).toLatin1() : QByteArray();
}

QString decodeEntities(const QString& text)
{
    QString out;
    out.reserve(text.size());
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text.at(i) == u'&') {
            const qsizetype end = text.indexOf(u';', i + 1);
            if (end > i && end - i <= 10) {
                const QString decoded = entity(text.mid(i + 1, end - i - 1));
                if (!decoded.isEmpty()) {
                    out += decoded;
                    i = end;
                    continue;
                }
            }
        }
        out += text.at(i);
    }
    return out;
}

QString htmlToText(const QString& html)
{
    QString out;
    out.reserve(html.size());
    qsizetype i = 0;
    while (i < html.size()) {
        const QChar c = html.at(i);
        if (c != u'<') {
            const qsizetype next = html.indexOf(u'<', i);
            const qsizetype end = next < 0 ? html.size() : next;
            out += decodeEntities(html.mid(i, end - i));
            i = end;
            continue;
        }
        if (html.mid(i, 4) == QLatin1String("<!--")) {
            const qsizetype end = html.indexOf(QLatin1String("-->"), i + 4);
            i = end < 0 ? html.size() : end + 3;
            continue;
        }
        const qsizetype close = html.indexOf(u'>', i);
        if (close < 0)
            break;
        QString tag = html.mid(i + 1, close - i - 1).trimmed().toLower();
        const bool ending = tag.startsWith(u'/');
        if (ending)
            tag.remove(0, 1);
        tag = tag.section(QRegularExpression(QStringLiteral("[\\s/]")), 0, 0, QString::SectionSkipEmpty);
        i = close + 1;
        // Scripts and styles hold no text of the page.
        if (!ending && (tag == QLatin1String("script") || tag == QLatin1String("style"))) {
            const qsizetype end = html.indexOf(QStringLiteral("</") + tag, i, Qt::CaseInsensitive);
            const qsizetype after = end < 0 ? -1 : html.indexOf(u'>', end);
            i = after < 0 ? html.size() : after + 1;
            continue;
        }
        if (breaksLine(tag))
            out += u'\n';
        else if (tag == QLatin1String("td") || tag == QLatin1String("th"))
            out += u'\t';
    }
    return out;
}

FileText readPlainText(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return FileText::failed(file.errorString());
    return FileText::read(decodeText(file.readAll()));
}

FileText readHtmlText(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return FileText::failed(file.errorString());
    const QByteArray bytes = file.readAll();
    return FileText::read(htmlToText(decodeText(bytes, declaredHtmlCharset(bytes))).trimmed());
}

} // namespace kartella
