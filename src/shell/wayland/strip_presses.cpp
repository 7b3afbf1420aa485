#include "shell/wayland/strip_presses.h"

namespace orvelle {

StripPresses::StripPresses(WaylandStrip& strip, const QRectF& spared)
    : m_catcher(strip.catchPresses()) {
    connect(m_catcher.get(), &PressCatcher::pressed, this, &OutsidePresses::pressed);
    const Bar& bar = strip.bar();
    connect(&bar, &Bar::pressed, this, [this, &bar, spared](const QPointF& position) {
        if (!spared.contains(position + bar.place().geometry.topLeft()))
            Q_EMIT pressed();
    });
}

} // namespace orvelle
