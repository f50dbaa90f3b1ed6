#pragma once

#include <QString>
#include <QUrl>

namespace kartella {

// What the address book hands to the desktop: a phone number to place a call, a web address
// to open in the browser and a mail link for the mail program. The program uses the one
// installed instance; tests install a scripted one. The default places no call and opens
// nothing (every hand-over fails).
class Telephony
{
public:
    virtual ~Telephony();

    // Asks the desktop's call manager to place a voice call to number, as the user typed it;
    // false when nothing took the call.
    virtual bool requestCall(const QString& number) = 0;
    // Whether anything on this computer can take a call; true unless known otherwise.
    virtual bool callsPossible();
    // Opens url (a web page or a mailto: link) with the desktop's program for it; false when
    // nothing could be started.
    virtual bool openLink(const QUrl& url) = 0;

    static Telephony& instance();
    // Installs telephony (not owned); nullptr restores the default.
    static void setInstance(Telephony* telephony);

    // The tel: URL (RFC 3966) of a number as typed: the digits, '*', '#' and a leading '+'
    // of the number, an extension written as "ext", "ext.", "extension" or "x" before its
    // digits as the ";ext=" parameter ("+370 5 212 3456 ext. 12" gives
    // "tel:+37052123456;ext=12"). Blanks, brackets, dashes, dots and letters are dropped.
    // Invalid when the number has no digit.
    static QUrl telUrl(const QString& number);
};

} // namespace kartella
