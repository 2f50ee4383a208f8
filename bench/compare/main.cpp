#include "app/modData.h"
#include "app/modLanguage.h"
#include "base/FileDisk.h"
#include "compare/Bare.h"
#include "compare/Scene.h"
#include "layers/modCollectors.h"
#include "ui/map/RegionPictures.h"
#include "world/modCampaigns.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QScreen>

#include <cstdio>

using namespace Qt::Literals::StringLiterals;

namespace orvinel::bench {

namespace {

constexpr int panelWidth = 217;

// Side by side over the whole screen, as the program does it at its first start.
template <typename Rival>
void showFilling(Rival& rival) {
    const QRect all = QGuiApplication::primaryScreen()->availableGeometry();
    rival.show({all.left(), all.top(), panelWidth, all.height()}, all.adjusted(panelWidth, 0, 0, 0));
}

int runBare(const QString& folder, const QString& picture) {
    const FileDisk disk(folder);
    QStringList texts;
    for (int i = 0; i < 40; ++i)
        texts << u"Entry %1"_s.arg(i);
    Bare bare(loadPicture(disk, folder + picture), texts);
    showFilling(bare);
    return QApplication::exec();
}

int runScene(const QString& folder, const QString& picture, int campaign, int region) {
    FileDisk disk(folder);
    PlayerFiles files(disk);
    ProgramState state;
    state.AppPath = folder;
    LoadLanguage(state, disk);
    loadTables(state, files);
    Scene scene(state, loadPicture(disk, folder + picture), campaign, region);
    showFilling(scene);
    return QApplication::exec();
}

// The least that a click on the first collector can take: the picture of its region read and decoded.
int runDecoding(const QString& folder, int rounds) {
    FileDisk disk(folder);
    PlayerFiles files(disk);
    ProgramState state;
    state.AppPath = folder;
    loadTables(state, files);
    const std::vector<ListEntry> listed = collectorEntries(state, {});
    if (listed.empty())
        return 1;
    const MapLocation& at = state.Collectors[listed.front().data].Location;
    const Region* region = findRegion(state, at.Campaign, at.Region);
    for (int round = 0; region && round < rounds; ++round) {
        QElapsedTimer timer;
        timer.start();
        if (loadPicture(disk, region->RegionPicture).isNull())
            return 1;
        std::printf("%.2f\n", double(timer.nsecsElapsed()) / 1e6);
    }
    return region ? 0 : 1;
}

} // namespace

} // namespace orvinel::bench

// bench_rival bare|scene FOLDER PICTURE CAMPAIGN REGION
// bench_rival decode FOLDER ROUNDS; prints milliseconds
int main(int argc, char** argv) {
    QApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    const bool decodes = arguments.size() == 4 && arguments[1] == QLatin1String("decode");
    if (arguments.size() != 6 && !decodes) {
        std::fputs("usage: bench_rival bare|scene FOLDER PICTURE CAMPAIGN REGION\n"
                   "       bench_rival decode FOLDER ROUNDS\n",
                   stderr);
        return 2;
    }
    const QString folder = arguments[2] + u'/';
    if (decodes)
        return orvinel::bench::runDecoding(folder, arguments[3].toInt());
    if (arguments[1] == QLatin1String("bare"))
        return orvinel::bench::runBare(folder, arguments[3]);
    return orvinel::bench::runScene(folder, arguments[3], arguments[4].toInt(), arguments[5].toInt());
}
