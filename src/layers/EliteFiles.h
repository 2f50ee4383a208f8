#pragma once

#include "base/Complaints.h"
#include "base/Disk.h"

namespace orvinel {

struct Content;

// Also fills EliteOrder. Slot 0 is no skill: its locations are the bosses without one.
void LoadEliteSkills(Content& state, const Disk& disk, Complaints* complaints = nullptr);
// Links the green items too. A location of a number within the table that no line named is kept: its skill
// has no name.
void LoadEliteLocations(Content& state, const Disk& disk, Complaints* complaints = nullptr);

} // namespace orvinel
