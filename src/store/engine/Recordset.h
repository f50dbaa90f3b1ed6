#pragma once

#include "store/engine/Constants.h"
#include "store/engine/Value.h"

#include <QObject>
#include <QString>
#include <QStringList>

#include <functional>
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

    QString name() const;
    int index() const { return m_index; }
    // The value of the current row, pending edits included.
    QVariant value() const;
    void setValue(const QVariant& value);
    // The value as the database holds it, before pending edits.
    QVariant underlyingValue() const;
    // Whether the value differs from what the database holds: a change waiting to be written.
    bool isChanged() const;
    // True for the chapter field of a SHAPE command.
    bool isChapter() const;
    // The child rows of the current row, for a chapter field; null otherwise.
    Recordset* chapter() const;

private:
    Recordset* m_recordset;
    int m_index;
};

// A client-side static cursor over all rows of a SELECT or SHAPE command, as the
// program's windows and routines use it.
//
// Rows of a single-table SELECT are updatable: addNew/update/updateBatch/deleteRecord write
// INSERT, UPDATE and DELETE statements with bound parameters, and a new row reads its
// generated key back. With LockTypeEnum::BatchOptimistic every change stays pending
// until updateBatch; otherwise update and deleteRecord write at once. A recordset closed or
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
    void open(const QString& source, Connection& connection, int cursorType = CursorTypeEnum::Static,
        int lockType = LockTypeEnum::Unspecified, int options = -1);
    // Opens on a connection of its own made from connectionString, kept until Close (the
    // way a data control works).
    void open(const QString& source, const QString& connectionString, int cursorType = CursorTypeEnum::Static,
        int lockType = LockTypeEnum::Optimistic);
    void close();
    bool isOpen() const;
    QString source() const;
    int lockType() const;

    // Navigation over the rows that pass the filter.
    bool eof() const;
    bool bof() const;
    int recordCount() const;
    void moveFirst();
    void moveLast();
    void moveNext();
    void movePrevious();
    void move(int rows);
    // 1-based position of the current row, or a PositionEnum value.
    int absolutePosition() const;
    void setAbsolutePosition(int position);
    // An opaque token for the current row, valid while the recordset is open.
    QVariant bookmark() const;
    void setBookmark(const QVariant& bookmark);

    // A criteria text such as "RastasID=5" or "FullName Like 'A%' AND KategID<>3";
    // empty text shows all rows again. The first passing row becomes current.
    QString filter() const;
    void setFilter(const QString& criteria);
    // A FilterGroupEnum. PendingRecords set before opening reads no rows at all: the
    // recordset is there to add rows. A criteria filter replaces it, and None shows all.
    void setFilterGroup(int group);
    int filterGroup() const;

    int fieldCount() const;
    QStringList fieldNames() const;
    // Field by name, compared without regard to case; throws ErrorNumber::ItemNotFound.
    Field fields(const QString& name);
    Field fields(int index);
    bool hasField(const QString& name) const;
    // The value of a field of the current row.
    QVariant collect(const QString& name) const;

    // Editing. addNew starts a new row (made current, all fields Null) that update keeps.
    void addNew();
    void update();
    void cancelUpdate();
    void updateBatch(int affect = AffectEnum::All);
    void cancelBatch();
    // Work that updateBatch does in its transaction on the recordset's connection: before
    // runs once it has begun and before the first row is written (a check that throws
    // refuses the whole batch), after once every row is written, before the commit. Either
    // failing writes nothing and leaves every change pending. Empty functions do nothing.
    void setBatchWork(std::function<void(Connection&)> before, std::function<void(Connection&)> after);
    void deleteRecord(int affect = AffectEnum::Current);
    // Reads rows again from the database (AffectEnum::Current: the current row and the
    // chapter rows it shows; All: every row with a change waiting, those of the chapters too).
    // ResyncEnum::UnderlyingValues: what the database holds now is what the next write finds the row by;
    // fields with a change waiting keep their values, the others show the stored ones, so a write after it
    // stores the changes over another program's and keeps the rest of what that program stored.
    // ResyncEnum::AllValues: the changes waiting are dropped and the rows show what is stored.
    // Rows added here and rows no longer in the database stay as they are.
    void resync(int affect = AffectEnum::All, int resyncValues = ResyncEnum::AllValues);
    int editMode() const;
    bool isUpdatable() const;
    // Whether any change waits for updateBatch.
    bool hasPendingChanges() const;

    // Runs the source again; the first row becomes current.
    void requery(int options = -1);

    // The chapter field's recordset by name (a SHAPE command's child); null when none.
    Recordset* chapter(const QString& name);

    // Value of column `column` of visible row `row` (0-based), for views that show all rows.
    QVariant rowValue(int row, int column) const;
    // 0-based index among the visible rows of the current row, -1 when at BOF or EOF.
    int currentRow() const;

Q_SIGNALS:
    // The current row changed: any move, addNew, requery, a new filter, a parent's move.
    void moveComplete();
    // The rows changed: added, deleted, requeried, filtered, or written back.
    void recordsetChangeComplete();
    // A field of the current row took a new value.
    void fieldChangeComplete(const QString& name);

private:
    friend class Field;
    friend struct RecordsetData;
    std::unique_ptr<RecordsetData> d;
};

} // namespace kartella
