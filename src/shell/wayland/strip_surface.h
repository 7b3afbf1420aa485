#pragma once

#include "shell/painted/bar.h"
#include "shell/wayland/double_buffer.h"
#include "shell/wayland/input_target.h"
#include "shell/wayland/surface_scale.h"

struct zwlr_layer_surface_v1_listener;

namespace orvelle {

/// The bar at the top of one screen, with its space reserved. It appears when the compositor has told its
/// width.
///
/// What changes is painted in the same turn of the event loop, which costs one wake-up of the process for
/// each new sample. Waiting for the compositor's next frame would add others.
class StripSurface final : public QObject {
    Q_OBJECT

public:
    /// All must outlive the object. `globals` has what a strip needs.
    StripSurface(const WaylandGlobals& globals, const WaylandOutput& output, Bar& bar);
    ~StripSurface() override;

    [[nodiscard]] const WaylandOutput& output() const { return m_output; }
    /// In points; empty while the compositor has not told it.
    [[nodiscard]] QSize size() const { return m_size; }
    [[nodiscard]] double pixelsPerPoint() const { return m_scale.pixelsPerPoint(); }
    /// Whether the compositor has a picture of the bar.
    [[nodiscard]] bool isShown() const { return m_isShown; }

Q_SIGNALS:
    /// The compositor has been given a picture.
    void painted();
    /// The compositor does not show the strip any more. The object is of no more use.
    void closed();

private:
    static const zwlr_layer_surface_v1_listener listener;
    void handleConfigure(std::uint32_t serial, std::uint32_t width, std::uint32_t height);
    void handleClosed();
    /// Starts anew with another size or scale.
    void layOut();
    /// Paints the rectangle, in points, after the current event has been handled.
    void repaintSoon(const QRect& rectangle);
    void repaintPending();
    void show(ShmBuffer& buffer, const QRegion& region, const QRegion& pixels);

    const WaylandOutput& m_output;
    Bar& m_bar;
    ProxyPointer<wl_surface> m_surface;
    SurfaceScale m_scale;
    InputTarget m_input;
    DoubleBuffer m_buffers;
    ProxyPointer<zwlr_layer_surface_v1> m_layerSurface;
    QSize m_size;
    QRegion m_pending; ///< in points
    bool m_isRepaintDue = false;
    bool m_isShown = false;
};

} // namespace orvelle
