#pragma once

#include <QColor>
#include <QObject>

/// A colour by what the sliders of the settings window set. `QColor` would keep these parts in 16 bits, from
/// which not every colour of 8 bits comes back.
namespace orvelle {

/// Each from 0 to 1.
struct ColorParts {
    Q_GADGET
    Q_PROPERTY(double hue MEMBER hue CONSTANT)
    Q_PROPERTY(double saturation MEMBER saturation CONSTANT)
    Q_PROPERTY(double brightness MEMBER brightness CONSTANT)
public:
    double hue = 0; ///< once around the circle from red over green and blue
    double saturation = 0;
    double brightness = 0;
};

/// The parts of a colour's 8-bit components. A grey has no hue: it gets the one that is given.
[[nodiscard]] ColorParts colorParts(const QColor& color, double hueOfGrey);

/// The colour of 8 bits per component that is nearest to these parts; the very one that they are the parts
/// of.
[[nodiscard]] QColor colorOfParts(const ColorParts& parts);

} // namespace orvelle
