#include "darwin/simulated/core_foundation.h"

#include "darwin/simulated/kernel.h"

#include <CoreFoundation/CoreFoundation.h>
#include <algorithm>
#include <cmath>
#include <memory>

using namespace orvelle::simulated;

namespace {

/// Every simulated Core Foundation object. It owns a reference to each that it contains.
struct Object {
    Property value;
    std::vector<const Object*> elements;
    std::map<std::string, const Object*> entries;
};

const Object& objectAt(CFTypeRef object) {
    return *static_cast<const Object*>(object);
}

/// The type identifiers are the positions of the alternatives, and one more. All numbers are of one type.
CFTypeID typeIdentifier(const Property& value) {
    const bool isFloat = std::holds_alternative<double>(value);
    return (isFloat ? Property(std::int64_t{}) : value).index() + 1;
}

const Object* makeObject(const Property& property) {
    auto* const object = new Object{.value = property, .elements = {}, .entries = {}};
    if (const auto* list = std::get_if<PropertyList>(&property)) {
        for (const Property& element : *list)
            object->elements.push_back(makeObject(element));
    }
    if (const auto* dictionary = std::get_if<Properties>(&property)) {
        for (const auto& [key, value] : *dictionary)
            object->entries[key] = makeObject(value);
    }
    kernel().coreFoundationObjects.insert(object);
    return object;
}

const std::string& textOf(const void* string) {
    return std::get<std::string>(objectAt(string).value);
}

} // namespace

const void* orvelle::simulated::makeCoreFoundationObject(const Property& property) {
    return makeObject(property);
}

const Property& orvelle::simulated::propertyOf(const void* object) {
    return objectAt(object).value;
}

const CFAllocatorRef kCFAllocatorDefault = nullptr;

void CFRelease(CFTypeRef object) {
    const bool isLive = kernel().coreFoundationObjects.erase(object) == 1;
    kernel().expect(isLive, "CFRelease of an object that does not live");
    if (!isLive)
        return;
    const std::unique_ptr<const Object> released(&objectAt(object));
    for (const Object* element : released->elements)
        CFRelease(element);
    for (const auto& [key, value] : released->entries)
        CFRelease(value);
}

CFTypeID CFGetTypeID(CFTypeRef object) {
    return typeIdentifier(objectAt(object).value);
}

CFTypeID CFArrayGetTypeID() {
    return typeIdentifier(PropertyList{});
}

CFIndex CFArrayGetCount(CFArrayRef array) {
    return static_cast<CFIndex>(objectAt(array).elements.size());
}

const void* CFArrayGetValueAtIndex(CFArrayRef array, CFIndex index) {
    return objectAt(array).elements.at(static_cast<std::size_t>(index));
}

CFTypeID CFBooleanGetTypeID() {
    return typeIdentifier(bool{});
}

Boolean CFBooleanGetValue(CFBooleanRef boolean) {
    return std::get<bool>(objectAt(boolean).value);
}

CFTypeID CFDictionaryGetTypeID() {
    return typeIdentifier(Properties{});
}

const void* CFDictionaryGetValue(CFDictionaryRef dictionary, const void* key) {
    const auto& entries = objectAt(dictionary).entries;
    const auto entry = entries.find(textOf(key));
    return entry != entries.end() ? entry->second : nullptr;
}

CFTypeID CFNumberGetTypeID() {
    return typeIdentifier(std::int64_t{});
}

Boolean CFNumberIsFloatType(CFNumberRef number) {
    return std::holds_alternative<double>(objectAt(number).value);
}

Boolean CFNumberGetValue(CFNumberRef number, CFNumberType type, void* value) {
    if (!kernel().arrives("CFNumberGetValue", Call::library))
        return false;
    const Property& property = objectAt(number).value;
    const auto* const floating = std::get_if<double>(&property);
    if (type == kCFNumberDoubleType) {
        const double answer = floating ? *floating : static_cast<double>(std::get<std::int64_t>(property));
        std::memcpy(value, &answer, sizeof answer);
        return true;
    }
    kernel().expect(type == kCFNumberSInt64Type, "CFNumberGetValue as another type");
    // An approximate value is written even where the answer is that it is not exact.
    constexpr double limit = 9.2e18;
    const double bounded = floating ? std::clamp(std::isnan(*floating) ? 0 : *floating, -limit, limit) : 0;
    const auto answer = floating ? static_cast<std::int64_t>(bounded) : std::get<std::int64_t>(property);
    std::memcpy(value, &answer, sizeof answer);
    return !floating || static_cast<double>(answer) == *floating;
}

CFTypeID CFStringGetTypeID() {
    return typeIdentifier(std::string{});
}

CFIndex CFStringGetLength(CFStringRef string) {
    CFIndex units = 0; // of UTF-16
    for (const char character : textOf(string)) {
        const auto byte = static_cast<unsigned char>(character);
        units += ((byte & 0xc0) != 0x80 ? 1 : 0) + (byte >= 0xf0 ? 1 : 0);
    }
    return units;
}

CFIndex CFStringGetMaximumSizeForEncoding(CFIndex length, CFStringEncoding) {
    return length * 3;
}

Boolean CFStringGetCString(CFStringRef string, char* buffer, CFIndex bufferSize, CFStringEncoding encoding) {
    const std::string& text = textOf(string);
    kernel().expect(encoding == kCFStringEncodingUTF8, "CFStringGetCString in another encoding");
    if (!kernel().arrives("CFStringGetCString " + text, Call::library))
        return false;
    if (static_cast<std::size_t>(bufferSize) <= text.size())
        return false;
    std::memcpy(buffer, text.c_str(), text.size() + 1);
    return true;
}

CFStringRef simulatedConstantString(const char* text) {
    static std::map<std::string, Object> constants;
    const auto constant = constants.try_emplace(text, Object{.value = text, .elements = {}, .entries = {}});
    return reinterpret_cast<CFStringRef>(&constant.first->second);
}
