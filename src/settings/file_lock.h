#pragma once

#include "settings/file_descriptor.h"

#include <QByteArray>

#include <optional>

namespace orvelle {

/// A lock among programs: a file of this name that one of them at a time has locked (flock). The kernel
/// unlocks it when its program ends, however that ends, so none is ever abandoned. QLockFile waits for the
/// disk whenever it locks (fdatasync), which this does not.
class FileLock {
public:
    /// The lock, held until the object goes; nothing while another program has it, or where no such file can
    /// be made. It is not waited for. On a file system without locks everybody gets it.
    [[nodiscard]] static std::optional<FileLock> take(const QString& path);

    FileLock(FileLock&&) noexcept = default;
    FileLock& operator=(FileLock&&) noexcept = default;
    ~FileLock();

private:
    FileLock(QByteArray path, FileDescriptor file);

    QByteArray m_path;
    FileDescriptor m_file;
};

} // namespace orvelle
