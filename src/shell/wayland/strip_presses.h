#pragma once

#include "shell/wayland/outside_presses.h"
#include "shell/wayland/wayland_strip.h"

namespace orvelle {

/// Presses on the strip, and those that its catcher hears.
class StripPresses final : public OutsidePresses {
    Q_OBJECT

public:
    /// The strip must outlive the object. Presses in `spared`, in points of the desktop, are not reported.
    StripPresses(WaylandStrip& strip, const QRectF& spared);

private:
    std::unique_ptr<PressCatcher> m_catcher;
};

} // namespace orvelle
