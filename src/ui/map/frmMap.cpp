#include "ui/map/frmMap.h"

#include "app/modLanguage.h"
#include "base/About.h"
#include "ui/map/CreditsList.h"
#include "ui/map/EmptyMap.h"
#include "ui/platform/EdgeResize.h"
#include "ui/platform/PictureButton.h"
#include "ui/platform/SpokenRole.h"
#include "ui/platform/Windows.h"
#include "world/modCampaigns.h"
#include "world/modZones.h"

#include <QCloseEvent>
#include <QPainter>

#include <algorithm>

namespace orvinel {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int margin = 2;    // pixels around picMap
constexpr int smallest = 80; // 1200 twips, both ways
constexpr QSize designSize(624 + 2 * margin, 491 + 2 * margin);
constexpr int groundPauseMs = 20;
constexpr qint64 cachedBytes = 96ll * 1024 * 1024;
// From here on a region gets the room of those left before: decoding a progressive picture takes two and a
// half times what the picture does.
constexpr qint64 largeRegion = 96ll * 1024 * 1024;

} // namespace

frmMap::frmMap(Surroundings with, QWidget* owner)
    : QWidget(owner, Qt::Dialog | frameless()), with_(with), cache_(cachedBytes),
      viewport_(new MapViewport(this)) {
    setSpokenRole(*this, QAccessible::Window);
    setObjectName(u"frmMap"_s);
    setWindowTitle(programName());
    setMinimumSize(smallest, smallest);
    setCursor(programCursor(Pointer::Usual));
    viewport_->setCursor(programCursor(Pointer::OpenHand));
    groundTimer_.setSingleShot(true);
    groundTimer_.setInterval(groundPauseMs);
    connect(&groundTimer_, &QTimer::timeout, this, &frmMap::prepareGround);
    buildButtons();
    connectViewport();
    new EdgeResize(*this, smallest, {viewport_});
    resize(designSize);
}

frmMap::~frmMap() = default;

void frmMap::buildButtons() {
    const ProgramState& state = with_.state;
    cmdMinimize_ = new PictureButton(u"cmdMinimize"_s, u":/windows/minimize.png"_s,
                                     state.text(Caption::Minimise), viewport_);
    cmdMaximize_ = new PictureButton(u"cmdMaximize"_s, u":/windows/maximize.png"_s,
                                     state.text(Caption::Maximise), viewport_);
    cmdClose_ =
        new PictureButton(u"cmdClose"_s, u":/windows/close.png"_s, state.text(Caption::Quit), viewport_);
    connect(cmdClose_, &PictureButton::clicked, this, &frmMap::quitWanted);
    connect(cmdMaximize_, &PictureButton::clicked, this, [this] {
        emit maximiseWanted();
        viewport_->setFocus();
    });
    connect(cmdMinimize_, &PictureButton::clicked, this, [this] {
        viewport_->setFocus();
        emit minimiseWanted();
    });
}

void frmMap::connectViewport() {
    connect(viewport_, &MapViewport::pressed, this, &frmMap::press);
    connect(viewport_, &MapViewport::moved, this, &frmMap::moveTo);
    connect(viewport_, &MapViewport::released, this, &frmMap::release);
    connect(viewport_, &MapViewport::doubleClicked, this, &frmMap::doubleClick);
    connect(viewport_, &MapViewport::scrollWanted, this, &frmMap::scrollBy);
    connect(viewport_, &MapViewport::menuKeyPressed, this, &frmMap::menuKeyPressed);
    connect(viewport_, &MapViewport::lookKeyPressed, this, &frmMap::lookKeyPressed);
    connect(viewport_, &MapViewport::actKeyPressed, this, &frmMap::actKeyPressed);
    connect(viewport_, &MapViewport::insertKeyPressed, this, &frmMap::insertKeyPressed);
    connect(viewport_, &MapViewport::focusChanged, this, qOverload<>(&QWidget::update));
    connect(viewport_, &MapViewport::escapePressed, this, &frmMap::HideInformationWindows);
    connect(viewport_, &MapViewport::resized, this, [this] {
        if (!mapLoaded())
            showEmptyMap();
    });
}

