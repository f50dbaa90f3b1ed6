#pragma once

#include "explorer/ListModel.h"

#include <map>
#include <memory>

namespace kartella {

class Connection;

// The related documents of one document, read a page at a time as the list shows them.
// Their order is the register's (by SubRastasID) until a column sorts them; the database
// sorts them as the list would: names in the register's order with the null mark for a
// null, dates with the rows without one first, and rows of one value in the register's
// order either way. A document has few related documents: finding a row by its key or its
// first letters reads its pages one after the other.
class RelatedPages : public ListRowSource
{
public:
    // Opens the register and counts; throws kartella::Error when it can't.
    explicit RelatedPages(qint32 documentId);
    ~RelatedPages() override;

    static void setPageSize(int rows);
    int pagesRead() const { return m_pagesRead; }

    int count() const override { return m_count; }
    ListItem item(int row) override;
    int rowOfKey(const QString& key) override;
    void setItemTag(int row, const QString& tag) override;
    void sort(int column, Qt::SortOrder order) override;
    int rowStartingWith(int from, const QString& text) override;

private:
    std::vector<ListItem>& page(int number);
    QString orderBy() const;

    qint32 m_documentId;
    std::unique_ptr<Connection> m_connection;
    int m_count = 0;
    int m_sortColumn = -1;
    bool m_descending = false;
    std::map<int, std::vector<ListItem>> m_pages;
    int m_pagesRead = 0;
};

} // namespace kartella
