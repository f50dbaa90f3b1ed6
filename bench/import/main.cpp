// Imports a vCard file and an Outlook CSV export of 10 000 contacts with two phones each,
// each into an empty register, the file read included, and prints the times:
//   vcard_import_ms: <n>
//   csv_import_ms: <n>
// Options: --contacts <n> (10000).
#include "addressbook/import/ContactFile.h"
#include "addressbook/import/ContactImporter.h"
#include "base/Error.h"
#include "store/Schema.h"
#include "store/Store.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>

#include <cstdio>

using namespace kartella;

namespace {

QString name(int i)
{
    static const QStringList first
        = {QStringLiteral("Jonas"), QStringLiteral("Ona"), QStringLiteral("Žydrūnas"),
            QStringLiteral("Aušra"), QStringLiteral("Petras"), QStringLiteral("Rūta")};
    static const QStringList last = {QStringLiteral("Petraitis"), QStringLiteral("Kazlauskienė"),
        QStringLiteral("Šimkus"), QStringLiteral("Čepaitė"), QStringLiteral("Jankauskas")};
    return first[i % first.size()] + u' ' + last[(i / first.size()) % last.size()] + u' '
        + QString::number(i);
}

QByteArray vCardFile(int contacts)
{
    QString text;
    for (int i = 0; i < contacts; ++i) {
        text += QStringLiteral("BEGIN:VCARD\r\nVERSION:3.0\r\nFN:%1\r\nORG:UAB Įmonė %2\r\n"
                               "TEL;TYPE=WORK,VOICE:+370 5 %2\r\nTEL;TYPE=CELL:+370 6 %2\r\n"
                               "ADR;TYPE=WORK:;;Gedimino pr. %2;Vilnius;;01103;Lietuva\r\n"
                               "EMAIL;TYPE=INTERNET:c%2@example.lt\r\nEND:VCARD\r\n")
                    .arg(name(i))
                    .arg(i);
    }
    return text.toUtf8();
}

QByteArray csvFile(int contacts)
{
    QString text = QStringLiteral(
        "\"Title\",\"First Name\",\"Middle Name\",\"Last Name\",\"Company\",\"Job Title\","
        "\"Business Street\",\"Business City\",\"Business Postal Code\","
        "\"Business Country/Region\",\"Business Phone\",\"Mobile Phone\",\"E-mail Address\"\r\n");
    for (int i = 0; i < contacts; ++i) {
        text += QStringLiteral(
            "\"\",\"%1\",\"\",\"\",\"UAB Įmonė %2\",\"\",\"Gedimino pr. %2\",\"Vilnius\",\"01103\","
            "\"Lietuva\",\"+370 5 %2\",\"+370 6 %2\",\"c%2@example.lt\"\r\n")
                    .arg(name(i))
                    .arg(i);
    }
    return text.toUtf8();
}

// Milliseconds to read file and import it into a new register in dir.
qint64 importInto(const QTemporaryDir& dir, const QString& fileName, const QByteArray& data, int contacts)
{
    const QString path = dir.filePath(fileName);
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(data) != data.size())
        throw Error(ErrorNumber::PathFileAccess, QStringLiteral("cannot write ") + path);
    file.close();
    const QString registerPath = dir.filePath(fileName + QStringLiteral(".mdb"));
    createRegister(registerPath);

    int errors = 0;
    QElapsedTimer timer;
    timer.start();
    ContactImporter importer(plainConnectionString(QStringLiteral("Microsoft.Jet.OLEDB.4.0"), registerPath),
        [&errors](const Error&) {
            ++errors;
            return true;
        });
    importer.run(readContactFile(path));
    const qint64 elapsed = timer.elapsed();
    if (errors != 0 || importer.counts().added != contacts)
        throw Error(ErrorNumber::CommandFailed,
            QStringLiteral("%1: %2 added, %3 errors").arg(fileName).arg(importer.counts().added).arg(errors));
    return elapsed;
}

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    int contacts = 10000;
    const QStringList arguments = QCoreApplication::arguments();
    for (int i = 1; i < arguments.size(); ++i) {
        if (arguments[i] == u"--contacts" && i + 1 < arguments.size())
            contacts = arguments[++i].toInt();
    }
    try {
        QTemporaryDir dir;
        const qint64 vcard = importInto(dir, QStringLiteral("contacts.vcf"), vCardFile(contacts), contacts);
        std::printf("vcard_import_ms: %lld\n", static_cast<long long>(vcard));
        const qint64 csv = importInto(dir, QStringLiteral("contacts.csv"), csvFile(contacts), contacts);
        std::printf("csv_import_ms: %lld\n", static_cast<long long>(csv));
    } catch (const Error& error) {
        std::fprintf(stderr, "kartella-bench-import: %s\n", error.what());
        return 1;
    }
    return 0;
}
