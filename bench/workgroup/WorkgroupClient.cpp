#include "WorkgroupClient.h"

#include "WorkgroupLog.h"
#include "addressbook/ContactQueries.h"
#include "addressbook/import/ContactImporter.h"
#include "base/Error.h"
#include "explorer/DocumentPaging.h"
#include "explorer/DocumentQueries.h"
#include "explorer/DocumentSearch.h"
#include "options/FirstRun.h"
#include "options/OptionStore.h"
#include "platform/Clock.h"
#include "registration/RegIndex.h"
#include "store/Store.h"
#include "store/engine/Connection.h"
#include "store/engine/Recordset.h"

#include <QElapsedTimer>
#include <QRandomGenerator>
#include <QThread>

#include <functional>

namespace kartella::bench {

namespace {

// The New Document dialog's recordset: the document with its reminders, opened to add.
const QString DocumentSource = QStringLiteral(
    "SHAPE {select RastasID,DokGavSiuntData,DokRegistracData,DokRegistracIndeksas,DokAntraste,DokPastaba,"
    "RastoKel,ContactID,KategID,SubKategID,KryptisID from tbl_Documents} AS ParentCMD APPEND ({select "
    "RastasID,TicklerDate,TicklerID,TicklerText from tbl_Tickler } AS ChildCMD RELATE RastasID TO RastasID) "
    "AS ChildCMD");

const QStringList SearchWords = {QStringLiteral("seed"), QStringLiteral("document 1"), QStringLiteral("edit"),
    QStringLiteral("new c"), QStringLiteral("S-2")};

bool isConflict(const Error& error)
{
    return error.number() == ErrorNumber::RowChanged || error.number() == ErrorNumber::RowDeleted;
}

double msSince(const QElapsedTimer& timer)
{
    return double(timer.nsecsElapsed()) / 1e6;
}

class Client
{
public:
    explicit Client(const ClientOptions& options)
        : m_options(options)
        , m_log(options.logPath)
        , m_random(quint32(options.number * 7919 + 17))
    { }

    int run()
    {
        if (!m_log.isOpen())
            return 1;
        seedOptionsIfMissing();
        setRegValue(QStringLiteral("DbLocation"), m_options.location);
        setRegValue(QStringLiteral("Provider"), JetProvider);
        m_connectionString = plainConnectionString(JetProvider, m_options.location);
        QElapsedTimer clock;
        clock.start();
        const qint64 end = qint64(m_options.seconds) * 1000;
        while (clock.elapsed() < end) {
            LoggedOperation operation;
            try {
                step(operation);
            } catch (const Error& error) {
                operation.result
                    = isConflict(error) ? LoggedOperation::Result::Refused : LoggedOperation::Result::Failed;
                operation.detail = QString::number(error.number()) + u' ' + error.description();
            }
            m_log.write(operation);
            if (m_options.pause)
                QThread::msleep(200 + m_random.bounded(800));
        }
        return 0;
    }

private:
    void step(LoggedOperation& operation)
    {
        const int pick = int(m_random.bounded(100));
        if (pick < 30)
            list(operation);
        else if (pick < 45)
            search(operation);
        else if (pick < 60)
            newDocument(operation);
        else if (pick < 82)
            edit(operation);
        else if (pick < 90)
            newContact(operation);
        else if (pick < 93)
            import(operation);
        else
            deleteDocument(operation);
    }

    // The first page of a node's list and its count, as the document list reads them.
    void readFirstPage(const DocumentPaging& paging)
    {
        Connection connection(m_connectionString);
        connection.open();
        Recordset count;
        count.open(paging.countSql(), connection, CursorTypeEnum::Static, LockTypeEnum::Unspecified);
        Recordset page;
        page.open(paging.pageSql(nullptr, 60), connection, CursorTypeEnum::Static, LockTypeEnum::Unspecified);
        while (!page.eof())
            page.moveNext();
    }

    void list(LoggedOperation& operation)
    {
        operation.kind = QStringLiteral("list");
        const qint32 category = qint32(m_random.bounded(5)); // 0: every category
        const int direction = int(m_random.bounded(5));
        const QDate today = Clock::currentDate();
        QElapsedTimer timer;
        timer.start();
        DocumentPaging paging(
            categoryListSql(category, direction, false, today.addMonths(-2), today.addDays(1)),
            DocumentPaging::Mode::Category);
        paging.setSort(int(m_random.bounded(6)) - 1, m_random.bounded(2) == 1);
        readFirstPage(paging);
        operation.ms = msSince(timer);
        operation.key = category;
    }

