#include "store/engine/Connection.h"
#include "store/engine/RecordsetData.h"

#include <QDateTime>
#include <QSet>

#include <limits>
#include <unordered_map>

namespace kartella {

using namespace engine;

namespace {

// One row to write, and the step that writes its parent row in the same batch.
struct WriteStep
{
    RecordsetData* data;
    int row;
    int parentStep;
};

struct RowEntry
{
    int row;
    int parentStep;
};

QVariant keyValue(const QVariant& key)
{
    bool ok = false;
    const qint64 number = key.toLongLong(&ok);
    if (ok && key.typeId() != QMetaType::QString && number >= std::numeric_limits<int>::min()
        && number <= std::numeric_limits<int>::max())
        return int(number);
    return key;
}

// Collects the pending rows of d among entries, then the pending rows of its chapters
// that belong to them (all of them with allChildren), depth first.
void collect(RecordsetData& d, const std::vector<RowEntry>& entries, bool allChildren, bool topLevel,
    std::vector<WriteStep>& steps)
{
    std::unordered_map<int, int> stepOfRow;
    std::vector<int> listed;
    for (const RowEntry& entry : entries) {
        // A chapter's own batch leaves rows whose new parent row isn't written yet.
        if (topLevel && !d.parentRowWritten(entry.row))
            continue;
        listed.push_back(entry.row);
        if (d.rowPending(entry.row)) {
            steps.push_back(WriteStep {&d, entry.row, entry.parentStep});
            stepOfRow[entry.row] = int(steps.size()) - 1;
        }
    }
    for (ChapterInfo& chapter : d.chapters) {
        RecordsetData& child = RecordsetData::of(*chapter.recordset);
        if (!child.open)
            continue;
        child.commitEdit(false);
        std::vector<RowEntry> childEntries;
        for (int row = 0; row < int(child.rows.size()); ++row) {
            if (!child.rowPending(row))
                continue;
            const int owner = child.rows[std::size_t(row)].parentRow;
            const auto ownerStep = stepOfRow.find(owner);
            bool include = false;
            if (owner >= 0) {
                const bool ownerListed = std::find(listed.begin(), listed.end(), owner) != listed.end();
                include = ownerListed || (allChildren && d.rows[std::size_t(owner)].status != RowStatus::New);
            } else if (allChildren) {
                include = true;
            } else {
                // Rows read with the parent belong by the relation's values.
                for (const int parentRow : listed) {
                    bool same = true;
                    for (const auto& [parentField, childField] : chapter.relation) {
                        const std::optional<int> order
                            = compareValues(d.value(parentRow, parentField), child.value(row, childField));
                        same = same && order && *order == 0;
                    }
                    if (same) {
                        include = true;
                        break;
                    }
                }
            }
            if (include)
                childEntries.push_back(RowEntry {row, ownerStep != stepOfRow.end() ? ownerStep->second : -1});
        }
        if (!childEntries.empty())
            collect(child, childEntries, allChildren, false, steps);
    }
}

// The table columns of the visible fields, each once, with their values; for an update
// only those that differ from what the database holds, with the values they held when they
// were read (originals), so that the update finds the row only as it was read.
void columnsToWrite(const RecordsetData& d, int row, const Values& values, bool onlyChanged,
    QStringList& columns, QVariantList& columnValues, QVariantList* originals = nullptr)
{
    QSet<QString> seen;
    for (int c = 0; c < d.dataFields; ++c) {
        const QString& origin = d.result.columns[std::size_t(c)].origin;
        if (origin.isEmpty() || seen.contains(origin.toLower()))
            continue;
        const QVariant& value = values[std::size_t(c)];
        if (onlyChanged) {
            if (c == d.keyColumn || sameFieldValue(value, d.underlying(row, c)))
                continue;
        } else if (!value.isValid() || value.isNull()) {
            continue;
        }
        seen.insert(origin.toLower());
        columns << origin;
        columnValues << value;
        if (originals)
            *originals << d.underlying(row, c);
    }
}

// A row as the database holds it once written: a time to the second, as it is stored.
void asStored(Values& values)
{
    for (QVariant& value : values) {
        if (value.typeId() != QMetaType::QDateTime)
            continue;
        QDateTime moment = value.toDateTime();
        const QTime time = moment.time();
        moment.setTime(QTime(time.hour(), time.minute(), time.second()));
        value = moment;
    }
}

} // namespace

void RecordsetData::writeRows(const std::vector<int>& rowList, bool allChildren)
{
    std::vector<RowEntry> entries;
    entries.reserve(rowList.size());
    for (const int row : rowList)
        entries.push_back(RowEntry {row, -1});
    std::vector<WriteStep> steps;
    collect(*this, entries, allChildren, true, steps);
    if (steps.empty())
        return;

    Backend& backend = connection->backend();
    std::vector<Values> written(steps.size());
    backend.beginTransaction();
    try {
        if (beforeBatch)
            beforeBatch(*connection);
        for (std::size_t i = 0; i < steps.size(); ++i) {
            const WriteStep& step = steps[i];
            RecordsetData& d = *step.data;
            const RowState& state = d.rows[std::size_t(step.row)];
            Values values = d.rowValues(step.row);
            // A row added under a parent row takes the parent's values through the relation,
            // its new key among them.
            if (d.parent && state.parentRow >= 0) {
                const RecordsetData& p = RecordsetData::of(*d.parent);
                const Values parentValues = step.parentStep >= 0 ? written[std::size_t(step.parentStep)]
                                                                 : p.rowValues(state.parentRow);
                for (const auto& [parentField, childField] :
                    p.chapters[std::size_t(d.parentChapter)].relation)
                    values[std::size_t(childField)] = parentValues[std::size_t(parentField)];
            }
            QStringList columns;
            QVariantList columnValues;
            switch (state.status) {
            case RowStatus::New: {
                columnsToWrite(d, step.row, values, false, columns, columnValues);
                const QVariant key = backend.insertRow(d.schema, columns, columnValues);
                values[std::size_t(d.keyColumn)] = keyValue(key);
                break;
            }
            case RowStatus::Modified: {
                QVariantList originals;
                columnsToWrite(d, step.row, values, true, columns, columnValues, &originals);
                backend.updateRow(d.schema, d.keyName, d.underlying(step.row, d.keyColumn), columns,
                    columnValues, originals);
                break;
            }
            case RowStatus::Deleted:
                // By the key alone: a row another program changed is still the row the user
                // deletes, and one already gone is gone as asked.
                backend.deleteRow(d.schema, d.keyName, d.underlying(step.row, d.keyColumn));
                break;
            default:
                break;
            }
            asStored(values);
            written[i] = std::move(values);
        }
        if (afterBatch)
            afterBatch(*connection);
        backend.commitTransaction();
    } catch (...) {
        try {
            backend.rollbackTransaction();
        } catch (...) {
            // The first error is the one to report.
        }
        throw;
    }

    // Only now, with everything in the database, do the rows take their new state.
    for (std::size_t i = 0; i < steps.size(); ++i) {
        steps[i].data->relationIndexValid = false;
        RowState& state = steps[i].data->rows[std::size_t(steps[i].row)];
        if (state.status == RowStatus::Deleted) {
            state.status = RowStatus::Gone;
        } else {
            state.saved = std::make_unique<Values>(std::move(written[i]));
            state.status = RowStatus::Unchanged;
        }
        state.pending.reset();
    }
}

} // namespace kartella
