#include "helpers.h"

#include <algorithm>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <fstream>
#include <pthread.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace orvelle::bench {
namespace {

[[noreturn]] void sleepForGood() {
    while (true)
        ::pause();
}

void sleepNanoseconds(long nanoseconds) {
    const timespec time{.tv_sec = nanoseconds / 1'000'000'000, .tv_nsec = nanoseconds % 1'000'000'000};
    ::nanosleep(&time, nullptr);
}

[[noreturn]] void startThreadsAndSleep(std::size_t count) {
    pthread_attr_t attributes;
    ::pthread_attr_init(&attributes);
    ::pthread_attr_setstacksize(&attributes, 65536);
    for (std::size_t index = 0; index < count; ++index) {
        pthread_t thread{};
        const auto sleep = [](void*) -> void* { sleepForGood(); };
        if (::pthread_create(&thread, &attributes, sleep, nullptr) != 0)
            std::perror("pthread_create");
    }
    sleepForGood();
}

} // namespace

Helpers::~Helpers() {
    for (const pid_t pid : m_pids)
        ::kill(pid, SIGKILL);
    for (const pid_t pid : m_pids)
        ::waitpid(pid, nullptr, 0);
}

template <class Work>
void Helpers::add(Work work) {
    const pid_t pid = ::fork();
    if (pid < 0) {
        std::perror("fork");
        std::exit(1);
    }
    if (pid == 0) {
        ::prctl(PR_SET_PDEATHSIG, SIGKILL);
        work();
        ::_exit(0);
    }
    m_pids.push_back(pid);
}

void Helpers::addSleepers(std::size_t count) {
    for (std::size_t index = 0; index < count; ++index)
        add([] { sleepForGood(); });
}

void Helpers::addWakers(std::size_t count) {
    for (std::size_t index = 0; index < count; ++index) {
        add([index, count] {
            sleepNanoseconds(static_cast<long>(1'000'000'000 * index / count));
            while (true)
                sleepNanoseconds(1'000'000'000);
        });
    }
}

void Helpers::addBusy(std::size_t count) {
    constexpr int lowestPriority = 19;
    for (std::size_t index = 0; index < count; ++index) {
        add([] {
            ::setpriority(PRIO_PROCESS, 0, lowestPriority);
            for (volatile unsigned turns = 0;;)
                turns = turns + 1;
        });
    }
}

void Helpers::addThreadedProcess(std::size_t threadCount) {
    add([threadCount] { startThreadsAndSleep(threadCount); });
}

std::size_t roomForProcesses() {
    constexpr double bytesPerHelper = 100'000; // its stack, page tables and copied pages: 80 kB were measured
    constexpr double bytesForOthers = 1e9;
    constexpr std::size_t pidsForOthers = 4000;
    std::size_t pids = 0;
    std::ifstream("/proc/sys/kernel/pid_max") >> pids;
    const double freeBytes =
        static_cast<double>(::sysconf(_SC_AVPHYS_PAGES)) * static_cast<double>(::sysconf(_SC_PAGESIZE));
    const auto inMemory =
        static_cast<std::size_t>(std::max(freeBytes - bytesForOthers, 0.0) / bytesPerHelper);
    rlimit limit{};
    const bool isLimited = ::getrlimit(RLIMIT_NPROC, &limit) == 0 && limit.rlim_cur != RLIM_INFINITY;
    const std::size_t allowed = isLimited ? static_cast<std::size_t>(limit.rlim_cur) : pids;
    const std::size_t startable = std::min(pids, allowed);
    return std::min(inMemory, startable > pidsForOthers ? startable - pidsForOthers : 0);
}

void startShortProcess() {
    const pid_t pid = ::fork();
    if (pid == 0)
        ::_exit(0);
    if (pid > 0)
        ::waitpid(pid, nullptr, 0);
}

} // namespace orvelle::bench
