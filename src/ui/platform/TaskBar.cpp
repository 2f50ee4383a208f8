#include "ui/platform/Windows.h"

#include <QGuiApplication>

#ifdef ORVINEL_X11
#include <QEvent>
#include <QWindow>

#include <array>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <vector>

#include <xcb/xcb.h>
#elif defined(Q_OS_WIN)
#include <QWindow>
#endif

namespace orvinel {

#ifdef ORVINEL_X11

namespace {

struct Free {
    void operator()(void* reply) const { std::free(reply); }
};

xcb_atom_t atom(xcb_connection_t* connection, const char* name) {
    const auto cookie = xcb_intern_atom(connection, 0, static_cast<uint16_t>(std::strlen(name)), name);
    const std::unique_ptr<xcb_intern_atom_reply_t, Free> reply(
        xcb_intern_atom_reply(connection, cookie, nullptr));
    return reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
}

bool isMapped(xcb_connection_t* connection, xcb_window_t window) {
    const std::unique_ptr<xcb_get_window_attributes_reply_t, Free> reply(
        xcb_get_window_attributes_reply(connection, xcb_get_window_attributes(connection, window), nullptr));
    return reply && reply->map_state != XCB_MAP_STATE_UNMAPPED;
}

xcb_window_t rootOf(xcb_connection_t* connection) {
    return xcb_setup_roots_iterator(xcb_get_setup(connection)).data->root;
}

template <typename Event>
void sendToRoot(xcb_connection_t* connection, const Event& event) {
    std::array<char, 32> bytes{};
    static_assert(sizeof event <= sizeof bytes);
    std::memcpy(bytes.data(), &event, sizeof event);
    xcb_send_event(connection, 0, rootOf(connection),
                   XCB_EVENT_MASK_STRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT, bytes.data());
}

enum class Ask : uint32_t { Remove = 0, Add = 1 };

// The window manager owns the state of a window that is shown, so it is asked to change it.
void askWindowManager(xcb_connection_t* connection, xcb_window_t window, Ask what, xcb_atom_t state) {
    constexpr uint32_t fromApplication = 1;
    xcb_client_message_event_t event{};
    event.response_type = XCB_CLIENT_MESSAGE;
    event.format = 32;
    event.window = window;
    event.type = atom(connection, "_NET_WM_STATE");
    event.data.data32[0] = static_cast<uint32_t>(what);
    event.data.data32[1] = state;
    event.data.data32[3] = fromApplication;
    sendToRoot(connection, event);
}

// nullptr: not under X11.
xcb_connection_t* x11Connection() {
    const auto* x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    return x11 ? x11->connection() : nullptr;
}

void writeState(const QWindow& window) {
    xcb_connection_t* connection = x11Connection();
    if (!connection)
        return;
    const auto id = static_cast<xcb_window_t>(window.winId());
    const xcb_atom_t state = atom(connection, "_NET_WM_STATE");
    std::vector<const char*> names = {"_NET_WM_STATE_SKIP_TASKBAR", "_NET_WM_STATE_SKIP_PAGER"};
    if (window.flags() & Qt::WindowStaysOnTopHint)
        names.push_back("_NET_WM_STATE_ABOVE");
    if (window.modality() != Qt::NonModal)
        names.push_back("_NET_WM_STATE_MODAL");
    for (const char* name : names) {
        const xcb_atom_t added = atom(connection, name);
        if (isMapped(connection, id))
            askWindowManager(connection, id, Ask::Add, added);
        else
            xcb_change_property(connection, XCB_PROP_MODE_APPEND, id, state, XCB_ATOM_ATOM, 32, 1, &added);
    }
    xcb_flush(connection);
}

// Writes it again when the window is on the screen: Qt gives a window that was kept on top, or no longer,
// while it was hidden a new X window then, without the old one's state.
class AgainWhenSeen : public QObject {
  public:
    explicit AgainWhenSeen(QWindow* window) : QObject(window), window_(*window) {
        window->installEventFilter(this);
    }

  protected:
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::Expose && window_.isExposed()) {
            window_.removeEventFilter(this);
            writeState(window_);
            deleteLater();
        }
        return false;
    }

  private:
    QWindow& window_;
};

} // namespace

void keepOffTaskBar(QWidget& window) {
    if (!window.isWindow())
        return;
    window.winId(); // makes the window that the system knows, if there is none yet
    QWindow* handle = window.windowHandle();
    if (!handle->isExposed())
        new AgainWhenSeen(handle);
    writeState(*handle);
}

