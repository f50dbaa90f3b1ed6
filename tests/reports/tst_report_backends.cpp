// The reports read the same rows in the same order from a register file and from a
// register on a PostgreSQL server, whatever order the server keeps its rows in.
#include "ReportFixture.h"
#include "harness/ServerDatabase.h"
#include "reports/ReportCommands.h"

#include <QtTest>

#include <memory>

using namespace kartella;
using namespace kartella::test;

namespace {

// Adds rows whose order a report must fix by itself: names, dates and categories that tie,
// and rows changed after they were written, which a server then keeps after the others.
// Names carry an apostrophe and a percent sign.
void addTies(const TestRegister& reg, const QDate& day)
{
    const qint32 first = reg.insert("tbl_Contacts", {{"FullName", "Seán O'Brien"}, {"City", "Cork"}});
    const qint32 second = reg.insert("tbl_Contacts", {{"FullName", "Seán O'Brien"}, {"City", "Dublin"}});
    const qint32 category
        = reg.insert("tbl_Document_Categories", {{"DokKategorija", "D'Arc 100% _"}, {"Mnemonic", "DA"}});
    const qint32 twin
        = reg.insert("tbl_Document_Categories", {{"DokKategorija", "D'Arc 100% _"}, {"Mnemonic", "DB"}});
    for (const char* name : {"Pirma", "Antra", "Trečia"})
        reg.insert("tbl_Sub_Categories", {{"KategID", category}, {"DokSubKategorija", name}});
    for (const qint32 contact : {first, second, first}) {
        reg.insert("tbl_Phones",
            {{"ContactID", contact}, {"PhoneName", "Mob."},
                {"PhoneNumber", QString("+353 %1").arg(contact)}});
        reg.insert("tbl_HomePages",
            {{"ContactID", contact}, {"Description", "Home"}, {"HomeWWW", "https://example.ie"}});
    }
    QList<qint32> documents;
    for (int n = 0; n < 6; ++n) {
        documents << reg.insert("tbl_Documents",
            {{"KategID", n % 2 ? twin : category}, {"ContactID", n % 3 ? first : second},
                {"DokRegistracData", day}, {"DokRegistracIndeksas", QString("DA-%1").arg(n)},
                {"DokAntraste", QString("Raštas %1%").arg(n)}});
    }
    for (const qint32 document : {documents.at(0), documents.at(1), documents.at(0)})
        reg.insert("tbl_Tickler",
            {{"RastasID", document}, {"TicklerDate", QDate(2030, 5, 5)}, {"TicklerText", "Priminti"}});
    // Reminders already done, one beside those still to do and one alone under its document.
    for (const qint32 document : {documents.at(0), documents.at(2)})
        reg.insert("tbl_Tickler",
            {{"RastasID", document}, {"TicklerDate", QDate(2030, 4, 4)}, {"TicklerText", "Atlikta"},
                {"TicklerDone", 1}});
    // Every row written so far is changed once, the first ones first.
    const QList<std::pair<QString, QString>> changed {{"tbl_Contacts", "City"},
        {"tbl_Document_Categories", "Mnemonic"}, {"tbl_Sub_Categories", "DokSubKategorija"},
        {"tbl_Phones", "PhoneNumber"}, {"tbl_HomePages", "HomeWWW"}, {"tbl_Documents", "DokAntraste"},
        {"tbl_Tickler", "TicklerText"}};
    for (const auto& [table, field] : changed)
        reg.exec(QString("UPDATE %1 SET %2 = %2").arg(table, field));
}

QStringList printed(const ReportFixture& fx, const QString& report)
{
    ReportCommands commands;
    commands.setConnectionString(fx.reg.connectionString());
    const ReportLayout& layout = *findReportLayout(report);
    return allLines(layOut(layout, commands.run(layout)));
}

} // namespace

class ReportBackendsTest : public QObject
{
    Q_OBJECT

