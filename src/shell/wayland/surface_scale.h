#pragma once

#include "shell/wayland/wayland_output.h"

#include <QSize>

struct wp_fractional_scale_v1_listener;

namespace orvelle {

/// How many pixels of a surface's picture cover a point, so that each becomes one pixel of the screen: the
/// scale that the compositor prefers, or else that of the screen. It is a whole number where the compositor
/// cannot scale pictures by fractions.
class SurfaceScale final : public QObject {
    Q_OBJECT

public:
    /// All must outlive the object.
    SurfaceScale(const WaylandGlobals& globals, wl_surface* surface, const WaylandOutput& output);

    [[nodiscard]] double pixelsPerPoint() const { return m_pixelsPerPoint; }
    /// The pixels of a picture for a surface of this many points.
    [[nodiscard]] QSize pixelSize(const QSize& points) const;
    /// Tells the compositor the scale of the picture that is about to be shown.
    void apply(const QSize& points) const;

Q_SIGNALS:
    void changed();

private:
    static const wp_fractional_scale_v1_listener listener;
    void handlePreferredScale(std::uint32_t scale);
    void followOutput();
    void set(double pixelsPerPoint);

    wl_surface* m_surface;
    const WaylandOutput& m_output;
    ProxyPointer<wp_viewport> m_viewport;             ///< null where scales are whole
    ProxyPointer<wp_fractional_scale_v1> m_preferred; ///< null where the compositor prefers none
    bool m_hasPreferred = false;
    double m_pixelsPerPoint = 1;
};

} // namespace orvelle
