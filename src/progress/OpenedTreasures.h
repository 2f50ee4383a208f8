#pragma once

#include "app/Complaints.h"
#include "app/PlayerFiles.h"

namespace orvinel {

struct ProgramState;

void LoadOpenedTreasures(ProgramState& state, PlayerFiles& files, Complaints* complaints = nullptr);

} // namespace orvinel
