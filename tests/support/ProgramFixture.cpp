#include "support/ProgramFixture.h"

#include "app/modData.h"
#include "app/modLanguage.h"
#include "support/NumberedCaptions.h"

#include <QBuffer>

namespace orvinel {

using namespace Qt::Literals::StringLiterals;

QByteArray jpeg(QSize size, QColor colour) {
    QImage picture(size, QImage::Format_RGB32);
    picture.fill(colour);
    QByteArray content;
    QBuffer buffer(&content);
    picture.save(&buffer, "JPG", 95);
    return content;
}

ProgramFixture::ProgramFixture() {
    state.AppPath = u"/o/"_s;
    disk.put(u"/o/Data/Language.txt"_s, numberedCaptions("Text "));
    disk.putFolder(u"/o/Campaign.00.Core"_s);
    putFile("Regions.txt", "1\tFjord\r\n2\tGlacier\r\n3\tVoid\r\n");
    putFile("Zones.txt", "11\t1\t1\t0\t700\t550\tHarbour\r\n12\t1\t1\t0\t700\t500\tCliffs\r\n"
                         "21\t2\t1\t0\t250\t150\tRift\r\n");
    putFile("Professions.txt", "1\tMage\t&HFF\tM\tFire\tIce\r\n2\tBard\t&HFF0000\tB\tSong\r\n");
    disk.put(u"/o/Campaign.03.Frost/1.jpg"_s, jpeg({800, 600}, QColor(40, 60, 80)));
    disk.put(u"/o/Campaign.03.Frost/2.jpg"_s, jpeg({300, 200}, QColor(90, 90, 90)));
}

ProgramFixture::~ProgramFixture() = default;

void ProgramFixture::putFile(const char* name, const QByteArray& text) {
    disk.put(u"/o/Campaign.03.Frost/"_s + QLatin1String(name), text);
}

void ProgramFixture::load() {
    ASSERT_TRUE(LoadLanguage(state, disk));
    loadTables(state, files);
}

void ProgramFixture::start() {
    load();
    panel = std::make_unique<frmMenu>(state, desktop);
    map = std::make_unique<frmMap>(frmMap::Surroundings{state, disk, desktop, panel->MenuRightClickNeeded},
                                   panel.get());
    wire();
    QObject::connect(map.get(), &frmMap::regionMenuWanted, map.get(), [this] { ++regionMenus; });
    map->InizializzaVariabili({}, -1, -1);
    panel->Form_Load();
    panel->show();
    map->show();
}

void ProgramFixture::wire() {
    layers = std::make_unique<ProgramLayers>(
        state, disk, desktop, *panel, *map,
        ProgramLayers::Actions{[this](int id, bool fromMap) {
                                   captures << QString::number(id) + (fromMap ? u" map"_s : u" panel"_s);
                               },
                               [this](int index) { openedChest = index; }});
    elites = &layers->elites;
    flashing = std::make_unique<Flashing>(layers->flashing(), *map);
    connectMap(*map, *layers, *flashing);
    PanelHooks hooks = panelHooks(*layers, *map, *flashing);
    hooks.openMenu = [](int) {};
    hooks.quit = [] {};
    hooks.maximised = [] { return false; };
    panel->setHooks(std::move(hooks));
}

void ProgramFixture::choose(ItemCombo& combo, const QString& text) {
    const int index = combo.findText(text);
    ASSERT_GE(index, 0) << text.toStdString();
    combo.select(index);
}

void ProgramFixture::showFjord() {
    chooseCampaign(u"Frost"_s);
    chooseRegion(u"Fjord"_s);
}

void ProgramFixture::send(QEvent::Type type, QPoint at, Qt::MouseButton button, Qt::KeyboardModifiers keys) {
    MapViewport& viewport = map->picMap();
    const MapView& view = viewport.view();
    const QPointF place =
        QPointF(at.x() + view.scrollX(), at.y() + view.scrollY()) / viewport.devicePixelRatioF();
    if (type == QEvent::MouseButtonRelease)
        pressedButtons &= ~Qt::MouseButtons(button);
    else
        pressedButtons |= button;
    QMouseEvent event(type, place, viewport.mapTo(map.get(), place), viewport.mapToGlobal(place), button,
                      pressedButtons, keys);
    QCoreApplication::sendEvent(&viewport, &event);
}
void ProgramFixture::hover(QPoint at) {
    send(QEvent::MouseMove, at, Qt::NoButton);
}
void ProgramFixture::press(QPoint at, Qt::MouseButton button, Qt::KeyboardModifiers keys) {
    send(QEvent::MouseButtonPress, at, button, keys);
}
void ProgramFixture::release(QPoint at, Qt::MouseButton button) {
    send(QEvent::MouseButtonRelease, at, button);
}
// The second press of a double click comes as the double click alone.
void ProgramFixture::doubleClick(QPoint at) {
    press(at);
    release(at);
    send(QEvent::MouseButtonDblClick, at, Qt::LeftButton);
    release(at);
}

QStringList ProgramFixture::texts(const ListBox& list) {
    QStringList result;
    for (int i = 0; i < list.count(); ++i)
        result << list.entry(i).text;
    return result;
}

} // namespace orvinel
