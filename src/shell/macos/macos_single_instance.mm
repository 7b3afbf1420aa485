#include "shell/desktop.h"
#include "shell/macos/reopen_observer.h"
#include "shell/macos/retained.h"

#include <AppKit/AppKit.h>

#include <QTimer>

namespace orvelle {
namespace {

/// Told by the system of later starts: it does not start a program a second time from the Finder or the Dock,
/// but sends the running one an event.
class LaunchedInstance final : public SingleInstance, private ReopenListener {
  public:
    LaunchedInstance() : m_observer([[ReopenObserver alloc] initWithListener:this]) {
        // The application object takes the event for itself when its loop begins; this comes after it.
        QTimer::singleShot(0, this, [this] {
            const ReleasePool pool;
            [m_observer.get() start];
        });
    }
    ~LaunchedInstance() override {
        const ReleasePool pool;
        [m_observer.get() stop];
    }
    LaunchedInstance(const LaunchedInstance&) = delete;
    LaunchedInstance& operator=(const LaunchedInstance&) = delete;

  private:
    void reopened() override { Q_EMIT startedAgain(); }

    Retained<ReopenObserver*> m_observer;
};

/// Another process of this program; null when there is none. A program outside a bundle has no name by which
/// the system could find it.
NSRunningApplication* otherInstance() {
    NSString* const identifier = [[NSBundle mainBundle] bundleIdentifier];
    if (identifier == nil)
        return nil;
    NSArray* const instances = [NSRunningApplication runningApplicationsWithBundleIdentifier:identifier];
    const pid_t own = [[NSProcessInfo processInfo] processIdentifier];
    for (NSUInteger index = 0; index < [instances count]; ++index) {
        NSRunningApplication* const instance = [instances objectAtIndex:index];
        if ([instance processIdentifier] != own && ![instance isTerminated])
            return instance;
    }
    return nil;
}

} // namespace

std::unique_ptr<SingleInstance> becomeSingleInstance() {
    const ReleasePool pool;
    NSRunningApplication* const other = otherInstance();
    if (other == nil)
        return std::make_unique<LaunchedInstance>();
    // Started as a bare file, past the system, which now tells the other one as if it had been asked to
    // start.
    NSURL* const bundle = [other bundleURL];
    if (bundle != nil)
        static_cast<void>([[NSWorkspace sharedWorkspace] openURL:bundle]);
    return nullptr;
}

} // namespace orvelle
