#include "tools/WorldWarnings.h"

#include "app/ProgramState.h"
#include "tools/PictureSize.h"
#include "world/PictureBounds.h"
#include "world/modCampaigns.h"

#include <map>
#include <set>
#include <tuple>

namespace orvinel {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qsizetype mostCodeCharacters = 2;  // that a boss's box has room for
constexpr qsizetype mostListCharacters = 38; // that a list of the panel shows, in its face
constexpr int textLine = 13;                 // pixels of a line in an information window
constexpr int lineCharacters = 48;           // of one
constexpr int windowFrame = 60;              // pixels: heading, name and edges of one
constexpr int smallestScreen = 768;          // pixels of height

class Warnings {
  public:
    Warnings(const ProgramState& state, const Disk& disk, const ComplaintList& skipped,
             std::vector<Finding>& findings)
        : state_(state), disk_(disk), skipped_(skipped), findings_(findings) {}

    void all() {
        const std::vector<PlacedLine> placed = placedLines(state_, disk_, skipped_);
        checkBosses(placed);
        for (const PlacedLine& item : placed)
            if (item.kind == PlacedLine::Kind::Collector)
                checkCollector(item);
        checkNames();
        checkPictures();
    }

  private:
    void warn(const Line& line, const QString& field, const QString& reason) {
        Finding finding;
        finding.file = line.file;
        finding.line = line.number;
        finding.field = field;
        finding.reason = reason;
        finding.warning = true;
        findings_.push_back(finding);
    }

    void checkBosses(const std::vector<PlacedLine>& placed) {
        std::set<std::tuple<int, QString, int, int, int, int>> seen;
        std::map<std::pair<int, QString>, int> places;
        for (const PlacedLine& item : placed)
            if (item.kind == PlacedLine::Kind::Boss)
                ++places[{item.id, item.name}];
        for (const PlacedLine& item : placed) {
            if (item.kind != PlacedLine::Kind::Boss)
                continue;
            const MapLocation& at = *item.at;
            if (at.MarkerCode.size() > mostCodeCharacters)
                warn(item.line, u"marker"_s, u"\"%1\" is wider than the marker's box"_s.arg(at.MarkerCode));
            if (at.MarkerCode.contains(u'a') && places[{item.id, item.name}] == 1)
                warn(item.line, u"marker"_s,
                     u"%1 is one of several places by its code \"%2\", but has only one"_s.arg(
                         item.name, at.MarkerCode));
            if (at.placed() && !seen.insert({item.id, item.name, at.Campaign, at.Region, at.X, at.Y}).second)
                warn(item.line, u"place"_s, u"%1 stands there a second time"_s.arg(item.name));
            int height = windowFrame + heightOf(at.Note) + heightOf(state_.EliteSkills[item.id].Description);
            for (const int green : at.Greens)
                if (state_.GreenItems.has(green))
                    height += textLine + heightOf(state_.GreenItems[green].Stats);
            checkHeight(item, height);
        }
    }

    void checkCollector(const PlacedLine& item) {
        const Collector& collector = state_.Collectors[item.id];
        int height = windowFrame + heightOf(collector.Request) + heightOf(collector.LocationText);
        for (const CollectorObject& object : collector.Objects)
            height += textLine + heightOf(object.Stats);
        checkHeight(item, height);
    }

    static int heightOf(const QString& text) {
        int lines = 0;
        if (!text.isEmpty())
            for (const QString& line : text.split(u"\r\n"_s))
                lines += 1 + static_cast<int>(line.size()) / lineCharacters;
        return lines * textLine;
    }
    static int heightOf(const std::vector<QString>& lines) {
        int height = 0;
        for (const QString& line : lines)
            height += heightOf(line);
        return height;
    }

    void checkHeight(const PlacedLine& item, int height) {
        if (height > smallestScreen)
            warn(item.line, u"text"_s,
                 u"the information window of %1 is about %2 pixels high: more than the %3 of small screens"_s
                     .arg(item.name)
                     .arg(height)
                     .arg(smallestScreen));
    }

    // By the lines of the lists: what the panel's lists cut off.
    void checkNames() {
        for (int n = 0; n <= state_.Campaigns.highest(); ++n)
            if (!state_.Campaigns[n].CampaignName.isEmpty()) {
                const QString folder = campaignFolder(state_, n);
                forEachLine(disk_, folder + u"/EliteList.txt"_s, skipped_,
                            [this](const TextFile& file, const Line& line) {
                                const int id =
                                    leadingInteger(file.field(0), 0, largestIdentifier).value_or(0);
                                if (state_.EliteSkills.has(id))
                                    checkName(line, state_.EliteSkills[id].ListText);
                            });
                forEachLine(disk_, folder + u"/Greens.txt"_s, skipped_,
                            [this](const TextFile& file, const Line& line) {
                                checkName(line, file.field(0).trimmed().toString());
                            });
            }
    }

    void checkName(const Line& line, const QString& text) {
        if (text.size() > mostListCharacters)
            warn(line, u"name"_s, u"\"%1\" is wider than the panel's list"_s.arg(text));
    }

    void checkPictures() {
        for (const Campaign& campaign : state_.Campaigns)
            for (const Region& region : campaign.Regions)
                checkPicture(region.RegionPicture, largestRegion);
        for (const EliteSkill& skill : state_.EliteSkills)
            if (skill.Exists)
                checkPicture(skill.Picture, largestIcon);
        for (const Pet& pet : state_.Pets)
            checkPicture(pet.Picture, largestIcon);
    }

    static constexpr qint64 smallestSuspect = 32 * 1024; // bytes

    // Only what is large enough as a file to be too large as a picture is read.
    void checkPicture(const QString& path, qint64 mostBytes) {
        if (path.isEmpty() || disk_.length(path) < smallestSuspect)
            return;
        const QSize size = jpegSize(disk_.read(path).bytes);
        if (qint64(size.width()) * size.height() * 4 > mostBytes)
            warn({path}, u"picture"_s,
                 u"%1 x %2 pixels are more than is shown"_s.arg(size.width()).arg(size.height()));
    }

    const ProgramState& state_;
    const Disk& disk_;
    const ComplaintList& skipped_;
    std::vector<Finding>& findings_;
};

} // namespace

void addWarnings(const ProgramState& state, const Disk& disk, const ComplaintList& skipped,
                 std::vector<Finding>& findings) {
    Warnings(state, disk, skipped, findings).all();
}

} // namespace orvinel
