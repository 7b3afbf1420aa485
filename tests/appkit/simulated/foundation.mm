#include "appkit/simulated/objects.h"

#include <objc/message.h>
#include <objc/runtime.h>

using namespace orvelle::simulated;

namespace orvelle::simulated {
namespace {

std::vector<Objects*>& pools() {
    static std::vector<Objects*> stack;
    return stack;
}

std::map<Class, id>& onlyObjects() {
    static auto* const objects = new std::map<Class, id>; // they live as long as the process
    return *objects;
}

} // namespace

id theOnly(Class objectClass) {
    id& object = onlyObjects()[objectClass];
    if (object == nil)
        object = [[objectClass alloc] init];
    desktop().keep((void*)object);
    return object;
}

std::string textOf(NSString* text) { return text != nil ? std::string([text UTF8String]) : std::string(); }

} // namespace orvelle::simulated

@implementation NSObject
+ (void)initialize {
}
+ (id)alloc {
    id object = class_createInstance(self, 0);
    desktop().lend((void*)object, class_getName(self));
    return object;
}
+ (Class)class {
    return self;
}
- (id)init {
    return self;
}
- (id)retain {
    desktop().addReference((void*)self);
    return self;
}
- (void)release {
    if (desktop().dropReference((void*)self))
        [self dealloc];
}
- (id)autorelease {
    desktop().expect(!pools().empty(), "autorelease without a pool: the object is never released");
    if (!pools().empty())
        pools().back()->push_back(self);
    return self;
}
- (void)dealloc {
    object_dispose(self);
}
- (BOOL)respondsToSelector:(SEL)selector {
    return class_respondsToSelector(object_getClass(self), selector);
}
- (BOOL)isKindOfClass:(Class)aClass {
    for (Class each = object_getClass(self); each != Nil; each = class_getSuperclass(each)) {
        if (each == aClass)
            return YES;
    }
    return NO;
}
- (id)performSelector:(SEL)selector withObject:(id)object {
    using Implementation = id (*)(id, SEL, id);
    return reinterpret_cast<Implementation>(objc_msg_lookup(self, selector))(self, selector, object);
}
- (id)performSelector:(SEL)selector withObject:(id)first withObject:(id)second {
    using Implementation = id (*)(id, SEL, id, id);
    return reinterpret_cast<Implementation>(objc_msg_lookup(self, selector))(self, selector, first, second);
}
@end

@implementation NSAutoreleasePool
- (id)init {
    auto* objects = new Objects;
    m_objects = objects;
    pools().push_back(objects);
    return self;
}
- (void)dealloc {
    desktop().expect(pools().back() == m_objects,
                     "pools that do not end in the reverse order of their beginning");
    std::erase(pools(), m_objects);
    auto* objects = static_cast<Objects*>(m_objects);
    for (id object : *objects)
        [object release];
    delete objects;
    [super dealloc];
}
@end

/// A text that was made at run time.
@interface SimulatedString : NSString {
  @public
    void* m_copy;
}
@end

@implementation NSString
+ (id)stringWithUTF8String:(const char*)text {
    SimulatedString* string = [[[SimulatedString alloc] init] autorelease];
    string->m_copy = new std::string(text);
    return string;
}
- (const char*)UTF8String {
    return nullptr;
}
- (BOOL)isEqualToString:(NSString*)text {
    return textOf(self) == textOf(text);
}
@end

@implementation SimulatedString
- (const char*)UTF8String {
    return static_cast<const std::string*>(m_copy)->c_str();
}
- (void)dealloc {
    delete static_cast<std::string*>(m_copy);
    [super dealloc];
}
@end

@implementation NSConstantString
- (const char*)UTF8String {
    return m_text;
}
- (id)retain {
    return self;
}
- (void)release {
}
- (id)autorelease {
    return self;
}
@end

@implementation NSArray
+ (id)arrayWithObjects:(const id[])objects count:(NSUInteger)count {
    Objects kept;
    for (NSUInteger index = 0; index < count; ++index)
        kept.push_back([objects[index] retain]);
    return makeArray(kept);
}
- (NSUInteger)count {
    return static_cast<const Objects*>(m_objects)->size();
}
- (id)objectAtIndex:(NSUInteger)index {
    return static_cast<const Objects*>(m_objects)->at(index);
}
- (id)initWithObjects:(const Objects&)objects {
    m_objects = new Objects(objects);
    return self;
}
- (void)dealloc {
    for (id object : *static_cast<const Objects*>(m_objects))
        [object release];
    delete static_cast<Objects*>(m_objects);
    [super dealloc];
}
@end

@interface NSArray (Simulated)
- (id)initWithObjects:(const Objects&)objects;
@end

namespace orvelle::simulated {

NSArray* makeArray(const Objects& objects) { return [[[NSArray alloc] initWithObjects:objects] autorelease]; }

} // namespace orvelle::simulated

@implementation NSURL
+ (NSURL*)URLWithString:(NSString*)text {
    NSURL* const url = [[[NSURL alloc] init] autorelease];
    url->m_text = [text retain];
    return url;
}
- (NSString*)path {
    return m_path;
}
- (void)dealloc {
    [m_path release];
    [m_text release];
    [super dealloc];
}
@end
