#pragma once

#include "preview/PreviewCache.h"

#include <QHash>
#include <QIcon>
#include <QObject>
#include <QSet>
#include <QThreadPool>

namespace kartella {

// The first page of PDFs and the images themselves as icons for the Large Icons view.
// A thumbnail is made on a worker thread the first time it is asked for, kept in the
// preview cache for later runs and in memory for this one; ready says when it is there.
class Thumbnails : public QObject
{
    Q_OBJECT

public:
    // side: the thumbnails' longer side in pixels.
    explicit Thumbnails(const PreviewCache& cache, int side = 96, QObject* parent = nullptr);
    ~Thumbnails() override;

    // Whether a file of that name gets a thumbnail (a PDF or an image Qt reads), by its
    // name alone.
    static bool shows(const QString& path);
    // The thumbnail of the file at path when it is made; a null icon when it isn't yet
    // (making it starts) or can't be (not there, damaged).
    QIcon icon(const QString& path);

Q_SIGNALS:
    void ready(const QString& path);

private:
    void made(const QString& path, const QImage& image);

    PreviewCache m_cache;
    int m_side;
    QHash<QString, QIcon> m_icons;
    QSet<QString> m_asked;
    QThreadPool m_makers;
};

} // namespace kartella