    void search(LoggedOperation& operation)
    {
        operation.kind = QStringLiteral("search");
        const QString text = SearchWords.at(int(m_random.bounded(qsizetype(SearchWords.size()))));
        QElapsedTimer timer;
        timer.start();
        const QList<SearchTerm> terms = searchTerms(text);
        const SearchIndexes indexes = registerSearchIndexes();
        DocumentPaging paging(searchListSql(terms, indexes, 0, false, {}, {}), DocumentPaging::Mode::Category);
        const SearchRanking ranking = searchRanking(terms, indexes);
        paging.setRanking(ranking.join, ranking.key);
        readFirstPage(paging);
        operation.ms = msSince(timer);
        operation.value = text;
    }

    // As the New Document dialog: the index proposed at its opening, the row stored at OK
    // with the index checked and counted in the row's transaction; a taken index is
    // replaced by the next free one, as the user accepts the offer.
    void newDocument(LoggedOperation& operation)
    {
        operation.kind = QStringLiteral("new");
        const qint32 category = 1 + qint32(m_random.bounded(4));
        const QString description = QStringLiteral("new c%1 n%2").arg(m_options.number).arg(++m_made);
        operation.value = description;
        Recordset document;
        document.setFilterGroup(FilterGroupEnum::PendingRecords);
        document.open(DocumentSource, shapeUpperConnectionString(JetProvider, m_options.location),
            CursorTypeEnum::Static, LockTypeEnum::BatchOptimistic);
        QString index = makeRegIndex(category);
        guardRegIndex(document, [&index] { return index; });
        document.addNew();
        const QDate today = Clock::currentDate();
        document.fields(QStringLiteral("DokAntraste")).setValue(description);
        document.fields(QStringLiteral("KategID")).setValue(category);
        document.fields(QStringLiteral("KryptisID")).setValue(1 + int(m_random.bounded(4)));
        document.fields(QStringLiteral("DokRegistracData")).setValue(today);
        document.fields(QStringLiteral("DokGavSiuntData")).setValue(today);
        document.fields(QStringLiteral("DokRegistracIndeksas")).setValue(index);
        QElapsedTimer timer;
        timer.start();
        for (int attempt = 0;; ++attempt) {
            try {
                document.updateBatch(AffectEnum::All);
                break;
            } catch (const Error& error) {
                if (error.number() != ErrorNumber::DuplicateValue || attempt == 20)
                    throw;
            }
            Connection connection(m_connectionString);
            connection.open();
            index = reserveFreeRegIndex(connection, index);
            operation.read += index + u' ';
            document.fields(QStringLiteral("DokRegistracIndeksas")).setValue(index);
        }
        operation.ms = msSince(timer);
        operation.key = document.fields(QStringLiteral("RastasID")).value().toLongLong();
        operation.detail = index;
    }

    // As the details dialog: the row read, a moment of typing, the description stored.
    void edit(LoggedOperation& operation)
    {
        operation.kind = QStringLiteral("edit");
        const qint32 id = m_random.bounded(2) == 0
            ? 1 + qint32(m_random.bounded(HotDocuments))
            : HotDocuments + 1 + qint32(m_random.bounded(SeedDocuments - HotDocuments));
        operation.key = id;
        Recordset document;
        document.setFilter(QStringLiteral("RastasID=") + QString::number(id));
        document.open(QStringLiteral("tbl_Documents"), m_connectionString, CursorTypeEnum::Static,
            LockTypeEnum::BatchOptimistic);
        if (document.eof()) {
            operation.result = LoggedOperation::Result::Refused;
            operation.detail = QStringLiteral("deleted before it was read");
            return;
        }
        operation.read = document.fields(QStringLiteral("DokAntraste")).value().toString();
        if (m_options.pause)
            QThread::msleep(m_random.bounded(300));
        operation.value = QStringLiteral("edit c%1 n%2").arg(m_options.number).arg(++m_made);
        document.fields(QStringLiteral("DokAntraste")).setValue(operation.value);
        QElapsedTimer timer;
        timer.start();
        document.updateBatch(AffectEnum::Current);
        operation.ms = msSince(timer);
    }

