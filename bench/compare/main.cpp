#include "app/modData.h"
#include "app/modLanguage.h"
#include "base/FileDisk.h"
#include "compare/Bare.h"
#include "compare/Scene.h"
#include "ui/map/RegionPictures.h"

#include <QApplication>
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

} // namespace

} // namespace orvinel::bench

// bench_rival bare|scene FOLDER PICTURE CAMPAIGN REGION
int main(int argc, char** argv) {
    QApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 6) {
        std::fputs("usage: bench_rival bare|scene FOLDER PICTURE CAMPAIGN REGION\n", stderr);
        return 2;
    }
    const QString folder = arguments[2] + u'/';
    if (arguments[1] == QLatin1String("bare"))
        return orvinel::bench::runBare(folder, arguments[3]);
    return orvinel::bench::runScene(folder, arguments[3], arguments[4].toInt(), arguments[5].toInt());
}
