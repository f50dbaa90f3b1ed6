#include "addressbook/import/VCardReader.h"

#include "addressbook/import/TextDecoding.h"

#include <QSet>

namespace kartella {

namespace {

// One content line: NAME;PARAM=...:value, with its value still in bytes.
struct ContentLine
{
    QByteArray name;
    QSet<QByteArray> types; // upper case; PREF also when given as PREF=n
    QByteArray encoding;
    QString charset;
    QByteArray value;
};

bool startsWithNoCase(const QByteArray& text, const char* prefix)
{
    return text.left(qsizetype(qstrlen(prefix))).toUpper() == prefix;
}

bool isQuotedPrintable(const QByteArray& head)
{
    return head.toUpper().contains("QUOTED-PRINTABLE");
}

// Whether a logical line is VERSION:2.1.
bool isVersion21(const QByteArray& line)
{
    return startsWithNoCase(line, "VERSION") && line.mid(7).trimmed() == ":2.1";
}

// The physical lines joined into logical ones: a line break followed by a blank or tab
// continues the line; in a quoted-printable value a line ending in '=' continues on the next.
// A 2.1 card folds before a blank that belongs to the value, so there the blank stays;
// later versions insert the blank, and it goes.
QList<QByteArray> logicalLines(const QByteArray& file)
{
    QList<QByteArray> lines;
    QByteArray current;
    bool haveCurrent = false;
    bool foldKeepsBlank = false;
    qsizetype colon = -1; // of current; searched for only in what was added since
    bool quotedPrintable = false;
    const auto findColon = [&](qsizetype from) {
        if (colon >= 0)
            return;
        colon = current.indexOf(':', from);
        quotedPrintable = colon > 0 && isQuotedPrintable(current.left(colon));
    };
    const auto flush = [&] {
        if (haveCurrent) {
            if (startsWithNoCase(current, "BEGIN:VCARD"))
                foldKeepsBlank = false;
            else if (isVersion21(current))
                foldKeepsBlank = true;
            lines << current;
        }
        current.clear();
        haveCurrent = false;
        colon = -1;
        quotedPrintable = false;
    };
    qsizetype start = 0;
    while (start <= file.size()) {
        qsizetype end = file.indexOf('\n', start);
        if (end < 0)
            end = file.size();
        QByteArray line = file.mid(start, end - start);
        if (line.endsWith('\r'))
            line.chop(1);
        start = end + 1;
        // A soft line break goes first: the next line may start with a blank of the text.
        if (haveCurrent && quotedPrintable && current.endsWith('=')) {
            current.chop(1);
            current += line;
            continue;
        }
        if (haveCurrent && !line.isEmpty() && (line.front() == ' ' || line.front() == '\t')) {
            const qsizetype from = current.size();
            current += foldKeepsBlank ? line : line.mid(1);
            findColon(from);
            continue;
        }
        flush();
        if (!line.isEmpty()) {
            current = line;
            haveCurrent = true;
            findColon(0);
        }
    }
    flush();
    return lines;
}

QByteArray unquote(QByteArray text)
{
    if (text.size() >= 2 && text.front() == '"' && text.back() == '"')
        return text.mid(1, text.size() - 2);
    return text;
}

// Splits at separator outside double quotes.
QList<QByteArray> splitOutsideQuotes(const QByteArray& text, char separator)
{
    QList<QByteArray> parts;
    QByteArray part;
    bool quoted = false;
    for (const char c : text) {
        if (c == '"')
            quoted = !quoted;
        if (c == separator && !quoted) {
            parts << part;
            part.clear();
        } else {
            part += c;
        }
    }
    parts << part;
    return parts;
}

ContentLine parseLine(const QByteArray& line)
{
    ContentLine result;
    // The colon that ends the name and parameters is the first one outside quotes.
    qsizetype colon = -1;
    bool quoted = false;
    for (qsizetype i = 0; i < line.size(); ++i) {
        if (line[i] == '"')
            quoted = !quoted;
        else if (line[i] == ':' && !quoted) {
            colon = i;
            break;
        }
    }
    if (colon < 0)
        return result;
    result.value = line.mid(colon + 1);
    const QList<QByteArray> head = splitOutsideQuotes(line.left(colon), ';');
    QByteArray name = head.first().trimmed().toUpper();
    if (const qsizetype dot = name.lastIndexOf('.'); dot >= 0)
        name = name.mid(dot + 1); // a group prefix such as item1.
    result.name = name;
    for (qsizetype i = 1; i < head.size(); ++i) {
        const QByteArray parameter = head[i].trimmed();
        const qsizetype equals = parameter.indexOf('=');
        if (equals < 0) {
            const QByteArray bare = parameter.toUpper();
            if (bare == "QUOTED-PRINTABLE" || bare == "BASE64" || bare == "8BIT" || bare == "7BIT")
                result.encoding = bare;
            else
                result.types.insert(bare);
            continue;
        }
        const QByteArray key = parameter.left(equals).trimmed().toUpper();
        const QByteArray value = unquote(parameter.mid(equals + 1).trimmed());
        if (key == "TYPE") {
            for (const QByteArray& type : splitOutsideQuotes(value, ','))
                result.types.insert(unquote(type.trimmed()).toUpper());
        } else if (key == "ENCODING") {
            result.encoding = value.toUpper();
        } else if (key == "CHARSET") {
            result.charset = QString::fromLatin1(value);
        } else if (key == "PREF") {
            result.types.insert("PREF");
        }
    }
    return result;
}

int hexDigit(char c)
{
    if (c >= '0' && c <= '9')
        return c - '0';
    if (c >= 'A' && c <= 'F')
        return c - 'A' + 10;
    if (c >= 'a' && c <= 'f')
        return c - 'a' + 10;
    return -1;
}

QByteArray decodeQuotedPrintable(const QByteArray& text)
{
    QByteArray result;
    result.reserve(text.size());
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text[i] != '=') {
            result += text[i];
            continue;
        }
        const int high = i + 1 < text.size() ? hexDigit(text[i + 1]) : -1;
        const int low = i + 2 < text.size() ? hexDigit(text[i + 2]) : -1;
        if (high >= 0 && low >= 0) {
            result += char(high * 16 + low);
            i += 2;
        } else if (i + 1 >= text.size()) {
            // a soft line break left at the very end
        } else {
            result += '=';
        }
    }
    return result;
}

