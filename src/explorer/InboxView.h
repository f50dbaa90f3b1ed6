#pragma once

#include <QObject>
#include <QString>

class QTreeWidgetItem;

namespace kartella {

class InboxFolder;
class MainWindow;

// The main window's Inbox: a node at the top of the tree, "Inbox (n)", while the options name
// an inbox folder, and the folder's complete files in the document list when it is clicked
// (name, size, date; the preview pane shows the highlighted one). Enter or a double-click
// registers the file: the New Document dialog opens with it, and OK moves it out of the
// inbox into the register's files. Del asks, then moves it to the desktop's trash. Commands
// that need a document (Details, Related, Copy, Move) stay disabled on an inbox file.
class InboxView : public QObject
{
    Q_OBJECT

public:
    explicit InboxView(MainWindow* window);
    ~InboxView() override;

    static const QString NodeKey; // "INBOX"

    InboxFolder* folder() const { return m_folder; }
    // Adds the node at the top of a freshly built tree, when the inbox is on.
    void addNode();
    // Whether the document list shows the inbox's files.
    bool isShown() const;
    // Whether node is the Inbox node.
    static bool isInboxNode(const QTreeWidgetItem* node);

    // The window's answers while the inbox is shown.
    void show();
    void onFileClicked(int row);
    void registerSelectedFile();
    void trashSelectedFile();

private:
    void fillList();
    void onFilesChanged();
    void onFolderOptionChanged();
    QString nodeText() const;

    MainWindow* m_window;
    InboxFolder* m_folder;
};

} // namespace kartella
