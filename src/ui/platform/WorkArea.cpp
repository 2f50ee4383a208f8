#include "ui/platform/WorkArea.h"

#include <QGuiApplication>
#include <QScreen>

#ifdef ORVINEL_X11
#include <cstdlib>
#include <cstring>
#include <memory>
#include <string>

#include <xcb/xcb.h>
#endif

namespace orvinel {

namespace {

qint64 pixelsIn(const QRect& area) {
    return qint64(area.width()) * area.height();
}

} // namespace

std::optional<QRect> workAreaIn(const QRect& monitor, const ToldAreas& told) {
    for (const QRect& area : told.monitors)
        if (!area.isEmpty() && monitor.contains(area))
            return area;
    // One area for all monitors leaves out what a bar between two of them takes, or is as high as the lowest
    // of them: where little is left it says nothing about this one.
    const QRect left = monitor.intersected(told.desktop);
    if (told.desktop.isEmpty() || 2 * pixelsIn(left) < pixelsIn(monitor))
        return std::nullopt;
    return left;
}

#ifdef ORVINEL_X11

namespace {

std::vector<uint32_t> cardinals(xcb_connection_t* connection, const std::string& name) {
    struct Free {
        void operator()(void* reply) const { std::free(reply); }
    };
    const auto named = xcb_intern_atom(connection, 1, static_cast<uint16_t>(name.size()), name.c_str());
    const std::unique_ptr<xcb_intern_atom_reply_t, Free> atom(
        xcb_intern_atom_reply(connection, named, nullptr));
    if (!atom || atom->atom == XCB_ATOM_NONE)
        return {};
    constexpr uint32_t most = 256;
    const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(connection)).data->root;
    const auto asked = xcb_get_property(connection, 0, root, atom->atom, XCB_ATOM_CARDINAL, 0, most);
    const std::unique_ptr<xcb_get_property_reply_t, Free> reply(
        xcb_get_property_reply(connection, asked, nullptr));
    if (!reply || reply->format != 32)
        return {};
    std::vector<uint32_t> values(static_cast<size_t>(xcb_get_property_value_length(reply.get())) /
                                 sizeof(uint32_t));
    if (!values.empty())
        std::memcpy(values.data(), xcb_get_property_value(reply.get()), values.size() * sizeof(uint32_t));
    return values;
}

std::vector<QRect> areas(xcb_connection_t* connection, const std::string& name) {
    const std::vector<uint32_t> values = cardinals(connection, name);
    std::vector<QRect> result;
    for (size_t i = 0; i + 4 <= values.size(); i += 4)
        result.emplace_back(static_cast<int>(values[i]), static_cast<int>(values[i + 1]),
                            static_cast<int>(values[i + 2]), static_cast<int>(values[i + 3]));
    return result;
}

ToldAreas toldAreas(xcb_connection_t* connection) {
    const std::vector<uint32_t> current = cardinals(connection, "_NET_CURRENT_DESKTOP");
    const size_t desktop = current.empty() ? 0 : current.front();
    const std::vector<QRect> whole = areas(connection, "_NET_WORKAREA");
    return {areas(connection, "_GTK_WORKAREAS_D" + std::to_string(desktop)),
            desktop < whole.size() ? whole[desktop] : QRect()};
}

} // namespace

QRect workAreaOf(const QScreen& screen) {
    const auto* x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    if (!x11 || QGuiApplication::screens().size() < 2)
        return screen.availableGeometry();
    // A screen begins at the pixel that it has without scaling.
    const QPoint corner = screen.geometry().topLeft();
    const qreal scale = screen.devicePixelRatio();
    const QRect monitor(corner, (QSizeF(screen.geometry().size()) * scale).toSize());
    const auto area = workAreaIn(monitor, toldAreas(x11->connection()));
    if (!area)
        return screen.availableGeometry();
    return QRect(corner + ((area->topLeft() - corner).toPointF() / scale).toPoint(),
                 (QSizeF(area->size()) / scale).toSize());
}

#else

QRect workAreaOf(const QScreen& screen) {
    return screen.availableGeometry();
}

#endif

} // namespace orvinel
