#include "RegionPainter.h"

#include <QElapsedTimer>
#include <QGuiApplication>

#include <cstdio>

/// Paints one region for a look at it: paint-one SEED THEME CAMPAIGN WIDTH HEIGHT FILE. Themes are numbered
/// 0..3.
int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication application(argc, argv);
    const QStringList words = application.arguments();
    if (words.size() != 8) {
        std::fputs("paint-one SEED THEME CAMPAIGN LANDFORM WIDTH HEIGHT FILE\n", stderr);
        return 2;
    }
    using namespace worldgen;
    RegionRecipe recipe{
        words[1].toUInt(), QSize(words[5].toInt(), words[6].toInt()), Theme(words[2].toInt() & 3),
        words[3].toInt(),  QStringLiteral("Vale of Embers"),          {}};
    recipe.landform = Landform(words[4].toInt() % 5);
    using enum SiteRole;
    using enum SiteNear;
    recipe.sites = {{QStringLiteral("Hallowmere"), Town, Coast},
                    {QStringLiteral("Gray Ferry"), Outpost, River},
                    {QStringLiteral("Thornwatch"), Outpost, Forest},
                    {QStringLiteral("Emberfall"), Mission, Anything},
                    {QStringLiteral("Old Quarry"), Area, Ridge},
                    {QStringLiteral("Saltmarsh"), Area, Lake},
                    {QStringLiteral("Ashen Gate"), Challenge, Anything},
                    {QStringLiteral("Brackwater"), Mission, River},
                    {QStringLiteral("Lonehill Deeps"), DungeonEntrance, Ridge},
                    {QStringLiteral("Westering"), Area, Forest}};
    QElapsedTimer timer;
    timer.start();
    const SurveyedRegion survey = surveyRegion(recipe);
    std::printf("surveyed after %lld ms\n", static_cast<long long>(timer.elapsed()));
    const QImage picture = paintRegion(recipe, survey);
    std::printf("painted after %lld ms\n", static_cast<long long>(timer.elapsed()));
    return picture.save(words[7], "JPG", 90) ? 0 : 1;
}
