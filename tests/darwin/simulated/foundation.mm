#include "darwin/simulated/foundation.h"
#include "darwin/simulated/kernel.h"

#include <objc/runtime.h>

using namespace orvelle::simulated;

// Reference counting by hand and a stack of pools, as in the real Foundation.

namespace {

std::vector<Objects*> pools;

/// The keys of resource values belong to nobody.
void releaseUnlessKey(id object) {
    if (kernel().foundationObjects.contains((void*)object))
        [object release];
}

} // namespace

@implementation NSObject
+ (void)initialize {
}
+ (id)alloc {
    NSObject* object = class_createInstance(self, 0);
    object->m_references = 1;
    kernel().foundationObjects.insert((void*)object);
    return object;
}
+ (Class)class {
    return self;
}
- (id)init {
    return self;
}
- (void)release {
    const bool isLive = kernel().foundationObjects.contains((void*)self);
    kernel().expect(isLive, "release of an object that does not live");
    if (isLive && --m_references == 0)
        [self dealloc];
}
- (id)autorelease {
    kernel().expect(!pools.empty(), "autorelease without a pool: the object is never released");
    if (!pools.empty())
        pools.back()->push_back(self);
    return self;
}
- (void)dealloc {
    kernel().foundationObjects.erase((void*)self);
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
@end

@implementation NSAutoreleasePool
- (id)init {
    auto* objects = new Objects;
    m_pool = objects;
    pools.push_back(objects);
    return self;
}
- (void)dealloc {
    kernel().expect(pools.back() == m_pool, "pools that do not end in the reverse order of their beginning");
    pools.pop_back();
    auto* objects = static_cast<Objects*>(m_pool);
    for (id object : *objects)
        [object release];
    delete objects;
    [super dealloc];
}
@end

@implementation NSString
- (id)initWithText:(const std::string&)text {
    m_text = new std::string(text);
    return self;
}
- (const char*)UTF8String {
    const auto* text = static_cast<const std::string*>(m_text);
    return kernel().arrives("UTF8String " + *text, Call::library) ? text->c_str() : nullptr;
}
- (void)dealloc {
    delete static_cast<std::string*>(m_text);
    [super dealloc];
}
@end

@implementation NSNumber
- (id)initWithValue:(long long)value {
    m_value = value;
    return self;
}
- (long long)longLongValue {
    return m_value;
}
- (BOOL)boolValue {
    return m_value != 0;
}
@end

@implementation NSArray
- (id)initWithObjects:(const Objects&)objects {
    m_objects = new Objects(objects);
    return self;
}
+ (id)arrayWithObjects:(const id*)objects count:(NSUInteger)count {
    return [[[NSArray alloc] initWithObjects:Objects(objects, objects + count)] autorelease];
}
- (NSUInteger)count {
    return static_cast<const Objects*>(m_objects)->size();
}
- (id)objectAtIndex:(NSUInteger)index {
    return static_cast<const Objects*>(m_objects)->at(index);
}
- (void)dealloc {
    for (id object : *static_cast<const Objects*>(m_objects))
        releaseUnlessKey(object);
    delete static_cast<Objects*>(m_objects);
    [super dealloc];
}
@end

@implementation NSDictionary
- (id)initWithNamedObjects:(const NamedObjects&)objects {
    m_values = new NamedObjects(objects);
    return self;
}
- (id)objectForKey:(id)key {
    const auto* values = static_cast<const NamedObjects*>(m_values);
    const auto value = values->find((void*)key);
    return value != values->end() ? value->second : nil;
}
- (void)dealloc {
    for (const auto& [key, object] : *static_cast<const NamedObjects*>(m_values))
        [object release];
    delete static_cast<NamedObjects*>(m_values);
    [super dealloc];
}
@end
