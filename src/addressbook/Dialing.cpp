#include "addressbook/Dialing.h"

#include "base/Error.h"
#include "platform/Prompter.h"
#include "platform/Telephony.h"

#include <QRegularExpression>

namespace kartella {

void dialNumber(const QString& number)
{
    try {
        if (number.isEmpty()) {
            msgBox(QStringLiteral("Dial number isn't selected!"), MsgBoxStyle::OkOnly | MsgBoxStyle::Critical,
                QStringLiteral("Unable to dial"));
            return;
        }
        requestCall(number);
    } catch (const Error& error) {
        msgBox(error.description());
    }
}

void requestCall(const QString& number)
{
    const int answer = msgBox(QStringLiteral("Please pickup the phone and choose OK to dial ") + number,
        MsgBoxStyle::OkCancel | MsgBoxStyle::Information, QStringLiteral("Dial Number"));
    if (answer == MsgBoxResult::Cancel)
        return;
    if (!Telephony::instance().requestCall(number)) {
        msgBox(QStringLiteral("Unable to dial number ") + number
                + QStringLiteral("\r\rMake sure no other devices are using the Com port"),
            MsgBoxStyle::OkOnly | MsgBoxStyle::Critical, QStringLiteral("Dial Number Error"));
    }
}

QUrl webUrl(const QString& address)
{
    return QUrl::fromUserInput(address);
}

QUrl mailUrl(const QString& address)
{
    return QUrl(QStringLiteral("mailto:") + address, QUrl::TolerantMode);
}

QUrl dialUrl(const QString& number)
{
    // The marker of an extension is a word of its own, followed by the extension's digits.
    static const QRegularExpression extensionMarker(
        QStringLiteral("(?<!\\p{L})(?:extension|ext|x)[.:]?\\s*(?=\\d)"),
        QRegularExpression::CaseInsensitiveOption | QRegularExpression::UseUnicodePropertiesOption);
    QString main = number;
    QString extension;
    const QRegularExpressionMatch marker = extensionMarker.match(number);
    if (marker.hasMatch()) {
        main = number.left(marker.capturedStart());
        for (const QChar c : QStringView(number).mid(marker.capturedEnd())) {
            if (!c.isDigit())
                break;
            extension += QChar(u'0' + c.digitValue());
        }
    }
    QString dialable;
    bool digits = false;
    for (const QChar c : main) {
        if (c.isDigit()) {
            dialable += QChar(u'0' + c.digitValue());
            digits = true;
        } else if (c == u'*' || c == u'#') {
            dialable += c;
        } else if (c == u'+' && dialable.isEmpty()) {
            dialable += c;
        }
    }
    if (!digits)
        return {};
    if (!extension.isEmpty())
        dialable += QStringLiteral(";ext=") + extension;
    QUrl url;
    url.setScheme(QStringLiteral("tel"));
    url.setPath(dialable);
    return url;
}

void openUrlShortcut(const QString& address)
{
    Telephony::instance().openLink(webUrl(address));
}

void sendMailTo(const QString& address)
{
    Telephony::instance().openLink(mailUrl(address));
}

} // namespace kartella
