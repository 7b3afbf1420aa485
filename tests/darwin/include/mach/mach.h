#pragma once

// Simulated macOS: the Mach types, constants and calls that the sources use.
#include <cstdint>

using integer_t = std::int32_t;
using natural_t = std::uint32_t;
using kern_return_t = int;
using mach_port_t = natural_t;
using host_t = mach_port_t;
using vm_map_t = mach_port_t;
using mach_msg_type_number_t = natural_t;
using vm_address_t = std::uintptr_t;
using vm_size_t = std::uintptr_t;
using processor_flavor_t = int;
using processor_info_array_t = integer_t*;
using host_flavor_t = integer_t;
using host_info64_t = integer_t*;

constexpr kern_return_t KERN_SUCCESS = 0;
constexpr kern_return_t KERN_INVALID_ADDRESS = 1;
constexpr kern_return_t KERN_INVALID_ARGUMENT = 4;
constexpr kern_return_t KERN_FAILURE = 5;

constexpr processor_flavor_t PROCESSOR_CPU_LOAD_INFO = 2;
constexpr int CPU_STATE_MAX = 4;
constexpr int CPU_STATE_USER = 0;
constexpr int CPU_STATE_SYSTEM = 1;
constexpr int CPU_STATE_IDLE = 2;
constexpr int CPU_STATE_NICE = 3;

/// Page counters as one of the releases declares them: 38 words. A later one adds two.
struct vm_statistics64_data_t {
    natural_t free_count, active_count, inactive_count, wire_count;
    std::uint64_t zero_fill_count, reactivations, pageins, pageouts, faults, cow_faults, lookups, hits,
        purges;
    natural_t purgeable_count, speculative_count;
    std::uint64_t decompressions, compressions, swapins, swapouts;
    natural_t compressor_page_count, throttled_count, external_page_count, internal_page_count;
    std::uint64_t total_uncompressed_pages_in_compressor;
};

constexpr host_flavor_t HOST_VM_INFO64 = 4;
constexpr mach_msg_type_number_t HOST_VM_INFO64_COUNT = sizeof(vm_statistics64_data_t) / sizeof(integer_t);

extern "C" {
extern mach_port_t mach_task_self_;

mach_port_t mach_host_self();
kern_return_t mach_port_deallocate(mach_port_t task, mach_port_t name);
kern_return_t host_processor_info(host_t host, processor_flavor_t flavor, natural_t* processorCount,
                                  processor_info_array_t* words, mach_msg_type_number_t* wordCount);
kern_return_t host_statistics64(host_t host, host_flavor_t flavor, host_info64_t words,
                                mach_msg_type_number_t* wordCount);
kern_return_t vm_deallocate(vm_map_t task, vm_address_t address, vm_size_t size);
}

#define mach_task_self() mach_task_self_
