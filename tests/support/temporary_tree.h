#pragma once

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>

namespace orvelle {

/// A private tree of files, such as /proc and /sys of an invented machine. The destructor removes it.
class TemporaryTree {
public:
    TemporaryTree() {
        std::string name = (std::filesystem::temp_directory_path() / "orvelle-test-XXXXXX").string();
        if (::mkdtemp(name.data()) == nullptr)
            ADD_FAILURE() << "cannot make " << name;
        m_root = name;
    }
    ~TemporaryTree() {
        std::error_code ignored;
        std::filesystem::remove_all(m_root, ignored);
    }
    TemporaryTree(const TemporaryTree&) = delete;
    TemporaryTree& operator=(const TemporaryTree&) = delete;

    [[nodiscard]] const std::filesystem::path& root() const { return m_root; }

    /// Writes a file and creates its directories. Replaces an existing file.
    void write(const std::filesystem::path& path, std::string_view text) const {
        makeParent(path);
        std::ofstream file(m_root / path, std::ios::binary | std::ios::trunc);
        file << text;
        EXPECT_TRUE(file.flush()) << path;
    }
    void makeDirectory(const std::filesystem::path& path) const {
        std::filesystem::create_directories(m_root / path);
    }
    /// Creates a symbolic link; its target need not exist.
    void link(const std::filesystem::path& path, const std::filesystem::path& target) const {
        makeParent(path);
        std::filesystem::create_symlink(target, m_root / path);
    }
    void remove(const std::filesystem::path& path) const { std::filesystem::remove_all(m_root / path); }

private:
    void makeParent(const std::filesystem::path& path) const {
        std::filesystem::create_directories((m_root / path).parent_path());
    }

    std::filesystem::path m_root;
};

} // namespace orvelle
