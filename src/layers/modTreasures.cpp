#include "layers/modTreasures.h"

#include "app/ProgramState.h"

namespace orvinel {

void LoadTreasures(ProgramState& state, const Disk&, Complaints*) {
    state.Treasures.clear();
}

} // namespace orvinel
