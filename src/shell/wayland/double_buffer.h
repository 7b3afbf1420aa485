#pragma once

#include "shell/wayland/shm_buffer.h"

#include <QRegion>

#include <array>

namespace orvelle {

/// The picture of an opaque surface in two buffers, because one cannot be painted while the compositor reads
/// it. The second is made when it is first needed: most compositors copy the first at once.
class DoubleBuffer final : public QObject {
    Q_OBJECT

public:
    /// `shm` must outlive the object.
    explicit DoubleBuffer(wl_shm* shm)
        : m_shm(shm) {}

    /// Starts anew with pictures of this many pixels. Then everything must be painted.
    void resize(const QSize& pixels);

    /// A buffer that shows the present picture, in which `damage`, a region in pixels, is about to be
    /// painted; the surface must be given it next. Null when the compositor reads both: `freed` follows.
    [[nodiscard]] ShmBuffer* beginPaint(const QRegion& damage);
    /// To be called when the surface has the new picture: frees what showed earlier sizes.
    void endPaint() { m_retired.clear(); }

Q_SIGNALS:
    void freed();

private:
    struct Side {
        std::unique_ptr<ShmBuffer> buffer; ///< null until it is needed
        QRegion stale;                     ///< pixels that differ from the present picture
    };
    [[nodiscard]] Side* freeSide();
    [[nodiscard]] bool isUsable(Side& side);
    void copyStale(Side& side) const;

    wl_shm* m_shm;
    QSize m_pixels;
    std::array<Side, 2> m_sides;
    Side* m_front = nullptr; ///< the one with the present picture; null when there is none
    std::vector<std::unique_ptr<ShmBuffer>> m_retired;
};

} // namespace orvelle
