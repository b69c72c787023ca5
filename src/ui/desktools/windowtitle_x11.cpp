// On X11 the window manager lists the managed windows on the root window (_NET_CLIENT_LIST) and
// every client names its process (_NET_WM_PID); without a window manager the root's children are
// the top-level windows. Asked over the connection Qt already holds.
#include "ui/desktools/windowtitle.h"

#include <QGuiApplication>

#if QT_CONFIG(xcb)
#include <xcb/xcb.h>

#include <cstdlib>
#include <cstring>
#include <memory>
#include <vector>
#endif

namespace quenfor {

#if QT_CONFIG(xcb)

namespace {

struct FreeReply {
    void operator()(void* reply) const { std::free(reply); }
};
template <typename T> using Reply = std::unique_ptr<T, FreeReply>;

// More than any title or window list needs, in 32-bit units.
constexpr uint32_t kLongestProperty = 1u << 16;

xcb_atom_t existingAtom(xcb_connection_t* connection, const char* name) {
    const Reply<xcb_intern_atom_reply_t> reply(
        xcb_intern_atom_reply(connection, xcb_intern_atom(connection, 1, uint16_t(std::strlen(name)), name), nullptr));
    return reply ? reply->atom : xcb_atom_t(XCB_ATOM_NONE);
}

Reply<xcb_get_property_reply_t> property(xcb_connection_t* connection, xcb_window_t window, xcb_atom_t name,
                                         xcb_atom_t type) {
    if (name == XCB_ATOM_NONE)
        return {};
    return Reply<xcb_get_property_reply_t>(xcb_get_property_reply(
        connection, xcb_get_property(connection, 0, window, name, type, 0, kLongestProperty), nullptr));
}

std::vector<xcb_window_t> windowList(const xcb_get_property_reply_t* reply) {
    if (!reply || reply->format != 32)
        return {};
    const auto* first = static_cast<const xcb_window_t*>(xcb_get_property_value(reply));
    return std::vector<xcb_window_t>(first, first + xcb_get_property_value_length(reply) / 4);
}

std::vector<xcb_window_t> topLevelWindows(xcb_connection_t* connection, xcb_window_t root, xcb_atom_t clientList) {
    std::vector<xcb_window_t> windows = windowList(property(connection, root, clientList, XCB_ATOM_WINDOW).get());
    if (!windows.empty())
        return windows;
    const Reply<xcb_query_tree_reply_t> tree(
        xcb_query_tree_reply(connection, xcb_query_tree(connection, root), nullptr));
    if (!tree)
        return {};
    const xcb_window_t* children = xcb_query_tree_children(tree.get());
    return std::vector<xcb_window_t>(children, children + xcb_query_tree_children_length(tree.get()));
}

bool isOwnedByProcess(xcb_connection_t* connection, xcb_window_t window, xcb_atom_t pidAtom, qint64 pid) {
    const auto reply = property(connection, window, pidAtom, XCB_ATOM_CARDINAL);
    if (!reply || reply->format != 32 || xcb_get_property_value_length(reply.get()) < 4)
        return false;
    return qint64(*static_cast<const uint32_t*>(xcb_get_property_value(reply.get()))) == pid;
}

// A dialog names the window it belongs to; the main window names none.
bool hasOwner(xcb_connection_t* connection, xcb_window_t window) {
    return !windowList(property(connection, window, XCB_ATOM_WM_TRANSIENT_FOR, XCB_ATOM_WINDOW).get()).empty();
}

bool isViewable(xcb_connection_t* connection, xcb_window_t window) {
    const Reply<xcb_get_window_attributes_reply_t> attributes(
        xcb_get_window_attributes_reply(connection, xcb_get_window_attributes(connection, window), nullptr));
    return attributes && attributes->map_state == XCB_MAP_STATE_VIEWABLE;
}

QString titleOf(xcb_connection_t* connection, xcb_window_t window, xcb_atom_t netName, xcb_atom_t utf8) {
    if (const auto name = property(connection, window, netName, utf8);
        name && xcb_get_property_value_length(name.get()) > 0) {
        return QString::fromUtf8(static_cast<const char*>(xcb_get_property_value(name.get())),
                                 xcb_get_property_value_length(name.get()));
    }
    const auto name = property(connection, window, XCB_ATOM_WM_NAME, XCB_GET_PROPERTY_TYPE_ANY);
    if (!name || name->format != 8)
        return {};
    const auto* text = static_cast<const char*>(xcb_get_property_value(name.get()));
    const int length = xcb_get_property_value_length(name.get());
    return name->type == XCB_ATOM_STRING ? QString::fromLatin1(text, length) : QString::fromUtf8(text, length);
}

} // namespace

WindowTitleLookup windowTitleOfProcess(qint64 pid) {
    const auto* x11 = qGuiApp ? qGuiApp->nativeInterface<QNativeInterface::QX11Application>() : nullptr;
    xcb_connection_t* connection = x11 ? x11->connection() : nullptr;
    if (!connection)
        return {};
    WindowTitleLookup lookup;
    lookup.desktopTells = true;
    const xcb_atom_t clientList = existingAtom(connection, "_NET_CLIENT_LIST");
    const xcb_atom_t pidAtom = existingAtom(connection, "_NET_WM_PID");
    const xcb_atom_t netName = existingAtom(connection, "_NET_WM_NAME");
    const xcb_atom_t utf8 = existingAtom(connection, "UTF8_STRING");
    if (pidAtom == XCB_ATOM_NONE)
        return lookup;
    // A hidden helper window of the process counts only when it has no visible one.
    std::optional<xcb_window_t> hidden;
    for (auto roots = xcb_setup_roots_iterator(xcb_get_setup(connection)); roots.rem; xcb_screen_next(&roots)) {
        for (const xcb_window_t window : topLevelWindows(connection, roots.data->root, clientList)) {
            if (!isOwnedByProcess(connection, window, pidAtom, pid) || hasOwner(connection, window))
                continue;
            if (isViewable(connection, window)) {
                lookup.title = titleOf(connection, window, netName, utf8);
                return lookup;
            }
            if (!hidden)
                hidden = window;
        }
    }
    if (hidden)
        lookup.title = titleOf(connection, *hidden, netName, utf8);
    return lookup;
}

#else

WindowTitleLookup windowTitleOfProcess(qint64 /*pid*/) {
    return {};
}

#endif

} // namespace quenfor
