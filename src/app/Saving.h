#pragma once

#include "base/Desktop.h"
#include "base/PlayerFiles.h"

#include <functional>

namespace orvinel {

struct World;

// Runs `save`. When somebody else has written the file meanwhile, asks the player, and on Yes saves with its
// argument True; on No the outcome stays ChangedOutside.
SaveResult saveAsking(const World& state, Desktop& desktop,
                      const std::function<SaveResult(bool evenIfChanged)>& save);

// What the player is told of a save that failed.
QString saveFailure(const World& state, const SaveResult& result);

// As saveAsking, and tells the player when it failed. True when the file is saved. What is refused is not
// told: ask the rule first.
bool saveAndTell(const World& state, Desktop& desktop,
                 const std::function<SaveResult(bool evenIfChanged)>& save);

} // namespace orvinel
