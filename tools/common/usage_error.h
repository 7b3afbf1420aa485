#pragma once

#include <QString>

namespace orvelle {

/// Why a command line cannot be taken, in one line for a person to read.
struct UsageError {
    QString message;
};

} // namespace orvelle
