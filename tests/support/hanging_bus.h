#pragma once

#include "support/temporary_tree.h"

#include <QByteArray>
#include <gtest/gtest.h>

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace orvelle {

/// A message bus that takes connections and never answers.
class HangingBus {
public:
    HangingBus() {
        const std::string path = (m_tree.root() / "bus").string();
        sockaddr_un address{};
        address.sun_family = AF_UNIX;
        path.copy(static_cast<char*>(address.sun_path), sizeof(address.sun_path) - 1);
        EXPECT_EQ(::bind(m_socket, reinterpret_cast<const sockaddr*>(&address), sizeof(address)), 0);
        EXPECT_EQ(::listen(m_socket, 8), 0);
    }
    ~HangingBus() { ::close(m_socket); }
    HangingBus(const HangingBus&) = delete;
    HangingBus& operator=(const HangingBus&) = delete;

    [[nodiscard]] QByteArray address() const {
        return "unix:path=" + QByteArray::fromStdString((m_tree.root() / "bus").string());
    }

private:
    TemporaryTree m_tree;
    int m_socket = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
};

} // namespace orvelle
