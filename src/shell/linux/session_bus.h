#pragma once

#include <QByteArray>

#include <chrono>
#include <optional>

/// The message bus of the user's session, before anything connects to it.
namespace orvelle {

/// The name of the Unix socket of a bus, as the kernel takes it, from the address of the bus; the name begins
/// with a null character where it stands for no file. Nothing when the bus is reached in another way.
[[nodiscard]] std::optional<QByteArray> busSocket(const QByteArray& address);

/// Whether a bus takes a connection and then does not answer within `patience`. False when it cannot be
/// asked: there is no such socket, or nobody listens.
[[nodiscard]] bool isSilent(const QByteArray& socketName, std::chrono::milliseconds patience);

/// Whether a client of this address of a bus would start a program: one that runs the bus, or one that leads
/// to it. `hasSocket` tells whether there is the socket that clients use when no address is given.
[[nodiscard]] bool startsProgram(const QByteArray& address, bool hasSocket);

/// Hides the session's bus from this process when using it would start a program. libdbus would otherwise
/// start a bus that nobody ends. To be called before the application object exists.
void avoidStartingSessionBus();

/// Hides the session's bus from this process when it is silent, and says so on standard error. Qt would ask
/// it in the main thread, whenever it looks for assistive programs, and wait for ever. To be called before
/// the application object exists.
void avoidSilentSessionBus(std::chrono::milliseconds patience = std::chrono::seconds(2));

/// Keeps libdbus from aborting the process where Qt asks a bus that has ended a moment ago. To be called
/// before anything connects.
void outliveSessionBus();

} // namespace orvelle
