#include "ui/platform/Windows.h"

#include <QGuiApplication>

#ifdef ORVINEL_X11
#include <QEvent>
#include <QWindow>

#include <array>
#include <cstdlib>
#include <cstring>
#include <memory>

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

// The window manager owns the state of a window that is shown, so it is asked to add to it.
void askWindowManager(xcb_connection_t* connection, xcb_window_t window, xcb_atom_t state, xcb_atom_t added) {
    constexpr uint32_t add = 1;
    constexpr uint32_t fromApplication = 1;
    xcb_client_message_event_t event{};
    event.response_type = XCB_CLIENT_MESSAGE;
    event.format = 32;
    event.window = window;
    event.type = state;
    event.data.data32[0] = add;
    event.data.data32[1] = added;
    event.data.data32[3] = fromApplication;
    const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(connection)).data->root;
    std::array<char, 32> bytes{};
    static_assert(sizeof event <= sizeof bytes);
    std::memcpy(bytes.data(), &event, sizeof event);
    xcb_send_event(connection, 0, root,
                   XCB_EVENT_MASK_STRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT, bytes.data());
}

void writeState(const QWindow& window) {
    const auto* x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    xcb_connection_t* connection = x11 ? x11->connection() : nullptr;
    if (!connection)
        return;
    const auto id = static_cast<xcb_window_t>(window.winId());
    const xcb_atom_t state = atom(connection, "_NET_WM_STATE");
    for (const char* name : {"_NET_WM_STATE_SKIP_TASKBAR", "_NET_WM_STATE_SKIP_PAGER"}) {
        const xcb_atom_t added = atom(connection, name);
        if (isMapped(connection, id))
            askWindowManager(connection, id, state, added);
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
    window.winId(); // makes the window that the system knows, if there is none yet
    QWindow* handle = window.windowHandle();
    if (!handle->isExposed())
        new AgainWhenSeen(handle);
    writeState(*handle);
}

#elif defined(Q_OS_WIN)

void keepOffTaskBar(QWidget& window) {
    // A window with an owner has no button of its own.
    if (window.parentWidget())
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

Qt::WindowFlags minimisable() {
#ifdef Q_OS_WIN
    return Qt::WindowMinimizeButtonHint;
#else
    return {};
#endif
}

} // namespace orvinel
