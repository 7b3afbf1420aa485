#pragma once

#include <QByteArray>
#include <QString>
#include <QThreadPool>

#include <functional>
#include <mutex>
#include <optional>
#include <unistd.h>
#include <utility>

/// Writing a file that other programs read and write too: a lock, and replacement as a whole.
namespace orvelle {

/// Creates a folder and those above it that are missing, for their owner alone, and leaves existing ones as
/// they are. Returns whether the folder exists.
[[nodiscard]] bool makePrivateFolders(const QString& path);

/// The descriptor of an open file, closed with this object. Negative when none is open.
class FileDescriptor {
public:
    explicit FileDescriptor(int descriptor = -1)
        : m_descriptor(descriptor) {}
    FileDescriptor(FileDescriptor&& other) noexcept
        : m_descriptor(std::exchange(other.m_descriptor, -1)) {}
    FileDescriptor& operator=(FileDescriptor&& other) noexcept {
        std::swap(m_descriptor, other.m_descriptor);
        return *this;
    }
    ~FileDescriptor() {
        if (isOpen())
            ::close(m_descriptor);
    }

    [[nodiscard]] bool isOpen() const { return m_descriptor >= 0; }
    [[nodiscard]] int get() const { return m_descriptor; }

private:
    int m_descriptor;
};

/// A lock between programs, held on a file of its own (flock). The kernel releases it however its program
/// ends, so no lock is ever abandoned. QLockFile would wait for the disk with every lock (fdatasync).
class FileLock {
public:
    /// The lock, held until the object is destroyed. Nothing, without waiting, while another program holds it
    /// or when the file cannot be created. On a file system without locks every caller gets it.
    [[nodiscard]] static std::optional<FileLock> take(const QString& path);

    FileLock(FileLock&&) noexcept = default;
    FileLock& operator=(FileLock&&) noexcept = default;
    ~FileLock();

private:
    FileLock(QByteArray path, FileDescriptor file);

    QByteArray m_path;
    FileDescriptor m_file;
};

/// A file that is replaced as a whole, so that no reader sees half of it. Readers get the new text as soon as
/// `replace` returns; the disk gets it later, in the background. A program that is killed leaves the old or
/// the new text. So does a power cut, after `recover`.
///
/// Two temporary files stand beside it. `.NAME.next` is the new text while it is written. `.NAME.last` is a
/// second name of the old file until the new one is on the disk. Journals keep the order of renames on ext4,
/// XFS and Btrfs, so `.NAME.last` exists before the new file takes the name. They do not all promise that the
/// new file has its text by then: ext4 (`auto_da_alloc`) and Btrfs write it out with the rename, on XFS it
/// may be empty after a power cut. `recover` therefore treats an empty file beside `.NAME.last` as cut short
/// and restores the old one.
///
/// One program at a time may replace the file. Main thread only.
class AtomicFile {
public:
    /// Waits until the disk has what was written to a file (fsync).
    using Flush = std::function<void(int descriptor)>;

    /// The path of a file, not of a link to one, in a folder that exists.
    explicit AtomicFile(const QString& path, Flush flush = systemFlush());
    AtomicFile(const AtomicFile&) = delete;
    AtomicFile& operator=(const AtomicFile&) = delete;
    /// Waits until the disk has the text.
    ~AtomicFile();

    /// Whether a power cut or a kill interrupted a replacement.
    [[nodiscard]] bool isInterrupted() const;
    /// Undoes or completes an interrupted replacement.
    void recover();
    /// Returns whether the file now holds the text; if not, it is unchanged. A new file is readable by its
    /// owner alone, a replaced one keeps its permissions.
    [[nodiscard]] bool replace(const QByteArray& text);

    [[nodiscard]] static Flush systemFlush();

private:
    [[nodiscard]] FileDescriptor writeNext(const QByteArray& text) const;
    /// Gives the current file a second name that outlives the replacement. Returns whether it has one or
    /// needs none.
    [[nodiscard]] bool keepLast() const;
    void flushInBackground(FileDescriptor file);
    void flushNewest();

    const QByteArray m_path;
    const QByteArray m_folder;
    const QByteArray m_next;
    const QByteArray m_last;
    const Flush m_flush;

    std::mutex m_mutex;                     ///< guards the members below and the names of the files
    std::optional<FileDescriptor> m_newest; ///< to be flushed next
    QThreadPool m_flusher;
};

} // namespace orvelle
