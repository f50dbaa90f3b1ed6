#include "history/HistoryText.h"

#include "history/HistorySchema.h"
#include "store/Store.h"
#include "store/engine/Backend.h"
#include "store/engine/Connection.h"

#include <QCoreApplication>
#include <QDate>
#include <QSet>

#include <utility>

namespace kartella {

namespace {

using Captions = QHash<QString, const char*>;

// The texts of the tables below, in the interface's language.
QString translated(const char* text, const char* disambiguation = nullptr)
{
    return QCoreApplication::translate("kartella::HistoryText", text, disambiguation);
}

// By "table.column", lower case.
const Captions& captions()
{
    static const Captions known = [] {
        const std::pair<const char*, const char*> pairs[] = {
            {"tbl_documents.dokantraste", QT_TRANSLATE_NOOP("kartella::HistoryText", "Description")},
            {"tbl_documents.contactid", QT_TRANSLATE_NOOP("kartella::HistoryText", "Sender/Receiver")},
            {"tbl_documents.rastokel", QT_TRANSLATE_NOOP("kartella::HistoryText", "Location")},
            {"tbl_documents.dokgavsiuntdata",
                QT_TRANSLATE_NOOP("kartella::HistoryText", "Send/Receive Date")},
            {"tbl_documents.dokregistracdata",
                QT_TRANSLATE_NOOP("kartella::HistoryText", "Registration Date")},
            {"tbl_documents.dokregistracindeksas",
                QT_TRANSLATE_NOOP("kartella::HistoryText", "Registration Index")},
            {"tbl_documents.kategid", QT_TRANSLATE_NOOP("kartella::HistoryText", "Category")},
            {"tbl_documents.subkategid", QT_TRANSLATE_NOOP("kartella::HistoryText", "Subcategory")},
            {"tbl_documents.kryptisid", QT_TRANSLATE_NOOP("kartella::HistoryText", "Direction")},
            {"tbl_documents.dokpastaba", QT_TRANSLATE_NOOP("kartella::HistoryText", "Notes")},
            {"tbl_documents.dokvykdytojas", QT_TRANSLATE_NOOP("kartella::HistoryText", "Executor")},
            {"tbl_documents.dokivykdymozyma", QT_TRANSLATE_NOOP("kartella::HistoryText", "Execution mark")},
            {"tbl_sub_documents.subdocdescript",
                QT_TRANSLATE_NOOP("kartella::HistoryText", "Related Document Description")},
            {"tbl_sub_documents.subrastgavimodata",
                QT_TRANSLATE_NOOP("kartella::HistoryText", "Send/Receive Date")},
            {"tbl_sub_documents.contactid", QT_TRANSLATE_NOOP("kartella::HistoryText", "Sender/Receiver")},
            {"tbl_sub_documents.subrastokelias", QT_TRANSLATE_NOOP("kartella::HistoryText", "Location")},
            {"tbl_sub_documents.rastasid", QT_TRANSLATE_NOOP("kartella::HistoryText", "Parent Document")},
            {"tbl_tickler.ticklerdate", QT_TRANSLATE_NOOP("kartella::HistoryText", "Reminder date")},
            {"tbl_tickler.ticklertext", QT_TRANSLATE_NOOP("kartella::HistoryText", "Reminder text")},
            {"tbl_tickler.ticklerdone", QT_TRANSLATE_NOOP("kartella::HistoryText", "Done")},
            {"tbl_document_categories.dokkategorija", QT_TRANSLATE_NOOP("kartella::HistoryText", "Category")},
            {"tbl_document_categories.dokkategdaug",
                QT_TRANSLATE_NOOP("kartella::HistoryText", "Category (plural)")},
            {"tbl_document_categories.doktemplates", QT_TRANSLATE_NOOP("kartella::HistoryText", "Template")},
            {"tbl_document_categories.doktemplatesexel",
                QT_TRANSLATE_NOOP("kartella::HistoryText", "Spreadsheet template")},
            {"tbl_document_categories.doktemplatespowpoint",
                QT_TRANSLATE_NOOP("kartella::HistoryText", "Presentation template")},
            {"tbl_sub_categories.doksubkategorija",
                QT_TRANSLATE_NOOP("kartella::HistoryText", "Subcategory")},
            {"tbl_sub_categories.kategid", QT_TRANSLATE_NOOP("kartella::HistoryText", "Category")},
            {"tbl_sub_categories.subpathtofiles",
                QT_TRANSLATE_NOOP("kartella::HistoryText", "Folder of files")},
            {"tbl_sub_categories.subdoktemplates", QT_TRANSLATE_NOOP("kartella::HistoryText", "Template")},
            {"tbl_sub_categories.subdoktemplatesexel",
                QT_TRANSLATE_NOOP("kartella::HistoryText", "Spreadsheet template")},
            {"tbl_sub_categories.subdoktemplatespowpoint",
                QT_TRANSLATE_NOOP("kartella::HistoryText", "Presentation template")},
            {"tbl_contacts.companyname", QT_TRANSLATE_NOOP("kartella::HistoryText", "Company Name")},
            {"tbl_contacts.title", QT_TRANSLATE_NOOP("kartella::HistoryText", "Title")},
            {"tbl_contacts.dear", QT_TRANSLATE_NOOP("kartella::HistoryText", "Dear")},
            {"tbl_contacts.fullname", QT_TRANSLATE_NOOP("kartella::HistoryText", "FullName")},
            {"tbl_contacts.address", QT_TRANSLATE_NOOP("kartella::HistoryText", "Address")},
            {"tbl_contacts.city", QT_TRANSLATE_NOOP("kartella::HistoryText", "City")},
            {"tbl_contacts.stateorprovince", QT_TRANSLATE_NOOP("kartella::HistoryText", "State/Province")},
            {"tbl_contacts.postalcode", QT_TRANSLATE_NOOP("kartella::HistoryText", "Zip/Postal Code")},
            {"tbl_contacts.region", QT_TRANSLATE_NOOP("kartella::HistoryText", "Region")},
            {"tbl_contacts.country", QT_TRANSLATE_NOOP("kartella::HistoryText", "Country")},
            {"tbl_contacts.emailname", QT_TRANSLATE_NOOP("kartella::HistoryText", "EmailName")},
            {"tbl_contacts.notes", QT_TRANSLATE_NOOP("kartella::HistoryText", "Notes")},
            {"tbl_phones.phonename", QT_TRANSLATE_NOOP("kartella::HistoryText", "Phone")},
            {"tbl_phones.phonenumber", QT_TRANSLATE_NOOP("kartella::HistoryText", "Phone number")},
            {"tbl_homepages.description", QT_TRANSLATE_NOOP("kartella::HistoryText", "Web page")},
            {"tbl_homepages.homewww", QT_TRANSLATE_NOOP("kartella::HistoryText", "Web address")},
        };
        Captions map;
        for (const auto& [key, caption] : pairs)
            map.insert(QLatin1String(key), caption);
        return map;
    }();
    return known;
}

// A value as the dialogs show it: a date in the system's short form, nothing as "(empty)".
QString valueText(const QVariant& value)
{
    if (value.isNull() || !value.isValid())
        return QCoreApplication::translate("kartella::HistoryText", "(empty)");
    const QString text = value.toString();
    if (text.isEmpty())
        return QCoreApplication::translate("kartella::HistoryText", "(empty)");
    // A date written by either back end: the day alone, or the day and a time of midnight.
    const QString day = text.left(10);
    if (text.size() >= 10 && text.at(4) == u'-' && text.at(7) == u'-'
        && (text.size() == 10 || text.mid(10).trimmed() == QLatin1String("00:00:00")
            || text.mid(10).trimmed() == QLatin1String("00:00:00.000"))) {
        const QDate date = QDate::fromString(day, Qt::ISODate);
        if (date.isValid())
            return displayText(date);
    }
    return QCoreApplication::translate("kartella::HistoryText", "\"%1\"").arg(text);
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
    static const char* const names[] = {QT_TRANSLATE_NOOP("kartella::HistoryText", "Inner"),
        QT_TRANSLATE_NOOP("kartella::HistoryText", "Outgoing"),
        QT_TRANSLATE_NOOP("kartella::HistoryText", "Incoming"),
        QT_TRANSLATE_NOOP("kartella::HistoryText", "Other")};
    return code >= 1 && code <= 4 ? translated(names[code - 1]) : QString();
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

// What a table's row is called, and the words for its rows' changes: whole phrases, so that
// a language can make them agree with the noun.
struct RowTexts
{
    const char* table;
    const char* noun;
    const char* added;
    const char* deleted;
    const char* changed;
};

const RowTexts* rowTextsOf(const QString& table)
{
    static const RowTexts known[] = {
        {"tbl_documents", QT_TRANSLATE_NOOP("kartella::HistoryText", "Document"),
            QT_TRANSLATE_NOOP("kartella::HistoryText", "Document added"),
            QT_TRANSLATE_NOOP("kartella::HistoryText", "Document deleted"),
            QT_TRANSLATE_NOOP("kartella::HistoryText", "Document changed")},
        {"tbl_sub_documents", QT_TRANSLATE_NOOP("kartella::HistoryText", "Related document"),
            QT_TRANSLATE_NOOP("kartella::HistoryText", "Related document added"),
            QT_TRANSLATE_NOOP("kartella::HistoryText", "Related document deleted"),
            QT_TRANSLATE_NOOP("kartella::HistoryText", "Related document changed")},
        {"tbl_tickler", QT_TRANSLATE_NOOP("kartella::HistoryText", "Reminder"),
            QT_TRANSLATE_NOOP("kartella::HistoryText", "Reminder added"),
            QT_TRANSLATE_NOOP("kartella::HistoryText", "Reminder deleted"),
            QT_TRANSLATE_NOOP("kartella::HistoryText", "Reminder changed")},
        {"tbl_document_categories", QT_TRANSLATE_NOOP("kartella::HistoryText", "Category"),
            QT_TRANSLATE_NOOP("kartella::HistoryText", "Category added"),
            QT_TRANSLATE_NOOP("kartella::HistoryText", "Category deleted"),
            QT_TRANSLATE_NOOP("kartella::HistoryText", "Category changed")},
        {"tbl_sub_categories", QT_TRANSLATE_NOOP("kartella::HistoryText", "Subcategory"),
            QT_TRANSLATE_NOOP("kartella::HistoryText", "Subcategory added"),
            QT_TRANSLATE_NOOP("kartella::HistoryText", "Subcategory deleted"),
            QT_TRANSLATE_NOOP("kartella::HistoryText", "Subcategory changed")},
        {"tbl_contacts", QT_TRANSLATE_NOOP("kartella::HistoryText", "Contact"),
            QT_TRANSLATE_NOOP("kartella::HistoryText", "Contact added"),
            QT_TRANSLATE_NOOP("kartella::HistoryText", "Contact deleted"),
            QT_TRANSLATE_NOOP("kartella::HistoryText", "Contact changed")},
        {"tbl_phones", QT_TRANSLATE_NOOP("kartella::HistoryText", "Phone"),
            QT_TRANSLATE_NOOP("kartella::HistoryText", "Phone added"),
            QT_TRANSLATE_NOOP("kartella::HistoryText", "Phone deleted"),
            QT_TRANSLATE_NOOP("kartella::HistoryText", "Phone changed")},
        {"tbl_homepages", QT_TRANSLATE_NOOP("kartella::HistoryText", "Web page"),
            QT_TRANSLATE_NOOP("kartella::HistoryText", "Web page added"),
            QT_TRANSLATE_NOOP("kartella::HistoryText", "Web page deleted"),
            QT_TRANSLATE_NOOP("kartella::HistoryText", "Web page changed")},
    };
    for (const RowTexts& texts : known) {
        if (table.compare(QLatin1String(texts.table), Qt::CaseInsensitive) == 0)
            return &texts;
    }
    return nullptr;
}

// The register keeps the name of the command that wrote a row in English, as the program
// names it (CommandScope); a name is translated where it is shown. Each command that writes
// has its name here.
struct CommandName
{
    const char* source;
    const char* comment;
};

const CommandName CommandNames[] = {
    QT_TRANSLATE_NOOP3("kartella::HistoryText", "New Document", "command"),
    QT_TRANSLATE_NOOP3("kartella::HistoryText", "Copy/Move", "command"),
    QT_TRANSLATE_NOOP3("kartella::HistoryText", "Related", "command"),
    QT_TRANSLATE_NOOP3("kartella::HistoryText", "Details", "command"),
    QT_TRANSLATE_NOOP3("kartella::HistoryText", "Category", "command"),
    QT_TRANSLATE_NOOP3("kartella::HistoryText", "Delete", "command"),
    QT_TRANSLATE_NOOP3("kartella::HistoryText", "Reminders Done", "command"),
    QT_TRANSLATE_NOOP3("kartella::HistoryText", "Contact", "command"),
    QT_TRANSLATE_NOOP3("kartella::HistoryText", "Import", "command"),
    QT_TRANSLATE_NOOP3("kartella::HistoryText", "Restore", "command"),
};

QString commandName(const QString& command)
{
    for (const CommandName& name : CommandNames) {
        if (command == QLatin1String(name.source))
            return translated(name.source, name.comment);
    }
    return command;
}

} // namespace

QString columnCaption(const QString& table, const QString& column)
{
    const char* caption = captions().value((table + u'.' + column).toLower(), nullptr);
    return caption ? translated(caption) : column;
}

QString rowNoun(const QString& table)
{
    const RowTexts* texts = rowTextsOf(table);
    return texts ? translated(texts->noun) : table;
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
    line.command = entry.anotherProgram
        ? QCoreApplication::translate("kartella::HistoryText", "another program")
        : commandName(entry.command);
    const KeyKind kind = keyKind(entry.table, entry.column);
    const QVariant before = named(entry.before, kind, names);
    const QVariant after = named(entry.after, kind, names);
    const RowTexts* texts = rowTextsOf(entry.table);
    const QString caption = columnCaption(entry.table, entry.column);
    if (entry.change == QLatin1String("insert")) {
        line.what = texts ? translated(texts->added)
                          : QCoreApplication::translate("kartella::HistoryText", "%1 added").arg(entry.table);
        line.change
            = QCoreApplication::translate("kartella::HistoryText", "%1: %2").arg(caption, valueText(after));
    } else if (entry.change == QLatin1String("delete")) {
        line.what = texts
            ? translated(texts->deleted)
            : QCoreApplication::translate("kartella::HistoryText", "%1 deleted").arg(entry.table);
        line.change = QCoreApplication::translate("kartella::HistoryText", "%1 was %2")
                          .arg(caption, valueText(before));
    } else {
        line.what = texts
            ? translated(texts->changed)
            : QCoreApplication::translate("kartella::HistoryText", "%1 changed").arg(entry.table);
        line.change = QCoreApplication::translate("kartella::HistoryText", "%1 changed from %2 to %3")
                          .arg(caption, valueText(before), valueText(after));
    }
    return line;
}

} // namespace kartella
