#include "layers/modPets.h"

#include "app/ProgramState.h"

namespace orvinel {

void LoadPets(ProgramState& state, const Disk&, Complaints*) {
    state.Pets.reset();
}
void LoadPetLocations(ProgramState&, const Disk&, Complaints*) {
}

} // namespace orvinel