// The value split at unescaped semicolons, each part with its escapes resolved.
QStringList components(const QString& value)
{
    QStringList parts;
    QString part;
    for (qsizetype i = 0; i < value.size(); ++i) {
        const QChar c = value[i];
        if (c == u'\\' && i + 1 < value.size()) {
            const QChar next = value[++i];
            if (next == u'n' || next == u'N')
                part += u'\n';
            else
                part += next;
        } else if (c == u';') {
            parts << part;
            part.clear();
        } else {
            part += c;
        }
    }
    parts << part;
    return parts;
}

QString component(const QStringList& parts, int index)
{
    return index < parts.size() ? parts[index].trimmed() : QString();
}

QString joinNonEmpty(const QStringList& parts)
{
    QStringList kept;
    for (const QString& part : parts)
        if (!part.isEmpty())
            kept << part;
    return kept.join(u' ');
}

// The cards' lines while one card is read, and what it maps to.
class CardBuilder
{
public:
    explicit CardBuilder(QString defaultCharset)
        : m_defaultCharset(std::move(defaultCharset))
    { }

    void add(const ContentLine& line)
    {
        const QString text = decodeValue(line);
        const QByteArray& name = line.name;
        if (name == "FN") {
            if (m_fullName.isEmpty())
                m_fullName = components(text).join(u';').trimmed();
        } else if (name == "N") {
            if (m_structuredName.isEmpty()) {
                const QStringList parts = components(text);
                m_structuredName
                    = joinNonEmpty({component(parts, 1), component(parts, 2), component(parts, 0)});
            }
        } else if (name == "ORG") {
            setOnce(ContactProperty::CompanyName, component(components(text), 0));
        } else if (name == "TITLE") {
            setOnce(ContactProperty::Title, components(text).join(u';').trimmed());
        } else if (name == "ADR") {
            addAddress(line.types, components(text));
        } else if (name == "EMAIL") {
            addPreferred(m_email, m_emailPreferred, line.types.contains("PREF"), firstValue(text));
        } else if (name == "URL") {
            addPreferred(m_url, m_urlPreferred, line.types.contains("WORK"), firstValue(text));
        } else if (name == "TEL") {
            addPhone(line.types, firstValue(text));
        } else if (name == "NOTE") {
            addNote(components(text).join(u';').trimmed());
        }
    }

    ContactItem item() const
    {
        ContactItem contact = m_item;
        const QString fullName = m_fullName.isEmpty() ? m_structuredName : m_fullName;
        set(contact, ContactProperty::FullName, fullName);
        set(contact, ContactProperty::Email, m_email);
        set(contact, ContactProperty::HomePage, m_url);
        if (!contact.contains(ContactProperty::BusinessPhone))
            set(contact, ContactProperty::BusinessPhone, m_plainPhone);
        return contact;
    }

private:
    static void set(ContactItem& contact, const QString& property, const QString& value)
    {
        if (!value.isEmpty())
            contact.insert(property, value);
    }

    void setOnce(const QString& property, const QString& value)
    {
        if (!m_item.contains(property))
            set(m_item, property, value);
    }

