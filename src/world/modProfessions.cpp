#include "world/modProfessions.h"

#include "base/TextFile.h"
#include "world/World.h"
#include "world/modCampaigns.h"

#include <limits>

namespace orvinel {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr Caption noAttributeText = Caption::NoAttribute;

void loadProfessions(World& state, const QString& path, const Disk& disk, Complaints* complaints) {
    TextFile file(disk, path, complaints);
    while (file.nextLine()) {
        if (!file.hasFields(4))
            continue;
        const auto number = file.integer(0, "profession", 0, 255);
        const auto colour =
            file.whole(2, "colour", std::numeric_limits<int>::min(), std::numeric_limits<int>::max());
        if (!number || !colour)
            continue;
        Profession& profession = state.Professions.grow(*number);
        profession = {file.text(1), file.text(3), static_cast<Colour>(*colour) & 0xFFFFFF, {}};
        for (size_t i = 4; i < file.fieldCount(); ++i)
            profession.Attributes.push_back(file.text(i));
    }
}

} // namespace

void LoadProfessions(World& state, const Disk& disk, Complaints* complaints) {
    state.Professions.reset();
    state.Professions[0] = {u"No profession"_s, u"#"_s, noBossGrey, {}};
    for (int n = 0; n <= state.Campaigns.highest(); ++n)
        loadProfessions(state, campaignFolder(state, n) + u"/Professions.txt"_s, disk, complaints);
}

std::vector<ListEntry> professionEntries(const World& state, Caption pinned) {
    std::vector<ListEntry> entries;
    for (int p = 1; p <= state.Professions.highest(); ++p)
        entries.push_back({state.Professions[p].Name, p});
    sortAlphabetically(entries);
    entries.insert(entries.begin(), {pinnedText(state.text(pinned)), 0});
    return entries;
}

std::vector<ListEntry> attributeEntries(const World& state, int profession) {
    std::vector<ListEntry> entries = {{pinnedText(state.text(Caption::All)), 0}};
    if (profession < 1 || !state.Professions.has(profession))
        return entries;
    for (const QString& attribute : state.Professions[profession].Attributes)
        entries.push_back({attribute, static_cast<int>(entries.size())});
    entries.push_back({state.text(noAttributeText), noAttributeData});
    return entries;
}

std::vector<std::string> attributeWords(const World& state, int profession,
                                        const std::optional<QString>& attribute) {
    if (profession < 1)
        return {};
    if (attribute)
        return {folded(*attribute)};
    std::vector<std::string> words = {folded(state.text(noAttributeText))};
    for (const QString& name : professionOf(state, profession).Attributes)
        words.push_back(folded(name));
    return words;
}

const Profession& professionOf(const World& state, int number) {
    static const Profession none;
    return state.Professions.has(number) ? state.Professions[number] : none;
}

} // namespace orvinel
