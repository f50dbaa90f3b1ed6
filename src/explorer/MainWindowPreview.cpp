// MainWindow: the preview pane beside the lists, the lists' thumbnails, and F6 between
// the tree, the lists and the pane.
#include "explorer/ExplorerList.h"
#include "explorer/ListModel.h"
#include "explorer/MainWindow.h"
#include "explorer/NavigationTree.h"
#include "options/PreviewOptions.h"
#include "preview/PreviewPane.h"
#include "preview/Thumbnails.h"
#include "support/SelectionState.h"

#include <QAction>
#include <QApplication>
#include <QSplitter>

namespace kartella {

namespace {
// The pane's share of the width beside the lists when it appears.
constexpr double PaneShare = 0.45;
} // namespace

void MainWindow::buildPreview()
{
    m_thumbnails
        = new Thumbnails(PreviewCache(PreviewCache::defaultFolder(), previewCacheLimitBytes()), 96, this);
    m_documentModel->setThumbnails(m_thumbnails);
    m_relatedModel->setThumbnails(m_thumbnails);

    m_preview = new PreviewPane(this);
    m_previewSplit = new QSplitter(Qt::Horizontal, this);
    m_previewSplit->setObjectName(QStringLiteral("splitPreview"));
    m_previewSplit->setChildrenCollapsible(false);
    m_mainSplit->replaceWidget(m_mainSplit->indexOf(m_listSplit), m_previewSplit);
    m_previewSplit->addWidget(m_listSplit);
    m_previewSplit->addWidget(m_preview);
    // A window that grows gives the lists and the pane their shares of the new width.
    m_previewSplit->setStretchFactor(0, int(100 * (1 - PaneShare)));
    m_previewSplit->setStretchFactor(1, int(100 * PaneShare));
    m_preview->setVisible(false);

    // After the window's own answers to the lists, so that the selection is settled.
    connect(m_documents, &ExplorerList::itemClicked, this, &MainWindow::showPreviewOfSelection);
    connect(m_documents, &ExplorerList::highlightCleared, this, &MainWindow::showPreviewOfSelection);
    connect(m_related, &ExplorerList::itemClicked, this, &MainWindow::showPreviewOfSelection);
    connect(m_related, &ExplorerList::highlightCleared, this, &MainWindow::showPreviewOfSelection);

    auto* next = new QAction(tr("Next Pane"), this);
    next->setObjectName(QStringLiteral("actNextPane"));
    next->setShortcut(QKeySequence(Qt::Key_F6));
    connect(next, &QAction::triggered, this, [this] { cycleFocus(true); });
    auto* previous = new QAction(tr("Previous Pane"), this);
    previous->setObjectName(QStringLiteral("actPreviousPane"));
    previous->setShortcut(QKeySequence(Qt::SHIFT | Qt::Key_F6));
    connect(previous, &QAction::triggered, this, [this] { cycleFocus(false); });
    addActions({next, previous});

    const bool shown = previewPaneShown();
    action(QStringLiteral("mnuPreviewPane"))->setChecked(shown);
    if (shown)
        viewPreviewPane();
}

void MainWindow::viewPreviewPane()
{
    const bool shown = action(QStringLiteral("mnuPreviewPane"))->isChecked();
    if (shown != m_preview->isVisibleTo(this)) {
        const int width = qMax(2, m_previewSplit->width());
        m_preview->setVisible(shown);
        if (shown)
            m_previewSplit->setSizes({int(width * (1 - PaneShare)), int(width * PaneShare)});
    }
    setPreviewPaneShown(shown);
    if (!shown && m_preview->hasFocus())
        m_documents->setFocus();
    // A hidden pane reads nothing; shown again, it shows the selection.
    if (shown)
        showPreviewOfSelection();
    else
        m_preview->showFile({});
}

void MainWindow::showPreviewOfSelection()
{
    if (!m_preview || !m_preview->isVisibleTo(this))
        return;
    m_preview->showFile(m_state.activeListName.isEmpty() ? QString() : m_state.selectedFilePath);
}

void MainWindow::cycleFocus(bool forward)
{
    QList<QWidget*> stops = {m_tree, m_documents};
    if (m_related->isVisibleTo(this))
        stops << m_related;
    if (m_preview->isVisibleTo(this))
        stops << m_preview;
    const QWidget* focused = QApplication::focusWidget();
    qsizetype at = -1;
    for (qsizetype i = 0; i < stops.size(); ++i) {
        QWidget* stop = stops[i];
        if (focused && (stop == focused || stop->isAncestorOf(focused) || stop->focusProxy() == focused))
            at = i;
    }
    const qsizetype count = stops.size();
    const qsizetype to = at < 0 ? (forward ? 0 : count - 1) : (at + (forward ? 1 : count - 1)) % count;
    stops[to]->setFocus(forward ? Qt::TabFocusReason : Qt::BacktabFocusReason);
}

} // namespace kartella
