// PDF: the text layer of every page, through Poppler.
#include "content/FileText.h"

#include <QFile>

#include <memory>
#include <mutex>
#include <poppler-document.h>
#include <poppler-global.h>
#include <poppler-page.h>

namespace kartella {

namespace {

// Poppler writes what it finds wrong in a file to the standard error; a damaged file is
// reported through its row instead.
void quietPoppler()
{
    static std::once_flag once;
    std::call_once(
        once, [] { poppler::set_debug_error_function([](const std::string&, void*) {}, nullptr); });
}

} // namespace

FileText readPdfText(const QString& path)
{
    quietPoppler();
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return FileText::failed(file.errorString());
    QByteArray bytes = file.readAll();
    file.close();
    if (!bytes.startsWith("%PDF"))
        return FileText::failed(TextReason::Damaged);
    std::unique_ptr<poppler::document> document(
        poppler::document::load_from_raw_data(bytes.constData(), int(bytes.size())));
    if (!document)
        return FileText::failed(TextReason::Damaged);
    if (document->is_locked())
        return FileText::failed(TextReason::PasswordProtected);
    const int pages = document->pages();
    QString text;
    for (int number = 0; number < pages; ++number) {
        const std::unique_ptr<poppler::page> page(document->create_page(number));
        if (!page)
            continue;
        const poppler::byte_array utf8 = page->text().to_utf8();
        if (!text.isEmpty())
            text += u'\n';
        text += QString::fromUtf8(utf8.data(), qsizetype(utf8.size()));
    }
    // Pages without a word: a scan, whose text has to be recognised from its images.
    if (pages > 0 && text.trimmed().isEmpty())
        return {TextState::NeedsOcr, {}, {}};
    return FileText::read(text.trimmed());
}

} // namespace kartella
