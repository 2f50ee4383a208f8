#pragma once

#include "tools/WorldCheck.h"
#include "tools/WorldWalk.h"

#include <vector>

namespace orvinel {

// What works but looks bad or is probably not meant. `skipped` holds what the loaders complained of.
void addWarnings(const ProgramState& state, const Disk& disk, const ComplaintList& skipped,
                 std::vector<Finding>& findings);

} // namespace orvinel
