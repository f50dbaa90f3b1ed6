#pragma once

#include "content/TextStore.h"

#include <QMap>
#include <QString>

#include <functional>
#include <limits>
#include <memory>
#include <optional>

class QThreadPool;

namespace kartella {

class Connection;

// What one recognition pass did.
struct RecognitionSummary
{
    int read = 0; // documents whose words were recognised and stored
    int failed = 0; // documents recorded as not read; failures counts them by reason
    QMap<QString, int> failures;
};

// Recognises the words of the documents whose files have to be read from their pages:
// PDFs without a text layer (State NeedsOcr), images (PNG, JPEG, TIFF, which the reading
// pass records as NoText), and those that failed only for want of a language file, once
// it is installed. A file changed since its row was written is left for the reading pass.
//
// The pages of a document are recognised on a pool of at most one thread per core, each
// with an engine of its own; the document's row is written once all its pages are read, so
// that a cancel or a failure never leaves part of a document's text behind. A missing
// language file records every such document as Failed with the message that names the
// package to install.
class TextRecognitionPass
{
public:
    // Called after each document (done of total); returning false cancels the pass.
    using Progress = std::function<bool(int done, int total)>;

    TextRecognitionPass(Connection& connection, QString languages);
    ~TextRecognitionPass();

    // Asked before each page and while Tesseract reads one.
    void setCancelCheck(std::function<bool()> cancelled) { m_cancelled = std::move(cancelled); }
    void setDotsPerInch(int dotsPerInch) { m_dotsPerInch = dotsPerInch; }
    // Files larger than this are recorded as too large, as the reading pass records them.
    void setLimitBytes(qint64 limitBytes) { m_limitBytes = limitBytes; }

    RecognitionSummary run(const Progress& progress = {});

    // The threads the pass uses: one per core.
    static int threadCount();

private:
    bool cancelled() const { return m_cancelled && m_cancelled(); }
    // The document's text, or its failure; nothing when cancelled.
    std::optional<DocumentText> recognise(const DocumentText& stored);

    Connection& m_connection;
    QString m_languages;
    int m_dotsPerInch;
    qint64 m_limitBytes = std::numeric_limits<qint64>::max();
    std::function<bool()> m_cancelled;
    // Made by run(): its threads keep their engines from one document to the next.
    std::unique_ptr<QThreadPool> m_pool;
};

// The progress line: "Recognising text: 2 of 15".
QString recognitionProgressText(int done, int total);

} // namespace kartella
