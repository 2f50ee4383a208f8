#include "ui/platform/WindowManager.h"

#include <QGuiApplication>
#include <QScreen>

#ifdef ORVINEL_X11
#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <memory>

#include <xcb/xcb.h>
#endif

namespace orvinel {

using namespace Qt::Literals::StringLiterals;

bool tremblesWhenDragged(const WindowManager& manager) {
    return manager.xwayland && (manager.name == u"GNOME Shell"_s || manager.name.startsWith(u"Mutter"_s));
}

bool placesWindowsItself(const WindowManager& manager) {
    return manager.name == u"Weston WM"_s;
}

#ifdef ORVINEL_X11

namespace {

struct Free {
    void operator()(void* reply) const { std::free(reply); }
};

QByteArray property(xcb_connection_t* connection, xcb_window_t window, const char* name) {
    const auto named = xcb_intern_atom(connection, 1, static_cast<uint16_t>(std::strlen(name)), name);
    const std::unique_ptr<xcb_intern_atom_reply_t, Free> atom(
        xcb_intern_atom_reply(connection, named, nullptr));
    if (!atom || atom->atom == XCB_ATOM_NONE)
        return {};
    constexpr uint32_t most = 64;
    const auto asked =
        xcb_get_property(connection, 0, window, atom->atom, XCB_GET_PROPERTY_TYPE_ANY, 0, most);
    const std::unique_ptr<xcb_get_property_reply_t, Free> reply(
        xcb_get_property_reply(connection, asked, nullptr));
    if (!reply)
        return {};
    return {static_cast<const char*>(xcb_get_property_value(reply.get())),
            xcb_get_property_value_length(reply.get())};
}

// Newer ones say so; the older ones name the monitors after themselves.
bool isXwayland(xcb_connection_t* connection) {
    constexpr char name[] = "XWAYLAND";
    const auto asked = xcb_query_extension(connection, sizeof name - 1, name);
    const std::unique_ptr<xcb_query_extension_reply_t, Free> reply(
        xcb_query_extension_reply(connection, asked, nullptr));
    const auto screens = QGuiApplication::screens();
    return (reply && reply->present) ||
           std::any_of(screens.begin(), screens.end(), [&](const QScreen* screen) {
               return screen->name().startsWith(QLatin1StringView(name));
           });
}

} // namespace

WindowManager windowManager() {
    const auto* x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    xcb_connection_t* connection = x11 ? x11->connection() : nullptr;
    if (!connection)
        return {};
    const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(connection)).data->root;
    const QByteArray check = property(connection, root, "_NET_SUPPORTING_WM_CHECK");
    xcb_window_t window = XCB_WINDOW_NONE;
    if (check.size() != sizeof window)
        return {{}, isXwayland(connection)};
    std::memcpy(&window, check.constData(), sizeof window);
    return {QString::fromUtf8(property(connection, window, "_NET_WM_NAME")), isXwayland(connection)};
}

#else

WindowManager windowManager() {
    return {};
}

#endif

} // namespace orvinel
