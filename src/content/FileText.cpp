#include "content/FileText.h"

#include <QFileInfo>

namespace kartella {

QString TextReason::tooLarge(qint64 limitBytes)
{
    return QStringLiteral("larger than %1 MB").arg(limitBytes / (1024 * 1024));
}

QStringList readableExtensions()
{
    return {QStringLiteral("pdf"), QStringLiteral("odt"), QStringLiteral("ods"), QStringLiteral("odp"),
        QStringLiteral("docx"), QStringLiteral("xlsx"), QStringLiteral("pptx"), QStringLiteral("doc"),
        QStringLiteral("xls"), QStringLiteral("ppt"), QStringLiteral("txt"), QStringLiteral("text"),
        QStringLiteral("csv"), QStringLiteral("rtf"), QStringLiteral("html"), QStringLiteral("htm"),
        QStringLiteral("eml")};
}

FileText readFileText(const QString& path, qint64 limitBytes)
{
    const QFileInfo file(path);
    if (!file.exists() || !file.isFile())
        return FileText::failed(TextReason::FileNotFound);
    const QString extension = file.suffix().toLower();
    if (!readableExtensions().contains(extension))
        return {};
    if (file.size() > limitBytes)
        return FileText::failed(TextReason::tooLarge(limitBytes));
    if (extension == QLatin1String("pdf"))
        return readPdfText(path);
    if (extension.size() == 3 && extension.startsWith(u'o'))
        return readOfficeXmlText(path, extension);
    if (extension.size() == 4 && extension.endsWith(u'x'))
        return readOfficeXmlText(path, extension);
    if (extension == QLatin1String("doc") || extension == QLatin1String("xls"))
        return readOldOfficeText(path, extension);
    if (convertsInBatches(extension))
        return readConvertedTexts({path}).value(0, FileText::failed(TextReason::Damaged));
    if (extension == QLatin1String("rtf"))
        return readRtfText(path);
    if (extension.startsWith(QLatin1String("htm")))
        return readHtmlText(path);
    if (extension == QLatin1String("eml"))
        return readMailText(path);
    return readPlainText(path);
}

} // namespace kartella
