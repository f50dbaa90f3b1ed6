#include "StoreFixture.h"

#include "base/Error.h"
#include "harness/TestRegister.h"

#include <QTest>

namespace kartella::test {

QDate firstOfPreviousMonth()
{
    const QDate today = QDate::currentDate();
    return QDate(today.year(), today.month(), 1).addMonths(-1);
}

void buildFixture(const TestRegister& reg)
{
    const auto category = [&](int id, const char* title, const QVariant& mnemonic, const QVariant& folder) {
        reg.insert("tbl_Document_Categories",
            {{"KategID", id}, {"DokKategorija", QString::fromUtf8(title)}, {"Mnemonic", mnemonic},
                {"DokKategDaug", folder}});
    };
    category(1, "Sutartys", "SUT", "/f/Sut");
    category(2, "Žemės nuoma", "ZEM", "/f/Zem");
    category(3, "Ataskaitos", {}, {});
    category(4, "čekiai", "CEK", "/f/Cek");

    const auto sub = [&](int id, int categoryId, const QVariant& title, const QVariant& folder) {
        reg.insert("tbl_Sub_Categories",
            {{"SubKategID", id}, {"KategID", categoryId}, {"DokSubKategorija", title},
                {"SubPathToFiles", folder}});
    };
    sub(1, 1, "Nuomos", "/f/Sut/Nuoma");
    sub(2, 1, "Darbo", {});
    sub(3, 3, QString::fromUtf8("Metinės"), {});
    sub(4, 0, "Be kategorijos", {});
    sub(5, 2, {}, {});

    const auto contact = [&](int id, const QVariant& name, const QVariant& company) {
        reg.insert("tbl_Contacts", {{"ContactID", id}, {"FullName", name}, {"CompanyName", company}});
    };
    contact(1, "Petras Jonaitis", "UAB Alfa");
    contact(2, QString::fromUtf8("Ąžuolas Kazlauskas"), {});
    contact(3, {}, QString::fromUtf8("UAB „Beta“"));
    contact(4, "antanas adomaitis", {});
    contact(5, QString::fromUtf8("Šarūnė Vaitkutė"), {});

    const auto phone = [&](int id, int owner, const char* kind, const char* number) {
        reg.insert("tbl_Phones",
            {{"PhoneID", id}, {"ContactID", owner}, {"PhoneName", kind}, {"PhoneNumber", number}});
    };
    phone(1, 1, "Business", "+370 5 2123456");
    phone(2, 1, "Mobile", "+370 612 34567");
    phone(3, 2, "Home", "+370 37 123456");
    phone(4, 3, "Fax", "+370 5 2000000");
    phone(5, 4, "Mobile", "+370 698 76543");
    reg.insert("tbl_HomePages",
        {{"HomeID", 1}, {"ContactID", 1}, {"Description", QString::fromUtf8("Svetainė")},
            {"HomeWWW", "https://alfa.lt"}});
    reg.insert("tbl_HomePages", {{"HomeID", 2}, {"ContactID", 3}, {"HomeWWW", "https://beta.lt"}});

    const auto document = [&](int id, QDate registered, const QVariant& contactId, const QVariant& category,
                              const QVariant& subCategory, int direction, const QVariant& path) {
        reg.insert("tbl_Documents",
            {{"RastasID", id}, {"DokGavSiuntData", registered.addDays(-1)}, {"DokRegistracData", registered},
                {"DokRegistracIndeksas", QString("IDX-" + QString::number(id))},
                {"DokAntraste", QString("Dokumentas " + QString::number(id))}, {"RastoKel", path},
                {"ContactID", contactId}, {"KategID", category}, {"SubKategID", subCategory},
                {"KryptisID", direction}});
    };
    document(1, {2024, 3, 5}, 1, 1, 1, 3, "/f/Sut/SUT-0001.doc");
    document(2, {2024, 3, 20}, {}, 1, 2, 2, {});
    document(3, {2024, 4, 1}, 2, 2, {}, 1, {});
    document(4, {2024, 2, 10}, 4, 3, 3, 4, {});
    document(5, {2024, 4, 15}, 3, {}, {}, 3, {});
    document(6, {2024, 3, 12}, 5, 4, {}, 3, {});
    document(7, QDate::currentDate(), 1, 2, {}, 1, {});
    document(8, firstOfPreviousMonth(), 5, 1, 1, 2, {});

    const auto related = [&](int id, int parent, const char* text, const QVariant& contactId,
                             const QVariant& path, QDate date) {
        reg.insert("tbl_Sub_Documents",
            {{"SubRastasID", id}, {"RastasID", parent}, {"SubDocDescript", QString::fromUtf8(text)},
                {"ContactID", contactId}, {"SubRastoKelias", path}, {"SubRastGavimoData", date}});
    };
    related(1, 1, "Priedas", 1, "/f/p1.doc", {2024, 3, 6});
    related(2, 1, "Sąmata", {}, {}, {2024, 3, 7});
    related(3, 3, "Lydraštis", 2, {}, {2024, 4, 2});

    const auto reminder = [&](int id, int parent, QDate date, const char* text) {
        reg.insert("tbl_Tickler",
            {{"TicklerID", id}, {"RastasID", parent}, {"TicklerDate", date}, {"TicklerText", text}});
    };
    reminder(1, 1, {2024, 3, 15}, "Priminti");
    reminder(2, 1, {2024, 3, 1}, "Ankstesnis");
    reminder(3, 4, {2024, 2, 20}, "Patikrinti");
}

bool tryOpen(Recordset& recordset, const QString& source, Connection& connection)
{
    try {
        recordset.open(source, connection);
        return true;
    } catch (const Error& error) {
        QTest::qFail(qPrintable(error.description()), __FILE__, __LINE__);
        return false;
    }
}

QString renderRow(Recordset& recordset, const QStringList& fields)
{
    QStringList parts;
    for (const QString& field : fields) {
        const QVariant value = recordset.fields(field).value();
        if (isNull(value))
            parts << "-";
        else if (value.typeId() == QMetaType::QDate)
            parts << value.toDate().toString(Qt::ISODate);
        else
            parts << value.toString();
    }
    return parts.join('|');
}

QStringList renderRows(Recordset& recordset, const QStringList& fields)
{
    QStringList rows;
    if (recordset.recordCount() == 0)
        return rows;
    for (recordset.moveFirst(); !recordset.eof(); recordset.moveNext())
        rows << renderRow(recordset, fields);
    return rows;
}

} // namespace kartella::test
