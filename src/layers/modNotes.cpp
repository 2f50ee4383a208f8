#include "layers/modNotes.h"

#include "app/ProgramState.h"

namespace orvinel {

void LoadNotes(ProgramState& state, PlayerFiles&, Complaints*) {
    state.Notes.clear();
}

} // namespace orvinel
