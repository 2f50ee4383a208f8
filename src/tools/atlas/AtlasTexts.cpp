#include "tools/atlas/AtlasTexts.h"

#include "world/World.h"

#include <array>

namespace orvinel {

namespace {

constexpr int first = static_cast<int>(AtlasText::LanguageCode);

constexpr std::array builtIn = {
    "en",
    "Atlas",
    "Search the whole world",
    "%1 found",
    "Nothing found",
    "The map needs JavaScript. The lists show everything without it.",
    "Show on the map",
    "Back to the map",
    "Lists for reading and printing",
    "given by %1",
    "dropped by %1",
    "carried by %1",
    "and %1 more",
    "Layers",
    "Already captured or opened",
    "Captured by %1",
    "Opened by %1 on %2",
    "There is no picture of this region.",
    "Skip to the lists",
    "The map is shown with %1.",
    "Zoom in",
    "Zoom out",
    "This link leads to no region of the atlas.",
    "In this region",
    "Nothing is known of this region.",
    "place unknown",
    "Explorable area",
    "Outpost",
    "Mission",
    "Town",
    "Challenge",
    "Dungeon",
    "Map",
    "Zones",
};
static_assert(builtIn.size() == static_cast<size_t>(AtlasText::End) - first);

} // namespace

QString atlasText(const World& state, AtlasText number) {
    const int position = static_cast<int>(number);
    const QString text = state.text(static_cast<Caption>(position));
    return text.isEmpty() ? QString::fromLatin1(builtIn[static_cast<size_t>(position - first)]) : text;
}

} // namespace orvinel
