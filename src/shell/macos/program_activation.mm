#include "shell/macos/program_activation.h"

#include "shell/macos/foundation.h"

#include <AppKit/AppKit.h>

#include <chrono>

namespace orvelle {
namespace {

/// Longer than a click that closes one thing and opens another.
constexpr std::chrono::milliseconds delay{400};

} // namespace

ProgramActivation::ProgramActivation() {
    m_delay.setSingleShot(true);
    m_delay.setInterval(delay);
    m_delay.callOnTimeout([this] { giveBack(); });
}

void ProgramActivation::begin(const void* window) {
    keep(window);
    if ([NSApp isHidden])
        [NSApp unhideWithoutActivation];
    [NSApp activateIgnoringOtherApps:YES];
}

void ProgramActivation::keep(const void* menu) {
    m_open.insert(menu);
    m_delay.stop();
}

void ProgramActivation::end(const void* closed) {
    if (m_open.erase(closed) > 0 && m_open.empty())
        m_delay.start();
}

/// The system goes on with the program that was in front before, unless the user has chosen another one by
/// now. To activate that program from here would need its consent since macOS 14, and could take the place of
/// the user's choice. There is no window left that hiding would hide.
void ProgramActivation::giveBack() const {
    const ReleasePool pool;
    if ([NSApp isActive])
        [NSApp hide:nil];
}

} // namespace orvelle
