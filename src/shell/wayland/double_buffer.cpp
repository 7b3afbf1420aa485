#include "shell/wayland/double_buffer.h"

#include <QPainter>

#include <algorithm>
#include <utility>

namespace orvelle {

void DoubleBuffer::resize(const QSize& pixels) {
    m_pixels = pixels;
    m_front = nullptr;
    for (Side& side : m_sides) {
        if (side.buffer)
            m_retired.push_back(std::move(side.buffer));
        side.stale = QRegion();
    }
}

bool DoubleBuffer::isUsable(Side& side) {
    if (!side.buffer) {
        side.buffer = ShmBuffer::make(m_shm, m_pixels, false);
        if (!side.buffer)
            return false;
        side.stale = QRect(QPoint(0, 0), m_pixels);
        connect(side.buffer.get(), &ShmBuffer::released, this, &DoubleBuffer::freed);
    }
    return !side.buffer->isInUse();
}

DoubleBuffer::Side* DoubleBuffer::freeSide() {
    // The present picture needs no copy.
    if (m_front != nullptr && isUsable(*m_front))
        return m_front;
    const auto other =
        std::ranges::find_if(m_sides, [this](Side& side) { return &side != m_front && isUsable(side); });
    return other == m_sides.end() ? nullptr : &*other;
}

ShmBuffer* DoubleBuffer::beginPaint(const QRegion& damage) {
    Side* side = freeSide();
    if (side == nullptr)
        return nullptr;
    if (m_front != nullptr && side != m_front)
        copyStale(*side);
    side->stale = QRegion();
    for (Side& other : m_sides) {
        if (&other != side)
            other.stale += damage;
    }
    m_front = side;
    return side->buffer.get();
}

void DoubleBuffer::copyStale(Side& side) const {
    QImage& image = side.buffer->image();
    QImage& present = m_front->buffer->image();
    image.setDevicePixelRatio(1);
    present.setDevicePixelRatio(1);
    QPainter painter(&image);
    for (const QRect& rectangle : side.stale)
        painter.drawImage(rectangle.topLeft(), present, rectangle);
}

} // namespace orvelle
