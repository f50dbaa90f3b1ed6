// Feeds any bytes to the e-mail reader as a .eml file: headers, encoded words, nested
// multipart bodies, quoted-printable and base64 parts, HTML parts.
#include "FuzzInput.h"
#include "content/FileText.h"

#include <QFile>
#include <QTemporaryDir>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace kartella;
    static const QTemporaryDir folder;
    static const QString path = folder.filePath(QStringLiteral("message.eml"));
    QFile file(path);
    FUZZ_CHECK(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
    FUZZ_CHECK(file.write(reinterpret_cast<const char*>(data), qint64(size)) == qint64(size));
    file.close();

    const FileText read = readMailText(path);
    FUZZ_CHECK(read.state == TextState::Read || read.state == TextState::Failed);
    FUZZ_CHECK(read.state == TextState::Read || read.body.isEmpty());
    return 0;
}
