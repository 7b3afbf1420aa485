#include "shell/wayland/arrow_cursor.h"

#include <QtGlobal>

#include <wayland-client.h>
#include <wayland-cursor.h>

namespace orvelle {
namespace {

constexpr int usualSizePoints = 24;
constexpr int largestSizePoints = 256;

int cursorSizePoints() {
    const int size = qEnvironmentVariableIntValue("XCURSOR_SIZE");
    return size > 0 && size <= largestSizePoints ? size : usualSizePoints;
}

wl_cursor_image* arrowOf(wl_cursor_theme* theme) {
    for (const char* name : {"default", "left_ptr"}) {
        const wl_cursor* cursor = wl_cursor_theme_get_cursor(theme, name);
        if (cursor != nullptr && cursor->image_count > 0)
            return cursor->images[0];
    }
    return nullptr;
}

} // namespace

void ArrowCursor::show(wl_pointer* pointer, std::uint32_t serial) {
    if (load())
        wl_pointer_set_cursor(pointer, serial, m_surface.get(), m_hotspotX, m_hotspotY);
}

bool ArrowCursor::load() {
    if (m_loadedScale == m_scale)
        return m_surface != nullptr;
    m_loadedScale = m_scale;
    if (m_globals.compositor() == nullptr || m_globals.shm() == nullptr)
        return false;
    const QByteArray name = qgetenv("XCURSOR_THEME");
    ProxyPointer<wl_cursor_theme> theme(wl_cursor_theme_load(name.isEmpty() ? nullptr : name.constData(),
                                                             cursorSizePoints() * m_scale, m_globals.shm()));
    wl_cursor_image* arrow = theme ? arrowOf(theme.get()) : nullptr;
    if (arrow == nullptr)
        return m_surface != nullptr;
    if (!m_surface)
        m_surface.reset(wl_compositor_create_surface(m_globals.compositor()));
    const bool canScale =
        wl_surface_get_version(m_surface.get()) >= WL_SURFACE_SET_BUFFER_SCALE_SINCE_VERSION;
    if (canScale)
        wl_surface_set_buffer_scale(m_surface.get(), m_scale);
    const int scale = canScale ? m_scale : 1;
    m_hotspotX = static_cast<int>(arrow->hotspot_x) / scale;
    m_hotspotY = static_cast<int>(arrow->hotspot_y) / scale;
    wl_surface_attach(m_surface.get(), wl_cursor_image_get_buffer(arrow), 0, 0);
    wl_surface_damage(m_surface.get(), 0, 0, largestSizePoints, largestSizePoints);
    wl_surface_commit(m_surface.get());
    m_theme = std::move(theme); // the previous one goes when its picture is no longer shown
    return true;
}

} // namespace orvelle
