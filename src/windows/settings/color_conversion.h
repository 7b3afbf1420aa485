#pragma once

#include <QColor>
#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

namespace orvelle {

/// A colour as the sliders of the color picker set it. Each component is from 0 to 1. `QColor` would store
/// them in 16 bits, from which not every 8-bit colour can be restored.
struct HSBColor {
    Q_GADGET
    Q_PROPERTY(double hue MEMBER hue CONSTANT)
    Q_PROPERTY(double saturation MEMBER saturation CONSTANT)
    Q_PROPERTY(double brightness MEMBER brightness CONSTANT)
public:
    double hue = 0; ///< a full turn from red over green and blue back to red
    double saturation = 0;
    double brightness = 0;
};

/// Converts colours between 8-bit RGB, HSB and texts.
class ColorConversion : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    /// A grey has no hue: it gets `hueOfGrey`.
    Q_INVOKABLE static orvelle::HSBColor hsbFromColor(const QColor& color, double hueOfGrey);
    /// The nearest 8-bit colour: the inverse of `hsbFromColor`.
    Q_INVOKABLE static QColor colorFromHSB(double hue, double saturation, double brightness);

    /// The colour that a text spells, or else `fallback` made opaque.
    Q_INVOKABLE static QColor colorFromHex(const QString& hex, const QColor& fallback);
    Q_INVOKABLE static QString hexFromColor(const QColor& color);
};

} // namespace orvelle
