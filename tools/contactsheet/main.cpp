// contactsheet FOLDER OUT: starts the program in its folder without a screen, shows one region after the
// other with all layers on, and puts what the map window drew side by side into the picture OUT; where OUT is
// a folder, each region into a picture of its own there, pixel for pixel.

#include "app/modOrvinel.h"
#include "base/FileDisk.h"
#include "ui/platform/Fonts.h"
#include "ui/platform/PictureButton.h"
#include "ui/platform/QtDesktop.h"
#include "ui/platform/Windows.h"

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QPainter>

#include <algorithm>
#include <cstdio>
#include <vector>

using namespace orvinel;
using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int columns = 4;
constexpr QSize cell(620, 560); // pixels, of the picture
constexpr int title = 26;       // pixels above it
constexpr int gap = 12;
constexpr int quality = 62;

struct Shot {
    QString name;
    QImage picture;
};

// The whole region as the map window draws it, however large.
QImage wholeRegion(Program& program, const Region& region, int campaign, int number) {
    frmMap& map = program.map();
    map.InizializzaVariabili(region.RegionPicture, campaign, number);
    if (!map.mapLoaded())
        return {};
    map.resize(QImage(region.RegionPicture).size() + (map.size() - map.picMap().size()));
    map.UpdateMapWithNewEliteSkills();
    for (PictureButton* button : map.findChildren<PictureButton*>())
        button->hide();
    return map.picMap().grab().toImage();
}

std::vector<Shot> allRegions(Program& program) {
    std::vector<Shot> shots;
    const ProgramState& state = program.state();
    for (int campaign = 0; campaign <= state.Campaigns.highest(); ++campaign)
        for (int number = 1; number <= state.Campaigns[campaign].Regions.highest(); ++number) {
            const Region& region = state.Campaigns[campaign].Regions[number];
            const QImage whole = wholeRegion(program, region, campaign, number);
            if (!whole.isNull())
                shots.push_back(
                    {state.Campaigns[campaign].CampaignName + u" - "_s + region.RegionName, whole});
        }
    return shots;
}

QImage sheetOf(const std::vector<Shot>& shots) {
    const QSize step(cell.width() + gap, cell.height() + title + gap);
    const int rows = (static_cast<int>(shots.size()) + columns - 1) / columns;
    QImage sheet(gap + columns * step.width(), gap + rows * step.height(), QImage::Format_RGB32);
    sheet.fill(QColor(0x20, 0x1C, 0x18));
    QPainter painter(&sheet);
    painter.setFont(arial(16, true));
    painter.setPen(QColor(0xF5, 0xEC, 0xCB));
    for (int i = 0; i < static_cast<int>(shots.size()); ++i) {
        const Shot& shot = shots[static_cast<size_t>(i)];
        const QPoint corner(gap + i % columns * step.width(), gap + i / columns * step.height());
        painter.drawText(QRect(corner, QSize(cell.width(), title)), Qt::AlignCenter, shot.name);
        const QImage small = shot.picture.scaled(cell, Qt::KeepAspectRatio, Qt::SmoothTransformation);
        const QSize spare = cell - small.size();
        painter.drawImage(corner + QPoint(spare.width() / 2, title + spare.height() / 2), small);
    }
    return sheet;
}

bool saveEach(const std::vector<Shot>& shots, const QDir& folder) {
    return std::ranges::all_of(
        shots, [&](const Shot& shot) { return shot.picture.save(folder.filePath(shot.name + u".png"_s)); });
}

bool save(const std::vector<Shot>& shots, const QString& out) {
    if (QFileInfo(out).isDir())
        return saveEach(shots, QDir(out));
    return sheetOf(shots).save(out, "JPEG", quality);
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 3) {
        std::fputs("usage: contactsheet FOLDER OUT\n", stderr);
        return 2;
    }
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    applyAppearance(application);
    const QString folder = QDir(QString::fromLocal8Bit(argv[1])).absolutePath() + u'/';
    FileDisk disk(folder);
    QtDesktop desktop(folder);
    Program program(folder, disk, desktop, [](int) {});
    if (!program.Main())
        return 1;
    const std::vector<Shot> shots = allRegions(program);
    const bool saved = !shots.empty() && save(shots, QString::fromLocal8Bit(argv[2]));
    if (!saved)
        std::fputs("contactsheet: no regions, or the picture could not be written\n", stderr);
    return saved ? 0 : 1;
}
