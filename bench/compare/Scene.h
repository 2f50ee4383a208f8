#pragma once

#include "app/ProgramState.h"
#include "ui/map/MarkerArt.h"
#include "world/Marker.h"

#include <QGraphicsScene>
#include <QGraphicsView>
#include <QLineEdit>
#include <QListWidget>
#include <QWidget>

#include <vector>

namespace orvinel::bench {

// The same work as Qt programs usually do it: a graphics scene with an item for each marker, a list widget
// with an item for each entry, and a search that compares each text without regard to case.
class Scene {
  public:
    // The region `campaign`, `region` of the tables, with the markers of all but the skills' layer given.
    Scene(const ProgramState& state, const QImage& picture, int campaign, int region);
    void show(const QRect& panel, const QRect& map);

    QLineEdit& field() { return *field_; }
    QGraphicsView& map() { return map_; }

  private:
    void addBox(const EliteSkill& skill, const MapLocation& at, int row);
    void addZones(const Region& region);
    void addOthers(int campaign, int region);
    void search(const QString& text);

    const ProgramState& state_;
    MarkerArt art_;
    QWidget panel_;
    QLineEdit* field_;
    QListWidget* list_;
    QGraphicsScene scene_;
    QGraphicsView map_;
    std::vector<int> skills_;
    std::vector<std::vector<QGraphicsItem*>> boxes_; // of each of the skills
};

} // namespace orvinel::bench
