#include "ui/map/Flashing.h"

namespace orvinel {

Flashing::Flashing(std::vector<FlashingKind> kinds, frmMap& map) : map_(map) {
    for (FlashingKind& kind : kinds) {
        auto* timer = new QTimer(this);
        timer->setObjectName(kind.timer);
        timer->setInterval(periodMs);
        connect(timer, &QTimer::timeout, this, [this, index = blinking_.size()] { tick(index); });
        blinking_.push_back({std::move(kind), timer});
    }
}

void Flashing::StartFlashing() {
    for (size_t i = 0; i < blinking_.size(); ++i) {
        const FlashingKind& kind = blinking_[i].kind;
        const bool on = switchedOn(kind);
        const auto marked = on && inFront(kind) ? selection(kind) : std::nullopt;
        show(i, marked);
        if (on)
            run(*blinking_[i].timer, marked.has_value());
    }
}

void Flashing::switchFlashing(Tab tab, bool on) {
    for (const Blinking& blinking : blinking_)
        if (blinking.kind.tab == tab)
            run(*blinking.timer, on);
}

void Flashing::run(QTimer& timer, bool on) {
    if (on && !timer.isActive())
        timer.start();
    else if (!on)
        timer.stop();
}

void Flashing::tick(size_t index) {
    Blinking& blinking = blinking_[index];
    if (map_.dragging() || !switchedOn(blinking.kind))
        return;
    const auto marked = selection(blinking.kind);
    if (!marked)
        return;
    show(index, blinking.phase ? marked : std::nullopt);
    blinking.phase = !blinking.phase;
}

std::optional<MapPoint> Flashing::selectedPlace() const {
    for (const Blinking& blinking : blinking_)
        if (const MapLocation* at = selected(blinking.kind); at && inFront(blinking.kind))
            return MapPoint{at->X, at->Y};
    return std::nullopt;
}

const MapLocation* Flashing::selected(const FlashingKind& kind) const {
    const MapLocation* at = nullptr;
    for (auto layer = kind.layers.begin(); !at && layer != kind.layers.end(); ++layer)
        at = (*layer)->selected();
    return at && map_.mapLoaded() && map_.shown(0).shows(at->Campaign, at->Region) ? at : nullptr;
}

std::optional<MapViewport::Selection> Flashing::selection(const FlashingKind& kind) const {
    const MapLocation* at = selected(kind);
    if (!at)
        return std::nullopt;
    const QSize size = map_.art().picture(kind.sprite).size();
    return MapViewport::Selection{kind.sprite, {at->X - size.width() / 2, at->Y - size.height() / 2}};
}

void Flashing::show(size_t index, const std::optional<MapViewport::Selection>& selection) {
    map_.picMap().setSelection(static_cast<int>(index), selection, map_.art());
}

} // namespace orvinel
