#include "World.h"

#include "world/modCampaigns.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>

namespace orvinel::bench {

using namespace Qt::Literals::StringLiterals;

void settle() {
    for (int round = 0; round < 3; ++round) {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
    }
}

void pressKey(QWidget& at, char key) {
    const int code = key == '\b' ? int(Qt::Key_Backspace) : int(QChar::toUpper(uint(key)));
    const QString text = key == '\b' ? QString() : QString(QLatin1Char(key));
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent event(type, code, Qt::NoModifier, text);
        QCoreApplication::sendEvent(&at, &event);
    }
}

void sendMouse(QWidget& at, QEvent::Type type, QPoint place, Qt::MouseButton button) {
    const bool moves = type == QEvent::MouseMove;
    QMouseEvent event(type, place, at.mapTo(at.window(), place), at.mapToGlobal(place),
                      moves ? Qt::NoButton : button,
                      type == QEvent::MouseButtonRelease ? Qt::NoButton : button, Qt::NoModifier);
    QCoreApplication::sendEvent(&at, &event);
}

World::World(std::string name, const QString& folder)
    : name_(std::move(name)), folder_(folder.endsWith(u'/') ? folder : folder + u'/'), disk_(folder_),
      desktop_(folder_), program_(std::make_unique<Program>(folder_, disk_, desktop_, [](int) {})) {
    program_->Main();
    SelectionArea& selection = panel().selection();
    for (const auto& [campaign, region] : regions()) {
        selection.cmbCampaign->select(selection.cmbCampaign->findData(campaign));
        selection.cmbRegion->select(selection.cmbRegion->findData(region));
        if (map().mapLoaded())
            break;
    }
    selection.cmbCampaign->select(0);
    map().beginRest();
    while (map().picMap().surface() && map().picMap().surface()->drawMoreGround())
        settle();
    settle();
}

const QString& World::picture(int campaign, int region) {
    return findRegion(state(), campaign, region)->RegionPicture;
}

std::vector<std::pair<int, int>> World::regions() {
    std::vector<std::pair<int, int>> all;
    for (int campaign = 1; campaign <= state().Campaigns.highest(); ++campaign)
        for (int region = 1; region < 256; ++region) {
            const Region* found = findRegion(state(), campaign, region);
            if (found && disk_.length(found->RegionPicture) > 0)
                all.emplace_back(campaign, region);
        }
    return all;
}

} // namespace orvinel::bench
