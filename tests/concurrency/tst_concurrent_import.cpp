#include "harness/ServerDatabase.h"
#include "harness/TestRegister.h"

#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

#include <memory>
#include <vector>

using namespace kartella;
using kartella::test::ServerDatabase;
using kartella::test::TestRegister;

namespace {

constexpr int Imports = 4;
constexpr int Contacts = 400;

// A vCard file of count contacts, each with a name of its own and two phones.
QString writeContacts(const QString& path, int count)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return file.errorString();
    QByteArray text;
    for (int i = 0; i < count; ++i) {
        const QByteArray n = QByteArray::number(i);
        text += "BEGIN:VCARD\r\nVERSION:3.0\r\nFN:Kontaktas " + n + "\r\nTEL;TYPE=WORK:+370 5 " + n
            + "\r\nTEL;TYPE=HOME:+370 6 " + n + "\r\nEND:VCARD\r\n";
    }
    file.write(text);
    return {};
}

} // namespace

// Several programs import into one register at once: the check for a name the register
// holds and the write of the contact are one step, so no name is stored twice.
class ConcurrentImportTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void sameFileAtOnce_data()
    {
        QTest::addColumn<int>("where");
        QTest::newRow("file") << int(TestRegister::File);
        QTest::newRow("server") << int(TestRegister::Server);
    }
    void sameFileAtOnce()
    {
        QFETCH(int, where);
        if (where == TestRegister::Server && !ServerDatabase::available())
            QSKIP(qPrintable(ServerDatabase::skipReason()));
        TestRegister reg {TestRegister::Where(where)};
        reg.insert("tbl_Contacts", {{"FullName", "KONTAKTAS 7"}});
        const QString file = reg.dir() + "/contacts.vcf";
        QCOMPARE(writeContacts(file, Contacts), QString());

        std::vector<std::unique_ptr<QProcess>> imports;
        for (int i = 0; i < Imports; ++i) {
            imports.push_back(std::make_unique<QProcess>());
            imports.back()->start(QStringLiteral(KARTELLA_DB_PATH), {"import", reg.path(), file});
        }
        int added = 0;
        for (const auto& import : imports) {
            QVERIFY(import->waitForFinished(120000));
            const QString out = QString::fromUtf8(import->readAllStandardOutput());
            QVERIFY2(import->exitCode() == 0, qPrintable(out + import->readAllStandardError()));
            const QRegularExpressionMatch counts = QRegularExpression("(\\d+) contacts? added").match(out);
            QVERIFY2(counts.hasMatch(), qPrintable(out));
            added += counts.captured(1).toInt();
        }
        QCOMPARE(added, Contacts - 1);
        QCOMPARE(reg.scalar("SELECT COUNT(*) FROM tbl_Contacts").toInt(), Contacts);
        QCOMPARE(reg.scalar("SELECT COUNT(DISTINCT lower(FullName)) FROM tbl_Contacts").toInt(), Contacts);
        QCOMPARE(reg.scalar("SELECT COUNT(*) FROM tbl_Phones").toInt(), 2 * (Contacts - 1));
    }
};

QTEST_GUILESS_MAIN(ConcurrentImportTest)
#include "tst_concurrent_import.moc"
