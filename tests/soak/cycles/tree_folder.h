#pragma once

#include <QTemporaryDir>

#include <filesystem>
#include <map>
#include <string>
#include <string_view>

namespace orvelle::soak {

/// A folder in memory where possible, because a machine's files are written again and again. The destructor
/// removes it.
class TreeFolder {
public:
    /// With a copy of the tree `original`.
    explicit TreeFolder(const std::filesystem::path& original);

    [[nodiscard]] const std::filesystem::path& root() const { return m_root; }

    /// Writes into the file in its place, because the sources keep it open. Creates its folders.
    void write(const std::filesystem::path& path, std::string_view text) const;
    /// Removes a file or folder. Its files become empty first: what the sources keep open no longer answers,
    /// as in sysfs.
    void remove(const std::filesystem::path& path) const;
    [[nodiscard]] std::string read(const std::filesystem::path& path) const;
    /// The files whose name ends in `ending` below `folder`, with their texts.
    [[nodiscard]] std::map<std::string, std::string> filesEndingIn(std::string_view ending,
                                                                   const std::filesystem::path& folder) const;

private:
    QTemporaryDir m_folder;
    std::filesystem::path m_root;
};

} // namespace orvelle::soak
