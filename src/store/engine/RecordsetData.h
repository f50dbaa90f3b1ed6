#pragma once

#include "store/engine/Backend.h"
#include "store/engine/Connection.h"
#include "store/engine/Criteria.h"
#include "store/engine/Recordset.h"

#include <QHash>
#include <QString>
#include <QVariant>

#include <array>
#include <memory>
#include <optional>
#include <vector>

namespace kartella {

namespace engine {

enum class RowStatus : std::uint8_t {
    Unchanged,
    Modified, // changes wait for updateBatch
    New, // added; not in the database yet
    Deleted, // deletion waits for updateBatch
    Gone, // deleted in the database, or an added row dropped
};

using Values = std::vector<QVariant>;

// Whether two field values are the same, across the types a value may come in.
bool sameFieldValue(const QVariant& a, const QVariant& b);

struct RowState
{
    int base = -1; // row in the RowStore; -1 for a row added here
    RowStatus status = RowStatus::Unchanged;
    int parentRow = -1; // a chapter row added under this row of the parent
    int group = -1; // a COMPUTE chapter row: the parent row of its group
    std::unique_ptr<Values> saved; // what the database holds, when it differs from base
    std::unique_ptr<Values> pending; // values with changes not yet written
};

// The row being edited: its values until update().
struct EditBuffer
{
    int row = -1;
    Values values;
    bool adding = false;
    int rowBefore = -1; // the current row before addNew
};

struct FieldInfo
{
    QString name;
    int chapter = -1; // index into chapters for a chapter field
};

// A SHAPE chapter: the child recordset and how its rows belong to a parent row.
struct ChapterInfo
{
    QString name;
    std::unique_ptr<Recordset> recordset;
    // Pairs of parent and child field index: APPEND ... RELATE parent TO child.
    std::vector<std::pair<int, int>> relation;
    bool grouped = false; // COMPUTE: rows belong to their group
};

} // namespace engine

struct RecordsetData
{
    explicit RecordsetData(Recordset* owner)
        : q(owner)
    { }

    // The data of another recordset: a chapter's or a parent's.
    static RecordsetData& of(const Recordset& recordset) { return *recordset.d; }

    Recordset* q;
    Connection* connection = nullptr;
    std::unique_ptr<Connection> ownConnection;
    QString source;
    int lockType = LockTypeEnum::Unspecified;
    bool open = false;
    quint32 generation = 0;

    // Columns: the data fields, then the chapter fields. The store has the data fields,
    // then the hidden key if the query added one.
    std::vector<engine::FieldInfo> fields;
    int dataFields = 0;
    engine::QueryResult result;
    std::vector<engine::RowState> rows;

    // Writing: the one table of the rows, its key's column and the name that selects it.
    bool updatable = false;
    QString notUpdatableReason;
    engine::TableSchema schema;
    int keyColumn = -1;
    QString keyName;
    std::vector<engine::ValueKind> columnKinds; // declared kind of each store column's table column

    // The rows that pass the filter (and, in a chapter, belong to the parent's row), and the
    // current one: -1 at BOF, visible.size() at EOF.
    std::vector<int> visible;
    int pos = -1;
    QString filterText;
    int filterGroup = 0; // a FilterGroupEnum
    // A condition put into the WHERE of the source's select, so that only the rows a key
    // filter set before opening (or a small parent's keys) ask for are read.
    QString restriction;
    std::unique_ptr<engine::Criteria> filter;
    std::optional<engine::EditBuffer> edit;
    // Recordset::setBatchWork.
    std::function<void(Connection&)> beforeBatch;
    std::function<void(Connection&)> afterBatch;

    std::vector<engine::ChapterInfo> chapters;
    Recordset* parent = nullptr; // the parent of a chapter
    int parentChapter = -1; // its index among the parent's chapters
    // A chapter's rows by the parent row they belong to: by the values they relate on, their
    // group, or the parent row they were added under. Built when first needed.
    mutable QHash<QString, std::vector<int>> relationIndex;
    mutable bool relationIndexValid = false;

