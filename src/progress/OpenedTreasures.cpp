#include "progress/OpenedTreasures.h"

#include "app/ProgramState.h"

namespace orvinel {

void LoadOpenedTreasures(ProgramState&, PlayerFiles&, Complaints*) {
}

} // namespace orvinel
