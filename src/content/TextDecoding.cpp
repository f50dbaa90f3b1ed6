#include "content/TextDecoding.h"

#include <QStringDecoder>

namespace kartella {

namespace {

constexpr const char* BalticCodePage = "windows-1257";

} // namespace

bool knownEncoding(const QByteArray& name)
{
    return !name.trimmed().isEmpty() && QStringDecoder(name.trimmed().constData()).isValid();
}

QString decodeText(const QByteArray& bytes, const QByteArray& declared)
{
    if (knownEncoding(declared)) {
        QStringDecoder decoder(declared.trimmed().constData());
        return decoder.decode(bytes);
    }
    if (const auto bom = QStringConverter::encodingForData(bytes)) {
        QStringDecoder decoder(*bom);
        return decoder.decode(bytes);
    }
    QStringDecoder utf8(QStringConverter::Utf8, QStringConverter::Flag::Stateless);
    const QString text = utf8.decode(bytes);
    if (!utf8.hasError())
        return text;
    QStringDecoder baltic(BalticCodePage);
    return baltic.decode(bytes);
}

} // namespace kartella
