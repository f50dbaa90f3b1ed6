#pragma once

#include <QHash>
#include <QMainWindow>

#include <array>
#include <functional>

class QAction;
class QComboBox;
class QMenu;
class QDateEdit;
class QLabel;
class QSplitter;
class QToolBar;
class QTreeWidgetItem;

namespace kartella {

class Connection;
class ContentProgress;
class Splitter;
class DocumentFills;
class FileDrops;
class InboxView;
class ExplorerList;
class ListModel;
class NavigationTree;
class PreviewPane;
class Thumbnails;
class RemindersCommand;
class SearchBox;
class ShareNotice;
struct SelectionState;

// The main window: a band with the direction box and the two date pickers, the
// navigation tree on the left, the document list on the right with the related list
// beneath it, and the status bar. It is the program's only top-level window.
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    explicit MainWindow(QWidget* parent = nullptr);
    ~MainWindow() override;

    // The load sequence: options, source panel, dates, the first fill, the tree.
    void load();

    // True: the tree shows categories; false: contacts.
    bool isCategoryView() const { return m_categoryView; }
    // Index of the tree node last handled; a click on a node of that index fills its list again.
    int lastNodeIndex() const { return m_lastNodeIndex; }
    // Sets the tree's view without filling it and forgets the node last handled.
    void setCategoryView(bool categories)
    {
        m_categoryView = categories;
        m_lastNodeIndex = 0;
    }

    // Whether a file or folder is at path.
    static bool fileFound(const QString& path);
    // The default register: "Kartella.mdb" in the program's folder, or in the user's data
    // folder when the program's folder is not writable (store/DefaultRegister.h).
    static QString defaultDbLocation();

    // Opens the settings dialog after a connection failure, once that dialog exists.
    std::function<void()> openSettings;

    // The dialogs the commands open, by name ("frmNewDocument", "frmCopyFile", ...). A
    // command whose dialog isn't registered stays disabled, saying so in its tool tip.
    // The argument is a file dropped on a list (to stand in its Location box), else empty.
    using DialogOpener = std::function<void(const QString& droppedFile)>;
    void setDialog(const QString& name, DialogOpener open);
    bool hasDialog(const QString& name) const { return m_dialogs.contains(name); }
    // A menu entry, toolbar button or context menu entry by its name.
    QAction* action(const QString& name) const;
    // The toolbar's button at a position (1 to 18), separators included.
    QAction* toolbarButton(int position) const;
    QMenu* documentContextMenu() const { return m_documentMenu; }
    QMenu* categoryContextMenu() const { return m_categoryMenu; }
    // Shows a context menu at a place on the screen (tests replace it to see what would pop up).
    std::function<void(QMenu*, const QPoint&)> popupMenu;

    NavigationTree* tree() const { return m_tree; }
    ExplorerList* documentList() const { return m_documents; }
    ExplorerList* relatedList() const { return m_related; }
    ListModel* documentModel() const { return m_documentModel; }
    ListModel* relatedModel() const { return m_relatedModel; }
    SearchBox* searchBox() const { return m_search; }
    // The fills of the document list (for tests and benchmarks: a search still being found).
    DocumentFills& documentFills() const { return *m_fills; }
    // The preview pane beside the lists (View > Preview Pane).
    PreviewPane* previewPane() const { return m_preview; }
    // The due reminders: the Go menu's command, the status bar panel, the window.
    RemindersCommand* reminders() const { return m_reminders; }
    // Whether the document list shows the results of a search.
    bool isSearching() const { return !m_searchText.isEmpty(); }
    // The Inbox node and list, and the files dropped on the window.
    InboxView* inbox() const { return m_inbox; }
    FileDrops* fileDrops() const { return m_drops; }

public Q_SLOTS:
    void onDirectionChanged();
    void onStartDateChanged();
    void onEndDateChanged();
    void refillByDates();
    void onNodeClicked(QTreeWidgetItem* node);
    // Lists the documents that hold every word of text; an empty text goes back to the list
    // of the node last clicked.
    void search(const QString& text);
    void onDocumentClicked(int row);
    void onRelatedClicked(int row);
    // No row of the list is highlighted: the commands have no document of it to act on.
    void onDocumentHighlightCleared();
    void onRelatedHighlightCleared();

