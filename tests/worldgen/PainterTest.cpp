#include "Placement.h"
#include "RegionPainter.h"
#include "painting/Landscape.h"

#include <QCryptographicHash>

#include <gtest/gtest.h>

#include <cmath>
#include <set>
#include <thread>

using namespace worldgen;
using namespace Qt::Literals::StringLiterals;

namespace {

RegionRecipe smallRecipe(quint32 seed, Theme theme) {
    using enum SiteRole;
    RegionRecipe recipe{seed, QSize(460, 360), theme, int(seed % 5), u"Trial"_s, {}};
    recipe.sites = {{u"First"_s, Town, SiteNear::Coast},
                    {u"Second"_s, Outpost, SiteNear::Ridge},
                    {u"Third"_s, DungeonEntrance, SiteNear::Forest}};
    return recipe;
}

struct Painted {
    SurveyedRegion survey;
    QImage picture;
};

Painted painted(const RegionRecipe& recipe) {
    SurveyedRegion survey = surveyRegion(recipe);
    QImage picture = paintRegion(recipe, survey);
    return {survey, picture};
}

QByteArray fingerprint(const QImage& picture) {
    QCryptographicHash hash(QCryptographicHash::Sha1);
    for (int y = 0; y < picture.height(); ++y)
        hash.addData(QByteArrayView(reinterpret_cast<const char*>(picture.constScanLine(y)),
                                    qsizetype(picture.width()) * 4));
    return hash.result();
}

double luminance(QRgb colour) {
    const auto linear = [](int value) {
        const double s = value / 255.0;
        return s <= 0.03928 ? s / 12.92 : std::pow((s + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(qRed(colour)) + 0.7152 * linear(qGreen(colour)) + 0.0722 * linear(qBlue(colour));
}

double meanLuminance(const QImage& picture, QRect part) {
    part &= picture.rect();
    double sum = 0;
    for (int y = part.top(); y <= part.bottom(); ++y)
        for (int x = part.left(); x <= part.right(); ++x)
            sum += luminance(picture.pixel(x, y));
    return sum / (double(part.width()) * part.height());
}

double distance(QPoint a, QPoint b) {
    return std::hypot(a.x() - b.x(), a.y() - b.y());
}

} // namespace

TEST(Painter, GivesTheSameBytesAgainAlsoBesideAnotherThread) {
    RegionRecipe recipe = smallRecipe(11, Theme::Temperate);
    recipe.size = QSize(320, 280);
    const Painted first = painted(recipe);
    Painted other;
    std::thread beside([&] { other = painted(smallRecipe(12, Theme::Temperate)); });
    const Painted second = painted(recipe);
    beside.join();
    EXPECT_EQ(fingerprint(first.picture), fingerprint(second.picture));
    EXPECT_EQ(first.survey.sites, second.survey.sites);
    EXPECT_NE(fingerprint(first.picture), fingerprint(other.picture));
}

TEST(Painter, KeepsPicturesDarkAndSitesApartInEveryTheme) {
    constexpr double creamLuminance = 0.84;
    for (const Theme theme : {Theme::Desert, Theme::Frost, Theme::Ash}) {
        const RegionRecipe recipe = smallRecipe(30 + quint32(theme), theme);
        const auto& [region, picture] = painted(recipe);
        ASSERT_EQ(picture.size(), recipe.size);
        EXPECT_LE(meanLuminance(picture, picture.rect()), 0.14);
        ASSERT_EQ(region.sites.size(), recipe.sites.size());
        for (std::size_t k = 0; k < region.sites.size(); ++k) {
            const QPoint site = region.sites[k];
            EXPECT_TRUE(region.land(site)) << k;
            EXPECT_TRUE(QRect(QPoint(), recipe.size).adjusted(80, 80, -80, -80).contains(site)) << k;
            for (std::size_t other = 0; other < k; ++other)
                EXPECT_GE(distance(site, region.sites[other]), 60) << k << ' ' << other;
            const QRect name(site + QPoint(-20, 19), QSize(40, 10));
            EXPECT_GE((creamLuminance + 0.05) / (meanLuminance(picture, name) + 0.05), 4.5) << k;
        }
    }
}

// Of the river whose number is `own`, whether its last point lies in water, at the border or on another
// river.
bool endsSomewhere(const Landscape& land, std::size_t own) {
    const QPointF mouth = land.rivers[own].points.back();
    if (!QRectF(8, 8, land.size.width() - 16, land.size.height() - 16).contains(mouth))
        return true;
    for (int y = -8; y <= 8; y += 4)
        for (int x = -8; x <= 8; x += 4)
            if (land.water(int(mouth.x()) + x, int(mouth.y()) + y))
                return true;
    for (std::size_t k = 0; k < land.rivers.size(); ++k)
        for (const QPointF& p : land.rivers[k].points)
            if (k != own && std::hypot(p.x() - mouth.x(), p.y() - mouth.y()) < 14)
                return true;
    return false;
}

TEST(Painter, LetsRiversFlowSomewhereAndNeverBeginWithAHook) {
    for (const quint32 seed : {6U, 13U, 17U}) {
        RegionRecipe recipe{seed, QSize(760, 560), Theme::Temperate, 1, {}, {}};
        recipe.landform = seed == 6 ? Landform::Fens : Landform::Hills;
        const Landscape land(recipe);
        EXPECT_FALSE(land.rivers.empty()) << seed;
        for (std::size_t k = 0; k < land.rivers.size(); ++k) {
            const std::vector<QPointF>& points = land.rivers[k].points;
            EXPECT_TRUE(endsSomewhere(land, k))
                << seed << ": " << points.back().x() << ' ' << points.back().y();
            if (land.rivers[k].widths.front() > 0.8)
                continue; // flows out of a lake
            double along = 0;
            const std::size_t head = std::min<std::size_t>(60, points.size());
            for (std::size_t j = 1; j < head; ++j)
                along += std::hypot(points[j].x() - points[j - 1].x(), points[j].y() - points[j - 1].y());
            const QPointF chord = points[head - 1] - points.front();
            EXPECT_GT(std::hypot(chord.x(), chord.y()), 0.66 * along)
                << seed << ": " << points.front().x() << ' ' << points.front().y();
        }
    }
}

TEST(Painter, PlacesEvenMoreSitesThanThereIsRoomFor) {
    RegionRecipe recipe{5, QSize(260, 240), Theme::Temperate, 1, {}, {}};
    recipe.sites.resize(14);
    const SurveyedRegion region = surveyRegion(recipe);
    ASSERT_EQ(region.sites.size(), 14U);
    for (const QPoint& site : region.sites)
        EXPECT_TRUE(QRect(QPoint(), recipe.size).contains(site));
}

// A name that the picture does not have hides no marker, one that it has keeps them away.
TEST(Painter, KeepsMarkersOffTheRegionsName) {
    RegionRecipe recipe{5, QSize(700, 500), Theme::Temperate, 1, u"Vale"_s, {}};
    const SurveyedRegion named = surveyRegion(recipe);
    EXPECT_TRUE(QRect(QPoint(), recipe.size).contains(named.title));
    const Ground ground = groundOf(named);
    for (int y = named.title.top(); y <= named.title.bottom(); y += 6)
        for (int x = named.title.left(); x <= named.title.right(); x += 6)
            EXPECT_FALSE(ground.land({x, y})) << x << ' ' << y;
    recipe.title.clear();
    EXPECT_TRUE(surveyRegion(recipe).title.isEmpty());
}

TEST(Painter, TellsSkillsAndAnimalsApart) {
    const PlacedSign disc{{{u"steel"_s, u"E0 0 20 20"_s}}, {}};
    const auto icon = [&](const PlacedSign& sign, int attribute = 0, QRgb colour = qRgb(200, 80, 40)) {
        return fingerprint(paintSkillIcon({4, colour, attribute, {sign}}));
    };
    PlacedSign small = disc;
    small.manner = QStringList{u"small"_s};
    PlacedSign cloth = disc;
    cloth.parts[0].material = u"cloth"_s;
    EXPECT_EQ(icon(disc), icon(disc));
    const std::set<QByteArray> seen{icon(disc),    icon(small),
                                    icon(cloth),   icon(cloth, 0, qRgb(40, 80, 200)),
                                    icon(disc, 1), icon(disc, 99)};
    EXPECT_EQ(6U, seen.size());
    EXPECT_EQ(QSize(64, 64), paintSkillIcon({4, 0, 0, {disc}}).size());

    const AnimalPicture bear{u"ice"_s, {{u"coat"_s, qRgb(90, 60, 40), u"E80 70 40 24"_s}}};
    const auto pet = [](quint32 seed, AnimalPicture animal, const QString& ground) {
        animal.ground = ground;
        return fingerprint(paintPet(seed, animal));
    };
    EXPECT_EQ(pet(3, bear, u"ice"_s), fingerprint(paintPet(3, bear)));
    EXPECT_EQ(3U, std::set({pet(3, bear, u"ice"_s), pet(4, bear, u"ice"_s), pet(3, bear, u"fen"_s)}).size());
    EXPECT_EQ(QSize(160, 120), paintPet(3, {}).size());
}
