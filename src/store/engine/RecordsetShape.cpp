#include "store/engine/Connection.h"
#include "store/engine/EngineErrors.h"
#include "store/engine/RecordsetData.h"
#include "store/engine/ShapeCommand.h"

#include <QDateTime>
#include <QHash>

namespace kartella {

using namespace engine;

namespace {

[[noreturn]] void badShape(const QString& text, const QString& what)
{
    throwError(ErrorNumber::CommandFailed,
        QStringLiteral("The SHAPE command can't be run: ") + what + QStringLiteral(".\nCommand: ") + text,
        ConnectionSource);
}

// A text that is equal for values that group together; Null groups with Null.
QString groupKey(const RecordsetData& d, int row, const std::vector<std::pair<int, int>>& relation)
{
    QString key;
    for (const auto& [parentField, childField] : relation) {
        Q_UNUSED(parentField);
        const QVariant value = d.value(row, childField);
        if (!value.isValid() || value.isNull())
            key += u'\x01';
        else
            key += QString::number(value.typeId()) + u':' + value.toString();
        key += u'\x1F';
    }
    return key;
}

// A text equal for values that relate: numbers by value, text without regard to case.
// Empty for Null, which relates to nothing.
QString relationKey(const QVariant& value)
{
    if (!value.isValid() || value.isNull())
        return {};
    bool whole = false;
    const qint64 number = value.toLongLong(&whole);
    if (whole && value.typeId() != QMetaType::Double)
        return u'n' + QString::number(number);
    switch (value.typeId()) {
    case QMetaType::Double:
    case QMetaType::Float:
        return value.toDouble() == double(qint64(value.toDouble()))
            ? u'n' + QString::number(qint64(value.toDouble()))
            : u'r' + QString::number(value.toDouble());
    case QMetaType::QDate:
    case QMetaType::QDateTime:
        return u'd' + value.toDateTime().toString(Qt::ISODate);
    default:
        return u's' + value.toString().toLower();
    }
}

QVariant aggregate(
    const RecordsetData& child, const std::vector<int>& rows, const QString& function, int field)
{
    if (function == QLatin1String("COUNT")) {
        if (field < 0)
            return int(rows.size());
        int count = 0;
        for (const int row : rows) {
            const QVariant value = child.value(row, field);
            count += value.isValid() && !value.isNull() ? 1 : 0;
        }
        return count;
    }
    QVariant best;
    double sum = 0;
    int count = 0;
    for (const int row : rows) {
        const QVariant value = child.value(row, field);
        if (!value.isValid() || value.isNull())
            continue;
        ++count;
        sum += value.toDouble();
        const std::optional<int> order = compareValues(value, best);
        if (!best.isValid()
            || (order
                && ((function == QLatin1String("MIN") && *order < 0)
                    || (function == QLatin1String("MAX") && *order > 0))))
            best = value;
    }
    if (count == 0)
        return {};
    if (function == QLatin1String("SUM"))
        return sum;
    if (function == QLatin1String("AVG"))
        return sum / count;
    return best;
}

// Few parent rows need only their own children: the child select is narrowed to the keys
// of the parent rows read. Empty (all children) for many parents or a relation of more
// than one field or of keys that aren't whole numbers.
QString childRestriction(const RecordsetData& parent, const ShapeCommand::Append& append)
{
    constexpr int MostParentsNarrowed = 500;
    if (append.relations.size() != 1 || int(parent.rows.size()) > MostParentsNarrowed)
        return {};
    const int parentField = parent.fieldIndex(append.relations.front().parentField);
    if (parentField < 0 || parentField >= parent.dataFields)
        return {};
    QStringList keys;
    for (int row = 0; row < int(parent.rows.size()); ++row) {
        const QVariant key = parent.value(row, parentField);
        if (key.isNull())
            continue;
        bool whole = false;
        const qint64 number = key.toLongLong(&whole);
        if (!whole || key.toString() != QString::number(number))
            return {};
        keys << QString::number(number);
    }
    if (keys.isEmpty())
        return QStringLiteral("1=0");
    keys.removeDuplicates();
    // Quoted: the field may bear a keyword's name or a blank.
    QString childField = append.relations.front().childField;
    childField.replace(u'"', QLatin1String("\"\""));
    return u'"' + childField + QStringLiteral("\" IN (") + keys.join(u',') + u')';
}

} // namespace

void RecordsetData::openShape(const QString& text)
{
    const ShapeCommand command = parseShape(text);
    const std::size_t chapterCount = command.compute ? 1 : command.appends.size();
    // A requery keeps the chapter recordsets, which views may hold.
    if (chapters.size() != chapterCount)
        chapters.clear();
    auto chapterAt
        = [this, &text](std::size_t index, const QString& name, const QString& sql) -> ChapterInfo& {
        if (index >= chapters.size()) {
            ChapterInfo chapter;
            chapter.recordset = std::make_unique<Recordset>(q);
            chapters.push_back(std::move(chapter));
        }
        ChapterInfo& chapter = chapters[index];
        chapter.name = name;
        chapter.relation.clear();
        RecordsetData& child = *chapter.recordset->d;
        child.reset();
        child.connection = connection;
        child.source = sql;
        child.lockType = lockType;
        child.parent = q;
        child.parentChapter = int(index);
        if (name.isEmpty())
            badShape(text, QStringLiteral("a chapter has no name"));
        return chapter;
    };

    if (!command.compute) {
        load(connection->backend().query(restrictedSelect(command.sql, restriction)));
        for (std::size_t i = 0; i < command.appends.size(); ++i) {
            const ShapeCommand::Append& append = command.appends[i];
            ChapterInfo& chapter = chapterAt(i, append.chapter, append.sql);
            RecordsetData& child = *chapter.recordset->d;
            child.restriction = childRestriction(*this, append);
            try {
                child.runQuery();
            } catch (const Error&) {
                // A server refuses a narrowed select by a child field the select doesn't have
                // (a file reads the unknown quoted name as text): read the children whole, so
                // that the relation below names what is wrong.
                if (child.restriction.isEmpty())
                    throw;
                child.restriction.clear();
                child.runQuery();
            }
            for (const ShapeCommand::Relation& relation : append.relations) {
                const int parentField = fieldIndex(relation.parentField);
                const int childField = child.fieldIndex(relation.childField);
                if (parentField < 0 || parentField >= dataFields)
                    badShape(text, QStringLiteral("the parent has no field ") + relation.parentField);
                if (childField < 0)
                    badShape(text, QStringLiteral("the child has no field ") + relation.childField);
                chapter.relation.emplace_back(parentField, childField);
            }
            child.open = true;
            fields.push_back(FieldInfo {append.chapter, int(i)});
        }
        return;
    }

    // COMPUTE: the inner rows go to the chapter, and each group becomes a parent row.
    ChapterInfo& chapter = chapterAt(0, command.computeChapter, command.sql);
    chapter.grouped = true;
    RecordsetData& child = *chapter.recordset->d;
    child.runQuery();
    child.open = true;
    for (int i = 0; i < command.by.size(); ++i) {
        const int childField = child.fieldIndex(command.by[i]);
        if (childField < 0 || childField >= child.dataFields)
            badShape(text, QStringLiteral("the rows have no field ") + command.by[i]);
        chapter.relation.emplace_back(i, childField);
    }
    std::vector<int> aggregateFields;
    for (const ShapeCommand::Aggregate& item : command.aggregates) {
        const int field = item.field.isEmpty() ? -1 : child.fieldIndex(item.field);
        if (!item.field.isEmpty() && field < 0)
            badShape(text, QStringLiteral("the rows have no field ") + item.field);
        aggregateFields.push_back(field);
    }

    std::vector<std::vector<int>> groups;
    QHash<QString, int> groupOf;
    for (int row = 0; row < int(child.rows.size()); ++row) {
        const QString key = groupKey(child, row, chapter.relation);
        auto found = groupOf.constFind(key);
        if (found == groupOf.constEnd()) {
            found = groupOf.insert(key, int(groups.size()));
            groups.emplace_back();
        }
        groups[std::size_t(*found)].push_back(row);
        child.rows[std::size_t(row)].group = *found;
    }

    QueryResult parents;
    for (const auto& [parentField, childField] : chapter.relation) {
        Q_UNUSED(parentField);
        ColumnInfo column = child.result.columns[std::size_t(childField)];
        column.table.clear();
        column.origin.clear();
        parents.columns.push_back(column);
    }
    for (const ShapeCommand::Aggregate& item : command.aggregates)
        parents.columns.push_back(ColumnInfo {item.alias, QString(), QString(), ValueKind::Null});
    parents.visibleColumns = int(parents.columns.size());
    parents.rows = RowStore(parents.visibleColumns);
    for (const std::vector<int>& group : groups) {
        for (const auto& [parentField, childField] : chapter.relation) {
            Q_UNUSED(parentField);
            parents.rows.addValue(child.value(group.front(), childField));
        }
        for (std::size_t a = 0; a < command.aggregates.size(); ++a)
            parents.rows.addValue(
                aggregate(child, group, command.aggregates[a].function, aggregateFields[a]));
    }
    load(std::move(parents));
    fields.push_back(FieldInfo {command.computeChapter, 0});
}

bool RecordsetData::belongsToParent(int row) const
{
    const RecordsetData& p = *parent->d;
    const int parentRow = p.currentRow();
    if (parentRow < 0 || p.isRemoved(parentRow))
        return false;
    const ChapterInfo& chapter = p.chapters[std::size_t(parentChapter)];
    const RowState& state = rows[std::size_t(row)];
    if (chapter.grouped)
        return state.group == parentRow;
    if (state.parentRow >= 0)
        return state.parentRow == parentRow;
    for (const auto& [parentField, childField] : chapter.relation) {
        const std::optional<int> order
            = compareValues(p.value(parentRow, parentField), value(row, childField));
        if (!order || *order != 0)
            return false;
    }
    return true;
}

std::vector<int> RecordsetData::chapterCandidates() const
{
    const RecordsetData& p = of(*parent);
    const int parentRow = p.currentRow();
    if (parentRow < 0 || p.isRemoved(parentRow))
        return {};
    const ChapterInfo& chapter = p.chapters[std::size_t(parentChapter)];
    auto keyOf = [&chapter](const auto& valueOf) {
        QString key;
        for (const auto& [parentField, childField] : chapter.relation) {
            const QString part = relationKey(valueOf(parentField, childField));
            if (part.isEmpty())
                return QString();
            key += part + u'\x1F';
        }
        return key;
    };
    if (!relationIndexValid) {
        relationIndex.clear();
        for (int row = 0; row < int(rows.size()); ++row) {
            const RowState& state = rows[std::size_t(row)];
            QString key;
            if (state.parentRow >= 0)
                key = u'p' + QString::number(state.parentRow);
            else if (chapter.grouped)
                key = u'g' + QString::number(state.group);
            else
                key = keyOf([this, row](int, int childField) { return value(row, childField); });
            if (!key.isEmpty())
                relationIndex[key].push_back(row);
        }
        relationIndexValid = true;
    }
    std::vector<int> candidates = relationIndex.value(u'p' + QString::number(parentRow));
    const QString key = chapter.grouped
        ? u'g' + QString::number(parentRow)
        : keyOf([&p, parentRow](int parentField, int) { return p.value(parentRow, parentField); });
    const auto found = relationIndex.constFind(key);
    if (!key.isEmpty() && found != relationIndex.constEnd()) {
        candidates.insert(candidates.end(), found->begin(), found->end());
        std::sort(candidates.begin(), candidates.end());
    }
    return candidates;
}

void RecordsetData::fillFromParent(Values& values, int& parentRow, int& group) const
{
    const RecordsetData& p = *parent->d;
    parentRow = p.requireCurrent();
    const ChapterInfo& chapter = p.chapters[std::size_t(parentChapter)];
    group = chapter.grouped ? parentRow : -1;
    for (const auto& [parentField, childField] : chapter.relation)
        values[std::size_t(childField)] = p.value(parentRow, parentField);
}

} // namespace kartella