MapShown frmMap::shown(int zoneIndex) const {
    return {campaign_, region_,
            zoneIndex > 0 ? zoneIdentifier(with_.state, campaign_, region_, zoneIndex) : 0};
}

void frmMap::InizializzaVariabili(const QString& picture, int campaign, int region) {
    if (campaign != campaign_ || region != region_) {
        dragging_ = false;
        viewport_->showSurface(nullptr);
        if (surface_)
            cache_.put(surfacePath_, std::move(surface_));
        campaign_ = campaign;
        region_ = region;
        surface_ = region < 0 || campaign < 0 ? nullptr : loadRegion(picture, campaign, region);
        surfacePath_ = picture;
        viewport_->showSurface(surface_.get());
        groundTimer_.start();
    } else if (region == -1 || campaign == -1) {
        surface_.reset();
        viewport_->showSurface(nullptr);
    }
    if (!mapLoaded())
        showEmptyMap();
    sayWhatIsShown();
    with_.desktop.processPendingEvents();
}

void frmMap::sayWhatIsShown() {
    const ProgramState& state = with_.state;
    viewport_->setAccessibleName(mapLoaded() ? regionName(state, campaign_, region_)
                                             : state.text(Caption::EmptyMapTitle));
    viewport_->setAccessibleDescription(mapLoaded() ? campaignName(state, campaign_)
                                                    : byLine() + u'\n' + creditsText());
    setAccessibleName(programName() + u": "_s + viewport_->accessibleName());
}

std::unique_ptr<MapSurface> frmMap::loadRegion(const QString& picture, int campaign, int region) {
    if (auto cached = cache_.take(picture))
        return cached;
    std::optional<GrowingPicture> expected = expected_.take(picture);
    const auto makeRoom = [this](qint64 bytes) {
        if (bytes > largeRegion)
            cache_.clear();
    };
    GrowingPicture ground =
        expected ? std::move(*expected) : loadPicture(with_.disk, picture, largestRegion, makeRoom);
    if (ground.image.isNull())
        return nullptr;
    const auto drawGround = [this, shown = MapShown{campaign, region, 0}](QImage& image, const QRect& part) {
        for (MapLayer* layer : chains_.drawing)
            layer->drawGround(image, part, shown);
    };
    return std::make_unique<MapSurface>(std::move(ground), art_, drawGround);
}

void frmMap::beginRest() {
    if (surface_)
        surface_->beginRest();
    prepareGround();
}

// Before it scrolls into view; a row of tiles at a time, so that nobody waits for it.
void frmMap::prepareGround() {
    if (surface_ && scrolls_)
        surface_->composeAround(viewport_->view().visible());
    scrolls_ = false;
    if (surface_ && surface_->drawMoreGround())
        groundTimer_.start();
}

// The next step soon follows.
void frmMap::prepareNextStep() {
    scrolls_ = true;
    if (!groundTimer_.isActive())
        groundTimer_.start();
}

void frmMap::showEmptyMap() {
    // Before the first layout nobody can see it.
    if (isVisible())
        viewport_->setEmptyPicture(
            drawEmptyMap(viewport_->screenPixels(), with_.state.text(Caption::EmptyMapTitle)));
}

void frmMap::CenterMapOn(int x, int y) {
    viewport_->view().centreOn({x, y});
    UpdateMap();
    with_.desktop.processPendingEvents();
}

void frmMap::DrawEverythingOnMap() {
    if (!mapLoaded())
        return;
    for (size_t i = 0; i < chains_.drawing.size(); ++i) {
        MapLayer& layer = *chains_.drawing[i];
        MarkersFrom from = layer.markersFrom();
        if (surface_->madeFrom(i, from))
            continue;
        std::vector<Marker> markers;
        layer.appendMarkers(markers);
        surface_->setMarkers(i, std::move(markers), std::move(from));
    }
    startFlashing();
    UpdateMap();
    with_.desktop.processPendingEvents();
}

void frmMap::UpdateMapWithNewEliteSkills() {
    HideInformationWindows();
    DrawEverythingOnMap();
}

