#include "explorer/SelectionState.h"

namespace kartella {

SelectionState& Selection()
{
    static SelectionState state;
    return state;
}

} // namespace kartella
