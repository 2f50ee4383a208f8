#include "RegionPainter.h"

#include <QElapsedTimer>
#include <QGuiApplication>

#include <cstdio>

using namespace Qt::Literals::StringLiterals;

// Paints one region for a look at it: paint-one SEED THEME CAMPAIGN WIDTH HEIGHT FILE. Themes are numbered
// 0..3.
int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication application(argc, argv);
    const QStringList words = application.arguments();
    if (words.size() != 8) {
        std::fputs("paint-one SEED THEME CAMPAIGN LANDFORM WIDTH HEIGHT FILE\n", stderr);
        return 2;
    }
    using namespace worldgen;
    RegionRecipe recipe{words[1].toUInt(),           QSize(words[5].toInt(), words[6].toInt()),
                        Theme(words[2].toInt() & 3), words[3].toInt(),
                        u"Vale of Embers"_s,         {}};
    recipe.landform = Landform(words[4].toInt() % 5);
    using enum SiteRole;
    using enum SiteNear;
    recipe.sites = {{u"Hallowmere"_s, Town, Coast},
                    {u"Gray Ferry"_s, Outpost, River},
                    {u"Thornwatch"_s, Outpost, Forest},
                    {u"Emberfall"_s, Mission, Anything},
                    {u"Old Quarry"_s, Area, Ridge},
                    {u"Saltmarsh"_s, Area, Lake},
                    {u"Ashen Gate"_s, Challenge, Anything},
                    {u"Brackwater"_s, Mission, River},
                    {u"Lonehill Deeps"_s, DungeonEntrance, Ridge},
                    {u"Westering"_s, Area, Forest}};
    QElapsedTimer timer;
    timer.start();
    const SurveyedRegion survey = surveyRegion(recipe);
    std::printf("surveyed after %lld ms\n", static_cast<long long>(timer.elapsed()));
    const QImage picture = paintRegion(recipe, survey);
    std::printf("painted after %lld ms\n", static_cast<long long>(timer.elapsed()));
    return picture.save(words[7], "JPG", 90) ? 0 : 1;
}