    std::unique_ptr<ReportFixture> m_file;
    std::unique_ptr<ReportFixture> m_server;

private Q_SLOTS:
    void initTestCase()
    {
        if (!ServerDatabase::available())
            QSKIP(qPrintable(ServerDatabase::skipReason()));
        m_file = std::make_unique<ReportFixture>(TestRegister::File);
        addTies(m_file->reg, m_file->thisMonth);
        m_server = std::make_unique<ReportFixture>(TestRegister::Server);
        addTies(m_server->reg, m_server->thisMonth);
    }

    void cleanupTestCase()
    {
        m_server.reset();
        m_file.reset();
    }

    void eachReportPrintsTheSameFromBothBackEnds_data()
    {
        // Two contacts of one name (keys 3 and 4), two categories of one name (keys 3 and
        // 4), documents DA-0 ... DA-5 of one day: the groups and their rows go by key.
        const QString o = "Seán O'Brien";
        const QString d = "D'Arc 100% _";
        QTest::addColumn<QString>("report");
        QTest::addColumn<QStringList>("inOrder");
        QTest::newRow("categories") << "categories"
                                    << QStringList {d + " DA", "Pirma", "Antra", "Trečia", d + " DB"};
        QTest::newRow("by-contacts") << "by-contacts"
                                     << QStringList {o + ' ' + o, "Raštas 1% {this} DA-1 " + d,
                                            "Raštas 2% {this} DA-2 " + d, "Raštas 4% {this} DA-4 " + d,
                                            "Raštas 5% {this} DA-5 " + d, o + ' ' + o,
                                            "Raštas 0% {this} DA-0 " + d, "Raštas 3% {this} DA-3 " + d};
        QTest::newRow("phones") << "phones"
                                << QStringList {o, "Mob. +353 3", "Mob. +353 3", o, "Mob. +353 4"};
        QTest::newRow("by-category") << "by-category"
                                     << QStringList {d, "Raštas 0% DA-0 {this} " + o,
                                            "Raštas 2% DA-2 {this} " + o, "Raštas 4% DA-4 {this} " + o, d,
                                            "Raštas 1% DA-1 {this} " + o, "Raštas 3% DA-3 {this} " + o,
                                            "Raštas 5% DA-5 {this} " + o};
        QTest::newRow("reminder") << "reminder"
                                  << QStringList {"DA-0 Raštas 0%", "{reminder} Priminti",
                                         "{reminder} Priminti", "DA-1 Raštas 1%", "{reminder} Priminti"};
        QTest::newRow("telephone-list")
            << "telephone-list" << QStringList {o, "Mob. +353 3", "Mob. +353 3", o, "Mob. +353 4"};
        QTest::newRow("addresses") << "addresses"
                                   << QStringList {o, "Cork", "Mob. +353 3", "Mob. +353 3", o, "Dublin",
                                          "Mob. +353 4"};
        QTest::newRow("this-month") << "this-month"
                                    << QStringList {d, "{this} DA-0 Raštas 0% " + o + ' ' + d,
                                           "{this} DA-2 Raštas 2% " + o + ' ' + d,
                                           "{this} DA-4 Raštas 4% " + o + ' ' + d, d,
                                           "{this} DA-1 Raštas 1% " + o + ' ' + d,
                                           "{this} DA-3 Raštas 3% " + o + ' ' + d,
                                           "{this} DA-5 Raštas 5% " + o + ' ' + d};
    }

    void eachReportPrintsTheSameFromBothBackEnds()
    {
        QFETCH(QString, report);
        QFETCH(QStringList, inOrder);
        const QStringList fromFile = printed(*m_file, report);
        const QStringList fromServer = printed(*m_server, report);
        QCOMPARE(fromServer, fromFile);
        QVERIFY(!fromFile.join('\n').contains("Atlikta"));
        qsizetype from = 0;
        for (QString line : inOrder) {
            line.replace("{this}", reportText(m_file->thisMonth))
                .replace("{reminder}", reportText(QDate(2030, 5, 5)));
            const qsizetype at = fromFile.indexOf(line, from);
            QVERIFY2(at >= 0, qPrintable(line + " not in order in:\n" + fromFile.join('\n')));
            from = at + 1;
        }
    }
};

int runReportBackendsTest(int argc, char** argv)
{
    ReportBackendsTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_report_backends.moc"
