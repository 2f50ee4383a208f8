#include "layers/modCollectors.h"

#include "app/ProgramState.h"

namespace orvinel {

void LoadCollectors(ProgramState& state, const Disk&, Complaints*) {
    state.Collectors.reset();
}
void LoadCollectorLocations(ProgramState&, const Disk&, Complaints*) {
}

} // namespace orvinel
