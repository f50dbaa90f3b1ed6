// Feeds any bytes to the Outlook CSV reader, with the code page guessed and forced.
#include "addressbook/import/OutlookCsvReader.h"

#include <cstddef>
#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QByteArray file = QByteArray::fromRawData(reinterpret_cast<const char*>(data), qsizetype(size));
    bool recognised = false;
    const QList<kartella::ContactItem> contacts = kartella::readOutlookCsv(file, {}, &recognised);
    if (!recognised && !contacts.isEmpty())
        __builtin_trap(); // contacts come only from a file whose header was recognised
    for (const kartella::ContactItem& contact : contacts)
        for (const QString& value : contact)
            if (value.isEmpty())
                __builtin_trap();
    kartella::readOutlookCsv(file, QStringLiteral("windows-1257"));
    return 0;
}
