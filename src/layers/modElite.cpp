#include "layers/modElite.h"

#include "app/ProgramState.h"

namespace orvinel {

void LoadEliteSkills(ProgramState& state, const Disk&, Complaints*) {
    state.EliteSkills.reset();
}
void LoadEliteLocations(ProgramState&, const Disk&, Complaints*) {
}

} // namespace orvinel
