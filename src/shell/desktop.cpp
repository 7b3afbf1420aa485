#include "shell/desktop.h"

namespace orvelle {

Q_LOGGING_CATEGORY(openLog, "orvelle.open", QtInfoMsg)

} // namespace orvelle
