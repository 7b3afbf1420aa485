#pragma once

#include "shell/wayland/wayland_output.h"

#include <memory>
#include <vector>

namespace orvelle {

class CatcherSurface;

/// While it exists, hears presses of pointers and fingers everywhere but on the strip and on what lies above
/// windows: transparent surfaces cover all screens, which swallow these presses. Turning the wheel is no
/// press. Main thread only.
///
/// On the screen of the strip they leave out all that panels have reserved: no program learns where on the
/// screen its own panel is, because other panels may be above it. They are below the layer of popovers there,
/// whichever came first. Elsewhere they cover everything. Nothing is covered where the compositor cannot
/// scale pictures.
class PressCatcher final : public QObject {
    Q_OBJECT

public:
    /// Both must outlive the object. `stripOutput` is compared only, and null when there is no strip.
    PressCatcher(const WaylandGlobals& globals, const WaylandOutputs& outputs,
                 const WaylandOutput* stripOutput);
    ~PressCatcher() override;

Q_SIGNALS:
    void pressed();

private:
    void cover();
    void uncover(const WaylandOutput& output);

    const WaylandGlobals& m_globals;
    const WaylandOutputs& m_outputs;
    const WaylandOutput* m_stripOutput;
    std::vector<std::unique_ptr<CatcherSurface>> m_surfaces;
};

} // namespace orvelle
