#pragma once

#include <QChar>

namespace kartella {

class NavigationTree;

// Builds the category view: first removes subcategories without a name or without a
// category, then adds the root "CATEGORIES", the categories by name and under each its
// subcategories. Throws kartella::Error; the tree then keeps what was added so far.
void buildCategoryTree(NavigationTree& tree);

// Builds the contact view: the root "CONTACTS", the letters A to Z, and each contact
// under its letter (Ą under A, Č under C, Ė under E, Į under I, Š under S, Ų under U,
// Ž under Z). A name whose first letter belongs to no node is passed over.
void buildContactTree(NavigationTree& tree);

// The letter node (0 = A .. 25 = Z) a name's first character belongs to, or -1.
int contactLetterIndex(QChar first);

} // namespace kartella
