#pragma once

#include <QString>
#include <QUrl>

namespace kartella {

// Hands a number, a web address or a mail address to the desktop through Telephony. The
// text goes out as the user sees it in the address book's boxes; none of these keeps state.

// Asks before placing a call to number and tells of a call that couldn't be placed. An
// empty number is refused with a message.
void dialNumber(const QString& number);
// Asks the user to pick up the phone, then places the call; Cancel places none. Where the
// desktop has no program for calls, says so instead.
void requestCall(const QString& number);
// Opens address in the browser: completed as a browser does when it has no scheme
// ("www.example.lt" becomes "http://www.example.lt"). The result isn't looked at.
void openUrlShortcut(const QString& address);
// Starts a mail to address in the mail program; an empty address opens an empty message.
void sendMailTo(const QString& address);

// The URL that openUrlShortcut opens for address.
QUrl webUrl(const QString& address);
// The mailto: link that sendMailTo opens for address.
QUrl mailUrl(const QString& address);

} // namespace kartella
