#pragma once

#include "look/label_colors.h"
#include "settings/system_colors.h"

#include <QFont>
#include <QObject>
#include <QtQml/qqmlregistration.h>

namespace orvelle {

/// The desktop's colours and fonts by role, to QML. No other place of the panels names a colour, apart from
/// the modules' and the theme's.
class Look : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(QColor red READ red CONSTANT)
    Q_PROPERTY(QColor orange READ orange CONSTANT)
    Q_PROPERTY(QColor yellow READ yellow CONSTANT)
    Q_PROPERTY(QColor green READ green CONSTANT)
    Q_PROPERTY(QColor cyan READ cyan CONSTANT)
    Q_PROPERTY(QColor white READ white CONSTANT)
    Q_PROPERTY(QColor clear READ clear CONSTANT)
    Q_PROPERTY(QColor primaryLabel READ primaryLabel CONSTANT)
    Q_PROPERTY(QColor secondaryLabel READ secondaryLabel CONSTANT)
    Q_PROPERTY(QColor valueLabel READ valueLabel CONSTANT)
    Q_PROPERTY(QColor separator READ separator CONSTANT)
    Q_PROPERTY(QColor tooltip READ tooltip CONSTANT)

public:
    [[nodiscard]] static QColor red() { return SystemColors::red; }
    [[nodiscard]] static QColor orange() { return SystemColors::orange; }
    [[nodiscard]] static QColor yellow() { return SystemColors::yellow; }
    [[nodiscard]] static QColor green() { return SystemColors::green; }
    [[nodiscard]] static QColor cyan() { return SystemColors::cyan; }
    [[nodiscard]] static QColor white() { return SystemColors::white; }
    [[nodiscard]] static QColor clear() { return Qt::transparent; }
    [[nodiscard]] static QColor primaryLabel() { return LabelColors::primary; }
    [[nodiscard]] static QColor secondaryLabel() { return LabelColors::secondary; }
    /// Values of the second rank.
    [[nodiscard]] static QColor valueLabel() { return faded(SystemColors::white, 0.8); }
    /// The lines between sections.
    [[nodiscard]] static QColor separator() { return faded(SystemColors::white, 0.35); }

    /// The ground of a help text: dark under every theme.
    [[nodiscard]] static QColor tooltip() { return SystemColors::grey.darker(300); }

    /// The colour at an opacity, 0 to 1, whatever opacity it had.
    Q_INVOKABLE [[nodiscard]] static QColor faded(const QColor& color, double opacity);

    /// Fonts of a size in points; the weight is one of QML's `Font` weights.
    Q_INVOKABLE [[nodiscard]] static QFont systemFont(double size, int weight);
    Q_INVOKABLE [[nodiscard]] static QFont monospacedFont(double size, int weight);
};

} // namespace orvelle
