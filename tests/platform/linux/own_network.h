#pragma once

#include <arpa/inet.h>
#include <array>
#include <cstring>
#include <net/if.h>
#include <net/route.h>
#include <netinet/in.h>
#include <sched.h>
#include <sys/ioctl.h>
#include <sys/socket.h>
#include <unistd.h>

/// A network of a process's own, for processes made by a test.
namespace orvelle::linux_platform {

inline ifreq loopbackRequest() {
    ifreq request{};
    request.ifr_name[0] = 'l';
    request.ifr_name[1] = 'o';
    return request;
}

inline bool apply(unsigned long command, ifreq request) {
    const int descriptor = ::socket(AF_INET, SOCK_DGRAM | SOCK_CLOEXEC, 0);
    const bool isApplied = descriptor >= 0 && ::ioctl(descriptor, command, &request) == 0;
    ::close(descriptor);
    return isApplied;
}

inline bool bringLoopbackUp() {
    ifreq request = loopbackRequest();
    request.ifr_flags = IFF_UP;
    return apply(SIOCSIFFLAGS, request);
}

/// Changes the link alone, no address.
inline bool changeLoopbackSize() {
    ifreq request = loopbackRequest();
    request.ifr_mtu = 9000;
    return apply(SIOCSIFMTU, request);
}

/// Replaces the address, and changes nothing of the link.
inline bool giveLoopbackAddress(const char* numeric) {
    ifreq request = loopbackRequest();
    sockaddr_in address{};
    address.sin_family = AF_INET;
    ::inet_pton(AF_INET, numeric, &address.sin_addr);
    std::memcpy(&request.ifr_addr, &address, sizeof address);
    return apply(SIOCSIFADDR, request);
}

/// Sends all packets into the loopback.
inline bool addDefaultRoute() {
    std::array<char, 3> device{"lo"};
    rtentry route{};
    route.rt_dst.sa_family = AF_INET;
    route.rt_genmask.sa_family = AF_INET;
    route.rt_flags = RTF_UP;
    route.rt_dev = device.data();
    const int descriptor = ::socket(AF_INET, SOCK_DGRAM | SOCK_CLOEXEC, 0);
    const bool isAdded = descriptor >= 0 && ::ioctl(descriptor, SIOCADDRT, &route) == 0;
    ::close(descriptor);
    return isAdded;
}

/// Moves the calling process to a network that holds nothing but a loopback, where nobody else changes
/// anything; false when the system does not let it.
inline bool enterOwnNetwork() {
    return ::unshare(CLONE_NEWUSER | CLONE_NEWNET) == 0 && bringLoopbackUp();
}

} // namespace orvelle::linux_platform
