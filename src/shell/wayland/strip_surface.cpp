#include "shell/wayland/strip_surface.h"

#include "shell/wayland/event_handlers.h"

#include <cmath>
#include <utility>
#include <wayland-client.h>
#include <wlr-layer-shell-unstable-v1-client-protocol.h>

namespace orvelle {
namespace {

/// KWin takes the kind of a window from this name, and gives a dock no keyboard when it is clicked.
constexpr const char* layerName = "dock";
constexpr std::uint32_t topEdge =
    ZWLR_LAYER_SURFACE_V1_ANCHOR_TOP | ZWLR_LAYER_SURFACE_V1_ANCHOR_LEFT | ZWLR_LAYER_SURFACE_V1_ANCHOR_RIGHT;
/// No screen is wider, in points.
constexpr std::uint32_t largestWidth = 32767;

/// All pixels that the region touches.
QRegion pixelRegion(const QRegion& points, double pixelsPerPoint, const QSize& pixels) {
    QRegion region;
    for (const QRect& rectangle : points) {
        const QRectF exact(rectangle.x() * pixelsPerPoint, rectangle.y() * pixelsPerPoint,
                           rectangle.width() * pixelsPerPoint, rectangle.height() * pixelsPerPoint);
        region += exact.toAlignedRect();
    }
    return region & QRect(QPoint(0, 0), pixels);
}

} // namespace

const zwlr_layer_surface_v1_listener StripSurface::listener = [] {
    zwlr_layer_surface_v1_listener events{};
    events.configure = onEvent<&StripSurface::handleConfigure>;
    events.closed = onEvent<&StripSurface::handleClosed>;
    return events;
}();

StripSurface::StripSurface(const WaylandGlobals& globals, const WaylandOutput& output, Bar& bar)
    : m_output(output)
    , m_bar(bar)
    , m_surface(wl_compositor_create_surface(globals.compositor()))
    , m_scale(globals, m_surface.get(), output)
    , m_input(m_surface.get())
    , m_buffers(globals.shm())
    , m_layerSurface(zwlr_layer_shell_v1_get_layer_surface(
          globals.layerShell(), m_surface.get(), output.handle(), ZWLR_LAYER_SHELL_V1_LAYER_TOP, layerName)) {
    connect(&m_scale, &SurfaceScale::changed, this, &StripSurface::layOut);
    connect(&m_bar, &Bar::repaintWanted, this, &StripSurface::repaintSoon);
    connect(&m_buffers, &DoubleBuffer::freed, this, &StripSurface::repaintPending);
    connect(&m_input, &InputTarget::pressed, &m_bar, &Bar::pressMouse);
    connect(&m_input, &InputTarget::moved, &m_bar, &Bar::moveMouse);
    connect(&m_input, &InputTarget::released, &m_bar, &Bar::releaseMouse);
    connect(&m_input, &InputTarget::cancelled, &m_bar, &Bar::cancelPress);
    zwlr_layer_surface_v1_add_listener(m_layerSurface.get(), &listener, this);
    zwlr_layer_surface_v1_set_size(m_layerSurface.get(), 0, barHeightPoints); // as wide as the screen
    zwlr_layer_surface_v1_set_anchor(m_layerSurface.get(), topEdge);
    zwlr_layer_surface_v1_set_exclusive_zone(m_layerSurface.get(), barHeightPoints);
    wl_surface_commit(m_surface.get()); // without a picture: asks for the size
}

StripSurface::~StripSurface() {
    m_bar.cancelPress(); // the release will not be reported
}

void StripSurface::handleConfigure(std::uint32_t serial, std::uint32_t width, std::uint32_t height) {
    zwlr_layer_surface_v1_ack_configure(m_layerSurface.get(), serial);
    if (width == 0 || width > largestWidth)
        return; // the real width follows
    const bool hasHeight = height > 0 && height <= largestWidth;
    const QSize size(static_cast<int>(width), hasHeight ? static_cast<int>(height) : barHeightPoints);
    // Some compositors say the same again after every picture.
    if (std::exchange(m_size, size) != size)
        layOut();
}

void StripSurface::handleClosed() {
    m_isShown = false;
    m_size = QSize();
    Q_EMIT closed();
}

void StripSurface::layOut() {
    if (m_size.isEmpty())
        return;
    m_buffers.resize(m_scale.pixelSize(m_size));
    m_bar.layOut(); // marks everything
    Q_EMIT m_bar.moved();
    repaintPending();
}

void StripSurface::repaintSoon(const QRect& rectangle) {
    if (!std::exchange(m_isRepaintDue, true))
        QMetaObject::invokeMethod(this, &StripSurface::repaintPending, Qt::QueuedConnection);
    m_pending += rectangle;
}

void StripSurface::repaintPending() {
    m_isRepaintDue = false;
    // A strip without a size is painted whole when it has one.
    if (m_size.isEmpty() || m_pending.isEmpty())
        return;
    const QRegion region = m_pending & QRect(QPoint(0, 0), m_size);
    const QRegion pixels = pixelRegion(region, pixelsPerPoint(), m_scale.pixelSize(m_size));
    ShmBuffer* buffer = m_buffers.beginPaint(pixels);
    if (buffer == nullptr)
        return; // painted when the compositor has let one go
    m_pending = QRegion();
    show(*buffer, region, pixels);
}

void StripSurface::show(ShmBuffer& buffer, const QRegion& region, const QRegion& pixels) {
    buffer.image().setDevicePixelRatio(pixelsPerPoint());
    QPainter painter(&buffer.image());
    m_isShown = true; // the items may ask while they are painted
    m_bar.paint(painter, region);
    painter.end();
    wl_surface_attach(m_surface.get(), buffer.handle(), 0, 0);
    if (wl_surface_get_version(m_surface.get()) >= WL_SURFACE_DAMAGE_BUFFER_SINCE_VERSION) {
        for (const QRect& changed : pixels)
            wl_surface_damage_buffer(m_surface.get(), changed.x(), changed.y(), changed.width(),
                                     changed.height());
    } else {
        for (const QRect& changed : region)
            wl_surface_damage(m_surface.get(), changed.x(), changed.y(), changed.width(), changed.height());
    }
    m_scale.apply(m_size);
    buffer.setInUse();
    wl_surface_commit(m_surface.get());
    m_buffers.endPaint();
    Q_EMIT painted();
}

} // namespace orvelle
