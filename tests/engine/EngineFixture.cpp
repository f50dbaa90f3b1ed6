#include "EngineFixture.h"

#include "store/Schema.h"
#include "store/Store.h"

#include <QDate>

namespace kartella::test {

EngineRegister::EngineRegister()
{
    if (testsOnServer()) {
        m_server = std::make_unique<ServerDatabase>();
        m_path = m_server->location();
    } else {
        m_path = m_dir.filePath(QStringLiteral("Register.mdb"));
    }
    createRegister(m_path);
    m_connection = std::make_unique<Connection>(connectionString());
    m_connection->open();
    m_valid = true;
}

QString EngineRegister::connectionString() const
{
    return plainConnectionString(QStringLiteral("Microsoft.Jet.OLEDB.4.0"), m_path);
}

void EngineRegister::fillSmall()
{
    execute(
        QStringLiteral("INSERT INTO tbl_Contacts (ContactID, FullName) VALUES (1, 'Petras'), (2, 'Ąžuolas'), "
                       "(3, 'Šarūnas'), (4, 'šilas'), (5, 'Saulius')"));
    execute(QStringLiteral(
        "INSERT INTO tbl_Documents (RastasID, DokRegistracData, DokAntraste, ContactID, KategID) "
        "VALUES (1, #3/1/2024#, 'First', 1, 7), (2, #3/5/2024#, 'Second', 1, 7), "
        "(3, #4/2/2024#, 'Third', Null, 8)"));
    execute(QStringLiteral("INSERT INTO tbl_Tickler (TicklerID, RastasID, TicklerDate, TicklerText) VALUES "
                           "(1, 1, #3/15/2024#, 'Call'), (2, 1, #3/20/2024#, 'Write')"));
}

QVariant EngineRegister::scalar(const QString& sql)
{
    Recordset recordset;
    recordset.open(sql, *m_connection);
    return recordset.eof() ? QVariant() : recordset.fields(0).value();
}

QStringList rows(Recordset& recordset, const QStringList& fields)
{
    QStringList rows;
    while (!recordset.eof()) {
        QStringList values;
        for (const QString& field : fields) {
            const QVariant value = recordset.fields(field).value();
            values << (isNull(value)                     ? QStringLiteral("-")
                    : value.typeId() == QMetaType::QDate ? value.toDate().toString(Qt::ISODate)
                                                         : value.toString());
        }
        rows << values.join(u'|');
        recordset.moveNext();
    }
    return rows;
}

} // namespace kartella::test
