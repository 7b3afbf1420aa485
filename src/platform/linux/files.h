#pragma once

#include <array>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace orvelle::linux_platform {

/// Whether `root` is the running system. Below any other root only the tree itself may be read, and no system
/// call may ask the host.
[[nodiscard]] inline bool isHostRoot(const std::filesystem::path& root) {
    return root.lexically_normal() == "/";
}

/// The names in a directory in the kernel's order; those read so far when it vanishes meanwhile.
[[nodiscard]] std::vector<std::string> namesIn(const std::filesystem::path& directory);

/// Whether the path exists; a dangling link does.
[[nodiscard]] bool existsUnfollowed(const std::filesystem::path& path);

/// Whether a directory can have an entry of this name: each has "." and ".." already.
[[nodiscard]] bool isEntryName(std::string_view name);

/// A kernel text file that is read again and again: the descriptor stays open between reads, which costs half
/// of opening it each time. One among the last that this process may have is closed after each read: windows
/// and their modules need some too. When a read fails (the device behind it vanished, say) the file is closed
/// and opened afresh at the next read.
class KeptFile {
public:
    /// So many of the descriptors that this process may have are not kept.
    static constexpr int descriptorsLeftFree = 16;
    /// No kernel text that a monitor reads is longer; what lies beyond is not read.
    static constexpr std::size_t maximumSize = std::size_t{4} << 20;

    /// How the kernel ends the text. `single`: the whole text is produced for one read, so a read that leaves
    /// room in the buffer has seen all of it (stat, meminfo, loadavg). `value`: the same, and so short that a
    /// small buffer does (one value of a device in sysfs). `records`: each read ends at a record near a page,
    /// so only an empty read is the end (diskstats, net/dev, mountinfo).
    enum class Layout { single, value, records };

    KeptFile(std::filesystem::path path, Layout layout);
    ~KeptFile();
    KeptFile(KeptFile&& other) noexcept;
    KeptFile& operator=(KeptFile&& other) noexcept;
    KeptFile(const KeptFile&) = delete;
    KeptFile& operator=(const KeptFile&) = delete;

    /// The file's text now, valid until the next call; nothing when it cannot be opened or read.
    [[nodiscard]] std::optional<std::string_view> read();

    /// Whether the kernel may have changed the text since the last call, for a text whose changes it
    /// announces to those who poll the open file (mountinfo). Yes while the file is not open.
    [[nodiscard]] bool hasAnnouncedChange();

    [[nodiscard]] const std::filesystem::path& path() const { return m_path; }

private:
    void close();
    [[nodiscard]] bool readAll();

    std::filesystem::path m_path;
    Layout m_layout;
    int m_descriptor = -1;
    bool m_isKept = true; ///< after a read
    std::string m_buffer;
    std::size_t m_size = 0;
};

/// The text of a file that is read once or rarely, cut at `maximumSize` bytes; nothing when it cannot be
/// read.
[[nodiscard]] std::optional<std::string> readFile(const std::filesystem::path& path,
                                                  std::size_t maximumSize = KeptFile::maximumSize);

/// A folder of small files that are read one after the other, as a device has in sysfs. It is looked up once:
/// of a long path, looking up is most of what a small file costs.
class OpenFolder {
public:
    /// A folder that does not exist has no files.
    explicit OpenFolder(const std::filesystem::path& path);
    /// The folder `name`, or the one that a link of this name leads to, in another.
    OpenFolder(const OpenFolder& parent, const std::string& name);
    ~OpenFolder();
    OpenFolder(const OpenFolder&) = delete;
    OpenFolder& operator=(const OpenFolder&) = delete;

    /// The text of the file up to a page, which is more than any attribute has; valid until the next call.
    /// Nothing when it cannot be read.
    [[nodiscard]] std::optional<std::string_view> read(const char* name);
    /// Whether the folder has an entry of this name; a dangling link counts.
    [[nodiscard]] bool contains(const char* name) const;

private:
    int m_descriptor;
    std::array<char, 4096> m_buffer;
};

// Small readings from sysfs. An attribute is one short value with a line end (Documentation/filesystems/
// sysfs.rst); anything else that a tree may hold in its place is nothing.

/// `text` as one whole number with nothing beside it but blanks; nothing otherwise, as a value that is half
/// understood must not be published. The largest of its type when it does not fit.
[[nodiscard]] std::optional<std::int64_t> parseAttributeNumber(std::string_view text);

/// The number that an attribute holds now.
[[nodiscard]] std::optional<std::int64_t> readNumber(KeptFile& file);

/// The text of an attribute that is read rarely, without the blanks around it; empty when it cannot be read.
[[nodiscard]] std::string readAttribute(const std::filesystem::path& path);

} // namespace orvelle::linux_platform
