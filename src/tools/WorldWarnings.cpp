#include "tools/WorldWarnings.h"

#include "world/modCampaigns.h"

#include <map>
#include <set>
#include <tuple>

namespace orvinel {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qsizetype mostCodeCharacters = 2; // what a boss's box has room for

class Warnings {
  public:
    Warnings(const ProgramState& state, const Disk& disk, const ComplaintList& skipped,
             std::vector<Finding>& findings)
        : state_(state), disk_(disk), skipped_(skipped), findings_(findings) {}

    void all() { checkPlaces(placedLines(state_, disk_, skipped_)); }

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

    void checkPlaces(const std::vector<PlacedLine>& placed) {
        std::set<std::tuple<int, int, int, int, int>> seen;
        for (const PlacedLine& item : placed) {
            if (item.kind != PlacedLine::Kind::Boss)
                continue;
            const MapLocation& at = *item.at;
            if (at.MarkerCode.size() > mostCodeCharacters)
                warn(item.line, u"marker"_s, u"\"%1\" is wider than the marker's box"_s.arg(at.MarkerCode));
            if (at.placed() && !seen.insert({item.id, at.Campaign, at.Region, at.X, at.Y}).second)
                warn(item.line, u"place"_s, u"%1 stands there a second time"_s.arg(item.name));
        }
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
