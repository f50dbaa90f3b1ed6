#include "platform/Telephony.h"

#include <QRegularExpression>

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

bool Telephony::callsPossible()
{
    return true;
}

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

} // namespace kartella
