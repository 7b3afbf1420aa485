#pragma once

#include <QFile>
#include <gtest/gtest.h>

#include <sys/stat.h>

namespace orvelle {

/// The permissions of a file or folder, such as 0600.
[[nodiscard]] inline unsigned int modeOf(const QString& path) {
    struct stat status{};
    EXPECT_EQ(::stat(QFile::encodeName(path).constData(), &status), 0) << path.toStdString();
    return status.st_mode & 0777U;
}

/// New files get all the permissions that their program asks for while this object lives.
class WithoutMask {
public:
    WithoutMask() = default;
    ~WithoutMask() { ::umask(m_before); }
    WithoutMask(const WithoutMask&) = delete;
    WithoutMask& operator=(const WithoutMask&) = delete;

private:
    mode_t m_before = ::umask(0);
};

} // namespace orvelle
