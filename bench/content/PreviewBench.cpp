// Times the preview pane: from the selection of a document whose file is a 20-page PDF to
// its first page painted in the pane (preview_pdf_ms, the median of several selections,
// and the slowest), with another document's text shown in between. Prints "name: value" lines.
#include "ContentBench.h"
#include "preview/PdfViewer.h"
#include "preview/PreviewPane.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QPainter>
#include <QPdfView>
#include <QPdfWriter>
#include <QTextStream>

#include <algorithm>
#include <vector>

using namespace kartella;

namespace {

constexpr int Pages = 20;
constexpr int Runs = 9;

void writePdf(const QString& path)
{
    QPdfWriter writer(path);
    writer.setPageSize(QPageSize(QPageSize::A4));
    writer.setResolution(72);
    QPainter painter(&writer);
    QFont font = painter.font();
    font.setPointSize(11);
    painter.setFont(font);
    for (int page = 0; page < Pages; ++page) {
        if (page > 0)
            writer.newPage();
        painter.fillRect(QRect(50, 40, 495, 30), Qt::black);
        for (int line = 0; line < 60; ++line)
            painter.drawText(QPoint(50, 100 + line * 12),
                QStringLiteral("Puslapis %1, eilutė %2: sutarties sąlygos ir jų vykdymo tvarka.")
                    .arg(page + 1)
                    .arg(line + 1));
    }
}

// Whether the pane shows a page: the black band at its top is painted.
bool pagePainted(QPdfView* view)
{
    const QImage shot = view->viewport()->grab().toImage();
    for (int y = 0; y < shot.height() / 4; y += 2) {
        for (int x = shot.width() / 4; x < shot.width() * 3 / 4; x += 8) {
            if (qGray(shot.pixel(x, y)) < 40)
                return true;
        }
    }
    return false;
}

} // namespace

void kartella::bench::benchPreview(const QString& folder, QTextStream& out)
{
    const QDir dir(folder);
    qputenv("XDG_CACHE_HOME", dir.filePath(QStringLiteral("cache")).toLocal8Bit());
    const QString pdf = dir.filePath(QStringLiteral("sutartis.pdf"));
    const QString text = dir.filePath(QStringLiteral("laiskas.txt"));
    writePdf(pdf);
    QFile note(text);
    if (!note.open(QIODevice::WriteOnly) || note.write("Laiškas\n") < 0) {
        QTextStream(stderr) << "the text file could not be written\n";
        return;
    }
    note.close();

    PreviewPane pane;
    pane.resize(600, 800);
    pane.show();
    QCoreApplication::processEvents();

    std::vector<double> times;
    for (int run = 0; run < Runs; ++run) {
        pane.showFile(text);
        while (pane.shownPath() != text || pane.isBusy())
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 5);
        QElapsedTimer timer;
        timer.start();
        pane.showFile(pdf);
        while (!(pane.shownPath() == pdf && !pane.isBusy() && pagePainted(pane.pdfViewer()->view()))) {
            QCoreApplication::processEvents(QEventLoop::AllEvents, 2);
            if (timer.elapsed() > 10000) {
                QTextStream(stderr) << "the first page was not painted within 10 s\n";
                return;
            }
        }
        times.push_back(double(timer.nsecsElapsed()) / 1e6);
    }
    std::sort(times.begin(), times.end());
    out << "preview_pdf_pages: " << Pages << '\n';
    out << "preview_pdf_ms: " << QString::number(times[times.size() / 2], 'f', 1) << '\n';
    out << "preview_pdf_max_ms: " << QString::number(times.back(), 'f', 1) << '\n';
}