    // As the contact editor: the contact's row stored, then its two phones.
    void newContact(LoggedOperation& operation)
    {
        operation.kind = QStringLiteral("contact");
        operation.value = QStringLiteral("Contact c%1 n%2").arg(m_options.number).arg(++m_made);
        Recordset contact;
        contact.open(ContactQueries::contactsWithPhones(),
            shapePrefixConnectionString(JetProvider, m_options.location), CursorTypeEnum::Static,
            LockTypeEnum::BatchOptimistic);
        contact.addNew();
        contact.fields(QStringLiteral("FullName")).setValue(operation.value);
        contact.fields(QStringLiteral("City")).setValue(QStringLiteral("Vilnius"));
        QElapsedTimer timer;
        timer.start();
        contact.updateBatch(AffectEnum::All);
        contact.moveLast();
        Recordset* phones = contact.chapter(QStringLiteral("ChildCMD"));
        for (const QString& name : {QStringLiteral("Work"), QStringLiteral("Mobile")}) {
            phones->addNew();
            phones->fields(QStringLiteral("PhoneName")).setValue(name);
            phones->fields(QStringLiteral("PhoneNumber")).setValue(QStringLiteral("+370 5 %1").arg(m_made));
        }
        phones->updateBatch(AffectEnum::All);
        operation.ms = msSince(timer);
        operation.key = contact.fields(QStringLiteral("ContactID")).value().toLongLong();
    }

    void import(LoggedOperation& operation)
    {
        operation.kind = QStringLiteral("import");
        const int batch = int(m_random.bounded(ImportBatches));
        operation.key = batch;
        QList<ContactItem> items;
        for (int i = 0; i < ImportSize; ++i)
            items << ContactItem {{ContactProperty::FullName, importedName(batch, i)},
                {ContactProperty::BusinessPhone, QStringLiteral("+370 5 %1").arg(i)}};
        QStringList errors;
        ContactImporter importer(m_connectionString, [&errors](const Error& error) {
            errors << error.description();
            return true;
        });
        QElapsedTimer timer;
        timer.start();
        importer.run(items);
        operation.ms = msSince(timer);
        const ContactImportCounts& counts = importer.counts();
        operation.detail = QStringLiteral("%1 added, %2 there").arg(counts.added).arg(counts.alreadyThere);
        if (!errors.isEmpty() || counts.failed > 0) {
            operation.result = LoggedOperation::Result::Failed;
            operation.detail += u' ' + errors.join(u"; ");
        }
    }

    // As the main window's Delete: the row read, its related documents and then itself gone.
    void deleteDocument(LoggedOperation& operation)
    {
        operation.kind = QStringLiteral("delete");
        const qint32 id = HotDocuments + 1 + qint32(m_random.bounded(SeedDocuments - HotDocuments));
        operation.key = id;
        Connection connection(m_connectionString);
        connection.open();
        Recordset row;
        row.open(QStringLiteral("SELECT RastasID FROM tbl_Documents WHERE RastasID=") + QString::number(id),
            connection);
        const bool found = !row.eof();
        row.close();
        if (!found) {
            operation.result = LoggedOperation::Result::Refused;
            operation.detail = QStringLiteral("deleted by another client");
            return;
        }
        QElapsedTimer timer;
        timer.start();
        connection.execute(QStringLiteral("DELETE tbl_Sub_Documents.* FROM tbl_Sub_Documents WHERE "
                                          "tbl_Sub_Documents.RastasID=")
            + QString::number(id));
        connection.execute(
            QStringLiteral("DELETE tbl_Documents.* FROM tbl_Documents WHERE tbl_Documents.RastasID=")
            + QString::number(id));
        operation.ms = msSince(timer);
    }

    ClientOptions m_options;
    OperationLog m_log;
    QRandomGenerator m_random;
    QString m_connectionString;
    int m_made = 0;
};

} // namespace

QString seedContactName(int i)
{
    return QStringLiteral("Seed Contact %1").arg(i);
}

QString importedName(int batch, int i)
{
    if (i < ImportSize / 2)
        return seedContactName((batch * 20 + i) % SeedContacts);
    return QStringLiteral("Imported b%1 n%2").arg(batch).arg(i);
}

int runClient(const ClientOptions& options)
{
    return Client(options).run();
}

} // namespace kartella::bench
