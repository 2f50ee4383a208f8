#pragma once

#include "app/ProgramLayers.h"
#include "app/ProgramState.h"
#include "support/MemoryDisk.h"
#include "support/RecordingDesktop.h"

#include <QTest>

#include <gtest/gtest.h>

#include <memory>

namespace orvinel {

// Panel, map and layers, wired as the program does, over a small world in memory:
//   campaign 0 "Core" without regions; campaign 3 "Frost" with regions 1 "Fjord" (800 x 600 pixels) and
//   2 "Glacier" (300 x 200), and 3 "Void", whose picture is missing
//   zones of Fjord: 11 "Harbour" and 12 "Cliffs"; of Glacier: 21 "Rift"
//   professions 1 "Mage" (M, red; Fire, Ice) and 2 "Bard" (B, blue; Song)
//   language entry n: "Text n"
// Tests put the files of their layer on the disk before start().
struct ProgramFixture : testing::Test {
    MemoryDisk disk;
    PlayerFiles files{disk};
    RecordingDesktop desktop;
    ProgramState state;
    std::unique_ptr<frmMenu> panel;
    std::unique_ptr<frmMap> map;
    std::unique_ptr<ProgramLayers> layers;
    std::unique_ptr<Flashing> flashing;
    EliteView* elites = nullptr; // of the layers
    // What asked for the capture dialog: "7 map", "7 panel".
    QStringList captures;
    int openedChest = 0;             // the last for which the dialog was asked
    Qt::MouseButtons pressedButtons; // of the mouse, between the calls below
    int regionMenus = 0;             // how often the region menu was asked for

    ProgramFixture();
    ~ProgramFixture() override;

    // Below the folder of campaign 3.
    void putFile(const char* name, const QByteArray& text);
    void load();
    // Loads the tables, makes and shows the windows, fills the panel.
    void start();
    // By the text of an entry, as the player does.
    void chooseCampaign(const QString& name) { choose(*panel->selection().cmbCampaign, name); }
    void chooseRegion(const QString& name) { choose(*panel->selection().cmbRegion, name); }
    void chooseZone(const QString& name) { choose(*panel->selection().cmbZone, name); }
    // Campaign 3, region 1.
    void showFjord();

    // Mouse on the viewport at a point of the region picture.
    void hover(QPoint at);
    void press(QPoint at, Qt::MouseButton button = Qt::LeftButton, Qt::KeyboardModifiers keys = {});
    void release(QPoint at, Qt::MouseButton button = Qt::LeftButton);
    void doubleClick(QPoint at);

    // Of the composition.
    QRgb mapPixel(int x, int y) { return map->picMap().surface()->composed().pixel(x, y); }
    // By object name; nullptr when there is none, or one of another type.
    template <typename Control>
    Control* on(QWidget& window, const char* name) {
        return window.findChild<Control*>(QString::fromLatin1(name));
    }
    static QStringList texts(const ListBox& list);

  private:
    void choose(ItemCombo& combo, const QString& text);
    void wire();
    void send(QEvent::Type type, QPoint at, Qt::MouseButton button, Qt::KeyboardModifiers keys = {});
};

// A picture of one colour as a JPEG file.
QByteArray jpeg(QSize size, QColor colour);

} // namespace orvinel
