#pragma once

#include <QLoggingCategory>

namespace orvelle {

/// Tells when a window was asked for and when its first frame was shown. Off by default;
/// QT_LOGGING_RULES="orvelle.open.debug=true" switches it on.
Q_DECLARE_LOGGING_CATEGORY(openLog)

} // namespace orvelle
