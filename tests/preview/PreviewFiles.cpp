#include "preview/PreviewFiles.h"

#include <QFile>
#include <QPainter>
#include <QPdfWriter>

namespace kartella::test {

void writePdf(const QString& path, int pages)
{
    QPdfWriter writer(path);
    writer.setPageSize(QPageSize(QPageSize::A4));
    writer.setResolution(72);
    QPainter painter(&writer);
    for (int page = 0; page < pages; ++page) {
        if (page > 0)
            writer.newPage();
        painter.fillRect(QRect(40, 40, 500, 300), Qt::black);
        painter.drawText(QPoint(40, 400), QStringLiteral("Puslapis %1").arg(page + 1));
    }
}

void writeBytes(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("can't write %s", qPrintable(path));
}

} // namespace kartella::test
