#include "addressbook/Dialing.h"

#include "base/Error.h"
#include "platform/Prompter.h"
#include "platform/Telephony.h"

#include <QCoreApplication>

namespace kartella {

void dialNumber(const QString& number)
{
    try {
        if (number.isEmpty()) {
            msgBox(QCoreApplication::translate("kartella::Dialing", "Dial number isn't selected!"),
                MsgBoxStyle::OkOnly | MsgBoxStyle::Critical,
                QCoreApplication::translate("kartella::Dialing", "Unable to dial"));
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
        msgBox(QCoreApplication::translate("kartella::Dialing",
                   "Unable to dial number %1: no program on this desktop takes phone calls (none is set "
                   "for tel: links).\r\rInstall a softphone or a phone link that handles tel: links, then "
                   "dial again.")
                   .arg(number),
            MsgBoxStyle::OkOnly | MsgBoxStyle::Critical,
            QCoreApplication::translate("kartella::Dialing", "Dial Number Error"));
        return;
    }
    const int answer = msgBox(
        QCoreApplication::translate("kartella::Dialing", "Please pickup the phone and choose OK to dial %1")
            .arg(number),
        MsgBoxStyle::OkCancel | MsgBoxStyle::Information,
        QCoreApplication::translate("kartella::Dialing", "Dial Number"));
    if (answer == MsgBoxResult::Cancel)
        return;
    if (!Telephony::instance().requestCall(number)) {
        msgBox(QCoreApplication::translate("kartella::Dialing",
                   "Unable to dial number %1\r\rMake sure no other devices are using the Com port")
                   .arg(number),
            MsgBoxStyle::OkOnly | MsgBoxStyle::Critical,
            QCoreApplication::translate("kartella::Dialing", "Dial Number Error"));
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
