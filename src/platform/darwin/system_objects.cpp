#include "platform/darwin/system_objects.h"

#include <cstring>

namespace orvelle::darwin_platform {
namespace {

CFTypeRef valueIn(CFDictionaryRef properties, CFStringRef key, CFTypeID type) {
    const void* const value = CFDictionaryGetValue(properties, key);
    return value != nullptr && CFGetTypeID(value) == type ? value : nullptr;
}

CFNumberRef numberIn(CFDictionaryRef properties, CFStringRef key) {
    return static_cast<CFNumberRef>(valueIn(properties, key, CFNumberGetTypeID()));
}

/// Nothing where the number would have to be changed to fit.
std::optional<std::int64_t> exactInteger(CFNumberRef number) {
    std::int64_t integer = 0;
    if (!CFNumberGetValue(number, kCFNumberSInt64Type, &integer))
        return std::nullopt;
    return integer;
}

std::optional<std::int64_t> truncatedInteger(CFNumberRef number) {
    constexpr double limit = 9223372036854775808.0; // 2^63, the first double beyond the range
    double value = 0;
    static_cast<void>(CFNumberGetValue(number, kCFNumberDoubleType, &value));
    if (!(value >= -limit && value < limit))
        return std::nullopt;
    return static_cast<std::int64_t>(value);
}

} // namespace

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

std::optional<std::int64_t> integerIn(CFDictionaryRef properties, CFStringRef key) {
    const CFNumberRef number = numberIn(properties, key);
    return number != nullptr ? exactInteger(number) : std::nullopt;
}

std::optional<std::int64_t> truncatedNumberIn(CFDictionaryRef properties, CFStringRef key) {
    const CFNumberRef number = numberIn(properties, key);
    if (number == nullptr)
        return std::nullopt;
    return CFNumberIsFloatType(number) ? truncatedInteger(number) : exactInteger(number);
}

std::optional<bool> booleanIn(CFDictionaryRef properties, CFStringRef key) {
    const auto boolean = static_cast<CFBooleanRef>(valueIn(properties, key, CFBooleanGetTypeID()));
    if (boolean == nullptr)
        return std::nullopt;
    return CFBooleanGetValue(boolean) != 0;
}

std::optional<std::string> stringIn(CFDictionaryRef properties, CFStringRef key) {
    const auto string = static_cast<CFStringRef>(valueIn(properties, key, CFStringGetTypeID()));
    if (string == nullptr)
        return std::nullopt;
    const CFIndex size =
        CFStringGetMaximumSizeForEncoding(CFStringGetLength(string), kCFStringEncodingUTF8) + 1;
    std::string text(static_cast<std::size_t>(size), '\0');
    if (!CFStringGetCString(string, text.data(), size, kCFStringEncodingUTF8))
        return std::nullopt;
    text.resize(std::strlen(text.c_str()));
    return text;
}

CFDictionaryRef dictionaryIn(CFDictionaryRef properties, CFStringRef key) {
    return static_cast<CFDictionaryRef>(valueIn(properties, key, CFDictionaryGetTypeID()));
}

} // namespace orvelle::darwin_platform