    // Recently looked-up field names; a copy shares the text, so equal data pointers mean
    // equal names.
    struct NameCacheEntry
    {
        QString name;
        int index = -1;
    };
    mutable std::array<NameCacheEntry, 16> nameCache;
    mutable std::size_t nameCacheNext = 0;

    // --- Reading (Recordset.cpp) ---
    bool isBatch() const { return lockType == LockTypeEnum::BatchOptimistic; }
    int storeColumns() const { return result.rows.columnCount(); }
    int currentRow() const { return pos >= 0 && pos < int(visible.size()) ? visible[std::size_t(pos)] : -1; }
    QVariant value(int row, int column) const
    {
        if (edit && edit->row == row)
            return edit->values[std::size_t(column)];
        const engine::RowState& state = rows[std::size_t(row)];
        if (state.pending)
            return (*state.pending)[std::size_t(column)];
        if (state.saved)
            return (*state.saved)[std::size_t(column)];
        if (state.base < 0)
            return {};
        return result.rows.value(state.base, column);
    }
    QVariant underlying(int row, int column) const;
    engine::Values rowValues(int row) const;
    bool isRemoved(int row) const
    {
        const engine::RowStatus status = rows[std::size_t(row)].status;
        return status == engine::RowStatus::Deleted || status == engine::RowStatus::Gone;
    }

    void requireOpen() const;
    // The current row, or error 3021 at BOF/EOF or on a deleted row.
    int requireCurrent() const;
    int fieldIndex(const QString& name) const; // -1 when unknown
    int requireField(const QString& name) const;
    void requireFieldIndex(int index) const;

    void load(engine::QueryResult&& query);
    void reset();
    void runQuery();
    void parseFilter(const QString& criteria);
    // Whether a row belongs in the view: not removed, of the parent's row, passing the filter.
    bool belongs(int row) const;
    bool passesFilter(int row) const;
    // Rebuilds the view; keepRow stays current if it is still visible, else the first row.
    void rebuildView(int keepRow);
    // Commits the edits of this recordset and of its chapters, as a move does first.
    void commitEdits();
    // Makes position current, commits an edit first, and tells listeners and chapters.
    void moveTo(int position);
    // Drops a deleted current row from the view before a move; true when one was dropped.
    bool dropRemovedCurrent();
    void notifyMoved();
    void syncChapters();

    // --- Editing (RecordsetEdit.cpp) ---
    void requireUpdatable() const;
    void setValue(int field, const QVariant& value);
    // Ends an edit: the row's changes become pending, and are written when write is set,
    // the lock isn't batch and the row's parent row (in a chapter) is in the database.
    void commitEdit(bool write = true);
    bool hasPending() const;
    bool parentRowWritten(int row) const;
    bool rowPending(int row) const;
    void cancelPending(int row);

    // --- Writing (RecordsetWriter.cpp) ---
    // Writes the given pending rows and their chapters' pending rows in one transaction;
    // allChildren takes every pending chapter row, else only those of the given rows.
    void writeRows(const std::vector<int>& rowList, bool allChildren);

    // --- Reading again (RecordsetResync.cpp) ---
    // Reads row again from the database; keepChanges as ResyncEnum::UnderlyingValues.
    void resyncRow(int row, bool keepChanges);

    // --- SHAPE (RecordsetShape.cpp) ---
    void openShape(const QString& text);
    // Whether a chapter row belongs to the parent's current row.
    bool belongsToParent(int row) const;
    // The chapter rows that may belong to the parent's current row, in row order.
    std::vector<int> chapterCandidates() const;
    // Values of the parent's current row that a new chapter row takes.
    void fillFromParent(engine::Values& values, int& parentRow, int& group) const;
};

} // namespace kartella
