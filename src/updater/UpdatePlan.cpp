#include "updater/UpdatePlan.h"

#include "updater/Package.h"

#include <algorithm>
#include <set>

namespace orvinel {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr QLatin1String languagePath("Data/Language.txt");
constexpr QLatin1String languagesFolder("Data/Languages/");
constexpr QLatin1String firstCharacters("Data/Characters.txt");
constexpr QLatin1String campaignPrefix("Campaign.");
constexpr QLatin1String pendingUpdater("update.dat");
constexpr int deepestFolder = 8;

bool isPlayers(const QString& path) {
    return path.startsWith(u"Personal/"_s) || path.startsWith(u"Backups/"_s) ||
           path.startsWith(u"Pages/"_s) || path == u"Data/Options.txt"_s;
}

bool isLanguage(const QString& path) {
    return path == languagePath || (path.startsWith(languagesFolder) && path.endsWith(u".txt"_s));
}

// The campaign folder that a path lies in; empty for all others.
QString campaignOf(const QString& path) {
    const QString first = path.section(u'/', 0, 0);
    return path.startsWith(campaignPrefix) && first != path ? first : QString();
}

QString campaignNumber(const QString& campaign) {
    return campaign.section(u'.', 1, 1);
}

class Planner {
  public:
    Planner(const Disk& disk, const QString& folder, const FileSums& sums)
        : disk_(disk), folder_(folder), new_(sums), old_(installedSums(disk, folder)) {}

    UpdatePlan plan() {
        keepCampaigns();
        for (const auto& [path, sum] : new_)
            consider(path, sum);
        bring(installedListPath, installedListPath);
        if (old_)
            removeOutdated();
        plan_.kept.sort();
        return std::move(plan_);
    }

  private:
    // Null when it is not there; of a file that cannot be read, or a folder, no sum.
    QByteArray present(const QString& path) const {
        const ReadResult read = disk_.read(folder_ + path);
        if (read.outcome == ReadResult::Outcome::NotThere)
            return disk_.folderExists(folder_ + path) ? QByteArray("") : QByteArray();
        return read.outcome == ReadResult::Outcome::Read ? sumOf(read.bytes) : QByteArray("");
    }

    QByteArray oldSum(const QString& path) const {
        const bool known = old_ && old_->contains(path);
        return known ? old_->at(path) : QByteArray();
    }

    void gather(const QString& path, std::set<QString>& files, int depth) const {
        for (const QString& name : disk_.list(folder_ + path)) {
            const QString inside = path + u'/' + name;
            if (depth < deepestFolder && disk_.folderExists(folder_ + inside))
                gather(inside, files, depth + 1);
            else
                files.insert(inside);
        }
    }

    // The list knows the campaign's folder, and nothing in it is changed, added or missing.
    bool isAs(const FileSums& sums, const QString& campaign) const {
        std::set<QString> files;
        gather(campaign, files, 1);
        const bool some = !files.empty();
        for (const auto& [path, sum] : sums)
            if (campaignOf(path) == campaign && (!files.erase(path) || present(path) != sum))
                return false;
        return some && files.empty();
    }

    void keepCampaigns() {
        for (const QString& name : disk_.list(folder_)) {
            if (!name.startsWith(campaignPrefix) || !disk_.folderExists(folder_ + name))
                continue;
            if (isAs(new_, name) || (old_ && isAs(*old_, name)))
                continue;
            keptNumbers_.insert(campaignNumber(name));
            plan_.kept << name;
        }
    }

    void consider(const QString& path, const QByteArray& sum) {
        if (isPlayers(path) || (path == firstCharacters && disk_.folderExists(folder_ + u"Personal"_s)))
            return;
        if (const QString campaign = campaignOf(path);
            !campaign.isEmpty() && keptNumbers_.contains(campaignNumber(campaign)))
            return;
        if (path == updaterFileName)
            return considerUpdater(sum);
        const QByteArray now = present(path);
        if (path == programFileName() || now.isNull())
            return bring(path, path);
        if (isLanguage(path))
            return considerLanguage(path, now);
        if (now != sum)
            bring(path, path);
    }

    // A program that runs cannot be replaced on every system: it is swapped in by the next start.
    void considerUpdater(const QByteArray& sum) {
        const QByteArray now = present(updaterFileName);
        if (now.isNull())
            bring(updaterFileName, updaterFileName);
        else if (now != sum)
            return bring(pendingUpdater, updaterFileName);
        if (!present(pendingUpdater).isNull()) // an older one would be swapped in
            plan_.gone.push_back(pendingUpdater);
    }

    void considerLanguage(const QString& path, const QByteArray& now) {
        const QString follows = now == oldSum(path) ? path : languageOf(old_.value_or(FileSums()), now);
        if (new_.contains(follows) && new_.at(follows) != now)
            bring(path, path == languagePath ? follows : path);
        else if (!new_.contains(follows) && languageOf(new_, now).isEmpty())
            plan_.kept << path;
    }

    static QString languageOf(const FileSums& sums, const QByteArray& sum) {
        const auto found = std::find_if(sums.begin(), sums.end(), [&sum](const auto& entry) {
            return isLanguage(entry.first) && entry.second == sum;
        });
        return found == sums.end() ? QString() : found->first;
    }

    void bring(const QString& to, const QString& from) {
        plan_.bring[to] = from;
        if (disk_.folderExists(folder_ + to))
            plan_.inTheWay = to;
    }

    void removeOutdated() {
        std::set<QString> stays;
        for (const auto& [path, sum] : new_)
            stays.insert(path.toLower());
        for (const auto& [path, sum] : *old_) {
            const bool players = isPlayers(path) || path == firstCharacters ||
                                 plan_.kept.contains(campaignOf(path)) || path == updaterFileName;
            if (!players && !stays.contains(path.toLower()) && present(path) == sum)
                plan_.gone.push_back(path);
        }
    }

    const Disk& disk_;
    QString folder_;
    const FileSums& new_;
    std::optional<FileSums> old_;
    std::set<QString> keptNumbers_;
    UpdatePlan plan_;
};

} // namespace

std::optional<FileSums> installedSums(const Disk& disk, const QString& folder) {
    const ReadResult read = disk.read(folder + installedListPath);
    return read.outcome == ReadResult::Outcome::Read ? readInstalledList(read.bytes) : std::nullopt;
}

UpdatePlan planUpdate(const Disk& disk, const QString& folder, const FileSums& sums) {
    return Planner(disk, folder, sums).plan();
}

} // namespace orvinel
