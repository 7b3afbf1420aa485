#pragma once

#include <QFont>
#include <QString>
#include <QStringList>

/// The desktop's fonts by role. Sizes are points of the design, which are logical pixels on every screen: the
/// same number of pixels whatever the screen's dots per inch, multiplied only by the device pixel ratio.
/// Fractional sizes are kept. Fonts change while the program runs: see theme/font_changes.h. Where the
/// desktop names no font of its own, a well-made family that is installed is taken instead of the generic
/// alias. A size that is not above 0 counts as 1, one above 1000 as 1000. Main thread only; needs a
/// QGuiApplication.
namespace orvelle {

/// The proportional font of the desktop's own controls.
[[nodiscard]] QFont systemFont(double size, QFont::Weight weight = QFont::Normal);

/// The desktop's fixed-width font, whose digits all have the same width.
[[nodiscard]] QFont monospacedSystemFont(double size, QFont::Weight weight = QFont::Normal);

/// A family with rounded strokes where one is installed, else the same as `systemFont`.
[[nodiscard]] QFont roundedSystemFont(double size, QFont::Weight weight = QFont::Normal);

/// The fonts that a desktop announces to all its programs, as descriptions: "Noto Sans Bold 11". Empty where
/// it does not say.
struct DesktopFontNames {
    QString proportional;
    QString monospaced;

    bool operator==(const DesktopFontNames&) const = default;
};

/// What the desktop announces goes before what Qt knows of it, where such a family is installed: Qt asks the
/// desktop once, or not at all.
void setDesktopFontNames(const DesktopFontNames& names);

/// Forgets what has been looked up, and tells it by `FontChanges`.
void lookUpFontsAnew();

/// The one of `families` that a description names: a comma separates several families to choose from, and
/// style and size follow the name. An empty string when there is none of them.
[[nodiscard]] QString describedFamily(const QString& description, const QStringList& families);

} // namespace orvelle
