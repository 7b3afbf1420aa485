#pragma once

// Simulated macOS: the management information base.
#include <cstddef>
#include <cstdint>

constexpr int CTL_KERN = 1;
constexpr int CTL_VM = 2;
constexpr int CTL_HW = 6;
constexpr int KERN_BOOTTIME = 21;
constexpr int HW_MEMSIZE = 24;
constexpr int VM_SWAPUSAGE = 5;

struct xsw_usage {
    std::uint64_t xsu_total, xsu_avail, xsu_used;
    std::uint32_t xsu_pagesize;
    int xsu_encrypted;
};

extern "C" int sysctl(int* name, unsigned int nameLength, void* oldValue, std::size_t* oldSize,
                      void* newValue, std::size_t newSize) __asm__("simulated_sysctl");
