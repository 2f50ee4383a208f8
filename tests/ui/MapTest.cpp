#include "support/ProgramFixture.h"
#include "ui/map/ShowOnMap.h"

namespace orvinel {
namespace {

using namespace Qt::Literals::StringLiterals;

struct MapTest : ProgramFixture {};

TEST_F(MapTest, aJumpShowsThePointInTheMiddleWhateverThePanelChose) {
    start();
    showFjord();
    showOnMap(*map, state, {3, 2, 10, 10});
    EXPECT_EQ(2, map->MapRegion());
    EXPECT_EQ(QSize(300, 200), map->picMap().surface()->size());
    EXPECT_EQ(u"Fjord"_s, panel->selection().cmbRegion->currentText());
    showOnMap(*map, state, {3, 1, 400, 300});
    EXPECT_EQ(QPoint(624 / 2 - 400, 491 / 2 - 300),
              QPoint(map->picMap().view().scrollX(), map->picMap().view().scrollY()));
    showOnMap(*map, state, {3, 3, 5, 5});
    EXPECT_FALSE(map->mapLoaded());
}

} // namespace
} // namespace orvinel
