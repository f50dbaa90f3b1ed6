#pragma once

#include <QString>

namespace kartella {

// What the tree and the lists last left selected. Commands and dialogs take no
// arguments: they read it here. The ini file's path is worked out anew by IniFilePath()
// (options/OptionStore.h) at each use, so it has no copy here.
struct SelectionState
{
    // First letter of the key of the last category-tree node: "a" category, "b" subcategory.
    QString CurrentNodeKind;
    qint32 CurrentCategoryId = 0;
    qint32 CurrentSubCategoryId = 0;
    qint32 CurrentContactId = 0;
    // Character code of the last alphabet node; 0 when the last node was a contact.
    qint16 CurrentLetterCode = 0;
    // "ListDokSarasas" or "ListSusieti": the list last clicked.
    QString ActiveListName;
    QString SelectedFilePath;
    QString SelectedItemText;
    qint32 SelectedDocumentId = 0;
    qint32 SelectedSubDocumentId = 0;
    // True while ListDokSarasas holds documents, false in its empty state.
    bool DocumentListFilled = false;
};

// The one selection state of the running program.
SelectionState& Selection();

} // namespace kartella
