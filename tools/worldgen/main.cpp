#include "WorldBuilder.h"
#include "WorldSurvey.h"

#include <QGuiApplication>

#include <cstdio>
#include <optional>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int highestScale = 100;

struct Order {
    QString outFolder;
    int scale = 1;
    QString only;
    bool oneRegion = false; // a world to measure with, instead of the shipped one
};

std::optional<Order> readOrder(const QStringList& arguments) {
    Order order;
    for (int i = 1; i < arguments.size(); ++i) {
        if (arguments[i] == u"--scale" && i + 1 < arguments.size()) {
            order.scale = arguments[++i].toInt();
        } else if (arguments[i] == u"--only" && i + 1 < arguments.size()) {
            order.only = arguments[++i];
        } else if (arguments[i] == u"--one-region") {
            order.oneRegion = true;
        } else if (order.outFolder.isEmpty() &&
                   (arguments[i] == u"--survey" || !arguments[i].startsWith(u'-'))) {
            order.outFolder = arguments[i];
        } else {
            return std::nullopt;
        }
    }
    if (order.outFolder.isEmpty() || order.scale < 1 || order.scale > highestScale)
        return std::nullopt;
    return order;
}

int tell(const QStringList& problems) {
    for (const QString& problem : problems)
        std::fprintf(stderr, "worldgen: %s\n", qUtf8Printable(problem));
    return problems.isEmpty() ? 0 : 1;
}

int survey(const worldgen::WorldSource& source) {
    QStringList problems;
    for (const worldgen::RegionFinding& finding : worldgen::surveyWorld(source)) {
        std::printf("%s: %.0f %% of the land is far from everything\n", qUtf8Printable(finding.region),
                    100 * finding.emptyShare);
        for (const QString& problem : finding.problems)
            problems.append(finding.region + u": "_s + problem);
        if (finding.emptyShare > worldgen::mostEmpty)
            problems.append(finding.region + u": an empty half"_s);
    }
    return tell(problems);
}

int run(const Order& order) {
    const QString worldFolder = QStringLiteral(WORLDGEN_WORLD);
    if (order.oneRegion)
        return tell(worldgen::buildCrowdedWorld(order.scale, worldFolder, order.outFolder));
    QStringList problems;
    const worldgen::WorldSource source =
        worldgen::readWorldSource(worldFolder, worldgen::noAttributeCaption(worldFolder), problems);
    if (!problems.isEmpty())
        return tell(problems);
    if (order.outFolder == u"--survey")
        return survey(source);
    if (!order.only.isEmpty())
        return tell(worldgen::paintPictures(source, order.outFolder, order.only));
    if (order.scale == 1)
        return tell(
            worldgen::buildWorld(source, worldFolder, order.outFolder, worldgen::Translations::Written));
    return tell(worldgen::buildWorld(worldgen::multiplied(source, order.scale), worldFolder, order.outFolder,
                                     worldgen::Translations::LeftOut));
}

} // namespace

int main(int argc, char* argv[]) {
    // No window is ever shown, and build machines have no screen.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    const std::optional<Order> order = readOrder(QCoreApplication::arguments());
    if (!order) {
        std::fputs("usage: worldgen OUTFOLDER [[--one-region] --scale N | --only NAME]\n"
                   "N from 1 to 100; NAME is a part of the names of the pictures to paint, as \"imgPets\"\n",
                   stderr);
        return 2;
    }
    return run(*order);
}
