#pragma once

#include "World.h"

namespace orvinel::bench {

// Each registers its benchmarks on a world, named "what/who/world": who is "ours", the physical "limit" of
// the work, the "plain" way, or another program ("bare", "scene"). `world` outlives the run.
void addLoading(World& world);
void addKeystrokes(World& world);
void addScene(World& world);
void addComposition(World& world);
void addMapActions(World& world);
void addMouse(World& world);

} // namespace orvinel::bench