    QString decodeValue(const ContentLine& line) const
    {
        if (line.encoding == "B" || line.encoding == "BASE64")
            return {}; // pictures and sounds: nothing the import reads
        const QByteArray bytes
            = line.encoding == "QUOTED-PRINTABLE" ? decodeQuotedPrintable(line.value) : line.value;
        if (!line.charset.isEmpty())
            return decodeText(bytes, line.charset);
        if (isUtf8(bytes))
            return QString::fromUtf8(bytes);
        // A file of plain ASCII guesses nothing; its quoted-printable bytes guess for themselves.
        return decodeText(bytes, m_defaultCharset.isEmpty() ? guessCodePage(bytes) : m_defaultCharset);
    }

    static QString firstValue(const QString& text)
    {
        QString value = components(text).join(u';').trimmed();
        if (value.startsWith(QStringLiteral("tel:"), Qt::CaseInsensitive))
            value = value.mid(4);
        return value;
    }

    static void addPreferred(QString& slot, bool& preferredTaken, bool preferred, const QString& value)
    {
        if (value.isEmpty() || preferredTaken)
            return;
        if (preferred) {
            slot = value;
            preferredTaken = true;
        } else if (slot.isEmpty()) {
            slot = value;
        }
    }

    void addAddress(const QSet<QByteArray>& types, const QStringList& parts)
    {
        const bool work = types.contains("WORK");
        if (m_addressTaken && !(work && !m_workAddress))
            return;
        m_addressTaken = true;
        m_workAddress = work;
        for (const QString& property : {ContactProperty::Street, ContactProperty::City,
                 ContactProperty::State, ContactProperty::PostalCode, ContactProperty::Country})
            m_item.remove(property);
        set(m_item, ContactProperty::Street, component(parts, 2));
        set(m_item, ContactProperty::City, component(parts, 3));
        set(m_item, ContactProperty::State, component(parts, 4));
        set(m_item, ContactProperty::PostalCode, component(parts, 5));
        set(m_item, ContactProperty::Country, component(parts, 6));
    }

    // A card with several notes keeps them all, each on a line of its own.
    void addNote(const QString& note)
    {
        if (note.isEmpty())
            return;
        const QString before = m_item.value(ContactProperty::Notes);
        m_item.insert(ContactProperty::Notes, before.isEmpty() ? note : before + u'\n' + note);
    }

    void addPhone(const QSet<QByteArray>& types, const QString& number)
    {
        if (number.isEmpty())
            return;
        const bool fax = types.contains("FAX");
        const bool work = types.contains("WORK");
        const bool home = types.contains("HOME");
        if (work && !fax)
            setOnce(ContactProperty::BusinessPhone, number);
        if (home && !fax)
            setOnce(ContactProperty::HomePhone, number);
        if (types.contains("CELL"))
            setOnce(ContactProperty::MobilePhone, number);
        if (fax && !home)
            setOnce(ContactProperty::Fax, number);
        if (types.contains("PAGER"))
            setOnce(ContactProperty::Pager, number);
        QSet<QByteArray> kinds = types;
        kinds.remove("PREF");
        kinds.remove("VOICE");
        if (kinds.isEmpty() && m_plainPhone.isEmpty())
            m_plainPhone = number;
    }

    QString m_defaultCharset;
    ContactItem m_item;
    QString m_fullName;
    QString m_structuredName;
    QString m_email;
    bool m_emailPreferred = false;
    QString m_url;
    bool m_urlPreferred = false;
    QString m_plainPhone;
    bool m_addressTaken = false;
    bool m_workAddress = false;
};

} // namespace

bool looksLikeVCard(const QByteArray& data)
{
    QByteArray start = data.left(64);
    if (start.startsWith("\xEF\xBB\xBF"))
        start = start.mid(3);
    return startsWithNoCase(start.trimmed(), "BEGIN:VCARD");
}

QList<ContactItem> readVCards(const QByteArray& file, const QString& defaultCharset)
{
    QByteArray data = file;
    if (data.startsWith("\xEF\xBB\xBF"))
        data = data.mid(3);
    // Empty: the file is UTF-8, and a value that isn't (quoted-printable bytes) has its code
    // page guessed from its own bytes.
    const QString charset = !defaultCharset.isEmpty() ? defaultCharset
        : isUtf8(data)                                ? QString()
                                                      : guessCodePage(data);
    QList<ContactItem> contacts;
    std::optional<CardBuilder> card;
    int depth = 0; // cards nested in AGENT lines are read as part of their card
    for (const QByteArray& raw : logicalLines(data)) {
        const ContentLine line = parseLine(raw);
        if (line.name == "BEGIN" && line.value.trimmed().toUpper() == "VCARD") {
            if (depth++ == 0)
                card.emplace(charset);
        } else if (line.name == "END" && line.value.trimmed().toUpper() == "VCARD") {
            if (depth > 0 && --depth == 0) {
                contacts << card->item();
                card.reset();
            }
        } else if (card && depth == 1) {
            card->add(line);
        }
    }
    return contacts;
}

} // namespace kartella
