#include "TrashFixture.h"

#include "store/engine/Recordset.h"

#include <QDate>
#include <QDir>
#include <QFile>

namespace kartella::test {

namespace {

const char* const Tables[][2] = {
    {"tbl_Document_Categories", "KategID"},
    {"tbl_Sub_Categories", "SubKategID"},
    {"tbl_Contacts", "ContactID"},
    {"tbl_Phones", "PhoneID"},
    {"tbl_HomePages", "HomeID"},
    {"tbl_Documents", "RastasID"},
    {"tbl_Sub_Documents", "SubRastasID"},
    {"tbl_Tickler", "TicklerID"},
    {"tbl_Document_Text", "RastasID"},
};

} // namespace

TrashFixture::TrashFixture(TestRegister::Where where)
    : reg(where)
{
    trashFolder = reg.dir() + QStringLiteral("/trash");
    connection.open(reg.connectionString());
    id["Sutartys"]
        = reg.insert("tbl_Document_Categories", {{"DokKategorija", "Sutartys"}, {"Mnemonic", "SUT"}});
    id["Nuomos"] = reg.insert("tbl_Sub_Categories",
        {{"KategID", id["Sutartys"]}, {"DokSubKategorija", "Nuomos"}, {"SubPathToFiles", reg.dir()}});
    id["Pirkimo"]
        = reg.insert("tbl_Sub_Categories", {{"KategID", id["Sutartys"]}, {"DokSubKategorija", "Pirkimo"}});
    id["Ona"] = reg.insert("tbl_Contacts",
        {{"FullName", "Ona Žemaitė"}, {"CompanyName", "UAB Ąžuolas"}, {"Notes", "it's 'quoted'"}});
    id["phone"] = reg.insert(
        "tbl_Phones", {{"ContactID", id["Ona"]}, {"PhoneName", "Darbo"}, {"PhoneNumber", "+370 5 1"}});
    id["home"] = reg.insert(
        "tbl_HomePages", {{"ContactID", id["Ona"]}, {"Description", "Svetainė"}, {"HomeWWW", "x.lt"}});
    file["doc"] = makeFile("sutartis.doc", "the contract");
    file["rel1"] = makeFile("priedas 1.pdf", QByteArray("appendix\0one", 12));
    file["rel2"] = makeFile("priedas 2.txt", "appendix two");
    id["doc"] = reg.insert("tbl_Documents",
        {{"DokAntraste", "Nuomos sutartis"}, {"DokRegistracIndeksas", "SUT-7"},
            {"DokRegistracData", QDate(2024, 2, 29)}, {"DokGavSiuntData", QDate(1999, 12, 31)},
            {"RastoKel", file["doc"]}, {"ContactID", id["Ona"]}, {"KategID", id["Sutartys"]},
            {"SubKategID", id["Nuomos"]}, {"KryptisID", 2}, {"DokPastaba", QVariant()}});
    id["rel1"] = reg.insert("tbl_Sub_Documents",
        {{"RastasID", id["doc"]}, {"SubDocDescript", "Priedas 1"}, {"SubRastoKelias", file["rel1"]},
            {"SubRastGavimoData", QDate(2024, 3, 1)}, {"ContactID", id["Ona"]}});
    id["rel2"] = reg.insert("tbl_Sub_Documents",
        {{"RastasID", id["doc"]}, {"SubDocDescript", "Priedas 2"}, {"SubRastoKelias", file["rel2"]}});
    id["reminder"] = reg.insert("tbl_Tickler",
        {{"RastasID", id["doc"]}, {"TicklerDate", QDate(2030, 1, 1)}, {"TicklerText", "Pratęsti"}});
    reg.exec(
        QStringLiteral("INSERT INTO tbl_Document_Text (RastasID, FilePath, FileSize, State, Body) VALUES "
                       "(%1, '%2', 12, 1, 'the contract')")
            .arg(id["doc"])
            .arg(file["doc"]));
    // Rows that stay: another document and its file.
    file["other"] = makeFile("kita.doc", "another");
    id["other"] = reg.insert("tbl_Documents",
        {{"DokAntraste", "Kita"}, {"RastoKel", file["other"]}, {"KategID", id["Sutartys"]},
            {"DokRegistracIndeksas", "SUT-8"}});
}

QString TrashFixture::makeFile(const QString& name, const QByteArray& content)
{
    const QString path = QDir(reg.dir()).filePath(QStringLiteral("files/") + name);
    QDir().mkpath(QFileInfo(path).absolutePath());
    QFile out(path);
    out.open(QIODevice::WriteOnly);
    out.write(content);
    return path;
}

QByteArray TrashFixture::bytes(const QString& path)
{
    QFile in(path);
    return in.open(QIODevice::ReadOnly) ? in.readAll() : QByteArray();
}

QStringList TrashFixture::snapshot()
{
    QStringList rows;
    for (const auto& [table, key] : Tables) {
        Recordset all;
        all.open(QStringLiteral("SELECT * FROM %1 ORDER BY %2").arg(QLatin1String(table), QLatin1String(key)),
            connection);
        const QStringList names = all.fieldNames();
        for (int row = 0; row < all.recordCount(); ++row) {
            QString text = QLatin1String(table);
            for (int column = 0; column < names.size(); ++column) {
                const QVariant value = all.rowValue(row, column);
                text += QStringLiteral(" %1=%2(%3)")
                            .arg(names[column], value.toString(),
                                QLatin1String(value.isValid() ? value.typeName() : "null"));
            }
            rows << text;
        }
    }
    return rows;
}

} // namespace kartella::test
