#include "store/engine/Recordset.h"

#include "store/engine/Connection.h"
#include "store/engine/EngineErrors.h"
#include "store/engine/RecordsetData.h"
#include "store/engine/ShapeCommand.h"

namespace kartella {

using namespace engine;

// --- RecordsetData: reading and the view ---

void RecordsetData::requireOpen() const
{
    if (!open)
        throwError(
            EngineError::ObjectClosed, QStringLiteral("Operation is not allowed when the object is closed."));
}

int RecordsetData::requireCurrent() const
{
    requireOpen();
    const int row = currentRow();
    if (row < 0 || isRemoved(row))
        throwError(ErrorNumber::NoCurrentRecord,
            QStringLiteral("Either BOF or EOF is True, or the current record has been deleted. Requested "
                           "operation requires a current record."));
    return row;
}

int RecordsetData::fieldIndex(const QString& name) const
{
    for (const NameCacheEntry& entry : nameCache) {
        if (entry.index >= 0 && entry.name.constData() == name.constData()
            && entry.name.size() == name.size())
            return entry.index;
    }
    for (std::size_t i = 0; i < fields.size(); ++i) {
        if (fields[i].name.compare(name, Qt::CaseInsensitive) == 0) {
            nameCache[nameCacheNext] = NameCacheEntry {name, int(i)};
            nameCacheNext = (nameCacheNext + 1) % nameCache.size();
            return int(i);
        }
    }
    return -1;
}

int RecordsetData::requireField(const QString& name) const
{
    requireOpen();
    const int index = fieldIndex(name);
    if (index < 0)
        throwError(ErrorNumber::ItemNotFound,
            QStringLiteral("Item cannot be found in the collection corresponding to the requested name or "
                           "ordinal: '")
                + name + u'\'');
    return index;
}

void RecordsetData::requireFieldIndex(int index) const
{
    requireOpen();
    if (index < 0 || index >= int(fields.size()))
        throwError(ErrorNumber::ItemNotFound,
            QStringLiteral("Item cannot be found in the collection corresponding to the requested name or "
                           "ordinal: ")
                + QString::number(index));
}

QVariant RecordsetData::underlying(int row, int column) const
{
    const RowState& state = rows[std::size_t(row)];
    if (state.saved)
        return (*state.saved)[std::size_t(column)];
    if (state.base < 0)
        return {};
    return result.rows.value(state.base, column);
}

Values RecordsetData::rowValues(int row) const
{
    Values values(static_cast<std::size_t>(storeColumns()));
    for (int c = 0; c < storeColumns(); ++c)
        values[std::size_t(c)] = value(row, c);
    return values;
}

void RecordsetData::reset()
{
    open = false;
    fields.clear();
    dataFields = 0;
    result = QueryResult();
    // Assigned, not cleared: a closed recordset gives back the memory of its rows too.
    rows = std::vector<engine::RowState>();
    updatable = false;
    notUpdatableReason.clear();
    schema = TableSchema();
    keyColumn = -1;
    keyName.clear();
    columnKinds.clear();
    visible.clear();
    pos = -1;
    filterText.clear();
    filterGroup = FilterGroupEnum::None;
    restriction.clear();
    filter.reset();
    edit.reset();
    nameCache.fill(NameCacheEntry {});
    for (ChapterInfo& chapter : chapters)
        chapter.recordset->close();
}

void RecordsetData::load(QueryResult&& query)
{
    result = std::move(query);
    ++generation;
    nameCache.fill(NameCacheEntry {});
    fields.clear();
    dataFields = result.visibleColumns;
    for (int c = 0; c < dataFields; ++c)
        fields.push_back(FieldInfo {result.columns[std::size_t(c)].name, -1});
    relationIndexValid = false;
    rows.clear();
    rows.resize(std::size_t(result.rows.rowCount()));
    for (std::size_t r = 0; r < rows.size(); ++r)
        rows[r].base = int(r);
    edit.reset();

    // Rows are updatable when every column comes from one table whose key was read. Only
    // a read-only lock refuses changes; an unspecified one edits as an optimistic one.
    updatable = false;
    columnKinds.assign(std::size_t(storeColumns()), ValueKind::Null);
    keyColumn = result.keyColumn;
    keyName = result.keyName;
    if (lockType == LockTypeEnum::ReadOnly) {
        notUpdatableReason = QStringLiteral("it was opened read-only");
        return;
    }
    if (keyColumn < 0 || result.columns.empty()) {
        notUpdatableReason = QStringLiteral("its rows come from more than one table or from expressions");
        return;
    }
    schema = connection->backend().tableSchema(result.columns.front().table);
    for (int c = 0; c < storeColumns(); ++c) {
        const ColumnInfo& column = result.columns[std::size_t(c)];
        const TableColumn* tableColumn = schema.column(column.origin);
        columnKinds[std::size_t(c)] = tableColumn ? tableColumn->declared : column.declared;
    }
    updatable = true;
    notUpdatableReason.clear();
}

void RecordsetData::runQuery()
{
    load(connection->backend().query(restrictedSelect(source, restriction)));
}

void RecordsetData::parseFilter(const QString& criteria)
{
    if (criteria.trimmed().isEmpty()) {
        filter.reset();
        filterText.clear();
        return;
    }
    filter = Criteria::parse(criteria, [this](const QString& name) {
        const int index = fieldIndex(name);
        return index < dataFields ? index : -1;
    });
    filterText = criteria;
}

bool RecordsetData::passesFilter(int row) const
{
    if (filterGroup == FilterGroupEnum::PendingRecords) {
        const RowStatus status = rows[std::size_t(row)].status;
        return status == RowStatus::New || status == RowStatus::Modified;
    }
    if (!filter)
        return true;
    return filter->matches([this, row](int field) { return value(row, field); });
}

bool RecordsetData::belongs(int row) const
{
    if (isRemoved(row))
        return false;
    if (parent && !belongsToParent(row))
        return false;
    return passesFilter(row);
}

void RecordsetData::rebuildView(int keepRow)
{
    visible.clear();
    int keepAt = -1;
    auto consider = [&](int r) {
        if (!belongs(r))
            return;
        if (r == keepRow)
            keepAt = int(visible.size());
        visible.push_back(r);
    };
    if (parent) {
        for (const int r : chapterCandidates())
            consider(r);
    } else {
        for (int r = 0; r < int(rows.size()); ++r)
            consider(r);
    }
    pos = keepAt >= 0 ? keepAt : 0;
}

void RecordsetData::commitEdits()
{
    if (edit)
        commitEdit();
    for (ChapterInfo& chapter : chapters) {
        RecordsetData& child = of(*chapter.recordset);
        if (child.open)
            child.commitEdits();
    }
}

bool RecordsetData::dropRemovedCurrent()
{
    const int row = currentRow();
    if (row < 0 || !isRemoved(row))
        return false;
    visible.erase(visible.begin() + pos);
    return true;
}

void RecordsetData::moveTo(int position)
{
    pos = std::clamp(position, -1, int(visible.size()));
    notifyMoved();
}

void RecordsetData::notifyMoved()
{
    syncChapters();
    Q_EMIT q->moveComplete();
}

void RecordsetData::syncChapters()
{
    for (ChapterInfo& chapter : chapters) {
        RecordsetData* child = chapter.recordset->d.get();
        if (!child->open)
            continue;
        // Moves commit the chapters' edits before they move; one left here stays pending.
        if (child->edit)
            child->commitEdit(false);
        child->rebuildView(-1);
        Q_EMIT chapter.recordset->recordsetChangeComplete();
        child->notifyMoved();
    }
}

// --- Field ---

QString Field::name() const
{
    m_recordset->d->requireFieldIndex(m_index);
    return m_recordset->d->fields[std::size_t(m_index)].name;
}

QVariant Field::value() const
{
    RecordsetData& d = *m_recordset->d;
    d.requireFieldIndex(m_index);
    const int chapter = d.fields[std::size_t(m_index)].chapter;
    if (chapter >= 0)
        return QVariant::fromValue(d.chapters[std::size_t(chapter)].recordset.get());
    return d.value(d.requireCurrent(), m_index);
}

QVariant Field::underlyingValue() const
{
    RecordsetData& d = *m_recordset->d;
    d.requireFieldIndex(m_index);
    if (d.fields[std::size_t(m_index)].chapter >= 0)
        return value();
    return d.underlying(d.requireCurrent(), m_index);
}

void Field::setValue(const QVariant& value)
{
    m_recordset->d->setValue(m_index, value);
}

bool Field::isChapter() const
{
    const RecordsetData& d = *m_recordset->d;
    return m_index >= 0 && m_index < int(d.fields.size()) && d.fields[std::size_t(m_index)].chapter >= 0;
}

Recordset* Field::chapter() const
{
    if (!isChapter())
        return nullptr;
    const RecordsetData& d = *m_recordset->d;
    return d.chapters[std::size_t(d.fields[std::size_t(m_index)].chapter)].recordset.get();
}

// --- Recordset ---

Recordset::Recordset(QObject* parent)
    : QObject(parent)
    , d(std::make_unique<RecordsetData>(this))
{ }

Recordset::~Recordset() = default;

void Recordset::open(const QString& source, Connection& connection, int cursorType, int lockType, int options)
{
    Q_UNUSED(cursorType);
    Q_UNUSED(options);
    if (d->open)
        throwError(
            EngineError::ObjectOpen, QStringLiteral("Operation is not allowed when the object is open."));
    connection.backend();
    d->connection = &connection;
    d->source = source;
    d->lockType = lockType;
    d->chapters.clear();
    // A key filter set before opening is read through the select itself: only its rows
    // come from the database.
    const QString presetFilter = d->filterText;
    // Rows to be added need none of those stored.
    d->restriction = d->filterGroup == FilterGroupEnum::PendingRecords ? QStringLiteral("1=0")
                                                                       : keyRestriction(presetFilter);
    try {
        if (isShapeCommand(source))
            d->openShape(source);
        else
            d->runQuery();
        d->parseFilter(presetFilter);
    } catch (...) {
        d->reset();
        d->chapters.clear();
        throw;
    }
    d->open = true;
    d->rebuildView(-1);
    Q_EMIT recordsetChangeComplete();
    d->notifyMoved();
}

void Recordset::open(const QString& source, const QString& connectionString, int cursorType, int lockType)
{
    if (d->open)
        throwError(
            EngineError::ObjectOpen, QStringLiteral("Operation is not allowed when the object is open."));
    auto connection = std::make_unique<Connection>();
    connection->open(connectionString);
    open(source, *connection, cursorType, lockType);
    d->ownConnection = std::move(connection);
}

void Recordset::close()
{
    d->reset();
    d->ownConnection.reset();
}

bool Recordset::isOpen() const
{
    return d->open;
}

QString Recordset::source() const
{
    return d->source;
}

int Recordset::lockType() const
{
    return d->lockType;
}

bool Recordset::eof() const
{
    return !d->open || d->visible.empty() || d->pos >= int(d->visible.size());
}

bool Recordset::bof() const
{
    return !d->open || d->visible.empty() || d->pos < 0;
}

int Recordset::recordCount() const
{
    if (!d->open)
        return 0;
    const int row = d->currentRow();
    return int(d->visible.size()) - (row >= 0 && d->isRemoved(row) ? 1 : 0);
}

namespace {

// Commits an edit and drops a deleted current row: the common start of every move.
bool startMove(RecordsetData& d)
{
    d.requireOpen();
    d.commitEdits();
    return d.dropRemovedCurrent();
}

[[noreturn]] void noCurrentRecord()
{
    throwError(ErrorNumber::NoCurrentRecord,
        QStringLiteral("Either BOF or EOF is True, or the current record has been deleted. Requested "
                       "operation requires a current record."));
}

} // namespace

void Recordset::moveFirst()
{
    startMove(*d);
    d->moveTo(0);
}

void Recordset::moveLast()
{
    startMove(*d);
    d->moveTo(d->visible.empty() ? 0 : int(d->visible.size()) - 1);
}

void Recordset::moveNext()
{
    d->requireOpen();
    if (eof())
        noCurrentRecord();
    const bool dropped = startMove(*d);
    d->moveTo(dropped ? d->pos : d->pos + 1);
}

void Recordset::movePrevious()
{
    d->requireOpen();
    if (bof())
        noCurrentRecord();
    startMove(*d);
    d->moveTo(d->pos - 1);
}

void Recordset::move(int rows)
{
    d->requireOpen();
    if ((rows > 0 && eof()) || (rows < 0 && bof()))
        noCurrentRecord();
    const bool dropped = startMove(*d);
    d->moveTo(d->pos + rows - (dropped && rows > 0 ? 1 : 0));
}

int Recordset::absolutePosition() const
{
    if (!d->open || d->visible.empty())
        return PositionEnum::Unknown;
    if (d->pos < 0)
        return PositionEnum::BOF;
    if (d->pos >= int(d->visible.size()))
        return PositionEnum::EOF_;
    return d->pos + 1;
}

void Recordset::setAbsolutePosition(int position)
{
    d->requireOpen();
    if (position < 1 || position > recordCount())
        throwError(EngineError::InvalidArgument,
            QStringLiteral("There is no record at position ") + QString::number(position) + u'.');
    startMove(*d);
    d->moveTo(position - 1);
}

QVariant Recordset::bookmark() const
{
    const int row = d->requireCurrent();
    return QVariant(qint64(d->generation) << 32 | qint64(row));
}

void Recordset::setBookmark(const QVariant& bookmark)
{
    d->requireOpen();
    bool ok = false;
    const qint64 token = bookmark.toLongLong(&ok);
    const int row = int(token & 0xFFFFFFFF);
    if (!ok || quint32(token >> 32) != d->generation || row < 0 || row >= int(d->rows.size()))
        throwError(
            EngineError::InvalidArgument, QStringLiteral("The bookmark is not valid for this recordset."));
    if (d->isRemoved(row) || std::find(d->visible.begin(), d->visible.end(), row) == d->visible.end())
        throwError(EngineError::InvalidArgument,
            QStringLiteral("The bookmarked record is deleted or hidden by the filter."));
    startMove(*d);
    d->moveTo(int(std::find(d->visible.begin(), d->visible.end(), row) - d->visible.begin()));
}

QString Recordset::filter() const
{
    return d->filterText;
}

void Recordset::setFilter(const QString& criteria)
{
    d->filterGroup = FilterGroupEnum::None;
    if (!d->open) {
        // Kept for the opening, which reads only the rows of a key filter. A closed recordset
        // holds no read filter to drop.
        d->filterText = criteria;
        return;
    }
    d->commitEdits();
    if (!d->restriction.isEmpty() && keyRestriction(criteria) != d->restriction && !hasPendingChanges()) {
        // Rows beyond those read at the opening are wanted now.
        d->restriction.clear();
        d->filterText = criteria;
        requery();
        return;
    }
    d->parseFilter(criteria);
    d->rebuildView(-1);
    Q_EMIT recordsetChangeComplete();
    d->notifyMoved();
}

void Recordset::setFilterGroup(int group)
{
    d->filterText.clear();
    d->filter.reset();
    d->filterGroup = group;
    if (!d->open)
        return;
    d->commitEdits();
    if (group == FilterGroupEnum::None && !d->restriction.isEmpty() && !hasPendingChanges()) {
        d->restriction.clear();
        requery();
        return;
    }
    d->rebuildView(-1);
    Q_EMIT recordsetChangeComplete();
    d->notifyMoved();
}

int Recordset::filterGroup() const
{
    return d->filterGroup;
}

int Recordset::fieldCount() const
{
    return int(d->fields.size());
}

QStringList Recordset::fieldNames() const
{
    QStringList names;
    for (const FieldInfo& field : d->fields)
        names << field.name;
    return names;
}

Field Recordset::fields(const QString& name)
{
    return Field(this, d->requireField(name));
}

Field Recordset::fields(int index)
{
    d->requireFieldIndex(index);
    return Field(this, index);
}

bool Recordset::hasField(const QString& name) const
{
    return d->fieldIndex(name) >= 0;
}

QVariant Recordset::collect(const QString& name) const
{
    return Field(const_cast<Recordset*>(this), d->requireField(name)).value();
}

void Recordset::requery(int options)
{
    d->requireOpen();
    if (d->parent && RecordsetData::of(*d->parent).chapters[std::size_t(d->parentChapter)].grouped) {
        // The rows of a COMPUTE chapter are grouped by the parent.
        d->parent->requery(options);
        return;
    }
    d->edit.reset();
    if (d->parent) {
        d->runQuery();
    } else if (isShapeCommand(d->source)) {
        d->openShape(d->source);
    } else {
        d->runQuery();
    }
    d->parseFilter(d->filterText);
    d->rebuildView(-1);
    Q_EMIT recordsetChangeComplete();
    d->notifyMoved();
}

Recordset* Recordset::chapter(const QString& name)
{
    for (const ChapterInfo& chapter : d->chapters) {
        if (chapter.name.compare(name, Qt::CaseInsensitive) == 0)
            return chapter.recordset.get();
    }
    return nullptr;
}

QVariant Recordset::rowValue(int row, int column) const
{
    if (!d->open || row < 0 || row >= int(d->visible.size()) || column < 0 || column >= d->dataFields)
        return {};
    return d->value(d->visible[std::size_t(row)], column);
}

int Recordset::currentRow() const
{
    return d->currentRow() >= 0 ? d->pos : -1;
}

} // namespace kartella
