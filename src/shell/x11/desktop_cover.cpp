#include "shell/x11/desktop_cover.h"

#include "shell/x11/x11_connection.h"

#include <xcb/xinput.h>

#include <algorithm>
#include <array>
#include <optional>
#include <span>
#include <string_view>

namespace orvelle {
namespace {

constexpr std::uint8_t depthWithTransparency = 32;

const xcb_screen_t* screenOf(xcb_connection_t* connection) {
    xcb_screen_iterator_t screens = xcb_setup_roots_iterator(xcb_get_setup(connection));
    while (screens.rem > 1 && screens.data->root != rootWindow(connection))
        xcb_screen_next(&screens);
    return screens.data;
}

/// The first visual with transparency.
std::optional<xcb_visualid_t> transparentVisual(const xcb_screen_t& screen) {
    for (auto depth = xcb_screen_allowed_depths_iterator(&screen); depth.rem > 0; xcb_depth_next(&depth)) {
        const xcb_visualtype_iterator_t visuals = xcb_depth_visuals_iterator(depth.data);
        if (depth.data->depth == depthWithTransparency && visuals.rem > 0)
            return visuals.data->visual_id;
    }
    return std::nullopt;
}

/// Whether the server is part of a Wayland session: its pointers and keyboards are those of the compositor,
/// and it names them so.
bool isInsideWayland(xcb_connection_t* connection) {
    const xcb_query_extension_reply_t* extension = xcb_get_extension_data(connection, &xcb_input_id);
    if (extension == nullptr || extension->present == 0)
        return false;
    const auto reply = takeReply(xcb_input_xi_query_device_reply(
        connection, xcb_input_xi_query_device(connection, XCB_INPUT_DEVICE_ALL), nullptr));
    if (!reply)
        return false;
    auto device = xcb_input_xi_query_device_infos_iterator(reply.get());
    for (; device.rem > 0; xcb_input_xi_device_info_next(&device)) {
        const std::string_view name(xcb_input_xi_device_info_name(device.data), device.data->name_len);
        if (name.starts_with("xwayland-"))
            return true;
    }
    return false;
}

/// Whether the window manager says that it knows this name.
bool isSupported(xcb_connection_t* connection, std::string_view name) {
    constexpr std::uint32_t mostNames = 4096;
    const auto reply = takeReply(xcb_get_property_reply(
        connection,
        xcb_get_property(connection, 0, rootWindow(connection), internAtom(connection, "_NET_SUPPORTED"),
                         XCB_ATOM_ATOM, 0, mostNames),
        nullptr));
    if (!reply || reply->format != 32)
        return false;
    const std::span names(static_cast<const xcb_atom_t*>(xcb_get_property_value(reply.get())),
                          reply->value_len);
    return std::ranges::find(names, internAtom(connection, name)) != names.end();
}

template <std::size_t Count>
void setProperty(xcb_connection_t* connection, xcb_window_t window, std::string_view name, xcb_atom_t type,
                 const std::array<std::uint32_t, Count>& values) {
    xcb_change_property(connection, XCB_PROP_MODE_REPLACE, window, internAtom(connection, name), type, 32,
                        Count, values.data());
}

constexpr std::string_view desktopType = "_NET_WM_WINDOW_TYPE_DESKTOP";

/// Tells the window manager that the window belongs below all others, and that it never wants the keyboard.
void declareDesktop(xcb_connection_t* connection, xcb_window_t window) {
    setProperty(connection, window, "_NET_WM_WINDOW_TYPE", XCB_ATOM_ATOM,
                std::array{internAtom(connection, desktopType)});
    setProperty(connection, window, "_NET_WM_STATE", XCB_ATOM_ATOM,
                std::array{internAtom(connection, "_NET_WM_STATE_STICKY"),
                           internAtom(connection, "_NET_WM_STATE_SKIP_TASKBAR"),
                           internAtom(connection, "_NET_WM_STATE_SKIP_PAGER")});
    setProperty(connection, window, "_NET_WM_USER_TIME", XCB_ATOM_CARDINAL, std::array<std::uint32_t, 1>{0});
    constexpr std::uint32_t hasInputHint = 1;
    setProperty(connection, window, "WM_HINTS", XCB_ATOM_WM_HINTS,
                std::array<std::uint32_t, 9>{hasInputHint, 0});
    constexpr std::uint32_t hasPosition = 1; // else the window manager chooses it
    setProperty(connection, window, "WM_NORMAL_HINTS", XCB_ATOM_WM_SIZE_HINTS,
                std::array<std::uint32_t, 18>{hasPosition});
}

} // namespace

std::unique_ptr<DesktopCover> DesktopCover::makeIfNeeded() {
    xcb_connection_t* connection = xcbConnection();
    if (connection == nullptr || !isInsideWayland(connection) || !isSupported(connection, desktopType))
        return nullptr;
    const std::optional<xcb_visualid_t> visual = transparentVisual(*screenOf(connection));
    return visual ? std::unique_ptr<DesktopCover>(new DesktopCover(connection, *visual)) : nullptr;
}

DesktopCover::DesktopCover(xcb_connection_t* connection, xcb_visualid_t visual)
    : m_connection(connection)
    , m_colors(xcb_generate_id(connection))
    , m_window(xcb_generate_id(connection)) {
    const xcb_window_t root = rootWindow(m_connection);
    const auto size =
        takeReply(xcb_get_geometry_reply(m_connection, xcb_get_geometry(m_connection, root), nullptr));
    const std::array<std::uint16_t, 2> pixels =
        size ? std::array{size->width, size->height} : std::array<std::uint16_t, 2>{1, 1};
    xcb_create_colormap(m_connection, XCB_COLORMAP_ALLOC_NONE, m_colors, root, visual);
    // In the order of their bits: background and border without colour, and the colours of the visual.
    const std::array<std::uint32_t, 3> values{0, 0, m_colors};
    xcb_create_window(m_connection, depthWithTransparency, m_window, root, 0, 0, pixels[0], pixels[1], 0,
                      XCB_WINDOW_CLASS_INPUT_OUTPUT, visual,
                      XCB_CW_BACK_PIXEL | XCB_CW_BORDER_PIXEL | XCB_CW_COLORMAP, values.data());
    declareDesktop(m_connection, m_window);
    xcb_map_window(m_connection, m_window);
    xcb_flush(m_connection);
}

DesktopCover::~DesktopCover() {
    xcb_destroy_window(m_connection, m_window);
    xcb_free_colormap(m_connection, m_colors);
    xcb_flush(m_connection);
}

} // namespace orvelle
