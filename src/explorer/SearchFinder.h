#pragma once

#include "explorer/DocumentSearch.h"

#include <QHash>
#include <QList>
#include <QObject>
#include <QPointer>

#include <atomic>
#include <memory>

class QThread;

namespace kartella {

class DocumentPages;

// The whole list of a search, found on a thread of its own.
struct FoundSearch
{
    std::unique_ptr<DocumentPages> pages;
    bool hasRows = false;
    bool failed = false;
    long errorNumber = 0;
    QString errorDescription;
};

// Finds the whole list of a search on a thread of its own while its first page shows, and
// hands it to the window's thread. Only the search started last is handed over: one
// started before is dropped when it ends.
class SearchFinder : public QObject
{
    Q_OBJECT

public:
    explicit SearchFinder(QObject* parent = nullptr);
    // Stops the searches still being found and waits for them.
    ~SearchFinder() override;

    // Finds searchListSql()'s list with its ranking; `knownHits` as for DocumentPages::setSearch().
    void find(const QString& sql, const SearchRanking& ranking, const QList<SearchTerm>& terms,
        const QHash<QString, qint64>& knownHits);
    // The search being found, if any, is handed to no one and stops reading the register.
    void drop();
    // Whether the search started last is still being found.
    bool finding() const { return m_finding; }
    // Whether no search is being found any more, handed over or not (for tests).
    bool idle() const;

Q_SIGNALS:
    void found(const std::shared_ptr<kartella::FoundSearch>& search);

private:
    QList<QPointer<QThread>> m_threads;
    // Set to stop the statements of the search being found; its connection shares it.
    std::shared_ptr<std::atomic<bool>> m_stop;
    int m_generation = 0;
    bool m_finding = false;
};

} // namespace kartella
