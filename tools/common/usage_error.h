#pragma once

#include <QString>

namespace orvelle {

/// Why a command line cannot be taken, for a person to read.
struct UsageError {
    QString message;
};

} // namespace orvelle
