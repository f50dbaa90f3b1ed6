#include "explorer/FileDrops.h"

#include "explorer/MainWindow.h"
#include "explorer/NavigationTree.h"
#include "explorer/RemindersCommand.h"
#include "platform/Prompter.h"
#include "registration/NewDocumentDialog.h"
#include "store/engine/WriteContext.h"
#include "support/SelectionState.h"

#include <QDropEvent>
#include <QFileInfo>
#include <QMimeData>
#include <QTimer>

namespace kartella {

FileDrops::FileDrops(MainWindow* window)
    : QObject(window)
    , m_window(window)
{
    m_window->setAcceptDrops(true);
    m_window->installEventFilter(this);
    QWidget* tree = m_window->tree()->viewport();
    tree->setAcceptDrops(true);
    tree->installEventFilter(this);
}

QStringList FileDrops::droppedFiles(const QDropEvent* event)
{
    // Only files from outside the program: a drag out of a list comes back as nothing.
    QStringList paths;
    if (event->source() != nullptr || !event->mimeData()->hasUrls())
        return paths;
    for (const QUrl& url : event->mimeData()->urls()) {
        if (url.isLocalFile())
            paths << url.toLocalFile();
    }
    return paths;
}

bool FileDrops::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    case QEvent::DragEnter:
    case QEvent::DragMove: {
        auto* drag = static_cast<QDropEvent*>(event);
        if (droppedFiles(drag).isEmpty() || m_busy)
            return false;
        drag->setDropAction(Qt::CopyAction);
        drag->accept();
        return true;
    }
    case QEvent::Drop: {
        auto* drop = static_cast<QDropEvent*>(event);
        if (droppedFiles(drop).isEmpty() || m_busy)
            return false;
        takeDrop(watched, drop);
        return true;
    }
    default:
        return false;
    }
}

void FileDrops::takeDrop(QObject* watched, QDropEvent* event)
{
    qint32 category = 0;
    qint32 subCategory = 0;
    NavigationTree* tree = m_window->tree();
    if (watched == tree->viewport() && m_window->isCategoryView()) {
        const QTreeWidgetItem* node = tree->itemAt(event->position().toPoint());
        const QString key = NavigationTree::nodeKey(node);
        if (key.startsWith(u'a')) {
            category = key.mid(1).toInt();
        } else if (key.startsWith(u'b') && node->parent()) {
            category = NavigationTree::nodeKey(node->parent()).mid(1).toInt();
            subCategory = key.mid(1).toInt();
        }
    }
    const QStringList paths = droppedFiles(event);
    event->setDropAction(Qt::CopyAction);
    event->accept();
    // The dialogs open once the drop is over, so that the file manager isn't kept waiting.
    QTimer::singleShot(
        0, this, [this, paths, category, subCategory] { registerFiles(paths, category, subCategory); });
}

void FileDrops::registerFiles(const QStringList& paths, qint32 category, qint32 subCategory)
{
    if (m_busy)
        return;
    m_busy = true;
    SelectionState& state = selection();
    const qint32 keptCategory = state.currentCategoryId;
    const qint32 keptSubCategory = state.currentSubCategoryId;
    QStringList placed;
    QStringList refused;
    for (const QString& path : paths) {
        if (!QFileInfo(path).isFile()) {
            refused << path;
            continue;
        }
        if (category != 0) {
            state.currentCategoryId = category;
            state.currentSubCategoryId = subCategory;
        }
        bool stop = false;
        {
            const CommandScope command(QStringLiteral("New Document"));
            NewDocumentDialog dialog(m_window);
            dialog.attachIncomingFile(path, Intake::Copy);
            if (dialog.exec() == QDialog::Accepted && !dialog.placedFile().isEmpty())
                placed << dialog.placedFile();
            stop = dialog.closedByEscape();
        }
        state.currentCategoryId = keptCategory;
        state.currentSubCategoryId = keptSubCategory;
        if (stop)
            break;
    }
    m_window->reminders()->recount();
    m_busy = false;
    if (!refused.isEmpty()) {
        msgBox(tr("Only files can be registered; these are not files:\n%1").arg(refused.join(u'\n')),
            MsgBoxStyle::OkOnly | MsgBoxStyle::Exclamation, tr("New Document"));
    }
    Q_EMIT filesRegistered(placed);
}

} // namespace kartella
