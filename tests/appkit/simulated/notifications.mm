#include "appkit/simulated/objects.h"

#include <list>

using namespace orvelle::simulated;

namespace {

/// Somebody who wants to hear of a notification. Each counts as lent until it is taken back.
struct Observer {
    NSNotificationCenter* center = nil;
    id object = nil;
    SEL selector = nullptr;
    std::string name{};
    id sender = nil; ///< nil for any
};

std::list<Observer>& observers() {
    static std::list<Observer> all;
    return all;
}

/// The centre of the program itself. Those of the system have classes of their own here.
NSNotificationCenter* defaultCenter() { return theOnly([NSNotificationCenter class]); }

} // namespace

namespace orvelle::simulated {

void forgetObservers() { observers().clear(); }

void post(NSNotificationCenter* center, NSString* name, id sender) {
    const std::list<Observer> present = observers();
    for (const Observer& observer : present) {
        const bool isWanted = observer.center == center && observer.name == textOf(name) &&
                              (observer.sender == nil || observer.sender == sender);
        if (!isWanted)
            continue;
        NSNotification* const notification = makeNotification(name, sender);
        [observer.object performSelector:observer.selector withObject:notification];
        [notification release];
    }
}

void post(NSString* name, id sender) { post(defaultCenter(), name, sender); }

NSNotification* makeNotification(NSString* name, id sender) {
    NSNotification* const notification = [[NSNotification alloc] init];
    notification->m_name = name;
    notification->m_object = sender;
    return notification;
}

} // namespace orvelle::simulated

@implementation NSNotification
- (NSNotificationName)name {
    return m_name;
}
- (id)object {
    return m_object;
}
@end

@implementation NSNotificationCenter
+ (NSNotificationCenter*)defaultCenter {
    return defaultCenter();
}
- (void)addObserver:(id)observer selector:(SEL)selector name:(NSString*)name object:(id)object {
    desktop().expect([observer respondsToSelector:selector], "an observer that cannot hear");
    observers().push_back({self, observer, selector, textOf(name), object});
    desktop().lend(&observers().back(), "observer of " + textOf(name));
}
- (void)removeObserver:(id)observer {
    const auto removed = std::erase_if(observers(), [&](const Observer& present) {
        const bool isMeant = present.center == self && present.object == observer;
        if (isMeant)
            static_cast<void>(desktop().dropReference(&present));
        return isMeant;
    });
    desktop().expect(removed > 0, "an observer that was not there");
}
@end
