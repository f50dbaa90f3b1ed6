#pragma once

#include <QList>
#include <QString>

#include <cstdint>
#include <random>

namespace kartella::sample {

// A generator whose sequence depends on the seed alone, on every platform and compiler.
class Random
{
public:
    explicit Random(quint32 seed)
        : m_engine(seed)
    { }
    // 0 <= n < bound.
    int below(int bound) { return bound <= 1 ? 0 : int(m_engine() % std::uint32_t(bound)); }
    // lowest <= n <= highest.
    int between(int lowest, int highest) { return lowest + below(highest - lowest + 1); }
    // True with the given chance in percent.
    bool percent(int chance) { return below(100) < chance; }
    template<typename T>
    const T& pick(const QList<T>& list)
    {
        return list.at(below(int(list.size())));
    }

private:
    std::mt19937 m_engine;
};

struct SubCategoryEntry
{
    QString title;
    QString folder; // relative to the files folder; empty: none of its own
};

struct CategoryEntry
{
    QString title;
    QString mnemonic; // empty: none
    QString folder; // relative to the files folder; empty: none of its own
    QList<SubCategoryEntry> subCategories;
    QList<QString> descriptions;
};

struct ContactEntry
{
    QString fullName; // empty: a company without a person's name
    QString company;
};

struct CityEntry
{
    QString city;
    QString county;
    QString region;
    QString postalPrefix;
    QString areaCode;
};

// The fixed material the sample register is made of.
const QList<CategoryEntry>& sampleCategories();
const QList<ContactEntry>& sampleContacts();
const QList<CityEntry>& sampleCities();
const QList<QString>& sampleStreets();
const QList<QString>& sampleCompanies();
const QList<QString>& sampleNotes();
const QList<QString>& sampleReminders();
const QList<QString>& sampleRelatedDescriptions();
const QList<QString>& sampleExecutors();

// A name as plain lower-case ASCII, for mail addresses and web pages: "Šarūnas" -> "sarunas".
QString asciiSlug(const QString& text);
// A Lithuanian first name as it is addressed: "Antanas" -> "Antanai", "Aistė" -> "Aiste".
QString vocative(const QString& firstName);
// Whether a Lithuanian first name is a woman's (ends in -a or -ė).
bool isWomansName(const QString& firstName);

} // namespace kartella::sample
