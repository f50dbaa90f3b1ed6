#include "capture/TextRecognition.h"

#include "base/Error.h"
#include "capture/PageImages.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSemaphore>
#include <QTemporaryDir>
#include <QThread>

#include <algorithm>
#include <clocale>
#include <cstring>
#include <dlfcn.h>
#include <leptonica/allheaders.h>
#include <mutex>
#include <tesseract/baseapi.h>
#include <tesseract/ocrclass.h>
#include <tesseract/renderer.h>

namespace kartella {

void useCNumericLocale()
{
    std::setlocale(LC_NUMERIC, "C");
}

bool numericLocaleIsC()
{
    const char* current = std::setlocale(LC_NUMERIC, nullptr);
    return current && (std::strcmp(current, "C") == 0 || std::strcmp(current, "POSIX") == 0);
}

QString tessdataFolder()
{
    const QString prefix = qEnvironmentVariable("TESSDATA_PREFIX");
    if (!prefix.isEmpty())
        return QDir::cleanPath(prefix);
    for (const QString& folder : {QStringLiteral("/usr/share/tesseract-ocr/5/tessdata"),
             QStringLiteral("/usr/share/tesseract-ocr/4.00/tessdata"),
             QStringLiteral("/usr/share/tessdata")}) {
        if (QFileInfo(folder).isDir())
            return folder;
    }
    return QStringLiteral("/usr/share/tesseract-ocr/5/tessdata");
}

QString languagePackage(const QString& language)
{
    return QStringLiteral("tesseract-ocr-") + language.toLower().replace(u'_', u'-');
}

QString missingLanguageMessage(const QString& languages)
{
    const QString folder = tessdataFolder();
    const QStringList names = languages.split(u'+', Qt::SkipEmptyParts);
    if (names.isEmpty())
        return QCoreApplication::translate(
            "kartella::TextRecognition", "No language is chosen for text recognition (option OcrLanguages).");
    for (const QString& name : names) {
        const QString language = name.trimmed();
        if (!QFileInfo::exists(folder + u'/' + language + QStringLiteral(".traineddata"))) {
            return QCoreApplication::translate("kartella::TextRecognition",
                "Text recognition has no data for the language \"%1\" in %2. "
                "Install the Debian package %3.")
                .arg(language, folder, languagePackage(language));
        }
    }
    return {};
}

namespace {

// Debian's Tesseract runs parts of a page on OpenMP threads (four of them), which spin while
// they wait: on a machine busy with other work, and under a pool that already gives each core
// a page, that costs time rather than saving it. With no parallel level active, each page is
// read on the thread that asks. Looked up at run time: a Tesseract without OpenMP has none.
void readPagesOnOneThread()
{
    static std::once_flag once;
    std::call_once(once, [] {
        using SetLevels = void (*)(int);
        if (auto set = reinterpret_cast<SetLevels>(dlsym(RTLD_DEFAULT, "omp_set_max_active_levels")))
            set(0);
    });
}

struct CancelCheck
{
    const std::function<bool()>* cancelled;
};

bool askCancel(void* data, int)
{
    const auto* check = static_cast<CancelCheck*>(data);
    return (*check->cancelled)();
}

QSemaphore& recognitionSlots()
{
    static QSemaphore slots(RecognitionSlot::count());
    return slots;
}

} // namespace

RecognitionSlot::RecognitionSlot(const std::function<bool()>& cancelled)
{
    while (!recognitionSlots().tryAcquire(1, 100)) {
        if (cancelled && cancelled())
            return;
    }
    m_held = true;
}

RecognitionSlot::~RecognitionSlot()
{
    if (m_held)
        recognitionSlots().release();
}

int RecognitionSlot::count()
{
    return std::max(1, QThread::idealThreadCount());
}

TextRecognizer::TextRecognizer(const QString& languages)
    : m_languages(languages)
    , m_api(std::make_unique<tesseract::TessBaseAPI>())
{
    const QString missing = missingLanguageMessage(languages);
    if (!missing.isEmpty())
        throw Error(RecognitionError::MissingLanguage, missing);
    if (!numericLocaleIsC())
        throw Error(RecognitionError::EngineFailed,
            QCoreApplication::translate(
                "kartella::TextRecognition", "Text recognition needs the C numeric locale (LC_NUMERIC)."));
    readPagesOnOneThread();
    const QByteArray folder = QFile::encodeName(tessdataFolder());
    const QByteArray names = languages.toUtf8();
    if (m_api->Init(folder.constData(), names.constData(), tesseract::OEM_LSTM_ONLY) != 0)
        throw Error(RecognitionError::EngineFailed,
            QCoreApplication::translate(
                "kartella::TextRecognition", "Text recognition could not load the languages \"%1\".")
                .arg(languages));
    // Quiet: a page without words is not worth a line on the standard error.
    m_api->SetVariable("debug_file", "/dev/null");
}

TextRecognizer::~TextRecognizer()
{
    m_api->End();
}

QString TextRecognizer::recognise(const QImage& page, int dotsPerInch, const std::function<bool()>& cancelled)
{
    const RecognitionSlot slot(cancelled);
    if (!slot.held())
        throw Error(RecognitionError::Cancelled,
            QCoreApplication::translate("kartella::TextRecognition", "Text recognition was cancelled."));
    const QImage grey = page.convertToFormat(QImage::Format_Grayscale8);
    m_api->SetImage(grey.constBits(), grey.width(), grey.height(), 1, int(grey.bytesPerLine()));
    m_api->SetSourceResolution(dotsPerInch);
    tesseract::ETEXT_DESC monitor;
    CancelCheck check {&cancelled};
    if (cancelled) {
        monitor.cancel = &askCancel;
        monitor.cancel_this = &check;
    }
    const int status = m_api->Recognize(&monitor);
    if (cancelled && cancelled())
        throw Error(RecognitionError::Cancelled,
            QCoreApplication::translate("kartella::TextRecognition", "Text recognition was cancelled."));
    if (status != 0)
        throw Error(RecognitionError::EngineFailed,
            QCoreApplication::translate("kartella::TextRecognition", "Text recognition failed on a page."));
    const std::unique_ptr<char[]> text(m_api->GetUTF8Text());
    m_api->Clear();
    return text ? QString::fromUtf8(text.get()).trimmed() : QString();
}

namespace {

// The page as a file Tesseract's PDF writer embeds as it stands: a JPEG for grey and
// colour, a PNG for black and white (a JPEG would blur it).
QString savePageImage(const QImage& page, int number, const QString& folder)
{
    const bool mono = page.format() == QImage::Format_Mono || page.format() == QImage::Format_MonoLSB;
    const QString path = folder + QStringLiteral("/page%1.%2").arg(number).arg(mono ? "png" : "jpg");
    const QImage image = mono ? page
        : page.isGrayscale()  ? page.convertToFormat(QImage::Format_Grayscale8)
                              : page.convertToFormat(QImage::Format_RGB888);
    if (!image.save(path, mono ? "PNG" : "JPEG", mono ? -1 : 85))
        throw Error(RecognitionError::PdfFailed,
            QCoreApplication::translate(
                "kartella::TextRecognition", "A scanned page could not be saved in %1.")
                .arg(folder));
    return path;
}

void moveIntoPlace(const QString& written, const QString& path)
{
    if (QFileInfo::exists(path))
        throw Error(RecognitionError::PdfFailed,
            QCoreApplication::translate("kartella::TextRecognition", "The file \"%1\" exists already.")
                .arg(path));
    const QString partial = path + QStringLiteral(".partial");
    QFile::remove(partial);
    if (!QFile::copy(written, partial))
        throw Error(RecognitionError::PdfFailed,
            QCoreApplication::translate("kartella::TextRecognition", "The file \"%1\" can't be written.")
                .arg(path));
    if (!QFile::rename(partial, path)) {
        QFile::remove(partial);
        throw Error(RecognitionError::PdfFailed,
            QCoreApplication::translate("kartella::TextRecognition", "The file \"%1\" can't be written.")
                .arg(path));
    }
}

} // namespace

void writeSearchablePdf(const QList<QImage>& pages, int dotsPerInch, const QString& path,
    const QString& languages, const std::function<bool(int page)>& afterPage)
{
    if (pages.isEmpty())
        throw Error(RecognitionError::PdfFailed,
            QCoreApplication::translate("kartella::TextRecognition", "There are no pages to save."));
    TextRecognizer recognizer(languages);
    QTemporaryDir folder;
    if (!folder.isValid())
        throw Error(RecognitionError::PdfFailed,
            QCoreApplication::translate(
                "kartella::TextRecognition", "No temporary folder for the scanned pages."));
    const QByteArray outputBase = QFile::encodeName(folder.filePath(QStringLiteral("document")));
    const QByteArray dataFolder = QFile::encodeName(tessdataFolder());
    // The renderer opens its file when made and closes it when destroyed.
    auto renderer
        = std::make_unique<tesseract::TessPDFRenderer>(outputBase.constData(), dataFolder.constData());
    const QByteArray title = QFileInfo(path).completeBaseName().toUtf8();
    if (!renderer->happy() || !renderer->BeginDocument(title.constData()))
        throw Error(RecognitionError::PdfFailed,
            QCoreApplication::translate("kartella::TextRecognition", "The PDF \"%1\" can't be begun.")
                .arg(path));
    for (int number = 0; number < pages.size(); ++number) {
        const QByteArray image
            = QFile::encodeName(savePageImage(pages.at(number), number + 1, folder.path()));
        Pix* pix = pixRead(image.constData());
        if (!pix)
            throw Error(RecognitionError::PdfFailed,
                QCoreApplication::translate(
                    "kartella::TextRecognition", "A scanned page could not be read back."));
        const int pageDpi = pageResolution(pages.at(number), dotsPerInch);
        pixSetResolution(pix, pageDpi, pageDpi);
        bool added = false;
        {
            const RecognitionSlot slot;
            added = recognizer.api().ProcessPage(pix, number, image.constData(), nullptr, 0, renderer.get());
        }
        pixDestroy(&pix);
        if (!added)
            throw Error(RecognitionError::PdfFailed,
                QCoreApplication::translate(
                    "kartella::TextRecognition", "Page %1 could not be added to the PDF.")
                    .arg(number + 1));
        if (afterPage && !afterPage(number + 1))
            throw Error(RecognitionError::Cancelled,
                QCoreApplication::translate(
                    "kartella::TextRecognition", "Saving the scanned pages was cancelled."));
    }
    if (!renderer->EndDocument() || !renderer->happy())
        throw Error(RecognitionError::PdfFailed,
            QCoreApplication::translate("kartella::TextRecognition", "The PDF \"%1\" can't be completed.")
                .arg(path));
    renderer.reset();
    moveIntoPlace(QString::fromLocal8Bit(outputBase) + QStringLiteral(".pdf"), path);
}

} // namespace kartella
