#include "history/HistoryText.h"

#include "history/HistorySchema.h"
#include "store/Store.h"
#include "store/engine/Backend.h"
#include "store/engine/Connection.h"

#include <QDate>
#include <QSet>

#include <utility>

namespace kartella {

namespace {

using Captions = QHash<QString, QString>;

// By "table.column", lower case.
const Captions& captions()
{
    static const Captions known = [] {
        const std::pair<const char*, const char*> pairs[] = {
            {"tbl_documents.dokantraste", "Description"},
            {"tbl_documents.contactid", "Sender/Receiver"},
            {"tbl_documents.rastokel", "Location"},
            {"tbl_documents.dokgavsiuntdata", "Send/Receive Date"},
            {"tbl_documents.dokregistracdata", "Registration Date"},
            {"tbl_documents.dokregistracindeksas", "Registration Index"},
            {"tbl_documents.kategid", "Category"},
            {"tbl_documents.subkategid", "Subcategory"},
            {"tbl_documents.kryptisid", "Direction"},
            {"tbl_documents.dokpastaba", "Notes"},
            {"tbl_documents.dokvykdytojas", "Executor"},
            {"tbl_documents.dokivykdymozyma", "Execution mark"},
            {"tbl_sub_documents.subdocdescript", "Related Document Description"},
            {"tbl_sub_documents.subrastgavimodata", "Send/Receive Date"},
            {"tbl_sub_documents.contactid", "Sender/Receiver"},
            {"tbl_sub_documents.subrastokelias", "Location"},
            {"tbl_sub_documents.rastasid", "Parent Document"},
            {"tbl_tickler.ticklerdate", "Reminder date"},
            {"tbl_tickler.ticklertext", "Reminder text"},
            {"tbl_tickler.ticklerdone", "Done"},
            {"tbl_document_categories.dokkategorija", "Category"},
            {"tbl_document_categories.dokkategdaug", "Category (plural)"},
            {"tbl_document_categories.doktemplates", "Template"},
            {"tbl_document_categories.doktemplatesexel", "Spreadsheet template"},
            {"tbl_document_categories.doktemplatespowpoint", "Presentation template"},
            {"tbl_sub_categories.doksubkategorija", "Subcategory"},
            {"tbl_sub_categories.kategid", "Category"},
            {"tbl_sub_categories.subpathtofiles", "Folder of files"},
            {"tbl_sub_categories.subdoktemplates", "Template"},
            {"tbl_sub_categories.subdoktemplatesexel", "Spreadsheet template"},
            {"tbl_sub_categories.subdoktemplatespowpoint", "Presentation template"},
            {"tbl_contacts.companyname", "Company Name"},
            {"tbl_contacts.title", "Title"},
            {"tbl_contacts.dear", "Dear"},
            {"tbl_contacts.fullname", "FullName"},
            {"tbl_contacts.address", "Address"},
            {"tbl_contacts.city", "City"},
            {"tbl_contacts.stateorprovince", "State/Province"},
            {"tbl_contacts.postalcode", "Zip/Postal Code"},
            {"tbl_contacts.region", "Region"},
            {"tbl_contacts.country", "Country"},
            {"tbl_contacts.emailname", "EmailName"},
            {"tbl_contacts.notes", "Notes"},
            {"tbl_phones.phonename", "Phone"},
            {"tbl_phones.phonenumber", "Phone number"},
            {"tbl_homepages.description", "Web page"},
            {"tbl_homepages.homewww", "Web address"},
        };
        Captions map;
        for (const auto& [key, caption] : pairs)
            map.insert(QLatin1String(key), QLatin1String(caption));
        return map;
    }();
    return known;
}

// A value as the dialogs show it: a date in the system's short form, nothing as "(empty)".
QString valueText(const QVariant& value)
{
    if (value.isNull() || !value.isValid())
        return QStringLiteral("(empty)");
    const QString text = value.toString();
    if (text.isEmpty())
        return QStringLiteral("(empty)");
    // A date written by either back end: the day alone, or the day and a time of midnight.
    const QString day = text.left(10);
    if (text.size() >= 10 && text.at(4) == u'-' && text.at(7) == u'-'
        && (text.size() == 10 || text.mid(10).trimmed() == QLatin1String("00:00:00")
            || text.mid(10).trimmed() == QLatin1String("00:00:00.000"))) {
        const QDate date = QDate::fromString(day, Qt::ISODate);
        if (date.isValid())
            return displayText(date);
    }
    return u'"' + text + u'"';
}

// Which names a column's keys stand for.
enum class KeyKind { None, Contact, Category, SubCategory, Direction };

KeyKind keyKind(const QString& table, const QString& column)
{
    const bool ofDocuments = table.compare(QLatin1String("tbl_Documents"), Qt::CaseInsensitive) == 0;
    const bool ofRelated = table.compare(QLatin1String("tbl_Sub_Documents"), Qt::CaseInsensitive) == 0;
    if ((ofDocuments || ofRelated) && column.compare(QLatin1String("ContactID"), Qt::CaseInsensitive) == 0)
        return KeyKind::Contact;
    if ((ofDocuments || table.compare(QLatin1String("tbl_Sub_Categories"), Qt::CaseInsensitive) == 0)
        && column.compare(QLatin1String("KategID"), Qt::CaseInsensitive) == 0)
        return KeyKind::Category;
    if (ofDocuments && column.compare(QLatin1String("SubKategID"), Qt::CaseInsensitive) == 0)
        return KeyKind::SubCategory;
    if (ofDocuments && column.compare(QLatin1String("KryptisID"), Qt::CaseInsensitive) == 0)
        return KeyKind::Direction;
    return KeyKind::None;
}

// The names of the directions, by their codes, as the details dialog shows them.
QString directionName(qint64 code)
{
    static const char* const names[] = {"Inner", "Outgoing", "Incoming", "Other"};
    return code >= 1 && code <= 4 ? QLatin1String(names[code - 1]) : QString();
}

// A key's value as its name, when it has one.
QVariant named(const QVariant& value, KeyKind kind, const HistoryNames* names)
{
    bool isNumber = false;
    const qint64 key = value.toString().toLongLong(&isNumber);
    if (value.isNull() || !isNumber)
        return value;
    QString name;
    switch (kind) {
    case KeyKind::Direction:
        name = directionName(key);
        break;
    case KeyKind::Contact:
        name = names ? names->contacts.value(key) : QString();
        break;
    case KeyKind::Category:
        name = names ? names->categories.value(key) : QString();
        break;
    case KeyKind::SubCategory:
        name = names ? names->subCategories.value(key) : QString();
        break;
    case KeyKind::None:
        break;
    }
    return name.isEmpty() ? value : QVariant(name);
}

void readNames(
    Connection& connection, const QString& sql, const QSet<qint64>& keys, QHash<qint64, QString>& names)
{
    if (keys.isEmpty())
        return;
    QStringList list;
    for (const qint64 key : keys)
        list << QString::number(key);
    const engine::QueryResult result = connection.backend().query(sql.arg(list.join(u',')));
    for (int row = 0; row < result.rows.rowCount(); ++row)
        names.insert(result.rows.value(row, 0).toLongLong(), result.rows.value(row, 1).toString());
}

const HistoryTable* tableOf(const QString& name)
{
    for (const HistoryTable& table : historyTables()) {
        if (table.name.compare(name, Qt::CaseInsensitive) == 0)
            return &table;
    }
    return nullptr;
}

} // namespace

QString columnCaption(const QString& table, const QString& column)
{
    return captions().value((table + u'.' + column).toLower(), column);
}

QString rowNoun(const QString& table)
{
    static const std::pair<const char*, const char*> nouns[] = {
        {"tbl_documents", "Document"},
        {"tbl_sub_documents", "Related document"},
        {"tbl_tickler", "Reminder"},
        {"tbl_document_categories", "Category"},
        {"tbl_sub_categories", "Subcategory"},
        {"tbl_contacts", "Contact"},
        {"tbl_phones", "Phone"},
        {"tbl_homepages", "Web page"},
    };
    for (const auto& [name, noun] : nouns) {
        if (table.compare(QLatin1String(name), Qt::CaseInsensitive) == 0)
            return QLatin1String(noun);
    }
    return table;
}

HistoryNames historyNames(Connection& connection, const std::vector<HistoryEntry>& entries)
{
    QSet<qint64> contacts;
    QSet<qint64> categories;
    QSet<qint64> subCategories;
    for (const HistoryEntry& entry : entries) {
        QSet<qint64>* keys = nullptr;
        switch (keyKind(entry.table, entry.column)) {
        case KeyKind::Contact:
            keys = &contacts;
            break;
        case KeyKind::Category:
            keys = &categories;
            break;
        case KeyKind::SubCategory:
            keys = &subCategories;
            break;
        default:
            continue;
        }
        for (const QVariant& value : {entry.before, entry.after}) {
            bool isNumber = false;
            const qint64 key = value.toString().toLongLong(&isNumber);
            if (isNumber)
                keys->insert(key);
        }
    }
    HistoryNames names;
    readNames(connection,
        QStringLiteral("SELECT ContactID, FullName FROM tbl_Contacts WHERE ContactID IN (%1)"), contacts,
        names.contacts);
    readNames(connection,
        QStringLiteral("SELECT KategID, DokKategorija FROM tbl_Document_Categories WHERE KategID IN (%1)"),
        categories, names.categories);
    readNames(connection,
        QStringLiteral(
            "SELECT SubKategID, DokSubKategorija FROM tbl_Sub_Categories WHERE SubKategID IN (%1)"),
        subCategories, names.subCategories);
    return names;
}

std::optional<HistoryLine> historyLine(const HistoryEntry& entry, const HistoryNames* names)
{
    // The keys that tie a row to its document or contact say nothing beside the row's own lines.
    if (entry.change != QLatin1String("update")) {
        if (const HistoryTable* table = tableOf(entry.table)) {
            for (const QString& key : {table->key, table->documentKey, table->contactKey}) {
                if (!key.isEmpty() && key.compare(entry.column, Qt::CaseInsensitive) == 0)
                    return std::nullopt;
            }
        }
    }
    HistoryLine line;
    line.when = entry.changedAt.toLocalTime().toString(QStringLiteral("yyyy-MM-dd HH:mm:ss"));
    line.who = entry.who;
    line.command = entry.anotherProgram ? QStringLiteral("another program") : entry.command;
    const KeyKind kind = keyKind(entry.table, entry.column);
    const QVariant before = named(entry.before, kind, names);
    const QVariant after = named(entry.after, kind, names);
    const QString noun = rowNoun(entry.table);
    const QString caption = columnCaption(entry.table, entry.column);
    if (entry.change == QLatin1String("insert")) {
        line.what = noun + QStringLiteral(" added");
        line.change = caption + QStringLiteral(": ") + valueText(after);
    } else if (entry.change == QLatin1String("delete")) {
        line.what = noun + QStringLiteral(" deleted");
        line.change = caption + QStringLiteral(" was ") + valueText(before);
    } else {
        line.what = noun + QStringLiteral(" changed");
        line.change = caption + QStringLiteral(" changed from ") + valueText(before) + QStringLiteral(" to ")
            + valueText(after);
    }
    return line;
}

} // namespace kartella
