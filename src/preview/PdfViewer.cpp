#include "preview/PdfViewer.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPdfDocument>
#include <QPdfPageNavigator>
#include <QPdfPageRenderer>
#include <QPdfView>
#include <QScrollBar>
#include <QScroller>
#include <QToolButton>
#include <QVBoxLayout>

namespace kartella {

namespace {
constexpr qreal ZoomStep = 1.25;
constexpr qreal LeastZoom = 0.1;
constexpr qreal MostZoom = 8.0;
} // namespace

PdfViewer::PdfViewer(QWidget* parent)
    : QWidget(parent)
    , m_view(new QPdfView(this))
    , m_zoomOut(new QToolButton(this))
    , m_zoomIn(new QToolButton(this))
    , m_page(new QLabel(this))
{
    m_view->setObjectName(QStringLiteral("pdfPreview"));
    m_view->setAccessibleName(QStringLiteral("Preview"));
    m_view->setPageMode(QPdfView::PageMode::MultiPage);
    m_view->setZoomMode(QPdfView::ZoomMode::FitToWidth);
    m_view->setFocusPolicy(Qt::StrongFocus);
    m_view->installEventFilter(this);

    m_zoomOut->setObjectName(QStringLiteral("btnZoomOut"));
    m_zoomOut->setText(QStringLiteral("−"));
    m_zoomOut->setToolTip(tr("Zoom Out (Ctrl+-)"));
    m_zoomOut->setAccessibleName(tr("Zoom out"));
    m_zoomIn->setObjectName(QStringLiteral("btnZoomIn"));
    m_zoomIn->setText(QStringLiteral("+"));
    m_zoomIn->setToolTip(tr("Zoom In (Ctrl++)"));
    m_zoomIn->setAccessibleName(tr("Zoom in"));
    m_page->setObjectName(QStringLiteral("lblPage"));
    connect(m_zoomOut, &QToolButton::clicked, this, &PdfViewer::zoomOut);
    connect(m_zoomIn, &QToolButton::clicked, this, &PdfViewer::zoomIn);
    connect(m_view->pageNavigator(), &QPdfPageNavigator::currentPageChanged, this, &PdfViewer::showPage);
    connect(m_view->verticalScrollBar(), &QScrollBar::valueChanged, this, &PdfViewer::showPage);
    connect(m_view->verticalScrollBar(), &QScrollBar::rangeChanged, this, &PdfViewer::showPage);

    auto* bar = new QHBoxLayout;
    bar->setContentsMargins(2, 2, 2, 2);
    bar->addWidget(m_zoomOut);
    bar->addWidget(m_zoomIn);
    bar->addStretch(1);
    bar->addWidget(m_page);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addLayout(bar);
    layout->addWidget(m_view, 1);
    setFocusProxy(m_view);
}

PdfViewer::~PdfViewer()
{
    // The view lets go of the document before the document goes.
    m_view->setDocument(nullptr);
    // Qt's PDF view never frees its renderer's thread, nor the scroller it grabs for its
    // viewport: both are handed back here, while the view still lives.
    if (auto* renderer = m_view->findChild<QPdfPageRenderer*>())
        renderer->setRenderMode(QPdfPageRenderer::RenderMode::SingleThreaded);
    QScroller::ungrabGesture(m_view->viewport());
}

void PdfViewer::setDocument(std::unique_ptr<QPdfDocument> document)
{
    m_view->setDocument(document.get());
    std::swap(m_document, document);
    m_view->setZoomMode(QPdfView::ZoomMode::FitToWidth);
    if (m_document)
        m_view->pageNavigator()->jump(0, {}, 0);
    showPage();
}

QString PdfViewer::pageText() const
{
    return m_page->text();
}

void PdfViewer::showPage()
{
    const int pages = m_document ? m_document->pageCount() : 0;
    m_page->setText(pages > 0 ? tr("Page %1 of %2").arg(pageInView() + 1).arg(pages) : QString());
}

int PdfViewer::pageInView() const
{
    const int pages = m_document ? m_document->pageCount() : 0;
    if (pages < 1)
        return 0;
    // The page that holds the line a third of the way down the view; the view stacks the
    // pages at the zoom, with its margins above and its spacing between them.
    const qreal pixelsPerPoint = zoom() * logicalDpiY() / 72.0;
    const int line = m_view->verticalScrollBar()->value() + m_view->viewport()->height() / 3;
    qreal bottom = m_view->documentMargins().top();
    for (int page = 0; page < pages; ++page) {
        bottom += m_document->pagePointSize(page).height() * pixelsPerPoint + m_view->pageSpacing();
        if (line < bottom)
            return page;
    }
    return pages - 1;
}

void PdfViewer::setZoom(qreal factor)
{
    m_view->setZoomMode(QPdfView::ZoomMode::Custom);
    m_view->setZoomFactor(qBound(LeastZoom, factor, MostZoom));
}

qreal PdfViewer::zoom() const
{
    if (m_view->zoomMode() == QPdfView::ZoomMode::Custom || !m_document)
        return m_view->zoomFactor();
    // Fitted to the width, the view keeps no factor: it is the one that fills the width.
    const qreal pagePixels
        = m_document->pagePointSize(m_view->pageNavigator()->currentPage()).width() * logicalDpiX() / 72.0;
    const QMargins margins = m_view->documentMargins();
    const int width = m_view->viewport()->width() - margins.left() - margins.right();
    return pagePixels > 0 && width > 0 ? width / pagePixels : 1.0;
}

void PdfViewer::zoomIn()
{
    setZoom(zoom() * ZoomStep);
}

void PdfViewer::zoomOut()
{
    setZoom(zoom() / ZoomStep);
}

bool PdfViewer::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_view && event->type() == QEvent::KeyPress) {
        auto* key = static_cast<QKeyEvent*>(event);
        const bool control = key->modifiers() & Qt::ControlModifier;
        if (key->matches(QKeySequence::ZoomIn) || (control && key->key() == Qt::Key_Equal)) {
            zoomIn();
            return true;
        }
        if (key->matches(QKeySequence::ZoomOut)) {
            zoomOut();
            return true;
        }
        QScrollBar* pages = m_view->verticalScrollBar();
        if (key->key() == Qt::Key_Home || key->key() == Qt::Key_End) {
            pages->setValue(key->key() == Qt::Key_Home ? pages->minimum() : pages->maximum());
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}

} // namespace kartella
