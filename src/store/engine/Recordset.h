#pragma once

#include "store/engine/Constants.h"
#include "store/engine/Value.h"

#include <QObject>
#include <QString>
#include <QStringList>

#include <memory>

namespace kartella {

class Connection;
class Recordset;
struct RecordsetData;

// One column of a recordset's current row.
class Field
{
public:
    Field(Recordset* recordset, int index)
        : m_recordset(recordset)
        , m_index(index)
    { }

    QString Name() const;
    int Index() const { return m_index; }
    // The value of the current row, pending edits included.
    QVariant Value() const;
    void SetValue(const QVariant& value);
    // The value as the database holds it, before pending edits.
    QVariant UnderlyingValue() const;
    // True for the chapter field of a SHAPE command.
    bool IsChapter() const;
    // The child rows of the current row, for a chapter field; null otherwise.
    Recordset* Chapter() const;

private:
    Recordset* m_recordset;
    int m_index;
};

// A client-side static cursor over all rows of a SELECT or SHAPE command, as the
// program's windows and routines use it.
//
// Rows of a single-table SELECT are updatable: AddNew/Update/UpdateBatch/Delete write
// INSERT, UPDATE and DELETE statements with bound parameters, and a new row reads its
// generated key back. With LockTypeEnum::BatchOptimistic every change stays pending
// until UpdateBatch; otherwise Update and Delete write at once. A recordset closed or
// destroyed with changes pending writes nothing.
//
// SHAPE ... APPEND gives each parent row a chapter field holding the child rows of its
// key; the chapter recordset follows the parent's current row, and a row added to it
// takes the parent's key through the relation (after the parent's own key exists, so a
// new parent is written first). SHAPE ... COMPUTE groups the rows of the inner select.
//
// Errors throw kartella::Error.
class Recordset : public QObject
{
    Q_OBJECT

public:
    explicit Recordset(QObject* parent = nullptr);
    ~Recordset() override;

    // Opens source (SQL in Jet's dialect, a table or view name, or a SHAPE command) on an
    // open connection. The recordset reads all rows at once; the connection is needed
    // again only to write changes and to requery.
    void Open(const QString& source, Connection& connection, int cursorType = CursorTypeEnum::Static,
        int lockType = LockTypeEnum::Unspecified, int options = -1);
    // Opens on a connection of its own made from connectionString, kept until Close (the
    // way a data control works).
    void Open(const QString& source, const QString& connectionString, int cursorType = CursorTypeEnum::Static,
        int lockType = LockTypeEnum::Optimistic);
    void Close();
    bool IsOpen() const;
    QString Source() const;
    int LockType() const;

    // Navigation over the rows that pass the filter.
    bool Eof() const;
    bool Bof() const;
    int RecordCount() const;
    void MoveFirst();
    void MoveLast();
    void MoveNext();
    void MovePrevious();
    void Move(int rows);
    // 1-based position of the current row, or a PositionEnum value.
    int AbsolutePosition() const;
    void SetAbsolutePosition(int position);
    // An opaque token for the current row, valid while the recordset is open.
    QVariant Bookmark() const;
    void SetBookmark(const QVariant& bookmark);

    // A criteria text such as "RastasID=5" or "FullName Like 'A%' AND KategID<>3";
    // empty text shows all rows again. The first passing row becomes current.
    QString Filter() const;
    void SetFilter(const QString& criteria);

    int FieldCount() const;
    QStringList FieldNames() const;
    // Field by name, compared without regard to case; throws ErrorNumber::ItemNotFound.
    Field Fields(const QString& name);
    Field Fields(int index);
    bool HasField(const QString& name) const;
    // The value of a field of the current row.
    QVariant Collect(const QString& name) const;

    // Editing. AddNew starts a new row (made current, all fields Null) that Update keeps.
    void AddNew();
    void Update();
    void CancelUpdate();
    void UpdateBatch(int affect = AffectEnum::All);
    void CancelBatch();
    void Delete(int affect = AffectEnum::Current);
    int EditMode() const;
    bool IsUpdatable() const;
    // Whether any change waits for UpdateBatch.
    bool HasPendingChanges() const;

    // Runs the source again; the first row becomes current.
    void Requery(int options = -1);

    // The chapter field's recordset by name (a SHAPE command's child); null when none.
    Recordset* Chapter(const QString& name);

    // Value of column `column` of visible row `row` (0-based), for views that show all rows.
    QVariant RowValue(int row, int column) const;
    // 0-based index among the visible rows of the current row, -1 when at BOF or EOF.
    int CurrentRow() const;

Q_SIGNALS:
    // The current row changed: any move, AddNew, Requery, a new filter, a parent's move.
    void MoveComplete();
    // The rows changed: added, deleted, requeried, filtered, or written back.
    void RecordsetChangeComplete();
    // A field of the current row took a new value.
    void FieldChangeComplete(const QString& name);

private:
    friend class Field;
    friend struct RecordsetData;
    std::unique_ptr<RecordsetData> d;
};

} // namespace kartella
