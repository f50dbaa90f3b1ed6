#include "ReportFixture.h"

#include <QBuffer>
#include <QPdfWriter>

namespace kartella::test {

ReportFixture::ReportFixture(TestRegister::Where where)
    : reg(where)
    , thisMonth(QDate::currentDate().addDays(1 - QDate::currentDate().day()))
    , previousMonth(thisMonth.addMonths(-1))
    , reminderDate(2030, 1, 1)
{
    const qint32 letters = reg.insert(QStringLiteral("tbl_Document_Categories"),
        {{"DokKategorija", "Laiškai"}, {"Mnemonic", "LAI"}, {"DokKategDaug", "/docs/lai"},
            {"DokTemplates", "/t/lai.dot"}});
    const qint32 contracts = reg.insert(
        QStringLiteral("tbl_Document_Categories"), {{"DokKategorija", "Sutartys"}, {"Mnemonic", "SUT"}});
    reg.insert(QStringLiteral("tbl_Sub_Categories"),
        {{"KategID", letters}, {"DokSubKategorija", "Gauti"}, {"SubDokTemplatesExel", "/t/gauti.xlt"}});
    const qint32 ona = reg.insert(QStringLiteral("tbl_Contacts"),
        {{"FullName", "Ona Petraitienė"}, {"CompanyName", "UAB Ona"}, {"Address", "Gedimino pr. 1"},
            {"City", "Vilnius"}, {"Country", "Lithuania"}});
    const qint32 jonas = reg.insert(QStringLiteral("tbl_Contacts"), {{"FullName", "Jonas Jonaitis"}});
    reg.insert(QStringLiteral("tbl_Phones"),
        {{"ContactID", ona}, {"PhoneName", "Mob."}, {"PhoneNumber", "+370 600 1"}});
    reg.insert(QStringLiteral("tbl_Phones"),
        {{"ContactID", ona}, {"PhoneName", "Darbo"}, {"PhoneNumber", "+370 5 111"}});
    const qint32 lease = reg.insert(QStringLiteral("tbl_Documents"),
        {{"KategID", contracts}, {"ContactID", ona}, {"DokRegistracData", thisMonth},
            {"DokRegistracIndeksas", "SUT-1"}, {"DokAntraste", "Sutartis dėl nuomos"}});
    reg.insert(QStringLiteral("tbl_Documents"),
        {{"KategID", letters}, {"DokRegistracData", thisMonth}, {"DokRegistracIndeksas", "LAI-2"},
            {"DokAntraste", "Laiškas be adresato"}});
    reg.insert(QStringLiteral("tbl_Documents"),
        {{"KategID", letters}, {"ContactID", jonas}, {"DokRegistracData", previousMonth},
            {"DokRegistracIndeksas", "LAI-3"}, {"DokAntraste", "Senas laiškas"}});
    reg.insert(QStringLiteral("tbl_Tickler"),
        {{"RastasID", lease}, {"TicklerDate", reminderDate}, {"TicklerText", "Pratęsti sutartį"}});
}

QList<ReportPage> layOut(const ReportLayout& layout, const ReportData& data)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setResolution(300);
    setReportPage(writer, layout);
    return ReportPaginator(layout, writer, reportToday()).paginate(data);
}

QStringList allLines(const QList<ReportPage>& pages)
{
    QStringList lines;
    for (const ReportPage& page : pages)
        lines << page.lines();
    return lines;
}

} // namespace kartella::test
