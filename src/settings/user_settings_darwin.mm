#include "settings/release_pool.h"
#include "settings/user_settings.h"

#include <CoreFoundation/CoreFoundation.h>
#include <Foundation/Foundation.h>

#include <functional>
#include <utility>
#include <vector>

// Compiled with manual reference counting.

/// Hears of a change on the thread that makes it or learns of it, and tells it on the main thread.
@interface OrvelleDefaultsObserver : NSObject {
  @public
    const std::function<void()>* m_changed; ///< of the main thread; null when nobody listens any more
}
@end

@implementation OrvelleDefaultsObserver
- (void)observeValueForKeyPath:(NSString*)keyPath
                      ofObject:(id)object
                        change:(NSDictionary*)change
                       context:(void*)context {
    static_cast<void>(keyPath); // the values are read together
    static_cast<void>(object);
    static_cast<void>(change);
    static_cast<void>(context);
    [self performSelectorOnMainThread:@selector(tellChange) withObject:nil waitUntilDone:NO];
}
- (void)tellChange {
    if (m_changed != nullptr)
        (*m_changed)();
}
@end

namespace orvelle {
namespace {

NSString* systemText(const QString& text) {
    const auto* const units = reinterpret_cast<const unichar*>(text.constData());
    return [[[NSString alloc] initWithCharacters:units
                                          length:static_cast<NSUInteger>(text.size())] autorelease];
}

QString qtText(NSString* text) {
    const NSUInteger length = [text length];
    QString copy(static_cast<qsizetype>(length), Qt::Uninitialized);
    [text getCharacters:reinterpret_cast<unichar*>(copy.data()) range:NSMakeRange(0, length)];
    return copy;
}

id systemValue(const QVariant& value) {
    if (value.typeId() == QMetaType::Bool)
        return [NSNumber numberWithBool:value.toBool()];
    if (value.typeId() == QMetaType::QString)
        return systemText(value.toString());
    return [NSNumber numberWithDouble:value.toDouble()];
}

/// Nothing for a date, data, a list or a dictionary, which no setting is.
QVariant qtValue(id value) {
    if ([value isKindOfClass:[NSString class]])
        return qtText(value);
    if (![value isKindOfClass:[NSNumber class]])
        return {};
    if (CFGetTypeID((CFTypeRef)value) == CFBooleanGetTypeID())
        return static_cast<bool>([value boolValue]);
    return [value doubleValue];
}

/// The program's user defaults. Those of the bundle are the standard ones; a program outside of it has to
/// name them, which the bundle itself may not. The caller owns them; nil if the system gives none.
NSUserDefaults* openDefaults(NSString* identifier) {
    if ([[[NSBundle mainBundle] bundleIdentifier] isEqualToString:identifier])
        return [[NSUserDefaults standardUserDefaults] retain];
    return [[NSUserDefaults alloc] initWithSuiteName:identifier];
}

/// The system brings changes by other programs. Only observers of keys hear of them: its notification of
/// changed defaults tells of this process alone.
class UserDefaults : public SettingsStorage {
  public:
    UserDefaults() {
        const ReleasePool pool;
        m_defaults = openDefaults(systemText(QStringLiteral(ORVELLE_BUNDLE_IDENTIFIER)));
    }

    ~UserDefaults() override {
        const ReleasePool pool;
        for (const QString& key : std::as_const(m_watchedKeys))
            [m_defaults removeObserver:m_observer forKeyPath:systemText(key)];
        if (m_observer != nil)
            m_observer->m_changed = nullptr;
        [m_observer release];
        [m_defaults release];
    }

    std::optional<StoredValues> read(const QStringList& keys) override {
        const ReleasePool pool;
        StoredValues values;
        for (const QString& key : keys) {
            const QVariant value = qtValue([m_defaults objectForKey:systemText(key)]);
            if (value.isValid())
                values.insert(key, value);
        }
        return values;
    }

    SaveResult write(const StoredValues& values) override {
        const ReleasePool pool;
        std::vector<std::pair<NSString*, id>> before;
        for (auto value = values.cbegin(); value != values.cend(); ++value) {
            NSString* const key = systemText(value.key());
            // The defaults own what they answer until it is replaced.
            before.emplace_back(key, [[[m_defaults objectForKey:key] retain] autorelease]);
            [m_defaults setObject:systemValue(*value) forKey:key];
        }
        if ([m_defaults synchronize])
            return SaveResult::saved;
        for (const auto& [key, value] : before)
            [m_defaults setObject:value forKey:key];
        return SaveResult::failed;
    }

    QString failureReason() const override {
        return QStringLiteral("the user defaults of %1 cannot be written")
            .arg(QStringLiteral(ORVELLE_BUNDLE_IDENTIFIER));
    }

    void watch(const QStringList& keys, std::function<void()> changed) override {
        const ReleasePool pool;
        m_changed = std::move(changed);
        m_watchedKeys = keys;
        m_observer = [[OrvelleDefaultsObserver alloc] init];
        m_observer->m_changed = &m_changed;
        for (const QString& key : keys)
            [m_defaults addObserver:m_observer forKeyPath:systemText(key) options:0 context:nullptr];
    }

  private:
    NSUserDefaults* m_defaults = nil;
    OrvelleDefaultsObserver* m_observer = nil;
    QStringList m_watchedKeys;
    std::function<void()> m_changed;
};

} // namespace

std::unique_ptr<SettingsStorage> openUserSettings() { return std::make_unique<UserDefaults>(); }

std::optional<StoredValues> readUserSettings(const QStringList& keys) { return UserDefaults().read(keys); }

} // namespace orvelle
