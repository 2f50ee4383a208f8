#include "updater/UpdatePlan.h"

#include "updater/Package.h"

#include <QRegularExpression>

#include <algorithm>
#include <set>

namespace orvinel {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr QLatin1String languagePath("Data/Language.txt");
constexpr QLatin1String languagesFolder("Data/Languages/");
constexpr QLatin1String campaignPrefix("Campaign.");
constexpr QLatin1String worldsFolder("Data/Worlds/");
constexpr int deepestFolder = 8;

bool isPlayers(const QString& path) {
    return path.startsWith(u"Personal/"_s) || path.startsWith(u"Backups/"_s) ||
           path.startsWith(u"Pages/"_s) || path == u"Data/Options.txt"_s;
}

bool isOfFirstCharacters(const QString& path) {
    static const QRegularExpression names(u"^Data/Char(acters|\\d\\dCapElite)\\.txt$"_s);
    return names.match(path).hasMatch();
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

// Where the same file of a campaign lies in another language.
QString translated(const QString& language, const QString& path) {
    return worldsFolder + language + u'/' + path;
}

// The languages of the world that a list has.
std::set<QString> worldLanguages(const FileSums& sums) {
    std::set<QString> languages;
    for (auto at = sums.lower_bound(worldsFolder); at != sums.end() && at->first.startsWith(worldsFolder);
         ++at)
        languages.insert(at->first.section(u'/', 2, 2));
    return languages;
}

// The language in which a list has the file of a campaign with this sum; empty when in none, and for
// the campaign's own file.
QString languageOfFile(const FileSums& sums, const QString& path, const QByteArray& sum) {
    const auto has = [&](const QString& at) { return sums.contains(at) && sums.at(at) == sum; };
    const std::set<QString> languages = has(path) ? std::set<QString>() : worldLanguages(sums);
    const auto found = std::find_if(languages.begin(), languages.end(),
                                    [&](const QString& language) { return has(translated(language, path)); });
    return found == languages.end() ? QString() : *found;
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
    const QByteArray& present(const QString& path) {
        const auto known = present_.find(path);
        return known != present_.end() ? known->second : present_[path] = lookAt(path);
    }

    QByteArray lookAt(const QString& path) const {
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

    // The list knows the campaign's folder, and nothing in it is changed, added or missing. A file in another
    // language of the list is not changed.
    bool isAs(const FileSums& sums, const QString& campaign) {
        std::set<QString> files;
        gather(campaign, files, 1);
        const bool some = !files.empty();
        for (const auto& [path, sum] : sums) {
            if (campaignOf(path) != campaign)
                continue;
            const bool is = present(path) == sum || !languageOfFile(sums, path, present(path)).isEmpty();
            if (!files.erase(path) || !is)
                return false;
        }
        return some && files.empty();
    }

    // The language of which all of a campaign's files were copied over it, even those that are alike in it.
    QString languageOfAll(const FileSums& sums, const QString& campaign) {
        for (const QString& language : worldLanguages(sums)) {
            const QString folder = translated(language, campaign) + u'/';
            bool all = true;
            bool differs = false;
            for (auto at = sums.lower_bound(folder); at != sums.end() && at->first.startsWith(folder); ++at) {
                const QString path = campaign + u'/' + at->first.sliced(folder.size());
                all = all && present(path) == at->second;
                differs = differs || !sums.contains(path) || sums.at(path) != at->second;
            }
            if (all && differs)
                return language;
        }
        return {};
    }

    void keepCampaigns() {
        for (const QString& name : disk_.list(folder_)) {
            if (!name.startsWith(campaignPrefix) || !disk_.folderExists(folder_ + name))
                continue;
            if (old_ && isAs(*old_, name)) {
                as_[name] = {&*old_, languageOfAll(*old_, name)};
            } else if (isAs(new_, name)) {
                as_[name] = {&new_, languageOfAll(new_, name)};
            } else {
                keptNumbers_.insert(campaignNumber(name));
                plan_.kept << name;
            }
        }
    }

    // The file of the package that follows the one at the path of a campaign: in the language that it is in.
    QString following(const QString& campaign, const QString& path) {
        const auto as = as_.find(campaign);
        if (as == as_.end())
            return path;
        const QString& all = as->second.language;
        const QString language = all.isEmpty() ? languageOfFile(*as->second.sums, path, present(path)) : all;
        const QString found = translated(language, path);
        return !language.isEmpty() && new_.contains(found) ? found : path;
    }

    void consider(const QString& path, const QByteArray& sum) {
        if (isPlayers(path) || (isOfFirstCharacters(path) && disk_.folderExists(folder_ + u"Personal"_s)))
            return;
        if (const QString campaign = campaignOf(path); !campaign.isEmpty())
            return considerCampaign(campaign, path);
        if (path == updaterFileName)
            return considerUpdater(sum);
        const QByteArray& now = present(path);
        if (path == programFileName() || now.isNull())
            return bring(path, path);
        if (isLanguage(path))
            return considerLanguage(path, now);
        if (now != sum)
            bring(path, path);
    }

    void considerCampaign(const QString& campaign, const QString& path) {
        if (keptNumbers_.contains(campaignNumber(campaign)))
            return;
        const QString from = following(campaign, path);
        if (present(path) != new_.at(from))
            bring(path, from);
    }

    // A program that runs cannot be replaced on every system: it is swapped in by the next start.
    void considerUpdater(const QByteArray& sum) {
        const QByteArray& now = present(updaterFileName);
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
            const QString campaign = campaignOf(path);
            const bool players = isPlayers(path) || isOfFirstCharacters(path) ||
                                 plan_.kept.contains(campaign) || path == updaterFileName;
            const bool translation = as_.contains(campaign) && !present(path).isNull();
            if (!players && !stays.contains(path.toLower()) && (translation || present(path) == sum))
                plan_.gone.push_back(path);
        }
    }

    const Disk& disk_;
    QString folder_;
    const FileSums& new_;
    std::optional<FileSums> old_;
    // A campaign folder that is as the list has it; `language`: that of all its files, else empty.
    struct Brought {
        const FileSums* sums;
        QString language;
    };
    std::map<QString, Brought> as_;
    std::set<QString> keptNumbers_;
    std::map<QString, QByteArray> present_;
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
