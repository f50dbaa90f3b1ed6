#pragma once

#include <QImage>
#include <QList>
#include <QString>

#include <functional>
#include <memory>

namespace tesseract {
class TessBaseAPI;
}

namespace kartella {

// Reading the words of page images with Tesseract.
//
// Tesseract parses its data files with the C library's number functions and so needs the
// C numeric locale; the application sets the user's locale at start. useCNumericLocale()
// puts LC_NUMERIC back to "C": call it on the main thread before the first recognition
// (Qt formats numbers with its own QLocale, which it leaves alone).
void useCNumericLocale();
bool numericLocaleIsC();

// The folder of Tesseract's language files: $TESSDATA_PREFIX when set, else Debian's
// /usr/share/tesseract-ocr/5/tessdata (or 4.00 where that is the one installed).
QString tessdataFolder();

// The Debian package that holds a language's data: "lit" -> "tesseract-ocr-lit".
QString languagePackage(const QString& language);

// Empty when every language of languages ("lit+eng") has its file; else the message a user
// reads, naming the package to install for the first missing one.
QString missingLanguageMessage(const QString& languages);

// Error numbers of text recognition.
namespace RecognitionError {
inline constexpr long MissingLanguage = 0x4f435201;
inline constexpr long EngineFailed = 0x4f435202;
inline constexpr long Cancelled = 0x4f435203;
inline constexpr long PdfFailed = 0x4f435204;
} // namespace RecognitionError

// One page read at a time per core, across the whole program (the background reading's pool
// and a scan window writing its PDF): a recognition holds a slot while it reads its page,
// waiting for one when every core has its page. A wait that cancelled ends leaves it unheld.
class RecognitionSlot
{
public:
    explicit RecognitionSlot(const std::function<bool()>& cancelled = {});
    ~RecognitionSlot();
    RecognitionSlot(const RecognitionSlot&) = delete;
    RecognitionSlot& operator=(const RecognitionSlot&) = delete;

    bool held() const { return m_held; }
    // How many slots there are: the machine's cores.
    static int count();

private:
    bool m_held = false;
};

// One Tesseract engine with its languages loaded (loading takes a good part of a second,
// so a worker keeps one). Belongs to one thread at a time.
class TextRecognizer
{
public:
    // Throws kartella::Error (MissingLanguage with missingLanguageMessage, or EngineFailed).
    explicit TextRecognizer(const QString& languages);
    ~TextRecognizer();
    TextRecognizer(const TextRecognizer&) = delete;
    TextRecognizer& operator=(const TextRecognizer&) = delete;

    const QString& languages() const { return m_languages; }

    // The words of one page, lines kept. cancelled is asked now and then while Tesseract
    // works; a cancel throws Error(Cancelled).
    QString recognise(const QImage& page, int dotsPerInch, const std::function<bool()>& cancelled = {});

    tesseract::TessBaseAPI& api() { return *m_api; }

private:
    QString m_languages;
    std::unique_ptr<tesseract::TessBaseAPI> m_api;
};

// Writes pages as one PDF at path (each at its own resolution, dotsPerInch for a page that
// names none): each page's image (JPEG, or lossless for black and
// white) with its recognised words laid invisibly under it, so that the text can be selected
// and searched. The PDF is written beside path under another name and renamed when
// complete: path holds the whole PDF or nothing. afterPage is called after each page
// (1-based); returning false stops, writes nothing and throws Error(Cancelled).
// Throws kartella::Error.
void writeSearchablePdf(const QList<QImage>& pages, int dotsPerInch, const QString& path,
    const QString& languages, const std::function<bool(int page)>& afterPage = {});

} // namespace kartella
