#include "compare/Scene.h"

#include "compare/Layout.h"
#include "ui/platform/Drawing.h"
#include "ui/platform/Fonts.h"
#include "world/modCampaigns.h"
#include "world/modProfessions.h"
#include "world/modZones.h"

#include <QGraphicsPixmapItem>
#include <QGraphicsRectItem>
#include <QGraphicsSimpleTextItem>

namespace orvinel::bench {

Scene::Scene(const ProgramState& state, const QImage& picture, int campaign, int region)
    : state_(state), field_(new QLineEdit(&panel_)), list_(new QListWidget(&panel_)), map_(&scene_) {
    scene_.addPixmap(QPixmap::fromImage(picture));
    if (const Region* shown = findRegion(state, campaign, region))
        addZones(*shown);
    for (const int id : state.EliteOrder) {
        const EliteSkill& skill = state.EliteSkills[id];
        list_->addItem(skill.ListText);
        skills_.push_back(id);
        boxes_.emplace_back();
        for (const MapLocation& at : skill.Locations)
            if (at.Campaign == campaign && at.Region == region)
                addBox(skill, at, int(boxes_.size()) - 1);
    }
    addOthers(campaign, region);
    map_.setDragMode(QGraphicsView::ScrollHandDrag);
    map_.setFrameShape(QFrame::NoFrame);
    map_.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    map_.setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    QObject::connect(field_, &QLineEdit::textChanged, list_, [this](const QString& text) { search(text); });
}

void Scene::addBox(const EliteSkill& skill, const MapLocation& at, int row) {
    const Colour colour = professionOf(state_, skill.Profession).Color;
    auto* box = scene_.addRect(0, 0, at.Right - at.Left, at.Bottom - at.Top, QPen(Qt::black),
                               QBrush(toQColor(colour)));
    box->setPos(at.Left, at.Top);
    if (!at.MarkerCode.isEmpty()) {
        auto* code = new QGraphicsSimpleTextItem(at.MarkerCode, box);
        code->setFont(arial(points8, true));
        code->setPos(1, -1);
    }
    boxes_[size_t(row)].push_back(box);
}

void Scene::addZones(const Region& region) {
    for (const Zone& zone : region.RegionZones) {
        auto* name = scene_.addSimpleText(zone.ZoneName, arial(points10, true));
        name->setBrush(Qt::yellow);
        name->setPos(zone.X, zone.Y);
    }
}

void Scene::addOthers(int campaign, int region) {
    const auto add = [&](Sprite sprite, const MapLocation& at) {
        if (at.Campaign != campaign || at.Region != region)
            return;
        auto* item = scene_.addPixmap(QPixmap::fromImage(art_.picture(sprite)));
        item->setPos(at.Left, at.Top);
    };
    for (const Collector& collector : state_.Collectors)
        add(collector.IsArmour ? Sprite::CollArmature : Sprite::CollArmi, collector.Location);
    for (const Note& note : state_.Notes)
        add(Sprite::Note, note.At);
    for (const Treasure& chest : state_.Treasures)
        add(Sprite::Treasure, chest.Location);
    for (const Pet& pet : state_.Pets)
        for (const MapLocation& at : pet.Locations)
            add(Sprite::Pet, at);
}

void Scene::search(const QString& text) {
    list_->clear();
    for (size_t row = 0; row < skills_.size(); ++row) {
        const EliteSkill& skill = state_.EliteSkills[skills_[row]];
        const bool found = skill.Name.contains(text, Qt::CaseInsensitive);
        if (found) {
            auto* item = new QListWidgetItem(skill.ListText, list_);
            item->setData(Qt::UserRole, skills_[row]);
        }
        for (QGraphicsItem* box : boxes_[row])
            box->setVisible(found);
    }
}

void Scene::show(const QRect& panel, const QRect& map) {
    showLaidOut(panel_, map_, *field_, *list_, panel, map);
}

} // namespace orvinel::bench
