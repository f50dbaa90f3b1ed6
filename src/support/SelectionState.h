#pragma once

#include <QString>

namespace kartella {

// What the tree and the lists last left selected. Commands and dialogs take no
// arguments: they read it here. The ini file's path is worked out anew by iniFilePath()
// (options/OptionStore.h) at each use, so it has no copy here.
struct SelectionState
{
    // First letter of the key of the last category-tree node: "a" category, "b" subcategory.
    QString currentNodeKind;
    qint32 currentCategoryId = 0;
    qint32 currentSubCategoryId = 0;
    qint32 currentContactId = 0;
    // Character code of the last alphabet node; 0 when the last node was a contact.
    qint16 currentLetterCode = 0;
    // "ListDokSarasas" or "ListSusieti": the list last clicked.
    QString activeListName;
    QString selectedFilePath;
    QString selectedItemText;
    qint32 selectedDocumentId = 0;
    qint32 selectedSubDocumentId = 0;
    // True while ListDokSarasas holds documents, false in its empty state.
    bool documentListFilled = false;
};

// The one selection state of the running program.
SelectionState& selection();

} // namespace kartella
