// Feeds any bytes to the OpenDocument and Office Open XML reader as a file of each kind:
// the zip directory, its entries (compressed or not, damaged or not) and the XML inside
// them all come from the input. The first byte picks the kind.
#include "FuzzInput.h"
#include "content/FileText.h"

#include <QFile>
#include <QTemporaryDir>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace kartella;
    if (size == 0)
        return 0;
    static const QStringList kinds {QStringLiteral("odt"), QStringLiteral("ods"), QStringLiteral("odp"),
        QStringLiteral("docx"), QStringLiteral("xlsx"), QStringLiteral("pptx")};
    const QString extension = kinds.at(data[0] % kinds.size());
    static const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("document.") + extension);
    QFile file(path);
    FUZZ_CHECK(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
    FUZZ_CHECK(file.write(reinterpret_cast<const char*>(data + 1), qint64(size - 1)) == qint64(size - 1));
    file.close();

    const FileText read = readOfficeXmlText(path, extension);
    FUZZ_CHECK(
        read.state == TextState::Read || read.state == TextState::Failed || read.state == TextState::NoText);
    FUZZ_CHECK(read.state == TextState::Read || read.body.isEmpty());
    QFile::remove(path);
    return 0;
}