    void fillCategoryTree();
    void fillContactTree();
    void fillRelatedList();

    // The document queries' entry points: each ends in a filled document list.
    void listCategory(qint32 category, int direction);
    void listCategoryWithinDates(qint32 category, int direction);
    void listSubCategory(qint32 category, qint32 subCategory, int direction);
    void listSubCategoryWithinDates(qint32 category, qint32 subCategory, int direction);
    void listByLetter(qint16 letterCode, int direction);
    void listByContact(int direction);
    void listByLetterWithinDates(qint16 letterCode, int direction);
    void listByContactWithinDates(int direction);

    // Command enabling by the selected item, and with no item selected.
    void updateCommandState();
    void disableDocumentCommands();

    // Commands of the menus, the toolbar and the context menus: one slot each.
    void newDocument();
    void openDocument();
    void copyDocument();
    void newVersion();
    // Document > Scan New Version...: scanned pages in place of the document's PDF file.
    void scanNewVersion();
    // A file dropped with Shift on a document's row: offered as that document's new version.
    void onFileDroppedOnDocument(const QString& path, int row);
    void deleteSelected();
    void deleteSelectedCategory();
    void printSetup();
    void printDocument();
    void newRelatedDocument();
    void showDetails();
    void showProperties();
    void exitProgram();
    void viewByCategory();
    void viewByContacts();
    void viewLargeIcons();
    void viewSmallIcons();
    void viewList();
    void viewDetails();
    void viewPreviewPane();
    void arrangeByName();
    void arrangeByRegIndex();
    void arrangeByCorrespondent();
    void arrangeByDate();
    void refresh();
    void editCategory();

    // Fills the list shown again (a node's or a search's) and highlights again the documents
    // that were highlighted, where they still are.
    void refillList();

    void openDocumentFile(const QString& path, const QString& verb);
    void deleteDocument();
    void deleteCategory();

