#include "layers/EliteFiles.h"

#include "base/Desktop.h"
#include "base/TextFile.h"
#include "layers/Content.h"
#include "layers/modGreenies.h"
#include "world/modCampaigns.h"
#include "world/modProfessions.h"

#include <QStringBuilder>

#include <limits>

namespace orvinel {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr size_t fullListLine = 11;
constexpr size_t locationLineWithNote = 8;
constexpr int mostLocations = largestIdentifier; // of one campaign
constexpr int anyIntLow = std::numeric_limits<int>::min();
constexpr int anyIntHigh = std::numeric_limits<int>::max();

// The numbers of a list line that is complete.
struct Costs {
    int upkeep = 0;
    int adrenaline = 0;
    int energy = 0;
    int recharge = 0;
};

std::optional<Costs> readCosts(TextFile& file) {
    const auto upkeep = file.integer(5, "upkeep", -32768, 32767);
    const auto adrenaline = file.integer(6, "adrenaline", 0, 255);
    const auto energy = file.integer(7, "energy", 0, 255);
    const auto recharge = file.integer(9, "recharge", -32768, 32767);
    if (!upkeep || !adrenaline || !energy || !recharge)
        return std::nullopt;
    return Costs{*upkeep, *adrenaline, *energy, *recharge};
}

// `pictures`: the campaign's folder of skill pictures.
void readSkill(Content& state, TextFile& file, int campaign, const QString& pictures) {
    const auto id = file.integer(0, "skill", 0, largestIdentifier);
    const auto profession = file.whole(1, "profession", 0, 255);
    const bool full = file.fieldCount() == fullListLine;
    const std::optional<Costs> costs = full ? readCosts(file) : Costs{};
    if (!id || !profession || !costs)
        return;
    EliteSkill& skill = state.EliteSkills.grow(*id);
    skill.Campaign = campaign;
    skill.Profession = *profession;
    skill.setName(file.text(file.field(2).trimmed()));
    skill.Picture.clear();
    if (!full)
        return;
    skill.setAttribute(file.text(3));
    skill.Type = file.text(4);
    skill.Upkeep = costs->upkeep;
    skill.Adrenaline = costs->adrenaline;
    skill.Energy = costs->energy;
    skill.CastTime = file.text(8);
    skill.Recharge = costs->recharge;
    skill.Description = file.text(10);
    skill.Picture = pictures % fixedDigits(*id, 4) % ".jpg"_L1;
}

void sortSkills(Content& state) {
    std::vector<QString> texts;
    for (int id = 1; id <= state.EliteSkills.highest(); ++id) {
        EliteSkill& skill = state.EliteSkills[id];
        skill.ListText = skill.Name % " ["_L1 % professionOf(state, skill.Profession).Abbreviation % u']';
        texts.push_back(skill.ListText);
    }
    state.EliteOrder = alphabeticalOrderFrom1(texts);
}

// Coordinates are twips until a comment names another version than 1.0.
class LocationFile {
  public:
    LocationFile(Content& state, const Disk& disk, int campaign, Complaints* complaints)
        : file_(disk, campaignFolder(state, campaign) + u"/EliteLocations.txt"_s, complaints,
                &state.EliteTexts),
          campaign_(campaign) {}

    // Calls store(skill, location) for every line that can be used.
    template <typename Store>
    void read(const Content& state, Store store) {
        while (file_.nextLine()) {
            if (file_.isComment()) {
                if (file_.line().sliced(1).startsWith(u"[Version]"))
                    twips_ = file_.line().last(3) == u"1.0";
                continue;
            }
            if (!file_.hasFields(7))
                continue;
            const auto id = file_.integer(0, "skill", 0, state.EliteSkills.highest());
            std::optional<MapLocation> location = id ? readLocation() : std::nullopt;
            if (!location)
                continue;
            if (++stored_ > mostLocations)
                file_.skip({}, u"more than %1 bosses"_s.arg(mostLocations));
            else
                store(*id, std::move(*location));
        }
    }

  private:
    std::optional<int> coordinate(size_t position, const char* name) {
        const int scale = twips_ ? twipsPerPixel : 1;
        const int limit = largestCoordinate * scale;
        const auto value = file_.integer(position, name, -limit, limit);
        return value ? std::optional(*value / scale) : value;
    }

    std::optional<MapLocation> readLocation() {
        const auto region = file_.whole(1, "region", 0, 255);
        const auto x = coordinate(2, "x");
        const auto y = coordinate(3, "y");
        const auto zone = file_.integer(6, "zone", anyIntLow, anyIntHigh);
        if (!region || !x || !y || !zone)
            return std::nullopt;
        MapLocation location;
        location.Campaign = campaign_;
        location.Region = *region;
        location.Zone = *zone;
        location.placeAt(*x, *y, bossReach);
        location.setBoss(file_.text(4));
        location.MarkerCode = file_.text(5);
        if (file_.fieldCount() == locationLineWithNote)
            location.Note = withLineBreaks(file_.text(7));
        return location;
    }

    TextFile file_;
    int campaign_;
    bool twips_ = true;
    int stored_ = 0;
};

} // namespace

void LoadEliteSkills(Content& state, const Disk& disk, Complaints* complaints) {
    state.EliteSkills.reset();
    state.EliteTexts.clear();
    for (int n = 0; n <= state.Campaigns.highest(); ++n) {
        const QString folder = campaignFolder(state, n);
        const QString pictures = folder + u"/imgElite/"_s;
        TextFile file(disk, folder + u"/EliteList.txt"_s, complaints, &state.EliteTexts);
        while (file.nextRecord())
            if (file.hasFields(3))
                readSkill(state, file, n, pictures);
    }
    for (EliteSkill& skill : state.EliteSkills)
        skill.Captured.assign(static_cast<size_t>(state.Characters.highest()) + 1, false);
    sortSkills(state);
}

void LoadEliteLocations(Content& state, const Disk& disk, Complaints* complaints) {
    for (int n = 0; n <= state.Campaigns.highest(); ++n) {
        LocationFile file(state, disk, n, complaints);
        file.read(state, [&](int id, MapLocation&& read) {
            const int index = state.EliteSkills[id].addLocation(std::move(read));
            MapLocation& location = state.EliteSkills[id].Locations[index];
            if (carriesGreens(location))
                location.Greens = LinkGreensToBoss(state, id, index);
        });
    }
}

} // namespace orvinel
