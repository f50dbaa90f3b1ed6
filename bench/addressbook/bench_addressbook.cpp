// Times the address book on a register of 5 000 contacts with 10 000 phones and 3 000 web
// pages: opening the window to its filled list and grids, a letter button, and a click on
// another contact's line to its grids filled. Prints "name: value" lines.
#include "addressbook/AddressBookWindow.h"
#include "options/FirstRun.h"
#include "options/OptionStore.h"
#include "store/InsertBatch.h"
#include "store/Schema.h"
#include "store/Store.h"
#include "store/engine/Connection.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QTemporaryDir>
#include <QTextStream>
#include <QTreeWidget>

#include <algorithm>
#include <functional>
#include <vector>

using namespace kartella;

namespace {

constexpr int Contacts = 5000;
constexpr int PhonesPerContact = 2;
constexpr int HomePages = 3000;

double medianMs(int runs, const std::function<void()>& work, const std::function<void()>& setup = {})
{
    std::vector<double> times;
    for (int i = 0; i < runs; ++i) {
        if (setup)
            setup();
        QElapsedTimer timer;
        timer.start();
        work();
        times.push_back(double(timer.nsecsElapsed()) / 1e6);
    }
    std::sort(times.begin(), times.end());
    return times[times.size() / 2];
}

void fillContacts(const QString& path)
{
    static const QStringList first
        = {QStringLiteral("Ona"), QStringLiteral("Jonas"), QStringLiteral("Birutė"), QStringLiteral("Petras"),
            QStringLiteral("Šarūnas"), QStringLiteral("Aistė"), QStringLiteral("Kęstutis"),
            QStringLiteral("Rasa"), QStringLiteral("Mindaugas"), QStringLiteral("Gintarė"),
            QStringLiteral("Tomas"), QStringLiteral("Vaida"), QStringLiteral("Darius")};
    static const QStringList last = {QStringLiteral("Petraitis"), QStringLiteral("Jonaitis"),
        QStringLiteral("Kazlauskas"), QStringLiteral("Žukauskas"), QStringLiteral("Butkus"),
        QStringLiteral("Urbonas"), QStringLiteral("Navickas")};
    Connection connection(plainConnectionString(QStringLiteral("Microsoft.Jet.OLEDB.4.0"), path));
    connection.open();
    connection.beginTrans();
    {
        InsertBatch contacts(connection, QStringLiteral("tbl_Contacts"),
            {QStringLiteral("ContactID"), QStringLiteral("FullName"), QStringLiteral("CompanyName"),
                QStringLiteral("City"), QStringLiteral("EmailName")});
        InsertBatch phones(connection, QStringLiteral("tbl_Phones"),
            {QStringLiteral("ContactID"), QStringLiteral("PhoneName"), QStringLiteral("PhoneNumber")});
        InsertBatch pages(connection, QStringLiteral("tbl_HomePages"),
            {QStringLiteral("ContactID"), QStringLiteral("Description"), QStringLiteral("HomeWWW")});
        for (int id = 1; id <= Contacts; ++id) {
            // Every tenth contact is a company only.
            const QVariant name = id % 10 == 0
                ? QVariant()
                : QVariant(first[id % first.size()] + u' ' + last[(id / first.size()) % last.size()]);
            contacts.add({id, name, QStringLiteral("UAB Įmonė %1").arg(id), QStringLiteral("Vilnius"),
                QStringLiteral("c%1@example.lt").arg(id)});
            for (int p = 0; p < PhonesPerContact; ++p)
                phones.add({id, p ? QStringLiteral("Mobile") : QStringLiteral("Office"),
                    QStringLiteral("+370 (5) %1-%2").arg(id).arg(p)});
        }
        for (int i = 0; i < HomePages; ++i)
            pages.add({1 + (i * 7) % Contacts, QStringLiteral("Home"), QStringLiteral("www.c%1.lt").arg(i)});
        contacts.flush();
        phones.flush();
        pages.flush();
    }
    connection.commitTrans();
}

} // namespace

int main(int argc, char* argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    QTemporaryDir dir;
    qputenv("XDG_CONFIG_HOME", dir.filePath(QStringLiteral("config")).toUtf8());
    seedOptionsIfMissing();
    const QString path = dir.filePath(QStringLiteral("Kartella.mdb"));
    createRegister(path);
    fillContacts(path);
    setRegValue(QStringLiteral("DbLocation"), path);

    const int runs = 7;
    int lines = 0;
    const double open = medianMs(runs, [&] {
        AddressBookWindow window;
        window.show();
        QCoreApplication::processEvents();
        lines = window.findChild<QTreeWidget*>(QStringLiteral("lvwFullNames"))->topLevelItemCount();
    });

    AddressBookWindow window;
    window.show();
    QCoreApplication::processEvents();
    // "J" (Jonas) after "O" (Ona), so each click changes the list.
    const double filter = medianMs(
        runs, [&] { window.filterContacts('J' - 'A'); }, [&] { window.filterContacts('O' - 'A'); });

    window.filterContacts(26);
    auto* list = window.findChild<QTreeWidget*>(QStringLiteral("lvwFullNames"));
    int next = 1;
    const double lineChange = medianMs(runs * 3, [&] {
        list->setCurrentItem(list->topLevelItem(next));
        next = (next * 37 + 11) % list->topLevelItemCount();
    });

    QTextStream out(stdout);
    out << "contacts: " << lines << '\n';
    out << "open_ms: " << QString::number(open, 'f', 1) << '\n';
    out << "filter_ms: " << QString::number(filter, 'f', 1) << '\n';
    out << "line_change_ms: " << QString::number(lineChange, 'f', 1) << '\n';
    return 0;
}
