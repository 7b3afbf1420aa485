#pragma once

#include "shell/wayland/proxy_pointer.h"

#include <QImage>
#include <QObject>

struct wl_buffer_listener;

namespace orvelle {

/// A picture in memory that the compositor reads.
class ShmBuffer final : public QObject {
    Q_OBJECT

public:
    /// Without an alpha channel, or with a premultiplied one. All bytes are 0 at first. Null when the system
    /// has no memory for it.
    [[nodiscard]] static std::unique_ptr<ShmBuffer> make(wl_shm* shm, const QSize& pixels, bool hasAlpha);
    ~ShmBuffer() override;

    [[nodiscard]] wl_buffer* handle() const { return m_buffer.get(); }
    /// To be painted in only while the buffer is not in use.
    [[nodiscard]] QImage& image() { return m_image; }
    /// Whether the compositor may still read it.
    [[nodiscard]] bool isInUse() const { return m_isInUse; }
    /// To be called when the buffer is given to the compositor.
    void setInUse() { m_isInUse = true; }

Q_SIGNALS:
    /// The compositor does not read it any more.
    void released();

private:
    ShmBuffer(void* memory, qsizetype byteCount, QImage image, ProxyPointer<wl_buffer> buffer);
    static const wl_buffer_listener listener;
    void handleRelease();

    void* m_memory;
    qsizetype m_byteCount;
    QImage m_image;
    ProxyPointer<wl_buffer> m_buffer;
    bool m_isInUse = false;
};

} // namespace orvelle
