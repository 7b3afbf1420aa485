#pragma once

#include <QObject>

namespace orvelle {

/// Held by the only process of the program on its desktop; others cannot hold one until it is destroyed or
/// the process ends. Main thread only.
class SingleInstance : public QObject {
    Q_OBJECT

Q_SIGNALS:
    /// The user started the program once more; that process has ended again.
    void startedAgain();
};

} // namespace orvelle
