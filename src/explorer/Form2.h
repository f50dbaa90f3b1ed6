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

class CSplitter;
class DocumentFills;
class ExplorerList;
class ListModel;
class NavigationTree;
struct SelectionState;

// The main window: a band with the direction box and the two date pickers, the
// navigation tree on the left, the document list on the right with the related list
// beneath it, and the status bar. It is the program's only top-level window.
class Form2 : public QMainWindow
{
    Q_OBJECT

public:
    explicit Form2(QWidget* parent = nullptr);
    ~Form2() override;

    // The load sequence: options, source panel, dates, the first fill, the tree.
    void Form_Load();

    // True: the tree shows categories; false: contacts.
    bool CategoryView = true;
    // Index of the tree node last handled; a click on a node of that index does nothing.
    int LastNodeIndex = 0;

    // Whether a file or folder is at path.
    static bool FileFound(const QString& path);
    // The default register: the program's folder followed by "/Kartella.mdb".
    static QString DefaultDbLocation();

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
    QMenu* popUpMenu() const { return m_popUp; }
    QMenu* popCatMenu() const { return m_popCat; }
    // Shows a context menu at a place on the screen (tests replace it to see what would pop up).
    std::function<void(QMenu*, const QPoint&)> popupMenu;

    NavigationTree* tree() const { return m_tree; }
    ExplorerList* documentList() const { return m_documents; }
    ExplorerList* relatedList() const { return m_related; }
    ListModel* documentModel() const { return m_documentModel; }
    ListModel* relatedModel() const { return m_relatedModel; }

public Q_SLOTS:
    void cboDirection_Click();
    void txtStartDate_Change();
    void txtEndDate_Change();
    void RefillByDates();
    void acxTreeKategorijos_NodeClick(QTreeWidgetItem* node);
    void ListDokSarasas_ItemClick(int row);
    void ListSusieti_ItemClick(int row);

    void FillCategoryTree();
    void FillContactTree();
    void FillRelatedList();

    // The document queries' entry points: each ends in a filled document list.
    void modListDocum1(qint32 category, int direction);
    void modListDocum12(qint32 category, int direction);
    void modListDocum2(qint32 category, qint32 subCategory, int direction);
    void modListDocum22(qint32 category, qint32 subCategory, int direction);
    void ListByLetter(qint16 letterCode, int direction);
    void ListByContact(int direction);
    void ListByLetterDated(qint16 letterCode, int direction);
    void ListByContactDated(int direction);

    // Command enabling by the selected item, and with no item selected.
    void UpdateCommandState();
    void DisableDocumentCommands();

    // Commands of the menus, the toolbar and the context menus: one slot each.
    void mnuNew_Click();
    void mnuOpen_Click();
    void mnuCopy_Click();
    void mnuDelete_Click();
    void mnuDeleteCategory_Click();
    void mnuPrintSetup_Click();
    void mnuPrint_Click();
    void mnuRelated_Click();
    void mnuShowDetails_Click();
    void mnuProperties_Click();
    void mnuExit_Click();
    void mnuByCategory_Click();
    void mnuByContacts_Click();
    void mnuLargeIcons_Click();
    void mnuSmallIcons_Click();
    void mnuList_Click();
    void mnuDetails_Click();
    void mnubyName_Click();
    void mnubyRegIndex_Click();
    void mnubyCorrespondent_Click();
    void mnubyDate_Click();
    void mnuRefresh_Click();
    void mnuCategoryOptions_Click();

    void OpenDocumentFile(const QString& path, const QString& verb);
    void DeleteDocument();
    void DeleteCategory();

    void ListDokSarasas_ColumnClick(int column);
    void ListSusieti_ColumnClick(int column);
    void ListDokSarasas_DblClick();
    void ListSusieti_DblClick();
    void ListDokSarasas_MouseDown(Qt::MouseButton button, const QPoint& globalPos);
    void ListSusieti_MouseDown(Qt::MouseButton button, const QPoint& globalPos);
    void acxTreeKategorijos_MouseDown(Qt::MouseButton button, const QPoint& globalPos);
    void ListDokSarasas_OLEDragDrop(const QStringList& paths);

protected:
    QToolBar* coolBar() const { return m_coolBar; }

private:
    void buildWindow();
    void buildMenus();
    void buildToolbar();
    void buildPopups();
    QAction* addCommand(QMenu* menu, const QString& name, const QString& caption, void (Form2::*slot)(),
        const QKeySequence& shortcut = {}, const QString& dialog = {});
    void setView(int view);
    void switchView(bool categories);
    void sortColumn(ExplorerList* list, int column);
    void setCommandEnabled(const QString& name, bool enabled);
    void setToolbarEnabled(std::initializer_list<int> positions, bool enabled);
    void openDialog(const QString& name, const QString& droppedFile = {});
    void reloadAfterDelete();
    int direction() const;
    void dateChanged(const QString& message);
    // Runs one list fill, reporting a failure (but not during the load).
    void runFill(const std::function<void()>& fill);
    void reportConnectionError(long number, const QString& description);
    void showRelatedList(bool visible);

    SelectionState& m_state;
    QToolBar* m_coolBar = nullptr;
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
    std::unique_ptr<DocumentFills> m_fills;
    bool m_loading = false;
    QHash<QString, QAction*> m_actions;
    // The dialog each command opens, for the commands that open one.
    QHash<QAction*, QString> m_actionDialogs;
    QHash<QString, DialogOpener> m_dialogs;
    QList<QAction*> m_toolbar; // positions 1 to 18
    QMenu* m_popUp = nullptr;
    QMenu* m_popCat = nullptr;
    std::array<CSplitter*, 2> m_splitters = {};
};

} // namespace kartella
