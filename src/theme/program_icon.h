#pragma once

#include <QIcon>

namespace orvelle {

/// The program's own icon, for its windows, in the sizes that window managers ask for. It is drawn anew by
/// each call. Needs a QGuiApplication.
[[nodiscard]] QIcon programIcon();

} // namespace orvelle
