#pragma once

#include <QObject>
#include <QSocketNotifier>

#include <array>

namespace orvelle {

/// Turns SIGTERM and SIGINT into an event of the main thread, so that the program ends through its event
/// loop. At most one instance exists. A signal that comes after its destruction ends the process at once.
class TerminationSignals : public QObject {
    Q_OBJECT

public:
    explicit TerminationSignals(QObject* parent = nullptr);
    ~TerminationSignals() override;

Q_SIGNALS:
    void received();

private:
    std::array<int, 2> m_pipe; ///< the end that is read, then the end that the signal handler writes
    QSocketNotifier m_notifier;
};

} // namespace orvelle
