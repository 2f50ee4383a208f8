#include "tools/ToolText.h"

#include "world/World.h"

#include <array>

namespace orvinel {

namespace {

constexpr int first = static_cast<int>(ToolText::LanguageCode);

constexpr std::array builtIn = {"en",
                                "Progress",
                                "The whole world",
                                "Campaign",
                                "Region",
                                "Profession",
                                "Zone",
                                "Elite skills",
                                "Chests",
                                "By campaign",
                                "By region",
                                "By profession",
                                "Skills by region and profession",
                                "Chests opened",
                                "Still to do",
                                "%1 of %2",
                                "Nothing is left to do.",
                                "Elsewhere in the region",
                                "Place unknown",
                                "carried by %1",
                                "marker %1",
                                "drops %1",
                                "Chest: %1",
                                "There is no character yet.",
                                "Won since %1",
                                "Nothing was won since then.",
                                "Characters",
                                "captured",
                                "opened on %1",
                                "marked",
                                "taken back",
                                "was so already",
                                "%1 notes added, %2 were there already",
                                "%1 notes written to %2",
                                "Month",
                                "%1 possible places",
                                "This takes a moment ..."};
static_assert(builtIn.size() == static_cast<size_t>(ToolText::End) - first);

} // namespace

QString toolText(const World& state, ToolText number) {
    const int position = static_cast<int>(number);
    const QString text = state.text(static_cast<Caption>(position));
    return text.isEmpty() ? QString::fromLatin1(builtIn[static_cast<size_t>(position - first)]) : text;
}

} // namespace orvinel
