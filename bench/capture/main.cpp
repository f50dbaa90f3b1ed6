// kartella-bench-capture: scanning to a searchable PDF, and reading the words of a page.
// Prints "name: value" lines:
//   scan_10_pages_s      ten pages from SANE's test scanner (its feeder) at 150 dpi, made
//                        into one searchable PDF
//   ocr_engine_load_s    loading Tesseract with the languages lit+eng
//   ocr_page_s           recognising one A4 page of text at 300 dpi on one core
//   ocr_page_cpu_s       the processor time of that (the same on a machine busy with other work)
//   ocr_word_accuracy    the share of that page's words read back as printed
#include "TestPages.h"
#include "base/Error.h"
#include "capture/PageImages.h"
#include "capture/SaneScanner.h"
#include "capture/TextRecognition.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <QTextStream>

#include <ctime>

using namespace kartella;

namespace {

const QString Languages = QStringLiteral("lit+eng");

double seconds(const QElapsedTimer& clock)
{
    return double(clock.nsecsElapsed()) / 1e9;
}

// The time the program's threads have run on a core: the page's own cost, whatever else the
// machine does meanwhile.
double processCpuSeconds()
{
    timespec now {};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &now);
    return double(now.tv_sec) + double(now.tv_nsec) / 1e9;
}

// Returns false (after saying why on the standard error) when the scanner can't be used.
bool benchScanning(const QString& folder, QTextStream& out)
{
    QElapsedTimer clock;
    clock.start();
    SaneScanner scanner;
    QString message;
    if (!scanner.open(QStringLiteral("test:0"), &message)) {
        QTextStream(stderr) << message << Qt::endl;
        return false;
    }
    scanner.setOption(QStringLiteral("source"), QStringLiteral("Automatic Document Feeder"));
    scanner.setOption(QStringLiteral("mode"), QStringLiteral("Gray"));
    scanner.setOption(QStringLiteral("test-picture"), QStringLiteral("Grid"));
    scanner.setOption(QStringLiteral("resolution"), QStringLiteral("150"));
    QList<QImage> pages;
    const std::atomic_bool cancel = false;
    for (;;) {
        QImage page;
        const SaneScanner::Outcome outcome = scanner.scanPage(&page, &message, cancel, true);
        if (outcome != SaneScanner::Outcome::Page)
            break;
        pages.append(page);
    }
    const double scanned = seconds(clock);
    const QString path = folder + QStringLiteral("/scan.pdf");
    writeSearchablePdf(pages, 150, path, Languages);
    out << "scan_pages: " << pages.size() << Qt::endl;
    out << "scan_only_s: " << QString::number(scanned, 'f', 2) << Qt::endl;
    out << "scan_10_pages_s: " << QString::number(seconds(clock), 'f', 2) << Qt::endl;
    out << "scan_pdf_kb: " << QFile(path).size() / 1024 << Qt::endl;
    return pages.size() == 10 && pageCount(path) == 10;
}

void benchRecognition(QTextStream& out)
{
    const QString printed = test::lithuanianPage();
    const QImage page = test::renderTextPage(printed, 300);
    QElapsedTimer clock;
    clock.start();
    TextRecognizer recognizer(Languages);
    out << "ocr_engine_load_s: " << QString::number(seconds(clock), 'f', 2) << Qt::endl;
    clock.restart();
    const double cpuBefore = processCpuSeconds();
    const QString read = recognizer.recognise(page, 300);
    out << "ocr_page_s: " << QString::number(seconds(clock), 'f', 2) << Qt::endl;
    out << "ocr_page_cpu_s: " << QString::number(processCpuSeconds() - cpuBefore, 'f', 2) << Qt::endl;
    out << "ocr_word_accuracy: " << QString::number(test::wordAccuracy(printed, read), 'f', 3) << Qt::endl;
}

} // namespace

int main(int argc, char** argv)
{
    QTemporaryDir folder;
    if (!folder.isValid())
        return 1;
    // SANE's test scanner only, from a configuration of our own.
    QFile backends(folder.filePath(QStringLiteral("dll.conf")));
    if (!backends.open(QIODevice::WriteOnly) || backends.write("test\n") < 0)
        return 1;
    backends.close();
    qputenv("SANE_CONFIG_DIR", QFile::encodeName(folder.path()));
    // The page of text is drawn with a real font.
    QApplication app(argc, argv);
    useCNumericLocale();
    QTextStream out(stdout);
    try {
        benchRecognition(out);
        return benchScanning(folder.path(), out) ? 0 : 1;
    } catch (const Error& error) {
        QTextStream(stderr) << error.description() << Qt::endl;
        return 1;
    }
}
