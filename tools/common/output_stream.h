#pragma once

#include <QByteArray>

#include <chrono>

namespace orvelle {

/// Text for a reader who may leave at any time, such as the other end of a pipe. Whoever uses it ignores
/// SIGPIPE.
class OutputStream {
public:
    enum class Result {
        written,
        readerGone, ///< nobody reads any more
        failed,     ///< a full disk, a closed descriptor
    };

    /// Writes to an open file, which stays the caller's.
    explicit OutputStream(int descriptor)
        : m_descriptor(descriptor) {}

    /// Writes all of the text, and waits for a slow reader.
    [[nodiscard]] Result write(const QByteArray& text) const;

    /// Waits until `deadline`. Returns false at once when the reader leaves.
    [[nodiscard]] bool waitUntil(std::chrono::steady_clock::time_point deadline) const;

private:
    int m_descriptor;
};

} // namespace orvelle
