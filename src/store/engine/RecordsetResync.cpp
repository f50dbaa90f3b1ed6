// Reading rows again after another program wrote them.
#include "store/engine/EngineErrors.h"
#include "store/engine/RecordsetData.h"

#include <QHash>

namespace kartella {

using namespace engine;

void RecordsetData::resyncRow(int row, bool keepChanges)
{
    RowState& state = rows[std::size_t(row)];
    if (state.status == RowStatus::New || state.status == RowStatus::Gone || keyColumn < 0)
        return;
    // The table columns of the data fields, each read once.
    QStringList columns;
    std::vector<int> columnOfField(std::size_t(dataFields), -1);
    QHash<QString, int> seen;
    for (int c = 0; c < dataFields; ++c) {
        const QString& origin = result.columns[std::size_t(c)].origin;
        if (origin.isEmpty())
            continue;
        const QString lower = origin.toLower();
        if (!seen.contains(lower)) {
            seen.insert(lower, int(columns.size()));
            columns << origin;
        }
        columnOfField[std::size_t(c)] = seen.value(lower);
    }
    if (columns.isEmpty())
        return;
    const QueryResult stored
        = connection->backend().readRow(schema, keyName, underlying(row, keyColumn), columns);
    if (stored.rows.rowCount() == 0)
        return;

    Values before(static_cast<std::size_t>(storeColumns()));
    for (int c = 0; c < storeColumns(); ++c)
        before[std::size_t(c)] = underlying(row, c);
    Values now = before;
    for (int c = 0; c < dataFields; ++c) {
        const int column = columnOfField[std::size_t(c)];
        if (column >= 0)
            now[std::size_t(c)] = stored.rows.value(0, column);
    }

    if (edit && edit->row == row && !edit->adding) {
        if (!keepChanges) {
            edit.reset();
        } else if (isBatch()) {
            commitEdit(false);
        } else {
            // A recordset that writes at update() keeps its edit open, so that update() still
            // writes what was typed; the fields not typed take the stored values.
            Values& typed = edit->values;
            for (std::size_t c = 0; c < typed.size() && c < now.size(); ++c) {
                if (sameFieldValue(typed[c], before[c]))
                    typed[c] = now[c];
            }
        }
    }
    if (keepChanges && state.pending) {
        Values& pending = *state.pending;
        for (std::size_t c = 0; c < pending.size() && c < now.size(); ++c) {
            if (sameFieldValue(pending[c], before[c]))
                pending[c] = now[c];
        }
    } else {
        state.pending.reset();
        if (state.status == RowStatus::Modified)
            state.status = RowStatus::Unchanged;
    }
    state.saved = std::make_unique<Values>(std::move(now));
    relationIndexValid = false;
}

bool Field::isChanged() const
{
    RecordsetData& d = *m_recordset->d;
    d.requireFieldIndex(m_index);
    if (d.fields[std::size_t(m_index)].chapter >= 0)
        return false;
    const int row = d.requireCurrent();
    return !sameFieldValue(d.value(row, m_index), d.underlying(row, m_index));
}

void Recordset::resync(int affect, int resyncValues)
{
    d->requireOpen();
    if (affect != AffectEnum::Current && affect != AffectEnum::All)
        throwError(EngineError::InvalidArgument,
            QStringLiteral("Resync reads the current record or all records again."));
    if (resyncValues != ResyncEnum::UnderlyingValues && resyncValues != ResyncEnum::AllValues)
        throwError(EngineError::InvalidArgument,
            QStringLiteral("Resync reads the underlying values or all values again."));
    const bool keepChanges = resyncValues == ResyncEnum::UnderlyingValues;
    const int current = d->currentRow();
    if (affect == AffectEnum::Current) {
        if (d->updatable)
            d->resyncRow(d->requireCurrent(), keepChanges);
        // With the row, the child rows it shows.
        for (ChapterInfo& chapter : d->chapters) {
            RecordsetData& child = *chapter.recordset->d;
            if (!child.open || !child.updatable)
                continue;
            for (const int row : std::vector<int>(child.visible))
                child.resyncRow(row, keepChanges);
            child.rebuildView(child.currentRow());
            Q_EMIT chapter.recordset->recordsetChangeComplete();
        }
    } else {
        // A batch takes an edit in progress among its changes; a recordset that writes at
        // update() keeps it open over the row read again.
        if (d->edit && d->isBatch())
            d->commitEdit(false);
        for (int row = 0; d->updatable && row < int(d->rows.size()); ++row) {
            const bool edited = d->edit && d->edit->row == row;
            if (edited || d->rows[std::size_t(row)].status == RowStatus::Modified)
                d->resyncRow(row, keepChanges);
        }
        for (ChapterInfo& chapter : d->chapters) {
            if (chapter.recordset->d->open)
                chapter.recordset->resync(AffectEnum::All, resyncValues);
        }
    }
    d->rebuildView(current);
    Q_EMIT recordsetChangeComplete();
    d->notifyMoved();
}

} // namespace kartella
