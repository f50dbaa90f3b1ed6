#include "store/SampleData.h"

#include <QStringList>

namespace kartella::sample {

namespace {

QString S(const char* utf8)
{
    return QString::fromUtf8(utf8);
}

QList<QString> list(std::initializer_list<const char*> items)
{
    QList<QString> out;
    out.reserve(qsizetype(items.size()));
    for (const char* item : items)
        out << S(item);
    return out;
}

} // namespace

const QList<CategoryEntry>& sampleCategories()
{
    static const QList<CategoryEntry> categories = {
        {S("Sutartys"), S("SUT"), S("Sutartys"),
            {{S("Nuomos sutartys"), S("Sutartys/Nuoma")}, {S("Paslaugų sutartys"), {}},
                {S("Darbo sutartys"), S("Sutartys/Darbo")}},
            list({"Nuomos sutartis", "Paslaugų teikimo sutartis", "Darbo sutartis", "Sutarties pakeitimas",
                "Pirkimo–pardavimo sutartis"})},
        {S("Įsakymai"), S("ISK"), S("Įsakymai"), {},
            list({"Įsakymas dėl atostogų", "Įsakymas dėl komandiruotės", "Įsakymas dėl priėmimo į darbą",
                "Įsakymas dėl inventorizacijos"})},
        {S("Raštai"), S("RAS"), S("Raštai"),
            {{S("Gaunami raštai"), S("Raštai/Gaunami")}, {S("Siunčiami raštai"), S("Raštai/Siunčiami")}},
            list({"Raštas dėl duomenų pateikimo", "Atsakymas į paklausimą",
                "Pranešimas apie pasikeitusius rekvizitus", "Paklausimas dėl kainų",
                "Pretenzija dėl pristatymo"})},
        {S("Sąskaitos faktūros"), S("SF"), S("Sąskaitos"),
            {{S("Gautos sąskaitos"), S("Sąskaitos/Gautos")}, {S("Išrašytos sąskaitos"), {}}},
            list({"PVM sąskaita faktūra", "Išankstinė sąskaita", "Kreditinė sąskaita",
                "Sąskaita už paslaugas"})},
        {S("Ataskaitos"), S("ATA"), S("Ataskaitos"),
            {{S("Metinės ataskaitos"), {}}, {S("Ketvirtinės ataskaitos"), {}},
                {S("Mėnesinės ataskaitos"), {}}},
            list({"Ketvirčio finansinė ataskaita", "Veiklos ataskaita", "Metinė ataskaita",
                "Mokesčių deklaracija"})},
        {S("Prašymai"), {}, S("Prašymai"), {},
            list({"Prašymas dėl atostogų", "Prašymas išduoti pažymą", "Prašymas dėl darbo laiko",
                "Prašymas grąžinti permoką"})},
        {S("Protokolai"), S("PRT"), {},
            {{S("Valdybos posėdžiai"), S("Protokolai/Valdyba")}, {S("Susirinkimai"), {}}},
            list({"Posėdžio protokolas", "Visuotinio susirinkimo protokolas",
                "Komisijos posėdžio protokolas"})},
        {S("Žemės nuoma"), S("ZEM"), S("Žemė"), {},
            list({"Žemės sklypo nuomos sutartis", "Sklypo planas", "Nuomos mokesčio skaičiavimas"})},
        {S("Čekiai ir kvitai"), {}, {}, {}, list({"Kasos čekis", "Mokėjimo kvitas", "Banko išrašas"})},
        {S("Pirkimai"), S("PIR"), S("Pirkimai"), {{S("Mažos vertės pirkimai"), S("Pirkimai/Mažos vertės")}},
            list({"Pirkimo paraiška", "Tiekėjo pasiūlymas", "Pirkimo dokumentai", "Pirkimo sutartis"})},
        {S("Kvietimai"), {}, {}, {}, list({"Kvietimas į seminarą", "Kvietimas į parodą", "Padėka"})},
    };
    return categories;
}

const QList<ContactEntry>& sampleContacts()
{
    static const QList<ContactEntry> contacts = [] {
        const QStringList people = {
            S("Antanas Petrauskas"),
            S("Ąžuolas Kazlauskas"),
            S("Aistė Jankauskienė"),
            S("Birutė Stankevičienė"),
            S("Benas Vasiliauskas"),
            S("Česlovas Žukauskas"),
            S("Česlava Butkienė"),
            S("Dainius Paulauskas"),
            S("Dalia Urbonienė"),
            S("Edvardas Kavaliauskas"),
            S("Eglė Navickienė"),
            S("Gintaras Rimkus"),
            S("Giedrė Balčiūnienė"),
            S("Henrikas Vaitkus"),
            S("Ieva Lukošiūtė"),
            S("Jonas Ramanauskas"),
            S("Jūratė Sadauskienė"),
            S("Kęstutis Mikalauskas"),
            S("Kristina Adomaitytė"),
            S("Laimonas Žilinskas"),
            S("Lina Matulevičiūtė"),
            S("Mindaugas Budrys"),
            S("Milda Kairytė"),
            S("Nerijus Barauskas"),
            S("Neringa Šimkutė"),
            S("Ona Grigaitienė"),
            S("Paulius Savickas"),
            S("Rasa Jonaitienė"),
            S("Rimantas Petraitis"),
            S("Saulius Marcinkevičius"),
            S("Šarūnas Vaičiulis"),
            S("Šarūnė Juodytė"),
            S("Tomas Baranauskas"),
            S("Ugnė Kazlauskaitė"),
            S("Vytautas Stankus"),
            S("Vilma Zabielienė"),
            S("Žydrūnas Lukšys"),
            S("Žaneta Pocienė"),
            S("Zigmas Kuzmickas"),
            S("Rūta Černiauskienė"),
            S("jonas mačiulis"),
            S("ona žemaitienė"),
            S("vaidas kriaučiūnas"),
            S("Seán O'Connor"),
            S("Irena Kvedaraitė"),
            S("Algirdas Sabonis"),
            S("Valdas Aleknavičius"),
            S("Danutė Pakalnienė"),
            S("Ramunė Tamošiūnienė"),
            S("Marius Gudaitis"),
            S("Arūnas Žemaitis"),
            S("Ingrida Šalkauskienė"),
            S("Lukas Grybauskas"),
            S("Agnė Čepulytė"),
        };
        const QStringList companiesOnly = {
            S("UAB „Baltijos statyba“"),
            S("AB „Nemuno energija“"),
            S("VšĮ „Kauno knygų namai“"),
            S("UAB „Šiaurės logistika“"),
            S("UAB „Žalgirio baldai“"),
            S("MB „Čiobrelis“"),
        };
        QList<ContactEntry> out;
        for (const QString& name : people)
            out << ContactEntry {name, {}};
        for (const QString& company : companiesOnly)
            out << ContactEntry {{}, company};
        return out;
    }();
    return contacts;
}

const QList<CityEntry>& sampleCities()
{
    static const QList<CityEntry> cities = {
        {S("Vilnius"), S("Vilniaus apskr."), S("Aukštaitija"), S("LT-0"), S("5")},
        {S("Kaunas"), S("Kauno apskr."), S("Aukštaitija"), S("LT-4"), S("37")},
        {S("Klaipėda"), S("Klaipėdos apskr."), S("Mažoji Lietuva"), S("LT-9"), S("46")},
        {S("Šiauliai"), S("Šiaulių apskr."), S("Žemaitija"), S("LT-7"), S("41")},
        {S("Panevėžys"), S("Panevėžio apskr."), S("Aukštaitija"), S("LT-3"), S("45")},
        {S("Alytus"), S("Alytaus apskr."), S("Dzūkija"), S("LT-6"), S("315")},
        {S("Marijampolė"), S("Marijampolės apskr."), S("Suvalkija"), S("LT-6"), S("343")},
        {S("Utena"), S("Utenos apskr."), S("Aukštaitija"), S("LT-2"), S("389")},
    };
    return cities;
}

const QList<QString>& sampleStreets()
{
    static const QList<QString> streets
        = list({"Gedimino pr.", "Laisvės al.", "Vilniaus g.", "Taikos pr.", "Žalgirio g.", "Savanorių pr.",
            "Ąžuolyno g.", "Pramonės g.", "Basanavičiaus g.", "Šilo g.", "Čiurlionio g.", "Liepų g."});
    return streets;
}

const QList<QString>& sampleCompanies()
{
    static const QList<QString> companies = list({"UAB „Ąžuolo dirbtuvės“", "UAB „Baltijos statyba“",
        "AB „Nemuno energija“", "UAB „Šiaurės logistika“", "UAB „Vilniaus apskaita“",
        "Kauno technikos kolegija", "UAB „Gintarinė jūra“", "UAB „Medžio linija“"});
    return companies;
}

const QList<QString>& sampleNotes()
{
    static const QList<QString> notes = list({
        "Originalas saugomas archyve.",
        "Reikia pasirašyti iki mėnesio pabaigos.",
        "Kopija išsiųsta buhalterijai.",
        "Laukiama atsakymo.",
        "Pateikta elektroniniu paštu.\r\nPopierinis egzempliorius atsiųstas paštu.",
        "Suderinta su direktoriumi.",
        "Terminas pratęstas vienam mėnesiui.",
        "Dokumentas grąžintas pataisyti.\r\nPataisyta versija gauta po savaitės.",
    });
    return notes;
}

const QList<QString>& sampleReminders()
{
    static const QList<QString> reminders
        = list({"Priminti apie apmokėjimą", "Patikrinti, ar gautas atsakymas", "Pratęsti sutartį",
            "Pateikti ataskaitą", "Paskambinti dėl susitikimo", "Perduoti archyvui"});
    return reminders;
}

const QList<QString>& sampleRelatedDescriptions()
{
    static const QList<QString> descriptions = list({"Priedas Nr. 1", "Priedas Nr. 2", "Sąmata", "Lydraštis",
        "Atsakymas", "Patikslinta versija", "Paaiškinimas", "Įgaliojimas"});
    return descriptions;
}

const QList<QString>& sampleExecutors()
{
    static const QList<QString> executors
        = list({"J. Petrauskas", "R. Jonaitienė", "A. Kazlauskas", "Ž. Pocienė", "T. Baranauskas"});
    return executors;
}

QString asciiSlug(const QString& text)
{
    static const QString from = S("ąčęėįšųūžĄČĘĖĮŠŲŪŽáé");
    static const QString to = QStringLiteral("aceeisuuzACEEISUUZae");
    QString out;
    for (QChar c : text) {
        const qsizetype at = from.indexOf(c);
        if (at >= 0)
            c = to.at(at);
        if (c.isLetterOrNumber() && c.unicode() < 128)
            out += c.toLower();
        else if (c == u' ' || c == u'-')
            out += u'.';
    }
    return out;
}

QString vocative(const QString& firstName)
{
    if (firstName.endsWith(QStringLiteral("as")))
        return firstName.chopped(2) + QStringLiteral("ai");
    if (firstName.endsWith(QStringLiteral("us")))
        return firstName.chopped(2) + QStringLiteral("au");
    if (firstName.endsWith(QStringLiteral("is")) || firstName.endsWith(QStringLiteral("ys")))
        return firstName.chopped(1);
    if (firstName.endsWith(QChar(0x0117)))
        return firstName.chopped(1) + u'e';
    return firstName;
}

bool isWomansName(const QString& firstName)
{
    return firstName.endsWith(u'a') || firstName.endsWith(QChar(0x0117));
}

} // namespace kartella::sample
