#pragma once

#include "settings/setting_value.h" // caseName

#include <QList>
#include <QMetaEnum>

namespace orvelle {

/// Every case of a style in the order of its declaration, so that a new case appears on the sheets by itself.
template <typename Style>
[[nodiscard]] QList<Style> everyCase() {
    const QMetaEnum type = QMetaEnum::fromType<Style>();
    QList<Style> cases;
    for (int index = 0; index < type.keyCount(); ++index)
        cases.append(static_cast<Style>(type.value(index)));
    return cases;
}

} // namespace orvelle
