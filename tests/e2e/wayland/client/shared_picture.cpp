#include "client/shared_picture.h"

#include <stdexcept>
#include <sys/mman.h>
#include <unistd.h>

namespace orvelle::wayland_client {

SharedPicture::SharedPicture(Compositor& compositor, int width, int height, int bytesPerLine,
                             wl_shm_format format)
    : m_width(width)
    , m_height(height)
    , m_bytesPerLine(bytesPerLine)
    , m_size(static_cast<std::size_t>(height) * static_cast<std::size_t>(bytesPerLine)) {
    const int file = memfd_create("picture", MFD_CLOEXEC);
    if (file < 0 || ftruncate(file, static_cast<off_t>(m_size)) != 0)
        throw std::runtime_error("there is no memory for a picture");
    void* memory = mmap(nullptr, m_size, PROT_READ | PROT_WRITE, MAP_SHARED, file, 0);
    if (memory == MAP_FAILED)
        throw std::runtime_error("there is no memory for a picture");
    m_bytes = static_cast<std::byte*>(memory);
    wl_shm_pool* pool = wl_shm_create_pool(compositor.memory, file, static_cast<std::int32_t>(m_size));
    m_buffer = wl_shm_pool_create_buffer(pool, 0, width, height, bytesPerLine, format);
    wl_shm_pool_destroy(pool);
    close(file);
}

SharedPicture::~SharedPicture() {
    wl_buffer_destroy(m_buffer);
    munmap(m_bytes, m_size);
}

std::span<std::uint32_t> SharedPicture::line(int number) {
    std::byte* start = m_bytes + static_cast<std::size_t>(number) * static_cast<std::size_t>(m_bytesPerLine);
    return {reinterpret_cast<std::uint32_t*>(start), static_cast<std::size_t>(m_width)};
}

} // namespace orvelle::wayland_client
