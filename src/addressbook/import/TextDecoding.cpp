#include "addressbook/import/TextDecoding.h"

#include <QStringDecoder>

namespace kartella {

bool isUtf8(const QByteArray& text)
{
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    const QString decoded = decoder(text);
    return !decoder.hasError();
}

QString guessCodePage(const QByteArray& text)
{
    int lithuanian = 0;
    int accented = 0;
    for (const char c : text) {
        const auto byte = static_cast<unsigned char>(c);
        if (byte < 0xC0)
            continue;
        ++accented;
        if (byte == 0xD0 || byte == 0xDE || byte == 0xF0 || byte == 0xFE)
            ++lithuanian;
    }
    // In Lithuanian text š and ž alone are about a fifth of the letters above 0xC0;
    // in Western text ð and þ hardly ever occur.
    return lithuanian > 0 && lithuanian * 10 >= accented ? QStringLiteral("windows-1257")
                                                         : QStringLiteral("windows-1252");
}

bool isKnownCodePage(const QString& name)
{
    // As decodeText reads it: blanks around the name are no part of it.
    const QString trimmed = name.trimmed();
    return !trimmed.isEmpty() && QStringDecoder(trimmed.toLatin1().constData()).isValid();
}

QString decodeText(const QByteArray& text, const QString& charset)
{
    const QString name = charset.trimmed().toLower();
    if (name == u"utf-8" || name == u"utf8")
        return QString::fromUtf8(text);
    QStringDecoder decoder(name.toLatin1().constData());
    if (!decoder.isValid())
        decoder = QStringDecoder("windows-1252");
    return decoder(text);
}

} // namespace kartella
