#include "layers/modGreenies.h"

#include "app/ProgramState.h"

namespace orvinel {

void LoadGreens(ProgramState& state, const Disk&, Complaints*) {
    state.GreenItems.clear();
}

} // namespace orvinel
