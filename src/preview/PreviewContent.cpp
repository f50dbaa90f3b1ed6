#include "preview/PreviewContent.h"

#include "addressbook/import/TextDecoding.h"
#include "preview/PdfConverter.h"
#include "preview/PreviewCache.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QImageReader>
#include <QMimeDatabase>
#include <QPainter>
#include <QPdfDocument>
#include <QThread>

namespace kartella {

namespace {

// The most of a text file the pane reads: enough for any page a user scrolls through.
constexpr qint64 MaxTextBytes = 2 * 1024 * 1024;

bool isImage(const QString& path, const QMimeType& type)
{
    if (type.name().startsWith(QLatin1String("image/"))
        && QImageReader::supportedMimeTypes().contains(type.name().toLatin1()))
        return true;
    return QImageReader::supportedImageFormats().contains(QFileInfo(path).suffix().toLower().toLatin1());
}

bool isPdf(const QFileInfo& info, const QMimeType& type)
{
    return info.suffix().compare(QLatin1String("pdf"), Qt::CaseInsensitive) == 0
        || type.inherits(QStringLiteral("application/pdf"));
}

QImage readImage(const QString& path, int maxImage, QString* failure)
{
    QImageReader reader(path);
    reader.setAutoTransform(true);
    const QSize size = reader.size();
    if (size.isValid() && (size.width() > maxImage || size.height() > maxImage))
        reader.setScaledSize(size.scaled(maxImage, maxImage, Qt::KeepAspectRatio));
    QImage image = reader.read();
    if (image.isNull())
        *failure = QCoreApplication::translate("kartella::PreviewContent", "The image can't be read: ")
            + reader.errorString();
    return image;
}

} // namespace

PreviewContent::PreviewContent() = default;
PreviewContent::~PreviewContent() = default;
PreviewContent::PreviewContent(PreviewContent&&) noexcept = default;
PreviewContent& PreviewContent::operator=(PreviewContent&&) noexcept = default;

PreviewKind previewKindOf(const QString& path)
{
    const QFileInfo info(path);
    if (path.isEmpty() || !info.isFile())
        return PreviewKind::Missing;
    const QMimeType type = QMimeDatabase().mimeTypeForFile(info);
    if (isPdf(info, type))
        return PreviewKind::Pdf;
    if (PdfConverter::converts(info.suffix()))
        return PreviewKind::Office;
    if (isImage(path, type))
        return PreviewKind::Image;
    if (type.name().startsWith(QLatin1String("text/")) || type.inherits(QStringLiteral("text/plain")))
        return PreviewKind::Text;
    return PreviewKind::Other;
}

QString decodeFileText(const QByteArray& bytes)
{
    if (isUtf8(bytes))
        return QString::fromUtf8(bytes.startsWith("\xEF\xBB\xBF") ? bytes.mid(3) : bytes);
    return decodeText(bytes, QStringLiteral("windows-1257"));
}

std::unique_ptr<QPdfDocument> loadPdf(const QString& path, QThread* owner, QString* failure)
{
    auto document = std::make_unique<QPdfDocument>();
    const QPdfDocument::Error error = document->load(path);
    if (error != QPdfDocument::Error::None || document->pageCount() < 1) {
        switch (error) {
        case QPdfDocument::Error::IncorrectPassword:
            *failure = QCoreApplication::translate(
                "kartella::PreviewContent", "The PDF is protected by a password.");
            break;
        case QPdfDocument::Error::FileNotFound:
            *failure = QCoreApplication::translate("kartella::PreviewContent", "The file can't be opened.");
            break;
        default:
            *failure
                = QCoreApplication::translate("kartella::PreviewContent", "The PDF is damaged or not a PDF.");
            break;
        }
        return nullptr;
    }
    if (owner && owner != QThread::currentThread())
        document->moveToThread(owner);
    return document;
}

PreviewContent readPreview(const QString& path, const PreviewCache& cache, QThread* owner, int maxImage)
{
    PreviewContent content;
    const QFileInfo info(path);
    content.path = path;
    content.name = info.fileName();
    content.kind = previewKindOf(path);
    if (content.kind == PreviewKind::Missing)
        return content;
    content.size = info.size();
    switch (content.kind) {
    case PreviewKind::Pdf:
        content.pdf = loadPdf(path, owner, &content.failure);
        break;
    case PreviewKind::Office:
        content.convertedPdf = cache.find(info, QStringLiteral("pdf"));
        if (!content.convertedPdf.isEmpty())
            content.pdf = loadPdf(content.convertedPdf, owner, &content.failure);
        break;
    case PreviewKind::Image:
        content.image = readImage(path, maxImage, &content.failure);
        break;
    case PreviewKind::Text: {
        QFile file(path);
        if (!file.open(QIODevice::ReadOnly)) {
            content.failure
                = QCoreApplication::translate("kartella::PreviewContent", "The file can't be read: ")
                + file.errorString();
            break;
        }
        QByteArray bytes = file.read(MaxTextBytes);
        content.textCut = !file.atEnd();
        // Cut at a line's end, so that no character is split.
        if (content.textCut && bytes.lastIndexOf('\n') > 0)
            bytes.truncate(bytes.lastIndexOf('\n') + 1);
        content.text = decodeFileText(bytes);
        break;
    }
    default:
        break;
    }
    return content;
}

QImage renderThumbnail(const QString& path, int side)
{
    const PreviewKind kind = previewKindOf(path);
    if (kind == PreviewKind::Image) {
        QString failure;
        return readImage(path, side, &failure);
    }
    if (kind != PreviewKind::Pdf)
        return {};
    QString failure;
    const std::unique_ptr<QPdfDocument> document = loadPdf(path, nullptr, &failure);
    if (!document)
        return {};
    const QSize size = document->pagePointSize(0).toSize().scaled(side, side, Qt::KeepAspectRatio);
    QImage page(size, QImage::Format_ARGB32_Premultiplied);
    page.fill(Qt::white);
    const QImage rendered = document->render(0, size);
    QPainter painter(&page);
    painter.drawImage(0, 0, rendered);
    painter.setPen(Qt::gray);
    painter.drawRect(page.rect().adjusted(0, 0, -1, -1));
    return page;
}

} // namespace kartella
