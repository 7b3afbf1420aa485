#pragma once

#include <QColor>

namespace orvelle {

inline const QColor systemRed(255, 69, 58);
inline const QColor systemYellow(255, 214, 10);

} // namespace orvelle
