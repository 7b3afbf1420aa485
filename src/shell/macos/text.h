#pragma once

#include <Foundation/Foundation.h>

#include <QString>

namespace orvelle {

/// The text for the system, lent until the pool ends.
[[nodiscard]] NSString* systemText(const QString& text);

/// The text of the system; null when there is none.
[[nodiscard]] QString qtText(NSString* text);

} // namespace orvelle
