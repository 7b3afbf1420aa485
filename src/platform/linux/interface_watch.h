#pragma once

namespace orvelle::linux_platform {

/// Notices when the running system's interfaces and addresses, or its routes, may have changed, so that they
/// need not be read at each sample: the kernel announces changes on a routing socket (rtnetlink(7)). Asking
/// costs one system call while nothing changes. Without such a socket every tenth question is answered yes. A
/// socket that fails is replaced, with a yes for what it may have missed.
class InterfaceWatch {
public:
    enum class Subject { interfacesAndAddresses, ipv4Routes };

    explicit InterfaceWatch(Subject subject)
        : m_subject(subject) {}
    ~InterfaceWatch();
    InterfaceWatch(const InterfaceWatch&) = delete;
    InterfaceWatch& operator=(const InterfaceWatch&) = delete;

    /// Whether something may have changed since the last call; yes at the first call. What is read after the
    /// call is at least as new as the answer.
    [[nodiscard]] bool mayHaveChanged();

private:
    [[nodiscard]] bool takeAnnouncements();
    void close();

    Subject m_subject;
    int m_socket = -1;
    unsigned m_callsWithoutSocket = 0;
};

} // namespace orvelle::linux_platform
