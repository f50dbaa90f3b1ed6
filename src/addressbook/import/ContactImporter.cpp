#include "addressbook/import/ContactImporter.h"

#include "addressbook/import/ContactNameIndex.h"
#include "base/Error.h"
#include "store/engine/Connection.h"
#include "store/engine/Recordset.h"
#include "store/engine/Value.h"
#include "store/engine/WriteContext.h"

#include <QElapsedTimer>

#include <optional>

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
    {&ContactProperty::Notes, "Notes", NotCut},
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
// the end, and once it has been open this long, so that a large file does not wait for the
// disk once per row and another program that wants to write waits no longer than its busy
// timeout allows. A statement that fails undoes only itself; a commit that fails loses the
// transaction's rows, and its items are written again one at a time.
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
    const CommandScope command(QStringLiteral("Import"));
    m_counts = {};
    Connection connection;
    connection.setCursorLocation(CursorLocationEnum::UseClient);
    Recordset contacts;
    Recordset phones;
    Recordset homePages;
    ContactNameIndex names(connection);

    // The open transaction: since which item, the counts before it, the names it added.
    bool grouping = true;
    bool inTransaction = false;
    QElapsedTimer transactionAge;
    qsizetype firstPending = 0;
    ContactImportCounts countsBefore;
    QStringList namesAdded;
    // A commit failed: the transaction's rows are gone, and the item under way is abandoned.
    std::optional<Error> lostCommit;
    // A failure before the first item counts for no item.
    bool itemFailed = true;
    qsizetype index = 0;

    const auto commit = [&] {
        if (!inTransaction)
            return;
        inTransaction = false;
        try {
            connection.commitTrans();
        } catch (const Error& error) {
            lostCommit = error;
        }
    };
    const auto step = [&](const auto& action) {
        if (lostCommit)
            return;
        try {
            action();
        } catch (const Error& error) {
            ++m_counts.errors;
            if (!itemFailed)
                ++m_counts.failed;
            itemFailed = true;
            commit();
            // The rows of this item written so far are kept; a later failed commit writes
            // the items after it again, not this one.
            if (!lostCommit) {
                firstPending = index + 1;
                countsBefore = m_counts;
                namesAdded.clear();
            }
            if (!m_onError(error))
                throw RunStopped();
        }
    };
    // The write transaction begins before an item's name is looked up. Holding off every
    // other import of the register until it commits, it first reads the names that other
    // programs stored since, so that the look and the write see the same contacts.
    const auto beginItems = [&] {
        if (!grouping || inTransaction || !connection.isOpen())
            return;
        connection.beginTrans();
        inTransaction = true;
        transactionAge.start();
        connection.lockForWriting(QStringLiteral("contacts"));
        names.refresh();
    };
    // True when the row was stored.
    const auto write = [&](Recordset& recordset) {
        bool written = false;
        step([&] {
            beginItems();
            try {
                recordset.update();
            } catch (const Error&) {
                // The refused row is given up, so that the next one can be added.
                recordset.cancelUpdate();
                throw;
            }
            written = true;
        });
        return written;
    };

    // Before its first lookup the id is not Null, as a variable never assigned is not:
    // an item whose lookup fails at once is not added.
    QVariant contactId = 0;
    const auto importItem = [&](const ContactItem& item) {
        itemFailed = false;
        const QString fullName = item.value(ContactProperty::FullName);
        if (fullName.isEmpty()) {
            ++m_counts.skipped;
            return;
        }
        step([&] {
            beginItems();
            contactId = names.find(fullName);
        });
        if (!isNull(contactId)) {
            ++m_counts.skipped;
            ++m_counts.alreadyThere;
            return;
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
        // A contact that was not stored gets no phones or web page: they would belong to no one.
        if (!write(contacts))
            return;
        step([&] {
            contactId = contacts.fields(QStringLiteral("ContactID")).value();
            stored = !isNull(contactId);
        });
        if (stored && !lostCommit) {
            ++m_counts.added;
            names.add(cutText(fullName, 50), contactId);
            namesAdded << cutText(fullName, 50);
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
    };
    // Takes back the counts and names of the items whose rows a failed commit lost, and
    // tells the handler. True when they are to be written again.
    const auto forgetLostItems = [&] {
        const Error error = *lostCommit;
        lostCommit.reset();
        m_counts = countsBefore;
        for (const QString& name : std::as_const(namesAdded))
            names.forget(name);
        namesAdded.clear();
        ++m_counts.errors;
        grouping = false;
        return m_onError(error);
    };
    // Ends the transaction at an item's end when it is due (or always); a failed commit
    // writes the transaction's items again, each row on its own.
    const auto finishItems = [&](qsizetype next, bool always) {
        if (inTransaction && (always || transactionAge.elapsed() >= CommitIntervalMs))
            commit();
        if (!lostCommit)
            return;
        const qsizetype from = std::min(firstPending, next);
        if (!forgetLostItems()) {
            m_counts.failed += int(next - from);
            throw RunStopped();
        }
        for (qsizetype again = from; again < next; ++again)
            importItem(items.at(again));
    };

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
        for (index = 0; index < items.size(); ++index) {
            if (!inTransaction) {
                firstPending = index;
                countsBefore = m_counts;
                namesAdded.clear();
            }
            importItem(items.at(index));
            finishItems(index + 1, false);
        }
        finishItems(items.size(), true);
    } catch (const RunStopped&) {
        // What was written before stays.
        commit();
        if (lostCommit) {
            const qsizetype lostItems
                = std::max<qsizetype>(0, std::min(index + 1, items.size()) - firstPending);
            forgetLostItems();
            m_counts.failed += int(lostItems);
        }
        return false;
    }
    return true;
}

} // namespace kartella
