#pragma once

#include <QObject>
#include <QStringList>

class QDropEvent;

namespace kartella {

class MainWindow;

// Files dropped on the main window from a file manager (its tree, or anywhere but the two
// lists, which take drops of their own): each starts a New Document with the file attached,
// one after the other; OK copies it into the register's files, the original staying where
// it was. Dropped on a category or subcategory node, the dialogs open on that category.
// Cancel skips a file; Esc (or the close box) stops the files left.
class FileDrops : public QObject
{
    Q_OBJECT

public:
    explicit FileDrops(MainWindow* window);

    // Registers paths in turn, with the category (0: the current one) and subcategory.
    void registerFiles(const QStringList& paths, qint32 category, qint32 subCategory);

Q_SIGNALS:
    // The dialogs of a drop are over: the files OK placed, in order.
    void filesRegistered(const QStringList& placed);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    // The local files of a drop; a drop with none is refused.
    static QStringList droppedFiles(const QDropEvent* event);
    void takeDrop(QObject* watched, QDropEvent* event);

    MainWindow* m_window;
    bool m_busy = false;
};

} // namespace kartella
