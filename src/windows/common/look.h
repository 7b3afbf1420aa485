#pragma once

#include "theme/colors.h"

#include <QFont>
#include <QObject>
#include <QtQml/qqmlregistration.h>

#include <cmath>

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

/// The colours and fonts of the windows by role, to QML. Every colour of a window is one of these, of a
/// module or of the theme.
class Look : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(QColor red READ red CONSTANT)
    Q_PROPERTY(QColor orange READ orange CONSTANT)
    Q_PROPERTY(QColor yellow READ yellow CONSTANT)
    Q_PROPERTY(QColor green READ green CONSTANT)
    Q_PROPERTY(QColor cyan READ cyan CONSTANT)
    Q_PROPERTY(QColor blue READ blue CONSTANT)
    Q_PROPERTY(QColor grey READ grey CONSTANT)
    Q_PROPERTY(QColor white READ white CONSTANT)
    Q_PROPERTY(QColor clear READ clear CONSTANT)
    Q_PROPERTY(QColor primaryLabel READ primaryLabel CONSTANT)
    Q_PROPERTY(QColor secondaryLabel READ secondaryLabel CONSTANT)
    Q_PROPERTY(QColor nameLabel READ nameLabel CONSTANT)
    Q_PROPERTY(QColor valueLabel READ valueLabel CONSTANT)
    Q_PROPERTY(QColor itemLabel READ itemLabel CONSTANT)
    Q_PROPERTY(QColor track READ track CONSTANT)
    Q_PROPERTY(QColor listTrack READ listTrack CONSTANT)
    Q_PROPERTY(QColor partsTrack READ partsTrack CONSTANT)
    Q_PROPERTY(QColor card READ card CONSTANT)
    Q_PROPERTY(QColor hovered READ hovered CONSTANT)
    Q_PROPERTY(QColor pressed READ pressed CONSTANT)
    Q_PROPERTY(QColor chosen READ chosen CONSTANT)
    Q_PROPERTY(QColor faintOutline READ faintOutline CONSTANT)
    Q_PROPERTY(QColor hoverOutline READ hoverOutline CONSTANT)
    Q_PROPERTY(QColor scrollMark READ scrollMark CONSTANT)
    Q_PROPERTY(QColor separator READ separator CONSTANT)
    Q_PROPERTY(QColor tooltip READ tooltip CONSTANT)
    Q_PROPERTY(QColor window READ window CONSTANT)
    Q_PROPERTY(QColor popup READ popup CONSTANT)
    Q_PROPERTY(orvelle::LookFonts* fonts READ fonts NOTIFY fontsChanged)

public:
    explicit Look(QObject* parent = nullptr);

    [[nodiscard]] static QColor red() { return SystemColors::red; }
    [[nodiscard]] static QColor orange() { return SystemColors::orange; }
    [[nodiscard]] static QColor yellow() { return SystemColors::yellow; }
    [[nodiscard]] static QColor green() { return SystemColors::green; }
    [[nodiscard]] static QColor cyan() { return SystemColors::cyan; }
    [[nodiscard]] static QColor blue() { return SystemColors::blue; }
    [[nodiscard]] static QColor grey() { return SystemColors::grey; }
    [[nodiscard]] static QColor white() { return SystemColors::white; }
    [[nodiscard]] static QColor clear() { return Qt::transparent; }
    [[nodiscard]] static QColor primaryLabel() { return LabelColors::primary; }
    [[nodiscard]] static QColor secondaryLabel() { return LabelColors::secondary; }
    /// The name at the start of a row.
    [[nodiscard]] static QColor nameLabel() { return whiteAt(0.9); }
    /// Secondary values.
    [[nodiscard]] static QColor valueLabel() { return whiteAt(0.8); }
    /// Names in a long list, where the values matter more.
    [[nodiscard]] static QColor itemLabel() { return whiteAt(0.7); }

    /// The empty part of a bar or a ring.
    [[nodiscard]] static QColor track() { return whiteAt(0.08); }
    /// The track of the bars in a list.
    [[nodiscard]] static QColor listTrack() { return whiteAt(0.06); }
    /// The track of a ring that its segments fill: one of them is the empty part.
    [[nodiscard]] static QColor partsTrack() { return whiteAt(0.05); }
    /// The background of a card.
    [[nodiscard]] static QColor card() { return whiteAt(0.03); }
    /// The background of a control under the pointer, and of a pressed one.
    [[nodiscard]] static QColor hovered() { return whiteAt(0.08); }
    [[nodiscard]] static QColor pressed() { return whiteAt(0.16); }
    /// The background of the chosen one of several choices.
    [[nodiscard]] static QColor chosen() { return whiteAt(0.22); }
    /// The outline of a choice, and of the one under the pointer.
    [[nodiscard]] static QColor faintOutline() { return whiteAt(0.1); }
    [[nodiscard]] static QColor hoverOutline() { return whiteAt(0.3); }
    /// The mark of the scroll position.
    [[nodiscard]] static QColor scrollMark() { return whiteAt(0.25); }
    /// The lines between sections.
    [[nodiscard]] static QColor separator() { return whiteAt(0.35); }

    /// The background of a tooltip: dark under every theme.
    [[nodiscard]] static QColor tooltip() { return SystemColors::grey.darker(300); }

    /// The background of a window that no theme colours.
    [[nodiscard]] static QColor window() { return QColor::fromRgbF(0.1F, 0.1F, 0.1F); }
    /// The background of a popup over such a window.
    [[nodiscard]] static QColor popup() { return QColor::fromRgbF(0.16F, 0.16F, 0.17F); }

    Q_INVOKABLE [[nodiscard]] static QColor withOpacity(const QColor& color, double opacity) {
        return orvelle::withOpacity(color, opacity);
    }

    /// The position of an item of this extent in the middle of its parent: a whole point, so that it is as
    /// crisp as its neighbours. Anchors round differently in each release of Qt.
    Q_INVOKABLE [[nodiscard]] static double centred(double parentExtent, double extent) {
        return std::round((parentExtent - extent) / 2);
    }

    /// Always the same object. Its fonts differ after `fontsChanged`, which evaluates bindings that read it
    /// again.
    [[nodiscard]] LookFonts* fonts() { return &m_fonts; }

Q_SIGNALS:
    void fontsChanged();

private:
    [[nodiscard]] static QColor whiteAt(double opacity) { return withOpacity(SystemColors::white, opacity); }

    LookFonts m_fonts;
};

} // namespace orvelle
