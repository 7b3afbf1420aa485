#include "platform/darwin/registry.h"

namespace orvelle::darwin_platform {

OwnedIOObject findService(const char* className) {
    const CFMutableDictionaryRef matching = IOServiceMatching(className);
    if (matching == nullptr)
        return {};
    // The look-up takes over the reference to the matching dictionary, whatever it finds.
    return OwnedIOObject(IOServiceGetMatchingService(kIOMainPortDefault, matching));
}

std::optional<OwnedIOObject> findServices(const char* className) {
    const CFMutableDictionaryRef matching = IOServiceMatching(className);
    if (matching == nullptr)
        return std::nullopt;
    // Here too the reference is taken over, whether the look-up succeeds or not.
    io_iterator_t iterator = IO_OBJECT_NULL;
    if (IOServiceGetMatchingServices(kIOMainPortDefault, matching, &iterator) != KERN_SUCCESS)
        return std::nullopt;
    return OwnedIOObject(iterator);
}

CFOwned<CFDictionaryRef> copyProperties(const OwnedIOObject& entry) {
    CFMutableDictionaryRef copied = nullptr;
    if (IORegistryEntryCreateCFProperties(entry.get(), &copied, kCFAllocatorDefault, kNilOptions) !=
        KERN_SUCCESS)
        return nullptr;
    CFOwned<CFDictionaryRef> properties(copied);
    if (properties && CFGetTypeID(properties.get()) != CFDictionaryGetTypeID())
        return nullptr;
    return properties;
}

} // namespace orvelle::darwin_platform
