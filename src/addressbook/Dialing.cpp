#include "addressbook/Dialing.h"

#include "base/Error.h"
#include "platform/Prompter.h"
#include "platform/Telephony.h"

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
    if (!Telephony::instance().callsPossible()) {
        msgBox(QStringLiteral("Unable to dial number ") + number
                + QStringLiteral(": no program on this desktop takes phone calls (none is set for tel: "
                                 "links).\r\rInstall a softphone or a phone link that handles tel: links, "
                                 "then dial again."),
            MsgBoxStyle::OkOnly | MsgBoxStyle::Critical, QStringLiteral("Dial Number Error"));
        return;
    }
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

void openUrlShortcut(const QString& address)
{
    Telephony::instance().openLink(webUrl(address));
}

void sendMailTo(const QString& address)
{
    Telephony::instance().openLink(mailUrl(address));
}

} // namespace kartella