void frmMap::HideInformationWindows() {
    for (InformationWindow* window : windows_)
        window->dismiss();
}

bool frmMap::askMouseOverChain(ViewPoint at) {
    return mapLoaded() && std::any_of(chains_.mouseOver.begin(), chains_.mouseOver.end(),
                                      [&](MapLayer* layer) { return layer->mouseOver(at); });
}

void frmMap::press(Qt::MouseButton button, Qt::KeyboardModifiers keys, ViewPoint at) {
    HideInformationWindows();
    last_ = at;
    lastButton_ = button;
    if (button == Qt::LeftButton && keys == Qt::NoModifier) {
        viewport_->setCursor(programCursor(Pointer::Fist));
        dragging_ = true;
        const MapPoint grip = toMap(at); // mouse minus scroll, rounded
        drag_ = {double(grip.x), double(grip.y)};
        prepareNextStep();
    }
    if (button == Qt::RightButton && !askMouseOverChain(at))
        emit regionMenuWanted(QCursor::pos());
}

void frmMap::moveTo(ViewPoint at, bool leftHeld) {
    // The release may have gone elsewhere: to a menu that another button opened meanwhile.
    if (dragging_ && !leftHeld)
        endDrag();
    if (dragging_) {
        viewport_->view().dragTo(static_cast<int>(std::lrint(at.x - drag_.x)),
                                 static_cast<int>(std::lrint(at.y - drag_.y)));
        UpdateMap();
        prepareNextStep();
    } else if (with_.informationMode == 1 && !askMouseOverChain(at)) {
        HideInformationWindows();
    }
}

void frmMap::endDrag() {
    viewport_->setCursor(programCursor(Pointer::OpenHand));
    with_.desktop.processPendingEvents();
    dragging_ = false;
}

void frmMap::release(Qt::MouseButton button) {
    if (dragging_)
        endDrag();
    else if (button == Qt::RightButton && with_.informationMode == 0) {
        HideInformationWindows();
        UpdateMap();
    }
}

void frmMap::doubleClick() {
    if (lastButton_ != Qt::LeftButton || !mapLoaded())
        return;
    for (MapLayer* layer : chains_.doubleClick)
        if (layer->doubleClick(last_))
            return;
}

void frmMap::scrollBy(int dx, int dy) {
    HideInformationWindows();
    MapView& view = viewport_->view();
    view.scrollTo(view.scrollX() - dx, view.scrollY() - dy);
    UpdateMap();
    prepareNextStep();
}

ViewPoint frmMap::bringIntoView(MapPoint place) {
    MapView& view = viewport_->view();
    if (!view.visible().contains(place.point()))
        CenterMapOn(place.x, place.y);
    return view.toView(place);
}

void frmMap::lookAt(MapPoint place) {
    HideInformationWindows();
    askMouseOverChain(bringIntoView(place));
}

void frmMap::actAt(MapPoint place) {
    press(Qt::LeftButton, Qt::NoModifier, bringIntoView(place));
    release(Qt::LeftButton);
    doubleClick();
}

// The margin tells when the keys act on the map.
void frmMap::paintEvent(QPaintEvent*) {
    if (!viewport_->hasFocus())
        return;
    QPainter painter(this);
    painter.setPen(palette().color(QPalette::Highlight));
    for (int inset = 0; inset < margin; ++inset)
        painter.drawRect(rect().adjusted(inset, inset, -inset - 1, -inset - 1));
}

void frmMap::resizeEvent(QResizeEvent*) {
    viewport_->setGeometry(margin, margin, width() - 2 * margin, height() - 2 * margin);
    int right = viewport_->width();
    for (PictureButton* button : {cmdClose_, cmdMaximize_, cmdMinimize_}) {
        right -= button->width();
        button->move(right, 0);
    }
    UpdateMap();
}

void frmMap::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    keepOffTaskBar(*this);
    if (!mapLoaded())
        showEmptyMap();
}

void frmMap::closeEvent(QCloseEvent* event) {
    // The window manager's way to close one window quits the whole program, as the button does.
    event->ignore();
    emit quitWanted();
}

} // namespace orvinel
