#pragma once

#include <QTreeWidgetItem>

namespace kartella {

// A line of the address book's contact list. Lines sort in the register's name order
// (Lithuanian letters beside their base letters, case aside), as the tree and the document
// list do, not by code point.
class ContactLine : public QTreeWidgetItem
{
public:
    using QTreeWidgetItem::QTreeWidgetItem;

    bool operator<(const QTreeWidgetItem& other) const override;
};

} // namespace kartella
