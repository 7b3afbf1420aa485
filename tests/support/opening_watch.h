#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <set>
#include <string>
#include <sys/inotify.h>
#include <unistd.h>

namespace orvelle {

/// Records which files of a folder any process opens.
class OpeningWatch {
public:
    explicit OpeningWatch(const std::filesystem::path& folder)
        : m_descriptor(::inotify_init1(IN_NONBLOCK | IN_CLOEXEC)) {
        EXPECT_GE(::inotify_add_watch(m_descriptor, folder.c_str(), IN_OPEN), 0);
    }
    ~OpeningWatch() { ::close(m_descriptor); }
    OpeningWatch(const OpeningWatch&) = delete;
    OpeningWatch& operator=(const OpeningWatch&) = delete;

    /// The names of the files opened since the last call.
    [[nodiscard]] std::set<std::string> openedFiles() {
        std::set<std::string> names;
        alignas(inotify_event) char buffer[4096];
        for (ssize_t size = 0; (size = ::read(m_descriptor, buffer, sizeof buffer)) > 0;) {
            for (ssize_t offset = 0; offset < size;) {
                const auto* event = reinterpret_cast<const inotify_event*>(buffer + offset);
                if (event->len > 0)
                    names.insert(event->name);
                offset += static_cast<ssize_t>(sizeof(inotify_event) + event->len);
            }
        }
        return names;
    }

private:
    int m_descriptor;
};

} // namespace orvelle
