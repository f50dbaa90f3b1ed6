#include "store/engine/EngineErrors.h"
#include "store/engine/RecordsetData.h"
#include "store/engine/ValueConversion.h"

namespace kartella {

using namespace engine;

bool engine::sameFieldValue(const QVariant& a, const QVariant& b)
{
    const bool aNull = !a.isValid() || a.isNull();
    const bool bNull = !b.isValid() || b.isNull();
    if (aNull || bNull)
        return aNull == bNull;
    if (a.typeId() == b.typeId())
        return a == b;
    return compareValues(a, b) == 0 && a.toString() == b.toString();
}

void RecordsetData::requireUpdatable() const
{
    requireOpen();
    if (!updatable)
        throwError(EngineError::NotUpdatable,
            QStringLiteral("The recordset can't be changed: ") + notUpdatableReason
                + QStringLiteral(". Rows can be changed through a SELECT of one table."));
}

bool RecordsetData::rowPending(int row) const
{
    const RowState& state = rows[std::size_t(row)];
    switch (state.status) {
    case RowStatus::Modified:
    case RowStatus::Deleted:
        return true;
    case RowStatus::New:
        return state.pending != nullptr;
    default:
        return false;
    }
}

bool RecordsetData::hasPending() const
{
    if (edit)
        return true;
    for (int row = 0; row < int(rows.size()); ++row) {
        if (rowPending(row))
            return true;
    }
    for (const ChapterInfo& chapter : chapters) {
        if (chapter.recordset->d->open && chapter.recordset->d->hasPending())
            return true;
    }
    return false;
}

bool RecordsetData::parentRowWritten(int row) const
{
    const int parentRow = rows[std::size_t(row)].parentRow;
    return parent == nullptr || parentRow < 0
        || parent->d->rows[std::size_t(parentRow)].status != RowStatus::New;
}

void RecordsetData::setValue(int field, const QVariant& newValue)
{
    requireFieldIndex(field);
    if (fields[std::size_t(field)].chapter >= 0)
        throwError(EngineError::NotUpdatable,
            QStringLiteral("Field '") + fields[std::size_t(field)].name
                + QStringLiteral("' holds the child rows of a SHAPE command and can't be set."));
    requireUpdatable();
    const int row = requireCurrent();
    const QString& name = fields[std::size_t(field)].name;
    const QVariant converted = convertForColumn(newValue, columnKinds[std::size_t(field)], name);
    if (field == keyColumn && rows[std::size_t(row)].status != RowStatus::New
        && !sameFieldValue(converted, value(row, field)))
        throwError(EngineError::NotUpdatable,
            QStringLiteral("Field '") + name
                + QStringLiteral("' is the key of the row and can't be changed."));
    if (edit && edit->row != row)
        commitEdit(false);
    if (!edit)
        edit = EditBuffer {row, rowValues(row), false, -1};
    const QString& origin = result.columns[std::size_t(field)].origin;
    for (int c = 0; c < dataFields; ++c) {
        if (c == field || result.columns[std::size_t(c)].origin.compare(origin, Qt::CaseInsensitive) == 0)
            edit->values[std::size_t(c)] = converted;
    }
    Q_EMIT q->fieldChangeComplete(name);
}

void RecordsetData::commitEdit(bool write)
{
    if (!edit)
        return;
    const EditBuffer finished = std::move(*edit);
    edit.reset();
    RowState& state = rows[std::size_t(finished.row)];
    const RowStatus oldStatus = state.status;
    std::unique_ptr<Values> oldPending = state.pending ? std::make_unique<Values>(*state.pending) : nullptr;
    if (finished.adding) {
        state.status = RowStatus::New;
    } else {
        bool changed = false;
        for (int c = 0; c < storeColumns() && !changed; ++c)
            changed = !sameFieldValue(finished.values[std::size_t(c)], value(finished.row, c));
        if (!changed)
            return;
        if (state.status == RowStatus::Unchanged)
            state.status = RowStatus::Modified;
    }
    state.pending = std::make_unique<Values>(finished.values);
    relationIndexValid = false;
    if (!write || isBatch() || !parentRowWritten(finished.row))
        return;
    try {
        writeRows({finished.row}, false);
    } catch (...) {
        // The row stays in its edit, as it was before update().
        RowState& restored = rows[std::size_t(finished.row)];
        restored.status = oldStatus;
        restored.pending = std::move(oldPending);
        edit = finished;
        throw;
    }
}

void RecordsetData::cancelPending(int row)
{
    RowState& state = rows[std::size_t(row)];
    switch (state.status) {
    case RowStatus::New:
        state.status = RowStatus::Gone;
        break;
    case RowStatus::Modified:
    case RowStatus::Deleted:
        state.status = RowStatus::Unchanged;
        break;
    default:
        break;
    }
    if (state.status != RowStatus::Gone)
        state.pending.reset();
    relationIndexValid = false;
}

// --- Recordset ---

void Recordset::addNew()
{
    d->requireUpdatable();
    d->commitEdits();
    d->dropRemovedCurrent();
    Values values(std::size_t(d->storeColumns()));
    RowState state;
    state.status = RowStatus::New;
    if (d->parent)
        d->fillFromParent(values, state.parentRow, state.group);
    const int before = d->currentRow();
    d->rows.push_back(std::move(state));
    d->relationIndexValid = false;
    const int row = int(d->rows.size()) - 1;
    d->edit = EditBuffer {row, std::move(values), true, before};
    d->visible.push_back(row);
    d->pos = int(d->visible.size()) - 1;
    Q_EMIT recordsetChangeComplete();
    d->notifyMoved();
}

void Recordset::update()
{
    d->requireOpen();
    if (!d->edit)
        return;
    d->commitEdit();
    Q_EMIT recordsetChangeComplete();
}

void Recordset::cancelUpdate()
{
    d->requireOpen();
    if (!d->edit)
        return;
    const EditBuffer cancelled = std::move(*d->edit);
    d->edit.reset();
    if (!cancelled.adding) {
        for (int c = 0; c < d->dataFields; ++c) {
            if (!sameFieldValue(cancelled.values[std::size_t(c)], d->value(cancelled.row, c)))
                Q_EMIT fieldChangeComplete(d->fields[std::size_t(c)].name);
        }
        return;
    }
    d->rows[std::size_t(cancelled.row)].status = RowStatus::Gone;
    d->visible.erase(std::remove(d->visible.begin(), d->visible.end(), cancelled.row), d->visible.end());
    const auto before = std::find(d->visible.begin(), d->visible.end(), cancelled.rowBefore);
    d->pos = before != d->visible.end() ? int(before - d->visible.begin()) : 0;
    Q_EMIT recordsetChangeComplete();
    d->notifyMoved();
}

void Recordset::updateBatch(int affect)
{
    d->requireOpen();
    if (d->edit)
        d->commitEdit();
    std::vector<int> rowList;
    if (affect == AffectEnum::Current) {
        if (d->currentRow() >= 0)
            rowList.push_back(d->currentRow());
    } else {
        rowList.resize(d->rows.size());
        for (std::size_t r = 0; r < rowList.size(); ++r)
            rowList[r] = int(r);
    }
    d->writeRows(rowList, affect != AffectEnum::Current);
    Q_EMIT recordsetChangeComplete();
}

void Recordset::setBatchWork(std::function<void(Connection&)> before, std::function<void(Connection&)> after)
{
    d->beforeBatch = std::move(before);
    d->afterBatch = std::move(after);
}

void Recordset::cancelBatch()
{
    d->requireOpen();
    const int current = d->currentRow();
    if (d->edit) {
        if (d->edit->adding)
            d->rows[std::size_t(d->edit->row)].status = RowStatus::Gone;
        d->edit.reset();
    }
    for (int row = 0; row < int(d->rows.size()); ++row)
        d->cancelPending(row);
    for (ChapterInfo& chapter : d->chapters) {
        if (chapter.recordset->d->open)
            chapter.recordset->cancelBatch();
    }
    d->rebuildView(current);
    Q_EMIT recordsetChangeComplete();
    d->notifyMoved();
}

void Recordset::deleteRecord(int affect)
{
    if (affect != AffectEnum::Current)
        throwError(EngineError::InvalidArgument, QStringLiteral("Delete removes the current record only."));
    d->requireUpdatable();
    const int row = d->requireCurrent();
    RowState& state = d->rows[std::size_t(row)];
    if (d->edit) {
        const bool adding = d->edit->adding;
        d->edit.reset();
        if (adding) {
            state.status = RowStatus::Gone;
            Q_EMIT recordsetChangeComplete();
            return;
        }
    }
    if (state.status == RowStatus::New) {
        // Never written: it just goes.
        state.status = RowStatus::Gone;
        state.pending.reset();
    } else {
        const RowStatus before = state.status;
        state.status = RowStatus::Deleted;
        if (!d->isBatch() && d->parentRowWritten(row)) {
            try {
                d->writeRows({row}, false);
            } catch (...) {
                d->rows[std::size_t(row)].status = before;
                throw;
            }
        }
    }
    Q_EMIT recordsetChangeComplete();
}

int Recordset::editMode() const
{
    if (!d->edit)
        return EditModeEnum::None;
    return d->edit->adding ? EditModeEnum::Add : EditModeEnum::InProgress;
}

bool Recordset::isUpdatable() const
{
    return d->open && d->updatable;
}

bool Recordset::hasPendingChanges() const
{
    return d->open && d->hasPending();
}

} // namespace kartella
