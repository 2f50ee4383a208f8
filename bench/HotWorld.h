#pragma once

#include <QString>

namespace orvinel::bench {

// Writes a world of one crowded region: 400 skills with 1,500 boss locations, 600 collectors of four rewards
// with three lines each, 400 zones and 500 notes. Always the same. `folder` exists and ends in '/'; False
// when something could not be written.
bool writeHotWorld(const QString& folder);

} // namespace orvinel::bench