QRect placeOnServer(const QWidget& window) {
    xcb_connection_t* connection = x11Connection();
    if (!connection || !window.windowHandle())
        return shownPlace(window);
    const auto id = static_cast<xcb_window_t>(window.windowHandle()->winId());
    const auto size = xcb_get_geometry(connection, id);
    const auto place = xcb_translate_coordinates(connection, id, rootOf(connection), 0, 0);
    const std::unique_ptr<xcb_get_geometry_reply_t, Free> is(
        xcb_get_geometry_reply(connection, size, nullptr));
    const std::unique_ptr<xcb_translate_coordinates_reply_t, Free> at(
        xcb_translate_coordinates_reply(connection, place, nullptr));
    if (!is || !at)
        return shownPlace(window);
    const double scale = window.devicePixelRatio();
    const auto logical = [scale](int length) { return qRound(length / scale); };
    return {logical(at->dst_x), logical(at->dst_y), logical(is->width), logical(is->height)};
}

void wantNoAttention(const QWidget& window) {
    xcb_connection_t* connection = x11Connection();
    if (!connection || !window.windowHandle())
        return;
    askWindowManager(connection, static_cast<xcb_window_t>(window.windowHandle()->winId()), Ask::Remove,
                     atom(connection, "_NET_WM_STATE_DEMANDS_ATTENTION"));
    xcb_flush(connection);
}

bool isIconic(const QWidget& window) {
    xcb_connection_t* connection = x11Connection();
    if (!connection || !window.windowHandle())
        return window.isMinimized();
    constexpr uint32_t iconic = 3; // of ICCCM's WM_STATE
    const xcb_atom_t state = atom(connection, "WM_STATE");
    const auto cookie = xcb_get_property(
        connection, 0, static_cast<xcb_window_t>(window.windowHandle()->winId()), state, state, 0, 1);
    const std::unique_ptr<xcb_get_property_reply_t, Free> reply(
        xcb_get_property_reply(connection, cookie, nullptr));
    if (!reply || xcb_get_property_value_length(reply.get()) < static_cast<int>(sizeof(uint32_t)))
        return false;
    uint32_t value = 0;
    std::memcpy(&value, xcb_get_property_value(reply.get()), sizeof value);
    return value == iconic;
}

// As the window system's own rules for windows have it: unmapped, and the window manager told so.
void takeOffScreen(QWidget& window) {
    xcb_connection_t* connection = x11Connection();
    if (!connection) {
        window.setWindowState(window.windowState() | Qt::WindowMinimized);
        return;
    }
    xcb_unmap_notify_event_t event{};
    event.response_type = XCB_UNMAP_NOTIFY;
    event.event = rootOf(connection);
    event.window = static_cast<xcb_window_t>(window.windowHandle()->winId());
    xcb_unmap_window(connection, event.window);
    sendToRoot(connection, event);
    xcb_flush(connection);
}

void bringToScreen(QWidget& window, QPoint place) {
    if (window.isMinimized())
        window.setWindowState(window.windowState() & ~Qt::WindowMinimized);
    if (xcb_connection_t* connection = x11Connection()) {
        writeState(*window.windowHandle()); // the window manager has forgotten it
        xcb_map_window(connection, static_cast<xcb_window_t>(window.windowHandle()->winId()));
        xcb_flush(connection);
        window.move(place);
    }
}

#elif defined(Q_OS_WIN)

void keepOffTaskBar(QWidget& window) {
    // A window with an owner has no button of its own.
    if (window.parentWidget() || !window.isWindow())
        return;
    const Qt::WindowFlags flags = (window.windowFlags() & ~Qt::WindowType_Mask) | Qt::Tool;
    window.overrideWindowFlags(flags);
    if (QWindow* handle = window.windowHandle())
        handle->setFlags(flags);
}

#else

void keepOffTaskBar(QWidget&) {
}

#endif

#ifndef ORVINEL_X11
QRect placeOnServer(const QWidget& window) {
    return shownPlace(window);
}

void wantNoAttention(const QWidget&) {
}

bool isIconic(const QWidget& window) {
    return window.isMinimized();
}

void takeOffScreen(QWidget& window) {
    window.setWindowState(window.windowState() | Qt::WindowMinimized);
}

void bringToScreen(QWidget& window, QPoint) {
    window.setWindowState(window.windowState() & ~Qt::WindowMinimized);
}
#endif

Qt::WindowFlags minimisable() {
#ifdef Q_OS_WIN
    return Qt::WindowMinimizeButtonHint;
#else
    return {};
#endif
}

} // namespace orvinel
