#pragma once

#include "explorer/ListModel.h"

namespace kartella {

struct SelectionState;

// Fills the related documents of the selected document into model. Returns false,
// with the model cleared, when there is nothing to show: no related document, or the
// document list in its empty state. Throws kartella::Error when the query fails.
bool fillRelatedRows(ListModel& model, const SelectionState& selection);

} // namespace kartella
