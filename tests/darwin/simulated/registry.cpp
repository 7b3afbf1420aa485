#include "darwin/simulated/core_foundation.h"
#include "darwin/simulated/kernel.h"

#include <CoreFoundation/CoreFoundation.h>
#include <IOKit/IOKitLib.h>

using namespace orvelle::simulated;

namespace {

using Kind = NamedObject::Kind;

/// Null when the name is not lent or stands for something else.
NamedObject* lent(io_object_t name, Kind kind) {
    NamedObject* const object = kernel().named(name);
    return object != nullptr && object->kind == kind ? object : nullptr;
}

const std::vector<Service>& servicesOf(const std::string& className) {
    return kernel().machine.services[className];
}

/// The class asked for; gives the reference to the dictionary back, as every look-up does.
std::string consume(CFDictionaryRef matching) {
    const auto& properties = std::get<Properties>(propertyOf(matching));
    std::string className = std::get<std::string>(properties.at("IOProviderClass"));
    CFRelease(matching);
    return className;
}

} // namespace

const mach_port_t kIOMainPortDefault = 0;

CFMutableDictionaryRef IOServiceMatching(const char* className) {
    if (!kernel().arrives(std::string("IOServiceMatching ") + className, Call::library))
        return nullptr;
    const Properties matching{{"IOProviderClass", className}};
    return const_cast<CFMutableDictionaryRef>(
        static_cast<CFDictionaryRef>(makeCoreFoundationObject(matching)));
}

io_service_t IOServiceGetMatchingService(mach_port_t mainPort, CFDictionaryRef matching) {
    kernel().expect(mainPort == kIOMainPortDefault, "a look-up on another port");
    const std::string className = consume(matching);
    if (!kernel().arrives("IOServiceGetMatchingService " + className) || servicesOf(className).empty())
        return IO_OBJECT_NULL;
    return kernel().lendName({.kind = Kind::service, .className = className});
}

kern_return_t IOServiceGetMatchingServices(mach_port_t mainPort, CFDictionaryRef matching,
                                           io_iterator_t* iterator) {
    kernel().expect(mainPort == kIOMainPortDefault, "a look-up on another port");
    const std::string className = consume(matching);
    if (!kernel().arrives("IOServiceGetMatchingServices " + className))
        return kIOReturnNoDevice;
    *iterator = kernel().lendName({.kind = Kind::iterator, .className = className});
    return KERN_SUCCESS;
}

io_object_t IOIteratorNext(io_iterator_t iterator) {
    NamedObject* const object = lent(iterator, Kind::iterator);
    kernel().expect(object != nullptr, "IOIteratorNext of something else");
    if (!kernel().arrives("IOIteratorNext") || object == nullptr)
        return IO_OBJECT_NULL;
    const std::size_t position = object->position;
    if (position >= servicesOf(object->className).size())
        return IO_OBJECT_NULL;
    ++object->position;
    return kernel().lendName({.kind = Kind::service, .className = object->className, .position = position});
}

kern_return_t IORegistryEntryCreateCFProperties(io_registry_entry_t entry, CFMutableDictionaryRef* properties,
                                                CFAllocatorRef allocator, IOOptionBits options) {
    const NamedObject* const object = lent(entry, Kind::service);
    kernel().expect(object != nullptr, "IORegistryEntryCreateCFProperties of something else");
    kernel().expect(allocator == kCFAllocatorDefault && options == kNilOptions,
                    "IORegistryEntryCreateCFProperties with an allocator or options");
    if (!kernel().arrives("IORegistryEntryCreateCFProperties") || object == nullptr)
        return kIOReturnBadArgument;
    const Service& service = servicesOf(object->className).at(object->position);
    if (!service.properties)
        return kIOReturnNotPermitted;
    *properties = const_cast<CFMutableDictionaryRef>(
        static_cast<CFDictionaryRef>(makeCoreFoundationObject(*service.properties)));
    return KERN_SUCCESS;
}

kern_return_t IOObjectRelease(io_object_t object) {
    kernel().takeBackName(object,
                          lent(object, Kind::service) != nullptr || lent(object, Kind::iterator) != nullptr);
    return KERN_SUCCESS;
}