    void onDocumentColumnClicked(int column);
    void onRelatedColumnClicked(int column);
    void onDocumentDoubleClicked();
    void onRelatedDoubleClicked();
    void onDocumentListPressed(Qt::MouseButton button, const QPoint& globalPos);
    void onRelatedListPressed(Qt::MouseButton button, const QPoint& globalPos);
    void onTreePressed(Qt::MouseButton button, const QPoint& globalPos);
    void onFilesDropped(const QStringList& paths);
    void onRelatedFilesDropped(const QStringList& paths);

protected:
    QToolBar* band() const { return m_band; }
    void closeEvent(QCloseEvent* event) override;

private:
    friend class InboxView;
    void buildWindow();
    void buildMenus();
    void buildToolbar();
    void buildPopups();
    // The preview pane, its thumbnails, and F6 (MainWindowPreview.cpp).
    void buildPreview();
    void showPreviewOfSelection();
    // Moves the focus to the next (or previous) of the tree, the lists and the pane.
    void cycleFocus(bool forward);
    // At a start on the default register of an installed program, before it exists: offers
    // to create it empty, so that a new user lands in a working program.
    void offerDefaultRegister();
    // Registers the dialog of each command that opens one.
    void registerDialogs();
    QAction* addCommand(QMenu* menu, const QString& name, const QString& caption, void (MainWindow::*slot)(),
        const QKeySequence& shortcut = {}, const QString& dialog = {});
    void setView(int view);
    // The document menu's entries, enabled as their File menu commands are.
    void enablePopupCommands();
    void switchView(bool categories);
    void sortColumn(ExplorerList* list, int column);
    void setCommandEnabled(const QString& name, bool enabled);
    void setToolbarEnabled(std::initializer_list<int> positions, bool enabled);
    void openDialog(const QString& name, const QString& droppedFile = {});
    void reloadAfterDelete();
    void deleteMainDocument(Connection& connection);
    void deleteRelatedDocument(Connection& connection);
    bool confirmDeletion(const QString& question);
    // Moves path to the trash unless a document other than those of leaving (a related
    // document other than the selected one, when leaving is empty) names it too; says why
    // when it can't.
    bool trashFileOf(Connection& connection, const QString& path, const QList<qint32>& leaving);
    // The keys of the documents highlighted in the two lists, and which list was acted on.
    struct KeptSelection
    {
        QString document;
        QString related;
        bool relatedActive = false;
    };
    KeptSelection keptSelection() const;
    void restoreSelection(const KeptSelection& kept);
    // After the tree was built again: its node last clicked is selected and its list filled
    // again; a node that is gone gives way to its category, else to the root.
    void showNodeAgain();
    // The window's layout between runs (MainWindowLayout.cpp): size, place, split, view,
    // tree mode; the sorts are the lists' own.
    void restoreLayout();
    void storeLayout();
    void storeView();
    void storeTreeView();
    // The tree's share of the width as stored, else fallback.
    static int storedTreeSplit(int fallback);
    // Whether the tree showed contacts when the program last ended.
    static bool storedContactView();
    // Empties the lists, the selection, the caption, the count and the reminders of the
    // register shown, before the tree of the register at location is built.
    void leaveRegister(const QString& location);
    int direction() const;
    void dateChanged(const QString& message);
    // Runs one list fill, reporting a failure (but not during the load).
    void runFill(const std::function<void()>& fill);
    void reportConnectionError(long number, const QString& description);
    void showRelatedList(bool visible);
    // The search (MainWindowSearch.cpp): refillSearch runs the search shown again and says
    // whether there is one; leaveSearch forgets it without a fill and says whether there was.
    void buildSearch();
    void runSearch();
    bool refillSearch(bool datesChanged = false);
    bool leaveSearch();

    SelectionState& m_state;
    bool m_categoryView = true;
    int m_lastNodeIndex = 0;
    QString m_lastNodeKey;
    // Runs the fill that made the document list, again.
    std::function<void()> m_refill;
    QToolBar* m_band = nullptr;
    QComboBox* m_direction = nullptr;
    QDateEdit* m_startDate = nullptr;
    QDateEdit* m_endDate = nullptr;
    NavigationTree* m_tree = nullptr;
    QSplitter* m_mainSplit = nullptr;
    QSplitter* m_listSplit = nullptr;
    ListModel* m_documentModel = nullptr;
    ListModel* m_relatedModel = nullptr;
    ExplorerList* m_documents = nullptr;
    ExplorerList* m_related = nullptr;
    QLabel* m_count = nullptr;
    QLabel* m_source = nullptr;
    ShareNotice* m_shareNotice = nullptr;
    std::unique_ptr<DocumentFills> m_fills;
    SearchBox* m_search = nullptr;
    RemindersCommand* m_reminders = nullptr;
    ContentProgress* m_contentProgress = nullptr; // reads the register's files in the background
    QString m_searchText;
    QString m_titleBeforeSearch;
    bool m_searchWithinDates = false;
    bool m_loading = false;
    // The register location the window shows, as the options held it.
    QString m_shownRegister;
    QHash<QString, QAction*> m_actions;
    // The dialog each command opens, for the commands that open one.
    QHash<QAction*, QString> m_actionDialogs;
    QHash<QString, DialogOpener> m_dialogs;
    QList<QAction*> m_toolbar; // positions 1 to 18
    QMenu* m_documentMenu = nullptr;
    QMenu* m_categoryMenu = nullptr;
    std::array<Splitter*, 2> m_splitters = {};
    QSplitter* m_previewSplit = nullptr;
    PreviewPane* m_preview = nullptr;
    Thumbnails* m_thumbnails = nullptr;
    InboxView* m_inbox = nullptr;
    FileDrops* m_drops = nullptr;
};

} // namespace kartella
