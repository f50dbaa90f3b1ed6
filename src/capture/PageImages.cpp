#include "capture/PageImages.h"

#include "base/Error.h"
#include "content/FileText.h"

#include <QFile>
#include <QFileInfo>
#include <QImageReader>

#include <cmath>
#include <cstdio>
#include <leptonica/allheaders.h>
#include <memory>
#include <poppler-document.h>
#include <poppler-page-renderer.h>
#include <poppler-page.h>

namespace kartella {

namespace {

constexpr long PageError = ErrorNumber::PathFileAccess;

bool isPdf(const QString& path)
{
    return QFileInfo(path).suffix().compare(QLatin1String("pdf"), Qt::CaseInsensitive) == 0;
}

std::unique_ptr<poppler::document> openPdf(const QString& path)
{
    QFile file(path);
    if (!file.exists())
        throw Error(PageError, TextReason::FileNotFound);
    const QByteArray name = QFile::encodeName(path);
    std::unique_ptr<poppler::document> document(poppler::document::load_from_file(name.toStdString()));
    if (!document)
        throw Error(PageError, TextReason::Damaged);
    if (document->is_locked())
        throw Error(PageError, TextReason::PasswordProtected);
    return document;
}

QImageReader& openImage(QImageReader& reader, const QString& path)
{
    if (!QFileInfo::exists(path))
        throw Error(PageError, TextReason::FileNotFound);
    reader.setFileName(path);
    reader.setAutoTransform(true);
    if (!reader.canRead())
        throw Error(PageError, TextReason::Damaged);
    return reader;
}

// TIFF through Leptonica (it comes with Tesseract; Qt reads TIFF only with an extra plugin).
bool isTiff(const QString& path)
{
    const QString extension = QFileInfo(path).suffix().toLower();
    return extension == QLatin1String("tif") || extension == QLatin1String("tiff");
}

int tiffPageCount(const QString& path)
{
    if (!QFileInfo::exists(path))
        throw Error(PageError, TextReason::FileNotFound);
    FILE* file = std::fopen(QFile::encodeName(path).constData(), "rb");
    if (!file)
        throw Error(PageError, TextReason::Damaged);
    l_int32 count = 0;
    const bool failed = tiffGetCount(file, &count) != 0;
    std::fclose(file);
    if (failed || count < 1)
        throw Error(PageError, TextReason::Damaged);
    return count;
}

QImage tiffPage(const QString& path, int index)
{
    Pix* read = pixReadTiff(QFile::encodeName(path).constData(), index);
    if (!read)
        throw Error(PageError, TextReason::Damaged);
    Pix* grey = pixConvertTo8(read, 0);
    const l_int32 xres = pixGetXRes(read);
    pixDestroy(&read);
    if (!grey)
        throw Error(PageError, TextReason::Damaged);
    const int width = int(pixGetWidth(grey));
    const int height = int(pixGetHeight(grey));
    QImage image(width, height, QImage::Format_Grayscale8);
    const l_uint32* data = pixGetData(grey);
    const l_int32 wordsPerLine = pixGetWpl(grey);
    for (int y = 0; y < height; ++y) {
        const l_uint32* line = data + qsizetype(y) * wordsPerLine;
        uchar* target = image.scanLine(y);
        for (int x = 0; x < width; ++x)
            target[x] = uchar(GET_DATA_BYTE(line, x));
    }
    pixDestroy(&grey);
    if (xres > 0) {
        image.setDotsPerMeterX(int(std::lround(xres / 0.0254)));
        image.setDotsPerMeterY(int(std::lround(xres / 0.0254)));
    }
    return image;
}

} // namespace

bool isPageImageExtension(const QString& extension)
{
    static const QStringList extensions = {QStringLiteral("png"), QStringLiteral("jpg"),
        QStringLiteral("jpeg"), QStringLiteral("tif"), QStringLiteral("tiff")};
    return extensions.contains(extension);
}

bool isPagedFile(const QString& path)
{
    return isPdf(path) || isPageImageExtension(QFileInfo(path).suffix().toLower());
}

int pageCount(const QString& path)
{
    if (isPdf(path))
        return openPdf(path)->pages();
    if (isTiff(path))
        return tiffPageCount(path);
    QImageReader reader;
    const int count = openImage(reader, path).imageCount();
    return count > 0 ? count : 1;
}

QImage pageImage(const QString& path, int index, int dotsPerInch)
{
    if (isPdf(path)) {
        const std::unique_ptr<poppler::document> document = openPdf(path);
        const std::unique_ptr<poppler::page> page(document->create_page(index));
        if (!page)
            throw Error(PageError, TextReason::Damaged);
        poppler::page_renderer renderer;
        renderer.set_image_format(poppler::image::format_gray8);
        renderer.set_render_hint(poppler::page_renderer::antialiasing, true);
        renderer.set_render_hint(poppler::page_renderer::text_antialiasing, true);
        const poppler::image rendered = renderer.render_page(page.get(), dotsPerInch, dotsPerInch);
        if (!rendered.is_valid())
            throw Error(PageError, TextReason::Damaged);
        QImage image(reinterpret_cast<const uchar*>(rendered.const_data()), rendered.width(),
            rendered.height(), rendered.bytes_per_row(), QImage::Format_Grayscale8);
        QImage copy = image.copy();
        const int perMetre = int(std::lround(dotsPerInch / 0.0254));
        copy.setDotsPerMeterX(perMetre);
        copy.setDotsPerMeterY(perMetre);
        return copy;
    }
    if (isTiff(path)) {
        if (index >= tiffPageCount(path))
            throw Error(PageError, TextReason::Damaged);
        return tiffPage(path, index);
    }
    QImageReader reader;
    openImage(reader, path);
    if (index > 0 && !reader.jumpToImage(index))
        throw Error(PageError, TextReason::Damaged);
    QImage image = reader.read();
    if (image.isNull())
        throw Error(PageError, TextReason::Damaged);
    return image;
}

int pageResolution(const QImage& page, int dotsPerInch)
{
    const int own = int(std::lround(page.dotsPerMeterY() * 0.0254));
    // Qt gives 72 dpi to an image that names no resolution; no scanner offers that.
    return own > 0 && own != 72 ? own : dotsPerInch;
}

} // namespace kartella
