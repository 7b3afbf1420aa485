#pragma once

#include <CoreFoundation/CoreFoundation.h>
#include <IOKit/IOKitLib.h>
#include <cstddef>
#include <cstdint>
#include <mach/mach.h>
#include <memory>
#include <optional>
#include <string>
#include <type_traits>
#include <utility>

namespace orvelle::darwin_platform {

// Owners of what the system lends: each gives its reference back exactly once, whatever happens in between.

/// Owns one port name and gives it back with `release`. The null name stands for nothing and is not released.
template <auto release>
class OwnedName {
public:
    OwnedName() = default;
    explicit OwnedName(mach_port_t name)
        : m_name(name) {}
    ~OwnedName() {
        if (*this)
            static_cast<void>(release(m_name));
    }
    OwnedName(OwnedName&& other) noexcept
        : m_name(std::exchange(other.m_name, nullName)) {}
    OwnedName& operator=(OwnedName&& other) noexcept {
        std::swap(m_name, other.m_name);
        return *this;
    }
    OwnedName(const OwnedName&) = delete;
    OwnedName& operator=(const OwnedName&) = delete;

    [[nodiscard]] mach_port_t get() const { return m_name; }
    explicit operator bool() const { return m_name != nullName; }

private:
    static constexpr mach_port_t nullName = 0;

    mach_port_t m_name = nullName;
};

inline kern_return_t releasePort(mach_port_t port) {
    return mach_port_deallocate(mach_task_self(), port);
}

using OwnedPort = OwnedName<releasePort>;
/// A service, a registry entry or an iterator over them.
using OwnedIOObject = OwnedName<IOObjectRelease>;
using OwnedConnection = OwnedName<IOServiceClose>;

/// Owns pages that the kernel mapped into this process to hold an answer.
class OwnedPages {
public:
    /// `size` is the size of the answer in bytes, not rounded to pages.
    OwnedPages(const void* address, std::size_t size)
        : m_address(reinterpret_cast<vm_address_t>(address))
        , m_size(size) {}
    ~OwnedPages() { vm_deallocate(mach_task_self(), m_address, m_size); }
    OwnedPages(const OwnedPages&) = delete;
    OwnedPages& operator=(const OwnedPages&) = delete;

private:
    vm_address_t m_address;
    vm_size_t m_size;
};

struct CFReleaser {
    void operator()(CFTypeRef object) const { CFRelease(object); }
};

/// Owns one reference to a Core Foundation object, such as a function with "Create" or "Copy" in its name
/// returns. `Reference` is the object's reference type, for example `CFArrayRef`.
template <class Reference>
using CFOwned = std::unique_ptr<std::remove_pointer_t<Reference>, CFReleaser>;

/// The first service of a class, such as "AppleSMC"; the null object when the machine has none.
[[nodiscard]] OwnedIOObject findService(const char* className);

/// An iterator over all services of a class, the null object where the system gives none for no services;
/// nothing when they cannot be looked up.
[[nodiscard]] std::optional<OwnedIOObject> findServices(const char* className);

/// The properties of a registry entry; null when they cannot be read.
[[nodiscard]] CFOwned<CFDictionaryRef> copyProperties(const OwnedIOObject& entry);

// Look-ups in a property dictionary of the system. A key that is missing, or whose value is of another type
// than the one asked for, is nothing.

/// A number that a signed 64-bit integer holds exactly.
[[nodiscard]] std::optional<std::int64_t> integerIn(CFDictionaryRef properties, CFStringRef key);

/// Any number, cut toward zero; one that a signed 64-bit integer cannot hold is nothing.
[[nodiscard]] std::optional<std::int64_t> truncatedNumberIn(CFDictionaryRef properties, CFStringRef key);

[[nodiscard]] std::optional<bool> booleanIn(CFDictionaryRef properties, CFStringRef key);

[[nodiscard]] std::optional<std::string> stringIn(CFDictionaryRef properties, CFStringRef key);

/// The dictionary belongs to `properties`; null when there is none.
[[nodiscard]] CFDictionaryRef dictionaryIn(CFDictionaryRef properties, CFStringRef key);

} // namespace orvelle::darwin_platform
