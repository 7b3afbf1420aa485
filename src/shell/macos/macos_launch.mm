#include "shell/macos/foundation.h"
#include "shell/macos/macos_desktop.h"

#include <QCoreApplication>
#include <QFileOpenEvent>
#include <QTimer>
#include <QUrl>

#include <AppKit/AppKit.h>
#include <CoreServices/CoreServices.h>
#include <ServiceManagement/ServiceManagement.h>

// How the system starts the program: once more while it runs, and when the user logs in.

namespace orvelle {
namespace {

/// Hears that the program was opened again.
class ReopenListener {
  public:
    virtual ~ReopenListener() = default;
    virtual void reopened() = 0;
};

} // namespace
} // namespace orvelle

/// Hears that the user has opened the program once more while it runs, by a double click for instance.
@interface ReopenObserver : NSObject {
  @private
    orvelle::ReopenListener* m_listener;
}
/// The listener must live until `stop` is called.
- (instancetype)initWithListener:(orvelle::ReopenListener*)listener;
- (void)start;
- (void)stop;
@end

@implementation ReopenObserver

- (instancetype)initWithListener:(orvelle::ReopenListener*)listener {
    self = [super init];
    if (self != nil)
        m_listener = listener;
    return self;
}

- (void)start {
    [[NSAppleEventManager sharedAppleEventManager] setEventHandler:self
                                                       andSelector:@selector(handleReopen:withReplyEvent:)
                                                     forEventClass:kCoreEventClass
                                                        andEventID:kAEReopenApplication];
}

- (void)stop {
    [[NSAppleEventManager sharedAppleEventManager] removeEventHandlerForEventClass:kCoreEventClass
                                                                        andEventID:kAEReopenApplication];
}

- (void)handleReopen:(NSAppleEventDescriptor*)event withReplyEvent:(NSAppleEventDescriptor*)reply {
    static_cast<void>(event);
    static_cast<void>(reply);
    m_listener->reopened();
}

@end

namespace orvelle {
namespace {

/// The scheme of the addresses that the system opens with this program; see packaging/macos/Info.plist.in.
QString ownScheme() { return QStringLiteral("orvelle"); }

/// For example orvelle:settings and orvelle:open/cpu.
QString requestAddress(const StartRequest& request) {
    return ownScheme() + u':' + QString::fromLatin1(startRequestText(request)).replace(u' ', u'/');
}

/// Any program can have an address opened, for example a browser with a link. None ends this one that way.
StartRequest requestOfAddress(const QUrl& address) {
    const StartRequest request = parseStartRequest(address.path().replace(u'/', u' ').toLatin1());
    return request.kind == StartRequest::Kind::quit ? StartRequest() : request;
}

/// Hears of later starts from the system, which does not start a program a second time from the Finder or the
/// Dock but sends the running one an event. Another one comes with an address that a second process has
/// opened.
class LaunchedInstance final : public SingleInstance, private ReopenListener {
  public:
    LaunchedInstance() : m_observer([[ReopenObserver alloc] initWithListener:this]) {
        // The application object takes the event for itself when its loop begins; this comes after it.
        QCoreApplication::instance()->installEventFilter(this);
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
    void reopened() override { Q_EMIT startedAgain({}); }

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::FileOpen) {
            const QUrl address = static_cast<QFileOpenEvent*>(event)->url();
            if (address.scheme() == ownScheme())
                Q_EMIT startedAgain(requestOfAddress(address));
        }
        return SingleInstance::eventFilter(watched, event);
    }

    Retained<ReopenObserver*> m_observer;
};

/// Another process of this program; null when there is none. The system cannot find a program outside a
/// bundle, which has no identifier.
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

/// Opening the bundle makes the system notify the other process.
void sendRequest(NSRunningApplication* other, const StartRequest& request) {
    if (request.kind == StartRequest::Kind::quit) {
        static_cast<void>([other terminate]);
        return;
    }
    NSURL* const address = request.kind == StartRequest::Kind::startAgain
                               ? [other bundleURL]
                               : [NSURL URLWithString:systemText(requestAddress(request))];
    if (address != nil)
        static_cast<void>([[NSWorkspace sharedWorkspace] openURL:address]);
}

/// Nil before macOS 13. The class is looked up by name, so that the program starts there too.
Class loginService() { return NSClassFromString(@"SMAppService"); }

/// Null where there is no such service.
SMAppService* mainAppService() { return [loginService() mainAppService]; }

/// The program's entry among the login items in the system's settings. When the user has forbidden it there
/// it waits until the user allows it there again.
class MacosLoginItem final : public LoginItem {
  public:
    [[nodiscard]] LoginItemState state() const override {
        const ReleasePool pool;
        SMAppService* const service = mainAppService();
        if (service == nil)
            return LoginItemState::off;
        const SMAppServiceStatus status = [service status];
        if (status == SMAppServiceStatusRequiresApproval)
            return LoginItemState::needsApproval;
        return status == SMAppServiceStatusEnabled ? LoginItemState::on : LoginItemState::off;
    }

    [[nodiscard]] bool setEnabled(bool enabled) override {
        const ReleasePool pool;
        SMAppService* const service = mainAppService();
        if (service == nil)
            return false;
        // Both fail when there is nothing to do; the state afterwards decides.
        if (enabled)
            static_cast<void>([service registerAndReturnError:nullptr]);
        else
            static_cast<void>([service unregisterAndReturnError:nullptr]);
        return (state() == LoginItemState::off) != enabled;
    }

    void askForApproval() override {
        const ReleasePool pool;
        [loginService() openSystemSettingsLoginItems];
    }

    /// The system itself finds a program that has moved.
    void repair() override {}
};

} // namespace

std::unique_ptr<SingleInstance> becomeSingleMacosInstance(const StartRequest& request) {
    const ReleasePool pool;
    NSRunningApplication* const other = otherInstance();
    if (other == nil)
        return std::make_unique<LaunchedInstance>();
    // This process was started as a bare file.
    sendRequest(other, request);
    return nullptr;
}

bool isRunningElsewhereOnMacos() {
    const ReleasePool pool;
    return otherInstance() != nil;
}

std::unique_ptr<LoginItem> makeMacosLoginItem() { return std::make_unique<MacosLoginItem>(); }

} // namespace orvelle
