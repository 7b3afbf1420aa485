#pragma once

#include <QObject>
#include <QSocketNotifier>

#include <memory>

struct wl_display;

namespace orvelle {

/// A connection to a Wayland compositor besides that of Qt. Events are handled when they arrive; requests are
/// sent before the event loop waits. Main thread only.
class WaylandConnection final : public QObject {
    Q_OBJECT

public:
    /// Connects to the compositor that the environment names. Null when it cannot be reached; then `reason`
    /// says why.
    [[nodiscard]] static std::unique_ptr<WaylandConnection> open(QString& reason);
    /// Takes over a socket that is connected to a compositor; null when it is none.
    [[nodiscard]] static std::unique_ptr<WaylandConnection> overSocket(int socket);
    ~WaylandConnection() override;

    /// Valid, but of no more use, when the connection is lost.
    [[nodiscard]] wl_display* display() const { return m_display; }
    [[nodiscard]] bool isLost() const { return m_isLost; }

Q_SIGNALS:
    /// The compositor has ended or has refused a request; no event comes any more. Emitted once, from the
    /// event loop.
    void lost(const QString& reason);

private:
    explicit WaylandConnection(wl_display* display);
    void read();
    void flush();
    void lose();
    [[nodiscard]] QString lossReason() const;

    wl_display* m_display;
    QSocketNotifier m_readable;
    QSocketNotifier m_writable;
    bool m_isLost = false;
};

} // namespace orvelle
