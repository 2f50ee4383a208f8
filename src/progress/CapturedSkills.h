#pragma once

#include "app/Complaints.h"
#include "app/PlayerFiles.h"

namespace orvinel {

struct ProgramState;

void LoadCapturedSkills(ProgramState& state, PlayerFiles& files, Complaints* complaints = nullptr);

} // namespace orvinel
