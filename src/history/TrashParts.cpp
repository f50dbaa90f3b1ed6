#include "history/TrashParts.h"

#include "store/engine/Backend.h"
#include "store/engine/Value.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace kartella::trash {

QString quoted(const QString& text)
{
    return u'\'' + QString(text).replace(u'\'', QStringLiteral("''")) + u'\'';
}

bool moveFile(const QString& from, const QString& to)
{
    QDir().mkpath(QFileInfo(to).absolutePath());
    if (QFile::rename(from, to))
        return true;
    if (!QFile::copy(from, to))
        return false;
    if (QFile::remove(from))
        return true;
    QFile::remove(to);
    return false;
}

void moveBack(const QList<QPair<QString, QString>>& moved)
{
    for (auto it = moved.crbegin(); it != moved.crend(); ++it)
        moveFile(it->second, it->first);
}

QString freePath(const QString& path)
{
    if (!QFileInfo::exists(path))
        return path;
    const QFileInfo file(path);
    const QString suffix = file.suffix().isEmpty() ? QString() : u'.' + file.suffix();
    const QString base = file.fileName().chopped(suffix.size());
    for (int n = 2;; ++n) {
        const QString candidate
            = file.absoluteDir().filePath(QStringLiteral("%1 (%2)%3").arg(base).arg(n).arg(suffix));
        if (!QFileInfo::exists(candidate))
            return candidate;
    }
}

QString textOf(const QJsonObject& row, const QString& column)
{
    const QVariant value = valueFromJson(row.value(column));
    return isNull(value) ? QString() : value.toString();
}

qint64 keyOf(const QJsonObject& row, const QString& column)
{
    return valueFromJson(row.value(column)).toLongLong();
}

const TableRows* rowsOf(const QList<TableRows>& tables, const QString& table)
{
    for (const TableRows& rows : tables) {
        if (rows.table == table)
            return &rows;
    }
    return nullptr;
}

QList<qint64> keysOf(const QList<TableRows>& tables, const QString& table)
{
    QList<qint64> keys;
    if (const TableRows* rows = rowsOf(tables, table)) {
        for (const QJsonValue& row : rows->rows)
            keys << keyOf(row.toObject(), rows->key);
    }
    return keys;
}

bool hasTable(Connection& connection, const QString& table)
{
    try {
        connection.backend().tableSchema(table);
        return true;
    } catch (const Error&) {
        return false;
    }
}

Error gone(const QString& message)
{
    return Error(ErrorNumber::RowDeleted, message);
}

} // namespace kartella::trash
