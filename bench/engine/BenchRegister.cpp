#include "BenchRegister.h"

#include "store/Schema.h"
#include "store/Store.h"
#include "store/engine/Connection.h"

#include <QDate>
#include <QRandomGenerator>
#include <QStringList>

namespace kartella::bench {

namespace {

const QStringList FirstNames = {"Jonas", "Petras", "Ąžuolas", "Rūta", "Eglė", "Šarūnas", "Žygimantas",
    "Aistė", "Mindaugas", "Gintarė", "Laura", "Tomas", "Vaida", "Darius", "Ieva"};
const QStringList LastNames = {"Kazlauskas", "Jankauskas", "Petrauskas", "Stankevičius", "Vasiliauskas",
    "Žukauskas", "Butkus", "Paulauskas", "Urbonas", "Kavaliauskas"};
const QStringList Words = {"sutartis", "aktas", "sąskaita", "įsakymas", "prašymas", "ataskaita", "protokolas",
    "nuoma", "pirkimas", "žemės", "paslaugų", "tiekimo", "metinė", "raštas"};

QString quoted(const QString& text)
{
    return u'\'' + QString(text).replace(u'\'', QLatin1String("''")) + u'\'';
}

// Rows are written a few hundred at a time.
class Inserter
{
public:
    Inserter(Connection& connection, QString head)
        : m_connection(connection)
        , m_head(std::move(head))
    { }
    ~Inserter() { flush(); }
    void add(const QString& values)
    {
        m_rows << u'(' + values + u')';
        if (m_rows.size() >= 400)
            flush();
    }
    void flush()
    {
        if (m_rows.isEmpty())
            return;
        m_connection.execute(m_head + QStringLiteral(" VALUES ") + m_rows.join(u','));
        m_rows.clear();
    }

private:
    Connection& m_connection;
    QString m_head;
    QStringList m_rows;
};

} // namespace

void buildRegister(const QString& path, int documents)
{
    createRegister(path);
    Connection connection(plainConnectionString(QStringLiteral("Microsoft.Jet.OLEDB.4.0"), path));
    connection.open();
    connection.beginTrans();
    QRandomGenerator random(20240305);
    auto pick = [&random](const QStringList& list) { return list[random.bounded(int(list.size()))]; };

    const int categories = 40;
    {
        Inserter inserter(connection,
            QStringLiteral("INSERT INTO tbl_Document_Categories (KategID, DokKategorija, "
                           "Mnemonic, DokKategDaug)"));
        for (int id = 1; id <= categories; ++id) {
            const QString title = pick(Words) + u' ' + QString::number(id);
            inserter.add(QString::number(id) + u',' + quoted(title) + u',' + quoted(title.left(3).toUpper())
                + u',' + quoted(QStringLiteral("/home/user/Documents/") + title));
        }
    }
    const int contacts = 3000;
    {
        Inserter inserter(connection,
            QStringLiteral("INSERT INTO tbl_Contacts (ContactID, FullName, CompanyName, City, EmailName)"));
        for (int id = 1; id <= contacts; ++id) {
            const QString name = pick(FirstNames) + u' ' + pick(LastNames);
            inserter.add(QString::number(id) + u',' + quoted(name) + u','
                + quoted(QStringLiteral("UAB ") + pick(Words)) + QStringLiteral(",'Vilnius',")
                + quoted(QStringLiteral("info%1@example.lt").arg(id)));
        }
    }
    {
        Inserter inserter(connection,
            QStringLiteral("INSERT INTO tbl_Documents (DokGavSiuntData, DokRegistracData, "
                           "DokRegistracIndeksas, DokAntraste, DokVykdytojas, "
                           "DokIvykdymoZyma, RastoKel, ContactID, KategID, DokPastaba, "
                           "KryptisID)"));
        const QDate first(2015, 1, 1);
        for (int n = 0; n < documents; ++n) {
            const QDate registered = first.addDays(random.bounded(3650));
            const QDate received = registered.addDays(-random.bounded(10));
            const int category = 1 + random.bounded(categories);
            const QString description = pick(Words) + u' ' + pick(Words) + u' ' + pick(Words);
            const QString contact = random.bounded(10) == 0 ? QStringLiteral("Null")
                                                            : QString::number(1 + random.bounded(contacts));
            const QString notes = random.bounded(4) == 0
                ? quoted(description + QStringLiteral(": pastabos tekstas"))
                : QStringLiteral("Null");
            inserter.add(QStringLiteral("#%1#,#%2#,")
                             .arg(received.toString(u"M/d/yyyy"), registered.toString(u"M/d/yyyy"))
                + quoted(QStringLiteral("SUT-%1-%2").arg(registered.toString(u"yyyyMMdd")).arg(n % 97)) + u','
                + quoted(description) + QStringLiteral(",Null,Null,")
                + quoted(QStringLiteral("/home/user/Documents/kategorija %1/%2 %3.doc")
                             .arg(category)
                             .arg(description)
                             .arg(n))
                + u',' + contact + u',' + QString::number(category) + u',' + notes + u','
                + QString::number(1 + random.bounded(4)));
        }
    }
    connection.commitTrans();
    connection.close();
}

} // namespace kartella::bench
