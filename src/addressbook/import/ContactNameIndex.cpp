#include "addressbook/import/ContactNameIndex.h"

#include "store/engine/Connection.h"
#include "store/engine/Recordset.h"
#include "store/engine/SqlText.h"
#include "store/engine/TextFold.h"
#include "store/engine/Value.h"

#include <algorithm>

namespace kartella {

ContactNameIndex::ContactNameIndex(Connection& connection)
    : m_connection(connection)
{ }

QString ContactNameIndex::folded(const QString& name)
{
    QString key;
    key.reserve(name.size());
    for (const char32_t c : name.toUcs4()) {
        const char32_t fold = c < 0x80 ? char32_t(QChar::toLower(c)) : engine::foldCase(c);
        key += QString::fromUcs4(&fold, 1);
    }
    return key;
}

void ContactNameIndex::load()
{
    m_ids.clear();
    m_highestKey = 0;
    m_loaded = false;
    read(QString());
    m_loaded = true;
}

void ContactNameIndex::refresh()
{
    if (m_loaded)
        read(QStringLiteral(" WHERE tbl_Contacts.ContactID > ") + QString::number(m_highestKey));
}

void ContactNameIndex::read(const QString& condition)
{
    Recordset names;
    names.open(
        QStringLiteral("SELECT tbl_Contacts.ContactID, tbl_Contacts.FullName FROM tbl_Contacts") + condition,
        m_connection, CursorTypeEnum::Static, LockTypeEnum::Unspecified, -1);
    for (int row = 0; row < names.recordCount(); ++row) {
        const QVariant name = names.rowValue(row, 1);
        if (!isNull(name))
            add(name.toString(), names.rowValue(row, 0));
    }
    names.close();
}

QVariant ContactNameIndex::find(const QString& name) const
{
    if (!m_loaded)
        return findWithStatement(name);
    return m_ids.value(folded(name), nullValue());
}

void ContactNameIndex::add(const QString& name, const QVariant& contactId)
{
    const QString key = folded(name);
    if (!m_ids.contains(key))
        m_ids.insert(key, contactId);
    m_highestKey = std::max(m_highestKey, contactId.toLongLong());
}

void ContactNameIndex::forget(const QString& name)
{
    m_ids.remove(folded(name));
}

QVariant ContactNameIndex::findWithStatement(const QString& name) const
{
    const QString sql = QStringLiteral("SELECT tbl_Contacts.ContactID, tbl_Contacts.FullName ")
        + QStringLiteral("FROM tbl_Contacts ") + QStringLiteral("WHERE tbl_Contacts.FullName Like ")
        + sqlLikeText(name);
    Recordset match;
    match.open(sql, m_connection, CursorTypeEnum::Static, LockTypeEnum::Unspecified, -1);
    const QVariant id
        = match.recordCount() != 0 ? match.fields(QStringLiteral("ContactID")).value() : nullValue();
    match.close();
    return id;
}

} // namespace kartella
