#include "support/SelectionState.h"

namespace kartella {

SelectionState& selection()
{
    static SelectionState state;
    return state;
}

} // namespace kartella
