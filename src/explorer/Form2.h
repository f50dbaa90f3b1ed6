#pragma once

#include <QMainWindow>

#include <functional>

class QComboBox;
class QDateEdit;
class QLabel;
class QSplitter;
class QToolBar;
class QTreeWidgetItem;

namespace kartella {

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
    virtual void UpdateCommandState();
    virtual void DisableDocumentCommands();

protected:
    QToolBar* coolBar() const { return m_coolBar; }

private:
    void buildWindow();
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
};

} // namespace kartella
