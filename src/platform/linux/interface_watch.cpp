#include "platform/linux/interface_watch.h"

#include <array>
#include <cerrno>
#include <linux/netlink.h>
#include <linux/rtnetlink.h>
#include <sys/socket.h>
#include <unistd.h>

namespace orvelle::linux_platform {
namespace {

constexpr unsigned callsPerAttempt = 10;

unsigned groupsOf(InterfaceWatch::Subject subject) {
    if (subject == InterfaceWatch::Subject::ipv4Routes)
        return RTMGRP_IPV4_ROUTE;
    return RTMGRP_LINK | RTMGRP_IPV4_IFADDR | RTMGRP_IPV6_IFADDR;
}

/// A socket that receives the messages of these groups; -1 when none can be opened.
int openSocket(unsigned groups) {
    const int descriptor = ::socket(AF_NETLINK, SOCK_RAW | SOCK_CLOEXEC | SOCK_NONBLOCK, NETLINK_ROUTE);
    if (descriptor < 0)
        return -1;
    sockaddr_nl address{};
    address.nl_family = AF_NETLINK;
    address.nl_groups = groups;
    const void* untyped = &address;
    if (::bind(descriptor, static_cast<const sockaddr*>(untyped), sizeof address) != 0) {
        ::close(descriptor);
        return -1;
    }
    return descriptor;
}

} // namespace

InterfaceWatch::~InterfaceWatch() {
    close();
}

void InterfaceWatch::close() {
    if (m_socket >= 0)
        ::close(m_socket);
    m_socket = -1;
    // The next call is then due to open another.
    m_callsWithoutSocket = 0;
}

bool InterfaceWatch::mayHaveChanged() {
    if (m_socket >= 0)
        return takeAnnouncements();
    const bool isDue = m_callsWithoutSocket++ % callsPerAttempt == 0;
    if (isDue)
        m_socket = openSocket(groupsOf(m_subject));
    return isDue;
}

bool InterfaceWatch::takeAnnouncements() {
    // Only that something was announced counts, so each message may be cut at the buffer's end.
    std::array<char, 256> message{};
    bool hasAnnouncement = false;
    while (true) {
        const ssize_t size = ::recv(m_socket, message.data(), message.size(), 0);
        if (size < 0 && errno == EINTR)
            continue;
        if (size < 0 && (errno == EAGAIN || errno == EWOULDBLOCK))
            return hasAnnouncement;
        hasAnnouncement = true;
        // ENOBUFS: the kernel dropped announcements because too many were waiting; the rest can still be
        // taken.
        if (size == 0 || (size < 0 && errno != ENOBUFS)) {
            close();
            return hasAnnouncement;
        }
    }
}

} // namespace orvelle::linux_platform
