#pragma once

#include <QByteArray>
#include <QString>

namespace orvelle {

/// What a start of the program asks of the one that runs on the desktop already.
struct StartRequest {
    enum class Kind {
        startAgain,   ///< no more than to be noticed
        openSettings, ///< the settings window
        openPanel,    ///< the panel of a module
        quit,         ///< to end
    };

    Kind kind = Kind::startAgain;
    QString module; ///< its key, for `openPanel`; the one that runs may not know it

    friend bool operator==(const StartRequest&, const StartRequest&) = default;
};

/// The longest text of a request, in bytes: what a message of an X server holds.
inline constexpr int longestStartRequest = 20;

/// The longest key of a module that a request can name, in bytes.
inline constexpr int longestRequestedModule = 15;

/// The request as one line of text without its end. The module's key is of letters and digits, and not too
/// long.
[[nodiscard]] QByteArray startRequestText(const StartRequest& request);

/// The request with this text. Any other text means `startAgain`: an older or newer version of the program
/// may have sent it, and no version asks for less.
[[nodiscard]] StartRequest parseStartRequest(QByteArrayView text);

} // namespace orvelle
