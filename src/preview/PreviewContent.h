#pragma once

#include <QImage>
#include <QString>

#include <memory>

class QPdfDocument;
class QThread;

namespace kartella {

class PreviewCache;

// What the pane shows for a file.
enum class PreviewKind {
    Nothing, // no document, or several
    Pdf,
    Image,
    Text,
    Office, // shown as the PDF LibreOffice makes of it
    Other, // its icon, name and size
    Missing, // the file isn't there
};

// The kind of the file at path by its name and, where the name tells nothing, its content:
// PDF, the Office formats that convert, the images Qt reads, text/* types; else Other.
// Missing for a path that isn't a file.
PreviewKind previewKindOf(const QString& path);

// A file read for the pane: made on a worker thread, shown on the window's.
struct PreviewContent
{
    PreviewKind kind = PreviewKind::Nothing;
    QString path;
    QString name;
    qint64 size = 0;
    // Pdf, and Office with its PDF in the cache: the document, already loaded.
    std::unique_ptr<QPdfDocument> pdf;
    // Office: where its PDF is kept in the cache (empty until it is made).
    QString convertedPdf;
    QImage image;
    QString text;
    // Whether text stops short of the file's end.
    bool textCut = false;
    // Why a file of a kind the pane shows couldn't be shown (damaged, unreadable).
    QString failure;

    PreviewContent();
    ~PreviewContent();
    PreviewContent(PreviewContent&&) noexcept;
    PreviewContent& operator=(PreviewContent&&) noexcept;
};

// Reads the file at path for the pane: the work that can take long, done on the calling
// thread; objects made are handed to the thread owner. An Office file is looked up in
// cache, not converted. Images larger than maxImage on a side are read scaled down.
PreviewContent readPreview(
    const QString& path, const PreviewCache& cache, QThread* owner, int maxImage = 2048);

// Reads text as the program reads files' text: UTF-8 (with or without its byte order mark)
// where it is well-formed, else Windows-1257.
QString decodeFileText(const QByteArray& bytes);

// Loads the PDF at path for a thread other than the caller's; null with the reason in
// failure when it can't be read.
std::unique_ptr<QPdfDocument> loadPdf(const QString& path, QThread* owner, QString* failure);

// The first page of a PDF, or the image, at most side pixels on its longer side; a null image
// when the file is neither or can't be read.
QImage renderThumbnail(const QString& path, int side);

} // namespace kartella
