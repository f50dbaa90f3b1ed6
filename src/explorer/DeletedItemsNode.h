#pragma once

#include <QString>

namespace kartella {

class NavigationTree;

// The key of the tree's "Deleted items" node.
inline const QString DeletedItemsKey = QStringLiteral("TRASH");

// Adds "Deleted items" at the end of the tree when the register the options name has a
// trash; an older register, or one that can't be read, gets none.
void addDeletedItemsNode(NavigationTree& tree);

// Purges the items of the register's trash older than the options' limit; a failure is
// passed over in silence (the next start tries again).
void purgeOldDeletedItems();

} // namespace kartella
