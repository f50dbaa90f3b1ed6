// Feeds any bytes to the HTML reader as a file would: its declared charset looked for in
// the first bytes, the bytes decoded, tags, scripts, styles and entities taken out.
#include "FuzzInput.h"
#include "content/MarkupText.h"
#include "content/TextDecoding.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace kartella;
    const QByteArray bytes = fuzz::bytes(data, size);
    const QByteArray charset = declaredHtmlCharset(bytes);
    FUZZ_CHECK(charset.size() <= bytes.size());
    const QString html = decodeText(bytes, charset);
    const QString text = htmlToText(html);
    // Taking tags out never adds to the page's text.
    FUZZ_CHECK(text.size() <= html.size() + html.count(u'<'));
    // An entity is never shorter than what it stands for.
    FUZZ_CHECK(decodeEntities(html).size() <= html.size());
    return 0;
}
