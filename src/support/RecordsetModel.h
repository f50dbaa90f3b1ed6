#pragma once

#include "store/engine/Recordset.h"

#include <QAbstractTableModel>
#include <QHash>
#include <QPointer>
#include <QStringList>
#include <QTableView>

namespace kartella {

// The rows of a Recordset (a SHAPE chapter too) as a table for a QTableView grid: one
// column per field, by position, with captions, widths and hidden columns set by position.
// Cells of an updatable recordset can be edited: a typed value goes into the field of that
// row (the recordset moves there) and update keeps it; with allowAddNew a new-row line
// follows the rows, and typing in it starts a row with addNew, the way a data grid adds
// rows. A refused value is told in a message box and leaves the row as it was.
//
// The model follows the recordset: rows added, deleted, requeried or replaced (a chapter
// whose parent moved) and fields set by code show at once. Rows written back, or changed
// without a change of their number, keep the view's current cell and its open editor.
//
//     auto* model = new RecordsetModel(this);
//     model->setRecordset(shaped->chapter("ChildCMD"));
//     model->setAllowAddNew(true);
//     model->attachView(grdTickler);
//     model->setColumnHidden(0, true);
//     model->setColumnCaption(1, "Date");
//     model->setColumnWidth(1, 1000);
class RecordsetModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    explicit RecordsetModel(QObject* parent = nullptr);

    // Shows recordset (not owned); null shows nothing.
    void setRecordset(Recordset* recordset);
    Recordset* recordset() const { return m_recordset; }

    // Column settings by zero-based position; they last across changes of the rows.
    void setColumnCaption(int column, const QString& caption);
    // Width in twips (1440 an inch).
    void setColumnWidth(int column, int twips);
    void setColumnHidden(int column, bool hidden);
    bool isColumnHidden(int column) const { return m_hidden.value(column, false); }
    // How date values show and are offered for editing; the system's short date form by
    // default.
    void setDateFormat(const QString& format) { m_dateFormat = format; }
    // What a row is, as a user would call it ("phone", "web page"): a cell written over a
    // row another user changed asks "This <rowName> was changed by another user ...".
    void setRowName(const QString& rowName) { m_rowName = rowName; }

    // Whether the last line adds rows.
    void setAllowAddNew(bool allow);
    bool allowAddNew() const { return m_allowAddNew; }
    bool isNewRowLine(int row) const;

    // Makes view show this model with its column settings, and keeps the view's current row
    // and the recordset's current row together.
    void attachView(QTableView* view);
    QTableView* view() const { return m_view; }

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role = Qt::EditRole) override;

    // Pixels of a width in twips on widget's screen.
    static int twipsToPixels(int twips, const QWidget* widget);

Q_SIGNALS:
    // A cell was edited and its value taken (a new row included).
    void edited();

private:
    int dataRows() const;
    void reload();
    void onFieldChanged(const QString& name);
    void onMoved();
    void onViewCurrentChanged(const QModelIndex& current);
    void applyColumns();
    bool addRow(int column, const QVariant& value);
    bool setCell(int row, int column, const QVariant& value);
    // The choice of Reload, Keep Mine or Cancel for a cell of row written over another
    // user's change; true when the typed value was stored.
    bool resolveChangedCell(int row);
    QString displayText(const QVariant& value) const;

    QPointer<Recordset> m_recordset;
    QPointer<QTableView> m_view;
    QStringList m_fields;
    QHash<int, QString> m_captions;
    QString m_rowName = QStringLiteral("row");
    QHash<int, int> m_widths;
    QHash<int, bool> m_hidden;
    QString m_dateFormat;
    bool m_allowAddNew = false;
    bool m_self = false; // the model itself is changing the recordset
    bool m_syncing = false; // the current rows of view and recordset are being matched
    int m_shownRows = 0; // the rows the views know of
};

} // namespace kartella
