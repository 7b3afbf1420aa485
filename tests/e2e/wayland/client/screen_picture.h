#pragma once

#include "client/compositor.h"

#include <cstdio>
#include <optional>
#include <string_view>

namespace orvelle::wayland_client {

/// Writes the pixels that an output shows, or only a part of them, as a portable pixmap (P6). Leaves out what
/// lies outside the output. Throws std::runtime_error when the compositor refuses.
void writePicture(Compositor& compositor, std::string_view outputName, std::optional<Rectangle> part,
                  std::FILE* file);

} // namespace orvelle::wayland_client
