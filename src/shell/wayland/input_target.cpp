#include "shell/wayland/input_target.h"

#include <wayland-client.h>

namespace orvelle {

QPointF pointOf(std::int32_t x, std::int32_t y) {
    return {wl_fixed_to_double(x), wl_fixed_to_double(y)};
}

InputTarget::InputTarget(wl_surface* surface)
    : m_surface(surface) {
    wl_surface_set_user_data(surface, this);
}

InputTarget::~InputTarget() {
    wl_surface_set_user_data(m_surface, nullptr);
}

InputTarget* InputTarget::of(wl_surface* surface) {
    return surface == nullptr ? nullptr : static_cast<InputTarget*>(wl_surface_get_user_data(surface));
}

} // namespace orvelle
