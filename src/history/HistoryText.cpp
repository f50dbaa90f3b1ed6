#include "history/HistoryText.h"

#include "history/HistorySchema.h"
#include "store/Store.h"

#include <QDate>
#include <QHash>

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

std::optional<HistoryLine> historyLine(const HistoryEntry& entry)
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
    const QString noun = rowNoun(entry.table);
    const QString caption = columnCaption(entry.table, entry.column);
    if (entry.change == QLatin1String("insert")) {
        line.what = noun + QStringLiteral(" added");
        line.change = caption + QStringLiteral(": ") + valueText(entry.after);
    } else if (entry.change == QLatin1String("delete")) {
        line.what = noun + QStringLiteral(" deleted");
        line.change = caption + QStringLiteral(" was ") + valueText(entry.before);
    } else {
        line.what = noun + QStringLiteral(" changed");
        line.change = caption + QStringLiteral(" changed from ") + valueText(entry.before)
            + QStringLiteral(" to ") + valueText(entry.after);
    }
    return line;
}

} // namespace kartella
