// E-mail (.eml): the subject, sender and recipients, and the message's text.
#include "content/FileText.h"
#include "content/MarkupText.h"
#include "content/TextDecoding.h"

#include <QFile>
#include <QRegularExpression>

namespace kartella {

namespace {

struct MailPart
{
    QList<QPair<QByteArray, QByteArray>> headers; // names in lower case, continuation lines joined
    QByteArray body;

    QByteArray header(const QByteArray& name) const
    {
        for (const auto& [key, value] : headers) {
            if (key == name)
                return value;
        }
        return {};
    }
};

MailPart splitPart(const QByteArray& bytes)
{
    MailPart part;
    qsizetype at = 0;
    while (at < bytes.size()) {
        qsizetype end = bytes.indexOf('\n', at);
        if (end < 0)
            end = bytes.size();
        QByteArray line = bytes.mid(at, end - at);
        if (line.endsWith('\r'))
            line.chop(1);
        at = end + 1;
        if (line.isEmpty())
            break;
        if ((line.startsWith(' ') || line.startsWith('\t')) && !part.headers.isEmpty()) {
            part.headers.last().second += ' ' + line.trimmed();
            continue;
        }
        const qsizetype colon = line.indexOf(':');
        if (colon > 0)
            part.headers.append({line.left(colon).trimmed().toLower(), line.mid(colon + 1).trimmed()});
    }
    part.body = at < bytes.size() ? bytes.mid(at) : QByteArray();
    return part;
}

// A parameter of a header value: charset="utf-8", boundary=abc.
QByteArray parameter(const QByteArray& value, const QByteArray& name)
{
    const QRegularExpression pattern(QStringLiteral(";\\s*") + QString::fromLatin1(name)
            + QStringLiteral("\\s*=\\s*(\"([^\"]*)\"|[^;\\s]+)"),
        QRegularExpression::CaseInsensitiveOption);
    const QRegularExpressionMatch match = pattern.match(QString::fromLatin1(value));
    if (!match.hasMatch())
        return {};
    return (match.capturedLength(2) > 0 ? match.captured(2) : match.captured(1)).toLatin1();
}

QByteArray decodeQuotedPrintable(const QByteArray& bytes, bool inHeader)
{
    QByteArray out;
    out.reserve(bytes.size());
    for (qsizetype i = 0; i < bytes.size(); ++i) {
        const char c = bytes.at(i);
        if (c == '=' && i + 1 < bytes.size()) {
            if (bytes.at(i + 1) == '\n') {
                ++i;
                continue;
            }
            if (bytes.at(i + 1) == '\r' && i + 2 < bytes.size() && bytes.at(i + 2) == '\n') {
                i += 2;
                continue;
            }
            bool ok = false;
            const int byte = bytes.mid(i + 1, 2).toInt(&ok, 16);
            if (ok) {
                out += char(byte);
                i += 2;
                continue;
            }
        }
        out += (inHeader && c == '_') ? ' ' : c;
    }
    return out;
}

// =?charset?Q?...?= and =?charset?B?...?= words of a header, decoded; the rest as UTF-8
// or the Baltic code page.
QString decodeHeader(const QByteArray& value)
{
    static const QRegularExpression word(
        QStringLiteral("=\\?([^?]+)\\?([QqBb])\\?([^?]*)\\?=(\\s+(?==\\?))?"));
    QString out;
    qsizetype at = 0;
    const QString text = QString::fromLatin1(value);
    QRegularExpressionMatchIterator words = word.globalMatch(text);
    while (words.hasNext()) {
        const QRegularExpressionMatch match = words.next();
        out += decodeText(value.mid(at, match.capturedStart() - at));
        const QByteArray payload = match.captured(3).toLatin1();
        const QByteArray bytes = match.captured(2).compare(QLatin1String("B"), Qt::CaseInsensitive) == 0
            ? QByteArray::fromBase64(payload)
            : decodeQuotedPrintable(payload, true);
        out += decodeText(bytes, match.captured(1).section(u'*', 0, 0).toLatin1());
        at = match.capturedEnd();
    }
    out += decodeText(value.mid(at));
    return out;
}

QByteArray decodeTransfer(const MailPart& part)
{
    const QByteArray encoding = part.header("content-transfer-encoding").trimmed().toLower();
    if (encoding == "base64")
        return QByteArray::fromBase64(part.body);
    if (encoding == "quoted-printable")
        return decodeQuotedPrintable(part.body, false);
    return part.body;
}

// The text of a part: a text/plain one as it is, else the first text/plain of a multipart
// one, else its HTML as text. Attachments are left out.
QString partText(const MailPart& part, int depth)
{
    const QByteArray type = part.header("content-type");
    const QByteArray mime = type.split(';').first().trimmed().toLower();
    if (mime.startsWith("multipart/") && depth < 8) {
        const QByteArray boundary = parameter(type, "boundary");
        if (boundary.isEmpty())
            return {};
        const QList<QByteArray> pieces = part.body.split('\n');
        QList<MailPart> parts;
        QByteArray current;
        bool inside = false;
        for (QByteArray line : pieces) {
            const QByteArray bare = line.endsWith('\r') ? line.chopped(1) : line;
            if (bare == "--" + boundary || bare == "--" + boundary + "--") {
                if (inside)
                    parts.append(splitPart(current));
                current.clear();
                inside = bare == "--" + boundary;
                continue;
            }
            if (inside)
                current += line + '\n';
        }
        QString html;
        for (const MailPart& child : parts) {
            const QByteArray childType = child.header("content-type").split(';').first().trimmed().toLower();
            if (child.header("content-disposition").trimmed().toLower().startsWith("attachment"))
                continue;
            if (childType.isEmpty() || childType == "text/plain" || childType.startsWith("multipart/")) {
                const QString text = partText(child, depth + 1);
                if (!text.trimmed().isEmpty())
                    return text;
            } else if (childType == "text/html" && html.isEmpty())
                html = partText(child, depth + 1);
        }
        return html;
    }
    const QByteArray bytes = decodeTransfer(part);
    const QString text = decodeText(bytes, parameter(type, "charset"));
    if (mime == "text/html")
        return htmlToText(text);
    if (mime.isEmpty() || mime.startsWith("text/"))
        return text;
    return {};
}

} // namespace

FileText readMailText(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return FileText::failed(file.errorString());
    const MailPart mail = splitPart(file.readAll());
    if (mail.headers.isEmpty())
        return FileText::failed(TextReason::Damaged);
    QString text;
    for (const auto& [name, caption] :
        {std::pair {"subject", "Subject: "}, std::pair {"from", "From: "}, std::pair {"to", "To: "}}) {
        const QByteArray value = mail.header(name);
        if (!value.isEmpty())
            text += QLatin1String(caption) + decodeHeader(value) + u'\n';
    }
    text += u'\n' + partText(mail, 0).trimmed();
    return FileText::read(text.trimmed());
}

} // namespace kartella
