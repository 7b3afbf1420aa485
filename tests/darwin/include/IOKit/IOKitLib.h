#pragma once

// Simulated macOS: the registry and user clients of I/O Kit. As on the real one, this header does not bring
// in all of Core Foundation.
#include <cstddef>
#include <cstdint>
#include <mach/mach.h>

using CFAllocatorRef = const struct __CFAllocator*;
using CFDictionaryRef = const struct __CFDictionary*;
using CFMutableDictionaryRef = struct __CFDictionary*;
using IOOptionBits = std::uint32_t;
using io_object_t = mach_port_t;
using io_connect_t = io_object_t;
using io_iterator_t = io_object_t;
using io_registry_entry_t = io_object_t;
using io_service_t = io_object_t;

constexpr io_object_t IO_OBJECT_NULL = 0;
constexpr IOOptionBits kNilOptions = 0;
constexpr kern_return_t kIOReturnNoDevice = static_cast<kern_return_t>(0xe00002c0);
constexpr kern_return_t kIOReturnBadArgument = static_cast<kern_return_t>(0xe00002c2);
constexpr kern_return_t kIOReturnNotPermitted = static_cast<kern_return_t>(0xe00002e2);

extern "C" {
extern const mach_port_t kIOMainPortDefault;

CFMutableDictionaryRef IOServiceMatching(const char* className);
io_service_t IOServiceGetMatchingService(mach_port_t mainPort, CFDictionaryRef matching);
kern_return_t IOServiceGetMatchingServices(mach_port_t mainPort, CFDictionaryRef matching,
                                           io_iterator_t* iterator);
io_object_t IOIteratorNext(io_iterator_t iterator);
kern_return_t IORegistryEntryCreateCFProperties(io_registry_entry_t entry, CFMutableDictionaryRef* properties,
                                                CFAllocatorRef allocator, IOOptionBits options);
kern_return_t IOObjectRelease(io_object_t object);
kern_return_t IOServiceOpen(io_service_t service, mach_port_t task, std::uint32_t type,
                            io_connect_t* connection);
kern_return_t IOConnectCallStructMethod(mach_port_t connection, std::uint32_t selector, const void* input,
                                        std::size_t inputSize, void* output, std::size_t* outputSize);
kern_return_t IOServiceClose(io_connect_t connection);
}
