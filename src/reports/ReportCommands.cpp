#include "reports/ReportCommands.h"

#include "store/DueReminders.h"
#include "store/Store.h"
#include "store/engine/Connection.h"
#include "store/engine/Recordset.h"

#include <QHash>

namespace kartella {

namespace {

// The commands as the reports were designed against them, with each select's order made
// complete (the fields it groups or relates by, then the key), so that a report prints its
// rows in the same order from either back end. The month command is built from the name
// of the query it reads.
const QHash<QString, QString>& fixedCommands()
{
    static const QHash<QString, QString> commands = {
        {QStringLiteral("Categories"),
            QStringLiteral(
                "SHAPE {SELECT tbl_Document_Categories.KategID, tbl_Document_Categories.DokKategorija, \r\n"
                "tbl_Document_Categories.Mnemonic,\r\n"
                "tbl_Document_Categories.DokKategDaug, tbl_Document_Categories.DokTemplates, "
                "tbl_Document_Categories.DokTemplatesExel, tbl_Document_Categories.DokTemplatesPowPoint FROM "
                "tbl_Document_Categories ORDER By tbl_Document_Categories.DokKategorija, "
                "tbl_Document_Categories.KategID}  AS Categories "
                "APPEND ({SELECT tbl_Sub_Categories.SubKategID,\r\n"
                "tbl_Sub_Categories.KategID, tbl_Sub_Categories.DokSubKategorija, "
                "tbl_Sub_Categories.SubPathToFiles, tbl_Sub_Categories.SubDokTemplates, "
                "tbl_Sub_Categories.SubDokTemplatesExel, tbl_Sub_Categories.SubDokTemplatesPowPoint FROM\r\n"
                "tbl_Sub_Categories ORDER BY tbl_Sub_Categories.KategID, tbl_Sub_Categories.SubKategID}  AS "
                "SubCategories RELATE 'KategID' TO 'KategID') AS SubCategories")},
        {QStringLiteral("Contacts"),
            QStringLiteral(
                "SHAPE {SELECT ContactID, FullName, CompanyName FROM tbl_Contacts ORDER BY FullName, "
                "CompanyName, ContactID}  AS Contacts APPEND ({SELECT PhoneID, ContactID, PhoneName, "
                "PhoneNumber "
                "FROM tbl_Phones ORDER BY ContactID, PhoneName, PhoneID}  AS Phones RELATE 'ContactID' TO "
                "'ContactID') AS Phones,({SELECT HomeID, ContactID, Description, HomeWWW FROM tbl_HomePages "
                "ORDER "
                "BY ContactID, Description, HomeID}  AS HomePages RELATE 'ContactID' TO 'ContactID') AS "
                "HomePages")},
        {QStringLiteral("DocByCateg"),
            QStringLiteral(
                "SHAPE {SELECT tbl_Documents.KategID, tbl_Document_Categories.Mnemonic, "
                "tbl_Document_Categories.DokKategorija, tbl_Document_Categories.KategID AS Expr1 FROM "
                "tbl_Document_Categories, tbl_Documents WHERE tbl_Document_Categories.KategID = "
                "tbl_Documents.KategID ORDER BY tbl_Documents.KategID, tbl_Documents.RastasID}  AS "
                "DocByCateg APPEND ({SELECT tbl_Documents.KategID, "
                "tbl_Documents.RastasID, tbl_Documents.DokAntraste, tbl_Documents.DokGavSiuntData, "
                "tbl_Documents.ContactID, tbl_Contacts.FullName, tbl_Documents.DokRegistracIndeksas FROM "
                "tbl_Documents, tbl_Contacts WHERE tbl_Documents.ContactID = tbl_Contacts.ContactID ORDER BY "
                "tbl_Documents.KategID, tbl_Documents.DokGavSiuntData, tbl_Documents.DokRegistracIndeksas, "
                "tbl_Documents.RastasID}  AS Documents RELATE "
                "'KategID' TO 'KategID') AS Documents")},
        {QStringLiteral("DocByCor_Grouping"),
            QStringLiteral(
                "SHAPE {SELECT tbl_Contacts.ContactID, tbl_Contacts.FullName, tbl_Contacts.CompanyName, "
                "tbl_Documents.RastasID, tbl_Documents.DokRegistracIndeksas, tbl_Documents.DokRegistracData, "
                "tbl_Documents.DokAntraste, tbl_Documents.KategID, tbl_Document_Categories.DokKategorija "
                "FROM tbl_Document_Categories, tbl_Contacts, tbl_Documents WHERE "
                "tbl_Document_Categories.KategID = tbl_Documents.KategID AND tbl_Contacts.ContactID = "
                "tbl_Documents.ContactID ORDER BY tbl_Contacts.FullName, tbl_Contacts.ContactID, "
                "tbl_Documents.RastasID}  AS DocByCor COMPUTE DocByCor, "
                "COUNT(DocByCor.'RastasID') AS Aggr1 BY 'ContactID','FullName'")},
        {QStringLiteral("Command2_Grouping"),
            QStringLiteral(
                "SHAPE {SELECT tbl_Documents.RastasID, tbl_Documents.DokRegistracData, "
                "tbl_Documents.DokRegistracIndeksas, tbl_Documents.DokAntraste, tbl_Documents.ContactID, "
                "tbl_Contacts.FullName, tbl_Documents.KategID, tbl_Document_Categories.DokKategorija\r\n"
                "FROM tbl_Contacts RIGHT JOIN (tbl_Document_Categories INNER JOIN tbl_Documents ON "
                "tbl_Document_Categories.KategID=tbl_Documents.KategID) ON "
                "tbl_Contacts.ContactID=tbl_Documents.ContactID\r\n"
                "ORDER BY tbl_Documents.KategID, tbl_Document_Categories.DokKategorija, "
                "tbl_Documents.RastasID"
                "}  AS Command2 COMPUTE Command2 BY 'KategID','DokKategorija'")},
        {QStringLiteral("AddressBook_Grouping"),
            QStringLiteral(
                "SHAPE {SELECT tbl_Contacts.ContactID, tbl_Contacts.FullName, tbl_Contacts.Dear, "
                "tbl_Contacts.Address, tbl_Contacts.City, tbl_Contacts.StateOrProvince, "
                "tbl_Contacts.PostalCode, tbl_Contacts.Region, tbl_Contacts.Country, "
                "tbl_Contacts.CompanyName, tbl_Contacts.Title, tbl_Contacts.EmailName, tbl_Phones.PhoneName, "
                "tbl_Phones.PhoneNumber\r\n"
                "FROM tbl_Contacts INNER JOIN tbl_Phones ON tbl_Contacts.ContactID = tbl_Phones.ContactID\r\n"
                "ORDER BY tbl_Contacts.FullName, tbl_Contacts.ContactID, tbl_Phones.PhoneID;}  AS "
                "AddressBook COMPUTE AddressBook BY "
                "'FullName','ContactID','Dear','Address','City','StateOrProvince','PostalCode','Region','"
                "Country','CompanyName','Title','EmailName'")},
        {QStringLiteral("Command1_Grouping"),
            QStringLiteral("SHAPE {SELECT * FROM `qry_Phones` ORDER BY FullName, ContactID, PhoneName, "
                           "PhoneNumber}  AS Command1 COMPUTE Command1 BY "
                           "'FullName','ContactID'")},
    };
    return commands;
}

// The reminders with their document's description and index. Where the register keeps
// reminders done, those are left out: the report lists what is still to do.
QString remindersCommand(bool leaveOutDone)
{
    return QStringLiteral(
               "SHAPE {SELECT tbl_Documents.RastasID, tbl_Documents.DokAntraste, "
               "tbl_Documents.DokRegistracIndeksas, tbl_Tickler.TicklerDate, tbl_Tickler.TicklerText "
               "FROM tbl_Documents INNER JOIN tbl_Tickler ON tbl_Documents.RastasID = "
               "tbl_Tickler.RastasID")
        + (leaveOutDone ? QStringLiteral(" WHERE tbl_Tickler.") + QLatin1String(ReminderDoneColumn)
                    + QStringLiteral(" = 0")
                        : QString())
        + QStringLiteral(
            " ORDER BY tbl_Tickler.TicklerDate, tbl_Documents.RastasID, tbl_Tickler.TicklerID;}  "
            "AS Tickler COMPUTE Tickler BY 'RastasID','DokAntraste','DokRegistracIndeksas'");
}

// Column of name in the recordset's fields, compared without regard to case; -1 if none.
int columnOf(const QStringList& names, const QString& name)
{
    for (int i = 0; i < names.size(); ++i) {
        if (names.at(i).compare(name, Qt::CaseInsensitive) == 0)
            return i;
    }
    return -1;
}

QList<int> columnsOf(const QStringList& names, const QStringList& wanted)
{
    QList<int> columns;
    columns.reserve(wanted.size());
    for (const QString& name : wanted)
        columns << columnOf(names, name);
    return columns;
}

QVariantList rowValues(const Recordset& rows, int row, const QList<int>& columns)
{
    QVariantList values;
    values.reserve(columns.size());
    for (int column : columns)
        values << (column < 0 ? QVariant() : rows.rowValue(row, column));
    return values;
}

QStringList boundFields(std::initializer_list<const ReportSection*> sections)
{
    QStringList fields;
    for (const ReportSection* section : sections) {
        for (const ReportItem& item : *section) {
            if (item.kind == ReportItem::Kind::Field && !fields.contains(item.text))
                fields << item.text;
        }
    }
    return fields;
}

} // namespace

ReportCommands& ReportCommands::instance()
{
    static ReportCommands commands;
    return commands;
}

QString ReportCommands::commandText(const QString& command, bool remindersKeptDone) const
{
    if (command == u"Tickler_Grouping")
        return remindersCommand(remindersKeptDone);
    if (command == u"This_Month_Grouping") {
        return QStringLiteral("SHAPE {SELECT * FROM `") + m_monthSource
            + QStringLiteral("` ORDER BY DokKategorija, KategID, DokRegistracData, RastasID}  AS This_Month "
                             "COMPUTE This_Month BY 'DokKategorija','KategID'");
    }
    return fixedCommands().value(command);
}

void ReportCommands::usePreviousMonth()
{
    m_monthSource = QStringLiteral("qry_Previous_Month");
}

bool ReportCommands::readsPreviousMonth() const
{
    return m_monthSource == u"qry_Previous_Month";
}

QString ReportCommands::connectionString()
{
    if (!m_connectionSet)
        setConnectionString(plainConnectionString());
    return m_connectionString;
}

void ReportCommands::setConnectionString(const QString& connectionString)
{
    m_connectionString = connectionString;
    m_connectionSet = true;
}

ReportData ReportCommands::run(const ReportLayout& layout)
{
    const QString& childMember = layout.childMember;
    ReportData data {
        boundFields({&layout.groupHeader, &layout.groupFooter}), boundFields({&layout.detail}), {}};
    const QStringList& parentFields = data.parentFields;
    const QStringList& childFields = data.childFields;
    const QString command = layout.command;
    Connection connection(connectionString());
    connection.open();
    Recordset parents;
    const bool remindersKeptDone = command == u"Tickler_Grouping" && hasReminderDoneColumn(connection);
    parents.open(commandText(command, remindersKeptDone), connection);
    const QList<int> parentColumns = columnsOf(parents.fieldNames(), parentFields);
    data.groups.reserve(parents.recordCount());
    QList<int> childColumns;
    bool childColumnsKnown = false;
    for (int row = 0; !parents.eof(); parents.moveNext(), ++row) {
        ReportGroup group {rowValues(parents, row, parentColumns), {}};
        if (Recordset* children = parents.chapter(childMember)) {
            if (!childColumnsKnown) {
                childColumns = columnsOf(children->fieldNames(), childFields);
                childColumnsKnown = true;
            }
            const int count = children->recordCount();
            group.children.reserve(count);
            for (int child = 0; child < count; ++child)
                group.children << rowValues(*children, child, childColumns);
        }
        data.groups << std::move(group);
    }
    return data;
}

} // namespace kartella
