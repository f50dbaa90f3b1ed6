// Feeds any bytes to the vCard reader, with the code page guessed and forced.
#include "FuzzInput.h"
#include "addressbook/import/TextDecoding.h"
#include "addressbook/import/VCardReader.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QByteArray file = kartella::fuzz::bytes(data, size);
    const QList<kartella::ContactItem> contacts = kartella::readVCards(file);
    for (const kartella::ContactItem& contact : contacts)
        for (const QString& value : contact)
            FUZZ_CHECK(!value.isEmpty()); // the reader gives only properties with a value
    const QList<kartella::ContactItem> forced = kartella::readVCards(file, QStringLiteral("windows-1257"));
    FUZZ_CHECK(forced.size() == contacts.size());
    // The code page reads only text that is not UTF-8, and no CHARSET asks for another; a
    // quoted-printable value's bytes may be anything.
    const QByteArray upper = file.toUpper();
    if (kartella::isUtf8(file) && !upper.contains("CHARSET") && !upper.contains("QUOTED-PRINTABLE"))
        FUZZ_CHECK(forced == contacts);
    return 0;
}
