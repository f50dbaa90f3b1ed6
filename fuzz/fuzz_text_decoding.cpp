// Feeds any bytes to the decoding of contact files. The input is a charset name, a byte 0
// and the text; the text alone goes through the UTF-8 test and the code page guess.
#include "FuzzInput.h"
#include "addressbook/import/TextDecoding.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace kartella;
    const QByteArray whole = fuzz::bytes(data, size);
    // Valid UTF-8 comes back byte for byte, but for the byte order mark, which decoding drops.
    if (isUtf8(whole))
        FUZZ_CHECK(
            QString::fromUtf8(whole).toUtf8() == (whole.startsWith("\xEF\xBB\xBF") ? whole.mid(3) : whole));

    const QString guess = guessCodePage(whole);
    FUZZ_CHECK(guess == QLatin1String("windows-1252") || guess == QLatin1String("windows-1257"));
    // An 8-bit code page gives one character for each byte.
    FUZZ_CHECK(decodeText(whole, guess).size() == whole.size());

    const QList<QByteArray> parts = fuzz::parts(data, size, 2);
    const QString charset = QString::fromLatin1(parts.at(0));
    const QByteArray text = whole.mid(parts.at(0).size() + 1);
    const QString decoded = decodeText(text, charset);
    if (!isKnownCodePage(charset))
        FUZZ_CHECK(decoded == decodeText(text, QStringLiteral("windows-1252")));
    return 0;
}
