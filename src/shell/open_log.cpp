#include "shell/open_log.h"

namespace orvelle {

Q_LOGGING_CATEGORY(openLog, "orvelle.open", QtInfoMsg)

} // namespace orvelle
