// Feeds any bytes to the vCard reader, with the code page guessed and forced.
#include "addressbook/import/VCardReader.h"

#include <cstddef>
#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QByteArray file = QByteArray::fromRawData(reinterpret_cast<const char*>(data), qsizetype(size));
    const QList<kartella::ContactItem> contacts = kartella::readVCards(file);
    for (const kartella::ContactItem& contact : contacts)
        for (const QString& value : contact)
            if (value.isEmpty())
                __builtin_trap(); // the reader gives only properties with a value
    kartella::readVCards(file, QStringLiteral("windows-1257"));
    return 0;
}
