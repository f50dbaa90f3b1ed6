// Feeds any bytes to the RTF reader: control words, groups, \'xx and \uN escapes in any
// order or nesting, unbalanced braces, code pages it does not know.
#include "FuzzInput.h"
#include "content/MarkupText.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace kartella;
    const QByteArray rtf = fuzz::bytes(data, size);
    const QString text = rtfToText(rtf);
    // Control words and braces never reach the text, and the text is no longer than the
    // document gives characters: an escape never makes more than one or two UTF-16 units.
    FUZZ_CHECK(text.size() <= 2 * rtf.size());
    return 0;
}
