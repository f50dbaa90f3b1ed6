#include "content/TextRecognitionPass.h"

#include "base/Error.h"
#include "capture/PageImages.h"
#include "capture/TextRecognition.h"
#include "content/FileText.h"
#include "content/TextIndexer.h"
#include "store/engine/Backend.h"
#include "store/engine/Connection.h"
#include "store/engine/Value.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QFileInfo>
#include <QMutex>
#include <QRegularExpression>
#include <QThread>
#include <QThreadPool>

#include <memory>
#include <vector>

namespace kartella {

namespace {

// The reason stored for a language without its data, in whichever language the desktop that
// stored it spoke: it names the package to install, and a package's name is never translated.
bool isMissingLanguageReason(const QString& reason)
{
    static const QRegularExpression package(QStringLiteral("(^|\\s)tesseract-ocr-[a-z]"));
    return reason.startsWith(QLatin1String("Text recognition has no data")) || reason.contains(package);
}

// An engine per pool thread, kept while the thread lives: loading the languages costs more
// than reading a page.
TextRecognizer& threadRecognizer(const QString& languages)
{
    thread_local std::unique_ptr<TextRecognizer> recognizer;
    if (!recognizer || recognizer->languages() != languages) {
        recognizer.reset();
        recognizer = std::make_unique<TextRecognizer>(languages);
    }
    return *recognizer;
}

} // namespace

TextRecognitionPass::TextRecognitionPass(Connection& connection, QString languages)
    : m_connection(connection)
    , m_languages(std::move(languages))
    , m_dotsPerInch(RecognitionDotsPerInch)
{ }

TextRecognitionPass::~TextRecognitionPass() = default;

int TextRecognitionPass::threadCount()
{
    return std::max(1, QThread::idealThreadCount());
}

RecognitionSummary TextRecognitionPass::run(const Progress& progress)
{
    RecognitionSummary summary;
    const engine::QueryResult result = m_connection.backend().query(QStringLiteral(
        "SELECT RastasID, FilePath, FileSize, FileModified, State, Reason FROM tbl_Document_Text "
        "WHERE State IN (2, 3, 4) ORDER BY RastasID"));
    QList<DocumentText> waiting;
    for (int row = 0; row < result.rows.rowCount(); ++row) {
        auto text = [&result, row](int column) {
            const QVariant value = result.rows.value(row, column);
            return isNull(value) ? QString() : value.toString();
        };
        DocumentText stored;
        stored.documentId = qint32(result.rows.value(row, 0).toLongLong());
        stored.file.path = text(1);
        stored.file.size = isNull(result.rows.value(row, 2)) ? -1 : result.rows.value(row, 2).toLongLong();
        stored.file.modified = text(3);
        stored.state = TextState(result.rows.value(row, 4).toInt());
        stored.reason = text(5);
        const bool image = isPageImageExtension(QFileInfo(stored.file.path).suffix().toLower());
        const bool wanted = stored.state == TextState::NeedsOcr
            || (stored.state == TextState::NoText && image)
            || (stored.state == TextState::Failed && isMissingLanguageReason(stored.reason));
        // A file changed since is the reading pass's to read again first.
        if (wanted && TextIndexer::currentStamp(stored.file.path) == stored.file)
            waiting.append(stored);
    }

    const int total = int(waiting.size());
    if (total == 0 || (progress && !progress(0, total)))
        return summary;
    const QString missing = missingLanguageMessage(m_languages);
    m_pool = std::make_unique<QThreadPool>();
    m_pool->setMaxThreadCount(threadCount());
    int done = 0;
    for (const DocumentText& stored : waiting) {
        std::optional<DocumentText> text;
        if (!missing.isEmpty()) {
            // Still missing: a row already saying so needn't be written again.
            if (stored.state == TextState::Failed && stored.reason == missing) {
                ++done;
                continue;
            }
            text = stored;
            text->state = TextState::Failed;
            text->reason = missing;
            text->body.clear();
            text->readAt = stampTime(QDateTime::currentDateTimeUtc());
        } else if (stored.file.size > m_limitBytes) {
            text = stored;
            text->state = TextState::Failed;
            text->reason = TextReason::tooLarge(m_limitBytes);
            text->readAt = stampTime(QDateTime::currentDateTimeUtc());
        } else {
            text = recognise(stored);
        }
        if (!text)
            return summary;
        try {
            storeDocumentText(m_connection, *text);
            if (text->state == TextState::Read) {
                ++summary.read;
            } else {
                ++summary.failed;
                ++summary.failures[text->reason];
            }
        } catch (const Error& error) {
            ++summary.failed;
            ++summary.failures[error.description()];
        }
        ++done;
        if (progress && !progress(done, total))
            return summary;
    }
    return summary;
}

std::optional<DocumentText> TextRecognitionPass::recognise(const DocumentText& stored)
{
    DocumentText text = stored;
    text.reason.clear();
    text.body.clear();
    int pages = 0;
    try {
        pages = pageCount(stored.file.path);
    } catch (const Error& error) {
        text.state = TextState::Failed;
        text.reason = error.description();
        text.readAt = stampTime(QDateTime::currentDateTimeUtc());
        return text;
    }

    // One task per page, never more running than there are cores.
    QThreadPool& pool = *m_pool;
    std::vector<QString> pageTexts(size_t(std::max(pages, 0)));
    QMutex failure;
    QString failedReason;
    const std::function<bool()> cancelCheck = [this] { return cancelled(); };
    for (int page = 0; page < pages; ++page) {
        pool.start([&, page] {
            if (cancelled())
                return;
            {
                const QMutexLocker lock(&failure);
                if (!failedReason.isEmpty())
                    return;
            }
            try {
                const QImage image = pageImage(stored.file.path, page, m_dotsPerInch);
                pageTexts[size_t(page)]
                    = threadRecognizer(m_languages)
                          .recognise(image, pageResolution(image, m_dotsPerInch), cancelCheck);
            } catch (const Error& error) {
                if (error.number() == RecognitionError::Cancelled)
                    return;
                const QMutexLocker lock(&failure);
                if (failedReason.isEmpty())
                    failedReason = error.description();
            }
        });
    }
    pool.waitForDone();
    if (cancelled())
        return std::nullopt;
    text.readAt = stampTime(QDateTime::currentDateTimeUtc());
    if (!failedReason.isEmpty()) {
        text.state = TextState::Failed;
        text.reason = failedReason;
        return text;
    }
    QStringList nonEmpty;
    for (const QString& page : pageTexts) {
        if (!page.isEmpty())
            nonEmpty << page;
    }
    text.state = TextState::Read;
    text.body = nonEmpty.join(u'\n');
    return text;
}

QString recognitionProgressText(int done, int total)
{
    return QCoreApplication::translate("kartella::TextRecognitionPass", "Recognising text: %1 of %2")
        .arg(groupedNumber(done), groupedNumber(total));
}

} // namespace kartella
