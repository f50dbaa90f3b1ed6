// An old register in memory, for the migration's fault cases: contacts with one phone each.
#pragma once

#include "store/migration/SourceDatabase.h"

namespace kartella::test {

class ListSource final : public migration::SourceDatabase
{
public:
    explicit ListSource(int contacts = 400)
        : m_contacts(contacts)
    { }

    QStringList tableNames() override
    {
        return {QStringLiteral("tbl_Contacts"), QStringLiteral("tbl_Phones")};
    }

    std::optional<migration::SourceTable> readTable(const QString& name) override
    {
        migration::SourceTable table;
        table.name = name;
        if (name.compare(QStringLiteral("tbl_Contacts"), Qt::CaseInsensitive) == 0) {
            table.columns = QStringList {"ContactID", "FullName", "City"};
            for (int i = 1; i <= m_contacts; ++i)
                table.rows.append(QVariantList {
                    QString::number(i), QStringLiteral("Žemaitis %1").arg(i), QStringLiteral("Šiauliai")});
        } else if (name.compare(QStringLiteral("tbl_Phones"), Qt::CaseInsensitive) == 0) {
            table.columns = QStringList {"PhoneID", "ContactID", "PhoneName", "PhoneNumber"};
            for (int i = 1; i <= m_contacts; ++i)
                table.rows.append(QVariantList {QString::number(i), QString::number(i),
                    QStringLiteral("Darbo"), QString(QStringLiteral("+370 41 ") + QString::number(i))});
        } else {
            return std::nullopt;
        }
        return table;
    }

private:
    int m_contacts;
};

} // namespace kartella::test
