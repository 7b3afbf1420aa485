#pragma once

#include <QFont>
#include <QObject>
#include <QtQml/qqmlregistration.h>

namespace orvelle {

/// The fonts of `Look`. A size is in points; a weight is one of QML's `Font` weights.
class LookFonts : public QObject {
    Q_OBJECT
    QML_ANONYMOUS

public:
    using QObject::QObject;

    Q_INVOKABLE [[nodiscard]] static QFont system(double size, int weight);
    Q_INVOKABLE [[nodiscard]] static QFont monospaced(double size, int weight);
};

} // namespace orvelle
