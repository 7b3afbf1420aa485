#pragma once

// Simulated macOS: process information.
#include <cstdint>

constexpr std::uint32_t PROC_ALL_PIDS = 1;
constexpr int PROC_PIDTASKINFO = 4;
constexpr int PROC_PIDPATHINFO_MAXSIZE = 4096;

struct proc_taskinfo {
    std::uint64_t pti_virtual_size, pti_resident_size, pti_total_user, pti_total_system, pti_threads_user,
        pti_threads_system;
    std::int32_t pti_policy, pti_faults, pti_pageins, pti_cow_faults, pti_messages_sent,
        pti_messages_received, pti_syscalls_mach, pti_syscalls_unix, pti_csw, pti_threadnum, pti_numrunning,
        pti_priority;
};

extern "C" {
int proc_listpids(std::uint32_t type, std::uint32_t typeInformation, void* buffer, int bufferSize);
int proc_pidinfo(int pid, int flavor, std::uint64_t argument, void* buffer, int bufferSize);
int proc_name(int pid, void* buffer, std::uint32_t bufferSize);
int proc_pidpath(int pid, void* buffer, std::uint32_t bufferSize);
}
