#include "user_defaults/simulated/objects.h"

#include <CoreFoundation/CoreFoundation.h>
#include <objc/message.h>
#include <objc/runtime.h>

using namespace orvelle::simulated;

namespace {

using Objects = std::vector<id>;
thread_local std::vector<Objects*> pools;

struct WaitingCall {
    id target;
    SEL selector;
    id argument;
};
std::vector<WaitingCall> waitingCalls;

const std::u16string& storedUnits(const void* units) { return *static_cast<const std::u16string*>(units); }

} // namespace

@implementation NSObject
+ (void)initialize {
}
+ (id)alloc {
    NSObject* object = class_createInstance(self, 0);
    object->m_references = 1;
    database().liveObjects.insert((void*)object);
    return object;
}
+ (Class)class {
    return self;
}
- (id)init {
    return self;
}
- (id)retain {
    database().expect(database().liveObjects.contains((void*)self), "retain of an object that does not live");
    ++m_references;
    return self;
}
- (oneway void)release {
    const bool isLive = database().liveObjects.contains((void*)self);
    database().expect(isLive, "release of an object that does not live");
    if (isLive && --m_references == 0)
        [self dealloc];
}
- (id)autorelease {
    database().expect(!pools.empty(), "autorelease without a pool: the object is never released");
    if (!pools.empty())
        pools.back()->push_back(self);
    return self;
}
- (void)dealloc {
    database().liveObjects.erase((void*)self);
    object_dispose(self);
}
- (BOOL)isKindOfClass:(Class)candidate {
    for (Class ancestor = object_getClass(self); ancestor != nullptr;
         ancestor = class_getSuperclass(ancestor)) {
        if (ancestor == candidate)
            return YES;
    }
    return NO;
}
- (void)performSelectorOnMainThread:(SEL)selector withObject:(id)argument waitUntilDone:(BOOL)wait {
    database().expect(!wait, "another thread that waits for the main one");
    waitingCalls.push_back({[self retain], selector, [argument retain]});
}
@end

@implementation NSAutoreleasePool
- (id)init {
    auto* objects = new Objects;
    m_objects = objects;
    pools.push_back(objects);
    return self;
}
- (void)dealloc {
    database().expect(pools.back() == m_objects,
                      "pools that do not end in the reverse order of their beginning");
    std::erase(pools, m_objects);
    auto* objects = static_cast<Objects*>(m_objects);
    for (id object : *objects)
        [object release];
    delete objects;
    [super dealloc];
}
@end

@implementation NSString
- (id)initWithCharacters:(const unichar*)characters length:(NSUInteger)length {
    m_units = new std::u16string(characters, characters + length);
    return self;
}
- (NSUInteger)length {
    return storedUnits(m_units).size();
}
- (void)getCharacters:(unichar*)buffer range:(NSRange)range {
    const std::u16string part = storedUnits(m_units).substr(range.location, range.length);
    database().expect(part.size() == range.length, "characters beyond the end of a text");
    std::copy(part.begin(), part.end(), buffer);
}
- (BOOL)isEqualToString:(NSString*)string {
    return string != nil && unitsOf(string) == storedUnits(m_units);
}
- (void)dealloc {
    delete static_cast<std::u16string*>(m_units);
    [super dealloc];
}
@end

@implementation NSValue
@end

@implementation NSNumber
- (id)initWithValue:(double)value isBoolean:(BOOL)isBoolean {
    m_value = value;
    m_isBoolean = isBoolean;
    return self;
}
+ (NSNumber*)numberWithBool:(BOOL)value {
    return [[[NSNumber alloc] initWithValue:value isBoolean:YES] autorelease];
}
+ (NSNumber*)numberWithDouble:(double)value {
    return [[[NSNumber alloc] initWithValue:value isBoolean:NO] autorelease];
}
- (BOOL)boolValue {
    return m_value != 0;
}
- (double)doubleValue {
    return m_value;
}
- (BOOL)isBoolean {
    return m_isBoolean;
}
@end

@interface NSNumber (Simulated)
- (id)initWithValue:(double)value isBoolean:(BOOL)isBoolean;
- (BOOL)isBoolean;
@end

@implementation SimulatedForeign
- (void)dealloc {
    delete static_cast<Foreign*>(m_foreign);
    [super dealloc];
}
@end

constexpr CFTypeID booleanType = 21, otherType = 22;

CFTypeID CFBooleanGetTypeID() { return booleanType; }

CFTypeID CFGetTypeID(CFTypeRef object) {
    const id value = (id) const_cast<void*>(object);
    return [value isKindOfClass:[NSNumber class]] && [(NSNumber*)value isBoolean] ? booleanType : otherType;
}

namespace orvelle::simulated {

id makeObject(const Value& value) {
    if (const auto* isTrue = std::get_if<bool>(&value))
        return [[NSNumber alloc] initWithValue:*isTrue isBoolean:YES];
    if (const auto* number = std::get_if<double>(&value))
        return [[NSNumber alloc] initWithValue:*number isBoolean:NO];
    if (const auto* units = std::get_if<std::u16string>(&value))
        return [[NSString alloc] initWithCharacters:reinterpret_cast<const unichar*>(units->data())
                                             length:units->size()];
    SimulatedForeign* foreign = [[SimulatedForeign alloc] init];
    foreign->m_foreign = new Foreign(std::get<Foreign>(value));
    return foreign;
}

std::optional<Value> valueOf(id object) {
    std::optional<Value> value;
    if ([object isKindOfClass:[NSString class]])
        value.emplace(unitsOf(object));
    else if ([object isKindOfClass:[SimulatedForeign class]])
        value.emplace(*static_cast<const Foreign*>(((SimulatedForeign*)object)->m_foreign));
    else if ([object isKindOfClass:[NSNumber class]] && [(NSNumber*)object isBoolean])
        value.emplace(static_cast<bool>([object boolValue]));
    else if ([object isKindOfClass:[NSNumber class]])
        value.emplace([object doubleValue]);
    return value;
}

std::u16string unitsOf(NSString* text) {
    std::u16string units([text length], u'\0');
    [text getCharacters:reinterpret_cast<unichar*>(units.data()) range:NSMakeRange(0, units.size())];
    return units;
}

std::string nameOf(NSString* text) {
    const std::u16string units = unitsOf(text);
    return {units.begin(), units.end()};
}

NSString* makeName(const std::string& name) { return makeObject(std::u16string(name.begin(), name.end())); }

std::size_t waitingOnMainThread() { return waitingCalls.size(); }

void forgetWaitingCalls() {
    for (const WaitingCall& call : std::exchange(waitingCalls, {})) {
        [call.target release];
        [call.argument release];
    }
}

void runMainThread() {
    using Implementation = id (*)(id, SEL, id);
    for (const WaitingCall& call : std::exchange(waitingCalls, {})) {
        NSAutoreleasePool* const pool = [[NSAutoreleasePool alloc] init];
        reinterpret_cast<Implementation>(objc_msg_lookup(call.target, call.selector))(
            call.target, call.selector, call.argument);
        [call.target release];
        [call.argument release];
        [pool release];
    }
}

} // namespace orvelle::simulated
