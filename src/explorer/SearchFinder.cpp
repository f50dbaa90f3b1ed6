#include "explorer/SearchFinder.h"

#include "base/Error.h"
#include "explorer/DocumentPages.h"
#include "store/Store.h"
#include "store/engine/Connection.h"

#include <QThread>

namespace kartella {

SearchFinder::SearchFinder(QObject* parent)
    : QObject(parent)
{ }

SearchFinder::~SearchFinder()
{
    drop();
    for (const QPointer<QThread>& thread : std::as_const(m_threads)) {
        if (thread)
            thread->wait();
    }
}

void SearchFinder::find(const QString& sql, const SearchRanking& ranking, const QList<SearchTerm>& terms,
    const QHash<QString, qint64>& knownHits)
{
    drop();
    const int generation = m_generation;
    m_finding = true;
    auto search = std::make_shared<FoundSearch>();
    auto stop = std::make_shared<std::atomic<bool>>(false);
    m_stop = stop;
    // The options are read here, on the window's thread.
    const QString connectionString = plainConnectionString();
    QThread* thread = QThread::create([sql, ranking, terms, knownHits, connectionString, search, stop] {
        try {
            auto connection = std::make_unique<Connection>();
            connection->setConnectionString(connectionString);
            connection->setMode(ConnectModeEnum::ShareDenyNone);
            connection->open();
            connection->setStopFlag(stop);
            Connection* reading = connection.get();
            auto pages = std::make_unique<DocumentPages>(
                sql, DocumentPaging::Mode::Category, 0, QChar(), terms, std::move(connection));
            pages->setSearch(ranking, terms, knownHits);
            search->hasRows = pages->queryHasRows();
            // The list's connection goes on to the window, which no later stop is for.
            reading->setStopFlag(nullptr);
            search->pages = std::move(pages);
        } catch (const Error& error) {
            search->failed = true;
            search->errorNumber = error.number();
            search->errorDescription = error.description();
        }
    });
    thread->setObjectName(QStringLiteral("FindingSearch"));
    m_threads.removeAll(nullptr);
    m_threads << thread;
    connect(thread, &QThread::finished, thread, &QObject::deleteLater);
    connect(thread, &QThread::finished, this, [this, search, generation] {
        if (generation != m_generation)
            return;
        m_finding = false;
        Q_EMIT found(search);
    });
    thread->start();
}

bool SearchFinder::idle() const
{
    for (const QPointer<QThread>& thread : m_threads) {
        if (thread && !thread->isFinished())
            return false;
    }
    return true;
}

void SearchFinder::drop()
{
    ++m_generation;
    m_finding = false;
    if (m_stop) {
        *m_stop = true;
        m_stop.reset();
    }
}

} // namespace kartella
