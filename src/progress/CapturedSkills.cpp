#include "progress/CapturedSkills.h"

#include "app/ProgramState.h"

namespace orvinel {

void LoadCapturedSkills(ProgramState&, PlayerFiles&, Complaints*) {
}

} // namespace orvinel
