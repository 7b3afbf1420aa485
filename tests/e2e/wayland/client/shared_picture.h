#pragma once

#include "client/compositor.h"

#include <cstddef>
#include <span>

namespace orvelle::wayland_client {

/// Pixels of 4 bytes that this client and the compositor share.
class SharedPicture {
public:
    /// `bytesPerLine` is at least four times the width. Throws std::runtime_error when there is no memory.
    SharedPicture(Compositor& compositor, int width, int height, int bytesPerLine, wl_shm_format format);
    ~SharedPicture();
    SharedPicture(const SharedPicture&) = delete;
    SharedPicture& operator=(const SharedPicture&) = delete;

    [[nodiscard]] wl_buffer* buffer() const { return m_buffer; }
    [[nodiscard]] std::span<std::uint32_t> line(int number);
    [[nodiscard]] int width() const { return m_width; }
    [[nodiscard]] int height() const { return m_height; }

private:
    int m_width;
    int m_height;
    int m_bytesPerLine;
    std::size_t m_size;
    std::byte* m_bytes;
    wl_buffer* m_buffer;
};

} // namespace orvelle::wayland_client
