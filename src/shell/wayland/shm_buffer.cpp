#include "shell/wayland/shm_buffer.h"

#include "shell/wayland/event_handlers.h"

#include <sys/mman.h>
#include <unistd.h>
#include <utility>
#include <wayland-client.h>

namespace orvelle {

const wl_buffer_listener ShmBuffer::listener = [] {
    wl_buffer_listener events{};
    events.release = onEvent<&ShmBuffer::handleRelease>;
    return events;
}();

std::unique_ptr<ShmBuffer> ShmBuffer::make(wl_shm* shm, const QSize& pixels, bool hasAlpha) {
    constexpr int bytesPerPixel = 4;
    const int bytesPerLine = pixels.width() * bytesPerPixel;
    const qsizetype byteCount = qsizetype{bytesPerLine} * pixels.height();
    const int file = memfd_create("orvelle", MFD_CLOEXEC);
    if (file < 0)
        return nullptr;
    void* memory = MAP_FAILED;
    if (ftruncate(file, byteCount) == 0)
        memory =
            mmap(nullptr, static_cast<std::size_t>(byteCount), PROT_READ | PROT_WRITE, MAP_SHARED, file, 0);
    if (memory == MAP_FAILED) {
        close(file);
        return nullptr;
    }
    const ProxyPointer<wl_shm_pool> pool(wl_shm_create_pool(shm, file, static_cast<std::int32_t>(byteCount)));
    close(file); // the request has a copy
    const auto format = hasAlpha ? WL_SHM_FORMAT_ARGB8888 : WL_SHM_FORMAT_XRGB8888;
    ProxyPointer<wl_buffer> buffer(
        wl_shm_pool_create_buffer(pool.get(), 0, pixels.width(), pixels.height(), bytesPerLine, format));
    QImage image(static_cast<uchar*>(memory), pixels.width(), pixels.height(), bytesPerLine,
                 hasAlpha ? QImage::Format_ARGB32_Premultiplied : QImage::Format_RGB32);
    return std::unique_ptr<ShmBuffer>(new ShmBuffer(memory, byteCount, std::move(image), std::move(buffer)));
}

ShmBuffer::ShmBuffer(void* memory, qsizetype byteCount, QImage image, ProxyPointer<wl_buffer> buffer)
    : m_memory(memory)
    , m_byteCount(byteCount)
    , m_image(std::move(image))
    , m_buffer(std::move(buffer)) {
    wl_buffer_add_listener(m_buffer.get(), &listener, this);
}

ShmBuffer::~ShmBuffer() {
    m_image = QImage();
    munmap(m_memory, static_cast<std::size_t>(m_byteCount));
}

void ShmBuffer::handleRelease() {
    m_isInUse = false;
    Q_EMIT released();
}

} // namespace orvelle
