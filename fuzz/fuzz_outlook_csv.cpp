// Feeds any bytes to the Outlook CSV reader, with the code page guessed and forced.
#include "FuzzInput.h"
#include "addressbook/import/OutlookCsvReader.h"
#include "addressbook/import/TextDecoding.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QByteArray file = kartella::fuzz::bytes(data, size);
    bool recognised = false;
    const QList<kartella::ContactItem> contacts = kartella::readOutlookCsv(file, {}, &recognised);
    FUZZ_CHECK(recognised || contacts.isEmpty()); // contacts come only from a recognised header
    for (const kartella::ContactItem& contact : contacts)
        for (const QString& value : contact)
            FUZZ_CHECK(!value.isEmpty());
    bool forcedRecognised = false;
    const QList<kartella::ContactItem> forced
        = kartella::readOutlookCsv(file, QStringLiteral("windows-1257"), &forcedRecognised);
    FUZZ_CHECK(forced.size() == contacts.size());
    // A UTF-8 file reads the same whatever code page is asked for.
    if (kartella::isUtf8(file)) {
        FUZZ_CHECK(forcedRecognised == recognised);
        FUZZ_CHECK(forced == contacts);
    }
    return 0;
}
