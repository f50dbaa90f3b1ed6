#include "addressbook/import/ContactImporter.h"

#include "addressbook/import/ContactNameIndex.h"
#include "base/Error.h"
#include "store/engine/Connection.h"
#include "store/engine/Recordset.h"
#include "store/engine/Value.h"

#include <QElapsedTimer>

namespace kartella {

namespace {

constexpr int NotCut = -1;

struct FieldMapping
{
    const QString* property;
    const char* field;
    int width;
};

const FieldMapping contactFields[] = {
    {&ContactProperty::CompanyName, "CompanyName", 50},
    {&ContactProperty::Title, "Title", 50},
    {&ContactProperty::FullName, "FullName", 50},
    {&ContactProperty::Street, "Address", 255},
    {&ContactProperty::City, "City", 50},
    {&ContactProperty::State, "StateOrProvince", 20},
    {&ContactProperty::PostalCode, "PostalCode", 20},
    {&ContactProperty::Country, "Country", NotCut},
    {&ContactProperty::Email, "EmailName", 50},
};

struct PhoneMapping
{
    const QString* property;
    const char* phoneName;
};

const PhoneMapping phoneRows[] = {
    {&ContactProperty::BusinessPhone, "Business"},
    {&ContactProperty::HomePhone, "Home"},
    {&ContactProperty::MobilePhone, "Mobile"},
    {&ContactProperty::Fax, "Fax"},
    {&ContactProperty::Pager, "Pager"},
};

// Thrown when the error handler stops the run.
struct RunStopped
{
};

// Rows are written in transactions, each committed before the error handler is asked, at
// the end, and once it has been open this long, so that what was written before a failure
// stays, a large file does not wait for the disk once per row, and another program that
// wants to write waits no longer than its busy timeout allows.
constexpr qint64 CommitIntervalMs = 1000;

} // namespace

QString cutText(const QString& text, int width)
{
    if (width < 0 || text.size() <= width)
        return text;
    QString cut = text.left(width);
    if (!cut.isEmpty() && cut.back().isHighSurrogate())
        cut.chop(1);
    return cut;
}

ContactImporter::ContactImporter(QString connectionString, ErrorHandler onError)
    : m_connectionString(std::move(connectionString))
    , m_onError(std::move(onError))
{ }

bool ContactImporter::run(const QList<ContactItem>& items)
{
    m_counts = {};
    Connection connection;
    connection.setCursorLocation(CursorLocationEnum::UseClient);
    bool inTransaction = false;
    QElapsedTimer transactionAge;

    const auto commit = [&] {
        if (!inTransaction)
            return;
        inTransaction = false;
        connection.commitTrans();
    };
    const auto step = [&](const auto& action) {
        try {
            action();
        } catch (const Error& error) {
            ++m_counts.errors;
            try {
                commit();
            } catch (const Error&) {
                // the rows of the failed transaction are lost with it; the handler hears of the first failure
            }
            if (!m_onError(error))
                throw RunStopped();
        }
    };
    const auto write = [&](Recordset& recordset) {
        step([&] {
            if (!inTransaction && connection.isOpen()) {
                connection.beginTrans();
                inTransaction = true;
                transactionAge.start();
            }
            recordset.update();
            if (transactionAge.elapsed() >= CommitIntervalMs)
                commit();
        });
    };

    Recordset contacts;
    Recordset phones;
    Recordset homePages;
    ContactNameIndex names(connection);
    try {
        step([&] { connection.open(m_connectionString); });
        step([&] {
            contacts.open(QStringLiteral("SELECT * FROM tbl_Contacts"), connection, CursorTypeEnum::Dynamic,
                LockTypeEnum::Optimistic, -1);
        });
        step([&] {
            phones.open(QStringLiteral("SELECT * FROM tbl_Phones"), connection, CursorTypeEnum::Dynamic,
                LockTypeEnum::Optimistic, -1);
        });
        step([&] {
            homePages.open(QStringLiteral("SELECT * FROM tbl_HomePages"), connection, CursorTypeEnum::Dynamic,
                LockTypeEnum::Optimistic, -1);
        });
        step([&] { names.load(); });

        // Before its first lookup the id is not Null, as a variable never assigned is not:
        // an item whose lookup fails at once is not added.
        QVariant contactId = 0;
        for (const ContactItem& item : items) {
            const QString fullName = item.value(ContactProperty::FullName);
            if (fullName.isEmpty()) {
                ++m_counts.skipped;
                continue;
            }
            step([&] { contactId = names.find(fullName); });
            if (!isNull(contactId)) {
                ++m_counts.skipped;
                continue;
            }

            bool stored = false;
            step([&] { contacts.addNew(); });
            for (const FieldMapping& mapping : contactFields) {
                const QString value = item.value(*mapping.property);
                if (!value.isEmpty())
                    step([&] {
                        contacts.fields(QLatin1String(mapping.field)).setValue(cutText(value, mapping.width));
                    });
            }
            write(contacts);
            step([&] {
                contactId = contacts.fields(QStringLiteral("ContactID")).value();
                stored = !isNull(contactId);
            });
            if (stored) {
                ++m_counts.added;
                names.add(cutText(fullName, 50), contactId);
            }

            const QString homePage = item.value(ContactProperty::HomePage);
            if (!homePage.isEmpty()) {
                step([&] { homePages.addNew(); });
                step([&] { homePages.fields(QStringLiteral("ContactID")).setValue(contactId); });
                step([&] { homePages.fields(QStringLiteral("HomeWWW")).setValue(homePage); });
                write(homePages);
            }
            for (const PhoneMapping& mapping : phoneRows) {
                const QString number = item.value(*mapping.property);
                if (number.isEmpty())
                    continue;
                step([&] { phones.addNew(); });
                step([&] { phones.fields(QStringLiteral("ContactID")).setValue(contactId); });
                step([&] {
                    phones.fields(QStringLiteral("PhoneName")).setValue(QLatin1String(mapping.phoneName));
                });
                step([&] { phones.fields(QStringLiteral("PhoneNumber")).setValue(number); });
                write(phones);
            }
        }
        step(commit);
    } catch (const RunStopped&) {
        return false;
    }
    return true;
}

} // namespace kartella
