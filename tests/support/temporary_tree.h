#pragma once

#include <QTemporaryDir>

#include <filesystem>
#include <fstream>
#include <string_view>

namespace orvelle {

/// A directory that stands for the root of a machine; it is removed at the end of the test.
class TemporaryTree {
public:
    [[nodiscard]] std::filesystem::path root() const { return m_directory.path().toStdString(); }

    /// Writes one file, with the folders above it; replaces an earlier text in place, as the kernel does.
    void write(const std::filesystem::path& path, std::string_view text) const {
        std::filesystem::create_directories((root() / path).parent_path());
        std::ofstream(root() / path, std::ios::binary) << text;
    }

    void remove(const std::filesystem::path& path) const { std::filesystem::remove_all(root() / path); }

private:
    QTemporaryDir m_directory;
};

} // namespace orvelle
