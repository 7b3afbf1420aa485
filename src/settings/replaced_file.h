#pragma once

#include "settings/file_descriptor.h"

#include <QByteArray>
#include <QString>
#include <QThreadPool>

#include <functional>
#include <mutex>
#include <optional>

namespace orvelle {

/// A file that is replaced as a whole, so that no reader sees half of it. Every reader has the new text when
/// `replace` returns; the disk gets it afterwards, without anybody waiting for it. A program that is killed
/// leaves the old or the new text, and so does a power cut, once `recover` was called.
///
/// Two files may stand beside it for a while. `.NAME.next` is the new text while it is written. `.NAME.last`
/// is the old file under a second name until the new one is on the disk. Journals keep the order of changes
/// to names on ext4, XFS and Btrfs, so `.NAME.last` is safe before the new file takes the name; but not all
/// of them promise that the new file has its text by then: ext4 (`auto_da_alloc`) and Btrfs write it out with
/// the renaming, on XFS it may be empty after a power cut. An empty file beside a `.NAME.last` is therefore
/// one that was cut short, and the last one takes its place again.
///
/// One program at a time may replace the file. Main thread only.
class ReplacedFile {
public:
    /// Waits until the disk has what was written to a file (fsync).
    using Flush = std::function<void(int descriptor)>;

    /// A path of a file, not of a link to one, in a folder that exists.
    explicit ReplacedFile(const QString& path, Flush flush = systemFlush());
    ReplacedFile(const ReplacedFile&) = delete;
    ReplacedFile& operator=(const ReplacedFile&) = delete;
    /// Waits until the disk has all of it.
    ~ReplacedFile();

    /// Whether a power cut or a kill interrupted a replacing.
    [[nodiscard]] bool isInterrupted() const;
    /// Undoes or completes what a power cut or a kill interrupted.
    void recover();
    /// Returns whether the file now holds the text; if not, it holds what it held. A new file can be read by
    /// its owner alone, a replaced one keeps its permissions.
    [[nodiscard]] bool replace(const QByteArray& text);

    [[nodiscard]] static Flush systemFlush();

private:
    [[nodiscard]] FileDescriptor writeNext(const QByteArray& text) const;
    /// Gives the present file a second name that survives the replacing, and returns whether it has one or
    /// needs none.
    [[nodiscard]] bool keepLast() const;
    void flushSoon(FileDescriptor file);
    void flushNewest();

    const QByteArray m_path;
    const QByteArray m_folder;
    const QByteArray m_next;
    const QByteArray m_last;
    const Flush m_flush;

    std::mutex m_mutex;                     ///< guards what follows, and the names of the files
    std::optional<FileDescriptor> m_newest; ///< what is to be flushed next
    QThreadPool m_flusher;
};

} // namespace orvelle
