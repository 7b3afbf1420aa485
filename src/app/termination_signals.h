#pragma once

#include <QObject>
#include <QSocketNotifier>

#include <array>

namespace orvelle {

/// Turns SIGTERM and SIGINT into an event of the main thread, so that the program ends through its event
/// loop. At most one instance exists. After its destruction a signal ends the process at once.
class TerminationSignals : public QObject {
    Q_OBJECT

public:
    explicit TerminationSignals(QObject* parent = nullptr);
    ~TerminationSignals() override;

Q_SIGNALS:
    void received();

private:
    std::array<int, 2> m_pipe; ///< the read end, then the end that the signal handler writes to
    QSocketNotifier m_notifier;
};

} // namespace orvelle
