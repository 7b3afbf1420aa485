#pragma once

#include "shell/start_request.h"

#include <QString>
#include <QStringList>

namespace orvelle {

/// The exit status of a program that was started with arguments that it does not know.
inline constexpr int wrongUsageStatus = 2;

/// What the user asks for when the program is started.
struct CommandLine {
    QString answer;       ///< what the program prints before it ends at once, for `--help`; else empty
    QString desktop;      ///< `--desktop`, one of the known names
    StartRequest request; ///< of the program that runs, or of this one when there is none
    QString error;        ///< one line for the user when the arguments are not understood; else empty
};

/// Reads the arguments, the first of which is the program's name. `desktopNames` are the known desktops, the
/// first of which is used when none is named. Needs no application object.
[[nodiscard]] CommandLine parseCommandLine(const QStringList& arguments, const QStringList& desktopNames);

} // namespace orvelle
