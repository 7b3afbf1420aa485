#pragma once

#include <QImage>
#include <QMargins>
#include <QRegion>
#include <QSize>
#include <QString>

#include <cstdint>

struct wl_resource;

namespace orvelle {

class FakeCompositor;
struct FakeOutput;

constexpr std::uint32_t topLayer = 2;
constexpr std::uint32_t overlayLayer = 3;

/// What the fake compositor knows of a surface of its client: what was asked for, and the picture that was
/// committed last.
struct FakeSurface {
    // The surface as a whole.
    FakeCompositor* compositor = nullptr;
    wl_resource* resource = nullptr;
    int commits = 0;
    int pictures = 0;       ///< commits with a buffer, since the surface has its role
    int frameCallbacks = 0; ///< requests for the compositor's next frame
    QImage picture;         ///< null before the first one
    int bufferScale = 1;
    QSize destination; ///< invalid without a viewport
    QRegion damage;    ///< of the last picture
    bool isDamageInPixels = false;

    // Its role in a layer; without one `layerResource` is null.
    wl_resource* layerResource = nullptr;
    wl_resource* fractionalScale = nullptr;
    FakeOutput* output = nullptr;
    QString name;
    std::uint32_t layer = 0;
    QSize requestedSize;
    std::uint32_t anchor = 0;
    QMargins margins;
    std::int32_t exclusiveZone = 0;
    std::uint32_t keyboard = 0;
    std::uint32_t acknowledged = 0;  ///< serial number
    bool wasPaintedTooEarly = false; ///< before it acknowledged its size, which ends a real connection

    // What the next commit makes true.
    wl_resource* pendingBuffer = nullptr;
    QRegion pendingDamage;

    [[nodiscard]] bool isMapped() const { return layerResource != nullptr && pictures > 0; }
};

} // namespace orvelle
