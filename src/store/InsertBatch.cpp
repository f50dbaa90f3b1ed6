#include "store/InsertBatch.h"

#include "base/Error.h"
#include "store/engine/Connection.h"
#include "store/engine/SqlText.h"
#include "store/engine/Value.h"

namespace kartella {

QString sqlLiteral(const QVariant& value)
{
    if (isNull(value))
        return QStringLiteral("Null");
    switch (value.typeId()) {
    case QMetaType::Bool:
        return value.toBool() ? QStringLiteral("-1") : QStringLiteral("0");
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
    case QMetaType::Short:
    case QMetaType::UShort:
        return QString::number(value.toLongLong());
    case QMetaType::Double:
        return QString::number(value.toDouble(), 'g', 17);
    case QMetaType::QDate: {
        const QDate date = value.toDate();
        return u'#' + QString::number(date.month()) + u'/' + QString::number(date.day()) + u'/'
            + QString::number(date.year()) + u'#';
    }
    case QMetaType::QDateTime: {
        const QDateTime moment = value.toDateTime();
        const QDate date = moment.date();
        return u'#' + QString::number(date.month()) + u'/' + QString::number(date.day()) + u'/'
            + QString::number(date.year()) + u' ' + moment.time().toString(QStringLiteral("HH:mm:ss")) + u'#';
    }
    default:
        return sqlString(value.toString());
    }
}

InsertBatch::InsertBatch(
    Connection& connection, QString table, const QStringList& fields, int rowsPerStatement)
    : m_connection(connection)
    , m_head(QStringLiteral("INSERT INTO ") + table + QStringLiteral(" (") + fields.join(u',')
          + QStringLiteral(") VALUES "))
    , m_fieldCount(int(fields.size()))
    , m_rowsPerStatement(rowsPerStatement)
{ }

// Rows still collected are dropped: a batch that ends by an error writes nothing more.
InsertBatch::~InsertBatch() = default;

void InsertBatch::add(const QVariantList& values)
{
    if (values.size() != m_fieldCount)
        throw Error(ErrorNumber::IllegalOperation,
            QStringLiteral("A row for \"") + m_head + QStringLiteral("\" has ")
                + QString::number(values.size()) + QStringLiteral(" values."));
    m_sql += m_pending == 0 ? m_head : QStringLiteral(", ");
    m_sql += u'(';
    for (int i = 0; i < values.size(); ++i) {
        if (i > 0)
            m_sql += u',';
        m_sql += sqlLiteral(values.at(i));
    }
    m_sql += u')';
    if (++m_pending >= m_rowsPerStatement)
        flush();
}

void InsertBatch::flush()
{
    if (m_pending == 0)
        return;
    m_connection.execute(m_sql);
    m_written += m_pending;
    m_pending = 0;
    m_sql.clear();
}

} // namespace kartella
