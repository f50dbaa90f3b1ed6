#include "preview/Thumbnails.h"

#include "preview/PreviewContent.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QImageReader>
#include <QPixmap>

namespace kartella {

Thumbnails::Thumbnails(const PreviewCache& cache, int side, QObject* parent)
    : QObject(parent)
    , m_cache(cache)
    , m_side(side)
{
    m_makers.setMaxThreadCount(1);
}

Thumbnails::~Thumbnails()
{
    m_makers.clear();
    m_makers.waitForDone();
}

bool Thumbnails::shows(const QString& path)
{
    const QString suffix = QFileInfo(path).suffix().toLower();
    if (suffix.isEmpty())
        return false;
    static const QList<QByteArray> images = QImageReader::supportedImageFormats();
    return suffix == QLatin1String("pdf") || images.contains(suffix.toLatin1());
}

QIcon Thumbnails::icon(const QString& path)
{
    const auto found = m_icons.constFind(path);
    if (found != m_icons.constEnd())
        return *found;
    if (m_asked.contains(path) || !shows(path))
        return {};
    m_asked.insert(path);
    const PreviewCache cache = m_cache;
    const int side = m_side;
    m_makers.start([this, path, cache, side] {
        const QFileInfo file(path);
        QImage image;
        if (file.isFile()) {
            const QString kept = cache.find(file, QStringLiteral("png"));
            if (!kept.isEmpty())
                image.load(kept);
            if (image.isNull()) {
                image = renderThumbnail(path, side);
                const QString made = cache.entryPath(file, QStringLiteral("png")) + QStringLiteral(".new");
                if (!image.isNull() && QDir().mkpath(cache.folder()) && image.save(made, "PNG"))
                    cache.store(made, file, QStringLiteral("png"));
                QFile::remove(made);
            }
        }
        QMetaObject::invokeMethod(
            this, [this, path, image] { made(path, image); }, Qt::QueuedConnection);
    });
    return {};
}

void Thumbnails::made(const QString& path, const QImage& image)
{
    if (image.isNull())
        return;
    m_icons.insert(path, QIcon(QPixmap::fromImage(image)));
    Q_EMIT ready(path);
}

} // namespace kartella
