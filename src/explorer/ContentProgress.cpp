#include "explorer/ContentProgress.h"

#include "content/ReadingQueue.h"
#include "content/TextRecognitionPass.h"
#include "explorer/AfterPaint.h"
#include "options/OptionStore.h"
#include "options/TextOptions.h"
#include "store/Store.h"

#include <QLabel>
#include <QMainWindow>
#include <QStatusBar>

namespace kartella {

ContentProgress::ContentProgress(QMainWindow* window)
    : QObject(window)
    , m_queue(new ReadingQueue(this))
    , m_afterPaint(new AfterPaint(window, this))
{
    m_panel = new QLabel(window->statusBar());
    m_panel->setObjectName(QStringLiteral("pnReadingFiles"));
    m_panel->setToolTip(tr("The text of the documents' files being read for the search"));
    m_panel->hide();
    window->statusBar()->addPermanentWidget(m_panel);
    connect(m_queue, &ReadingQueue::progress, this,
        [this](int done, int total) { showProgress(done, total, readingProgressText); });
    connect(m_queue, &ReadingQueue::finished, m_panel, &QLabel::hide);
    connect(m_queue, &ReadingQueue::failed, m_panel, &QLabel::hide);
    // Text recognition follows the reading, in the same place: "Recognising text: 2 of 15".
    connect(m_queue, &ReadingQueue::recognitionProgress, this,
        [this](int done, int total) { showProgress(done, total, recognitionProgressText); });
    connect(m_queue, &ReadingQueue::recognitionFinished, m_panel, &QLabel::hide);
}

ContentProgress::~ContentProgress() = default;

void ContentProgress::start(const QString& location)
{
    stop();
    if (location.trimmed().isEmpty())
        return;
    const QString provider
        = readRegValue(Hive::CurrentUser, optionsKeyPath(), QStringLiteral("Provider"), {});
    // The walk reads every document's file path, which grows with the register: it waits
    // until the window has painted its first screen.
    m_afterPaint->run([this, connection = plainConnectionString(provider, location),
                          limit = textSizeLimitBytes()] { m_queue->start(connection, limit); });
}

void ContentProgress::stop()
{
    m_afterPaint->cancel();
    m_queue->stop();
    m_panel->hide();
}

void ContentProgress::showProgress(int done, int total, QString (*text)(int, int))
{
    if (total == 0 || done >= total) {
        m_panel->hide();
        return;
    }
    m_panel->setText(text(done, total));
    m_panel->show();
}

} // namespace kartella
