#include "platform/Telephony.h"

namespace kartella {

namespace {

class NoTelephony final : public Telephony
{
public:
    bool requestCall(const QString&) override { return false; }
    bool openLink(const QUrl&) override { return false; }
};

Telephony*& installed()
{
    static Telephony* current = nullptr;
    return current;
}

} // namespace

Telephony::~Telephony() = default;

Telephony& Telephony::instance()
{
    static NoTelephony fallback;
    Telephony* current = installed();
    return current ? *current : fallback;
}

void Telephony::setInstance(Telephony* telephony)
{
    installed() = telephony;
}

QUrl Telephony::telUrl(const QString& number)
{
    QString dialable;
    bool digits = false;
    for (const QChar c : number.trimmed()) {
        if (c.isDigit() && c.unicode() < 128) {
            dialable += c;
            digits = true;
        } else if (c == u'*' || c == u'#') {
            dialable += c;
        } else if (c == u'+' && dialable.isEmpty()) {
            dialable += c;
        }
    }
    if (!digits)
        return {};
    return QUrl(QStringLiteral("tel:") + dialable);
}

} // namespace kartella
