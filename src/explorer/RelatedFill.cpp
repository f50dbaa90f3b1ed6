#include "explorer/RelatedFill.h"

#include "explorer/RelatedPages.h"
#include "support/SelectionState.h"

#include <QCoreApplication>

namespace kartella {

bool fillRelatedRows(ListModel& model, const SelectionState& selection)
{
    auto rows = std::make_unique<RelatedPages>(selection.selectedDocumentId);
    if (rows->count() == 0 || !selection.documentListFilled) {
        model.clear();
        return false;
    }
    model.setColumns({{QCoreApplication::translate("kartella::DocumentFills", "Doc. Description"), 3000},
        {QCoreApplication::translate("kartella::DocumentFills", "Sender/Receiver"), 2000},
        {QCoreApplication::translate("kartella::DocumentFills", "Date"), 1500, true}});
    model.setSource(std::move(rows));
    return true;
}

} // namespace kartella
