#pragma once

#include "base/Desktop.h"
#include "base/PlayerFiles.h"

#include <functional>

namespace orvinel {

struct World;

// Runs `save` and tells the player when it failed. When somebody else has written the file meanwhile, asks,
// and on Yes saves with its argument True. True when the file is saved. What is refused is not told: ask the
// rule first.
bool saveAndTell(const World& state, Desktop& desktop,
                 const std::function<SaveResult(bool evenIfChanged)>& save);

} // namespace orvinel
