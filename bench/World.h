#pragma once

#include "app/modOrvinel.h"
#include "base/FileDisk.h"
#include "ui/platform/QtDesktop.h"

#include <QEvent>
#include <QLineEdit>

#include <memory>
#include <string>

namespace orvinel::bench {

// Handles all that is posted and painted until nothing is left, as an idle program would.
void settle();
// One key of the keyboard, pressed and let go; '\b' is Backspace.
void pressKey(QWidget& at, char key);
void sendMouse(QWidget& at, QEvent::Type type, QPoint place, Qt::MouseButton button);

// The whole program on the files of one world, its windows shown: the map on the first region that has a
// picture, the panel on all campaigns, so that every record is listed.
class World {
  public:
    // `folder` is changed as a first start changes it.
    World(std::string name, const QString& folder);

    const std::string& name() const { return name_; }
    const ProgramState& state() { return program_->state(); }
    frmMenu& panel() { return program_->panel(); }
    frmMap& map() { return program_->map(); }
    const FileDisk& disk() const { return disk_; }
    const QString& folder() const { return folder_; }
    // The campaign and region on the map, and the picture's file.
    int campaign() { return map().MapCampaign(); }
    int region() { return map().MapRegion(); }
    const QString& picture(int campaign, int region);
    // All regions that have a picture, as campaign and region number.
    std::vector<std::pair<int, int>> regions();

  private:
    std::string name_;
    QString folder_;
    FileDisk disk_;
    QtDesktop desktop_;
    std::unique_ptr<Program> program_;
};

} // namespace orvinel::bench
