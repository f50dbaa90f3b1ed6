#include "addressbook/import/OutlookCsvReader.h"

#include "addressbook/import/TextDecoding.h"

#include <QHash>

namespace kartella {

namespace {

QString decodeFile(const QByteArray& file, const QString& codePage)
{
    if (file.startsWith("\xEF\xBB\xBF"))
        return QString::fromUtf8(file.mid(3));
    if (isUtf8(file))
        return QString::fromUtf8(file);
    return decodeText(file, codePage.isEmpty() ? guessCodePage(file) : codePage);
}

// The separator of the header line: the most frequent of comma, semicolon and tab
// outside quotes.
QChar separatorOf(const QString& text)
{
    int commas = 0;
    int semicolons = 0;
    int tabs = 0;
    bool quoted = false;
    for (const QChar c : text) {
        if (c == u'"')
            quoted = !quoted;
        else if (quoted)
            continue;
        else if (c == u'\n' || c == u'\r')
            break;
        else if (c == u',')
            ++commas;
        else if (c == u';')
            ++semicolons;
        else if (c == u'\t')
            ++tabs;
    }
    if (tabs > commas && tabs > semicolons)
        return u'\t';
    return semicolons > commas ? u';' : u',';
}

// The records of the text, each a list of fields, quotes resolved.
QList<QStringList> records(const QString& text, QChar separator)
{
    QList<QStringList> rows;
    QStringList row;
    QString field;
    bool quoted = false;
    bool fieldStarted = false;
    const auto endRow = [&] {
        if (fieldStarted || !row.isEmpty() || !field.isEmpty()) {
            row << field;
            rows << row;
        }
        row.clear();
        field.clear();
        fieldStarted = false;
    };
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar c = text[i];
        if (quoted) {
            if (c == u'"') {
                if (i + 1 < text.size() && text[i + 1] == u'"') {
                    field += u'"';
                    ++i;
                } else {
                    quoted = false;
                }
            } else {
                field += c;
            }
        } else if (c == u'"') {
            quoted = true;
            fieldStarted = true;
        } else if (c == separator) {
            row << field;
            field.clear();
            fieldStarted = true;
        } else if (c == u'\r' || c == u'\n') {
            if (c == u'\r' && i + 1 < text.size() && text[i + 1] == u'\n')
                ++i;
            endRow();
        } else {
            field += c;
            fieldStarted = true;
        }
    }
    endRow();
    return rows;
}

QString joined(const QStringList& parts, QChar separator)
{
    QStringList kept;
    for (const QString& part : parts)
        if (!part.isEmpty())
            kept << part;
    return kept.join(separator);
}

} // namespace

QList<ContactItem> readOutlookCsv(const QByteArray& file, const QString& codePage, bool* recognised)
{
    if (recognised)
        *recognised = false;
    const QString text = decodeFile(file, codePage);
    const QList<QStringList> rows = records(text, separatorOf(text));
    if (rows.isEmpty())
        return {};

    QHash<QString, qsizetype> columns;
    const QStringList& header = rows.first();
    for (qsizetype i = 0; i < header.size(); ++i) {
        const QString name = header[i].trimmed().toLower();
        if (!columns.contains(name))
            columns.insert(name, i);
    }
    const auto column = [&](const QStringList& row, const char* name) -> QString {
        const qsizetype index = columns.value(QString::fromLatin1(name).toLower(), -1);
        return index >= 0 && index < row.size() ? row[index].trimmed() : QString();
    };

    static const QList<std::pair<const QString*, const char*>> plainColumns = {
        {&ContactProperty::CompanyName, "Company"},
        {&ContactProperty::Title, "Job Title"},
        {&ContactProperty::City, "Business City"},
        {&ContactProperty::State, "Business State"},
        {&ContactProperty::PostalCode, "Business Postal Code"},
        {&ContactProperty::Country, "Business Country/Region"},
        {&ContactProperty::Email, "E-mail Address"},
        {&ContactProperty::HomePage, "Web Page"},
        {&ContactProperty::BusinessPhone, "Business Phone"},
        {&ContactProperty::HomePhone, "Home Phone"},
        {&ContactProperty::MobilePhone, "Mobile Phone"},
        {&ContactProperty::Fax, "Business Fax"},
        {&ContactProperty::Pager, "Pager"},
        {&ContactProperty::Notes, "Notes"},
    };
    bool known = false;
    for (const char* name : {"First Name", "Middle Name", "Last Name", "Business Street"})
        known = known || columns.contains(QString::fromLatin1(name).toLower());
    for (const auto& [property, name] : plainColumns)
        known = known || columns.contains(QString::fromLatin1(name).toLower());
    if (!known)
        return {};
    if (recognised)
        *recognised = true;

    QList<ContactItem> contacts;
    for (qsizetype r = 1; r < rows.size(); ++r) {
        const QStringList& row = rows[r];
        ContactItem contact;
        const auto set = [&contact](const QString& property, const QString& value) {
            if (!value.isEmpty())
                contact.insert(property, value);
        };
        set(ContactProperty::FullName,
            joined({column(row, "First Name"), column(row, "Middle Name"), column(row, "Last Name")}, u' '));
        set(ContactProperty::Street,
            joined({column(row, "Business Street"), column(row, "Business Street 2"),
                       column(row, "Business Street 3")},
                u'\n'));
        for (const auto& [property, name] : plainColumns)
            set(*property, column(row, name));
        if (!contact.isEmpty())
            contacts << contact;
    }
    return contacts;
}

} // namespace kartella
