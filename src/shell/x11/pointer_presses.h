#pragma once

#include <QAbstractNativeEventFilter>
#include <QObject>

#include <cstdint>

namespace orvelle {

/// Tells of every press of a mouse button on the desktop while it exists, also of those that are meant for
/// other programs, which receive them all the same: it listens to the pointing devices themselves and grabs
/// nothing. Silent where the server cannot tell. Main thread only.
class PointerPresses : public QObject, private QAbstractNativeEventFilter {
    Q_OBJECT

public:
    PointerPresses();
    ~PointerPresses() override;

Q_SIGNALS:
    /// Turning a wheel is no press.
    void pressed();

private:
    bool nativeEventFilter(const QByteArray& eventType, void* message, qintptr* result) override;

    std::uint8_t m_extension = 0; ///< the number that the server gave the extension; 0 when there is none
};

} // namespace orvelle
