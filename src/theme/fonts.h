#pragma once

#include <QFont>
#include <QObject>
#include <QString>
#include <QStringList>

/// The desktop's fonts by role. A size is in points of the design, which are logical pixels on every screen:
/// only the device pixel ratio scales them, the screen's dots per inch do not. Fractional sizes are kept.
/// Where the desktop names no font of its own, an installed family of good quality replaces the generic
/// alias. A size that is not above 0 counts as 1, one above 1000 as 1000. Main thread only; needs a
/// QGuiApplication.
namespace orvelle {

/// The proportional font of the desktop's own controls.
[[nodiscard]] QFont systemFont(double size, QFont::Weight weight = QFont::Normal);

/// The desktop's fixed-width font, whose digits all have the same width.
[[nodiscard]] QFont monospacedSystemFont(double size, QFont::Weight weight = QFont::Normal);

/// The system's font with rounded strokes, or a family with such strokes that is installed, else the same as
/// `systemFont`.
[[nodiscard]] QFont roundedSystemFont(double size, QFont::Weight weight = QFont::Normal);

/// Signals that the fonts above may have changed, with the desktop's choice or with what is installed, so
/// that texts must be laid out again. Main thread only.
class FontChanges final : public QObject {
    Q_OBJECT

public:
    /// The instance of the process. It lives as long as the application object.
    [[nodiscard]] static FontChanges& shared();

Q_SIGNALS:
    /// Fonts that are asked for from now on may differ.
    void changed();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    explicit FontChanges(QObject* application);
};

/// The fonts that a desktop announces to all its programs, as descriptions: "Noto Sans Bold 11". Empty where
/// it announces none.
struct DesktopFontNames {
    QString proportional;
    QString monospaced;

    bool operator==(const DesktopFontNames&) const = default;
};

/// Sets what the desktop announces. It takes precedence over what Qt knows, where such a family is installed:
/// Qt asks the desktop once, or not at all.
void setDesktopFontNames(const DesktopFontNames& names);

/// The families of the system's own font in other designs, as Qt knows them. Empty where there is none.
struct DesignedFontFamilies {
    QString monospaced;
    QString rounded;

    bool operator==(const DesignedFontFamilies&) const = default;
};

/// Sets what the system has. What a desktop announces takes precedence, what is merely installed does not.
void setDesignedFontFamilies(const DesignedFontFamilies& families);

/// Has Qt load the system's own font in other designs, and sets them. Only on macOS, where Qt knows none of
/// them: system_fonts.mm.
void useSystemFontDesigns();

/// The one of `families` that a description names, or an empty string. A comma separates alternatives, and
/// style and size follow the name.
[[nodiscard]] QString describedFamily(const QString& description, const QStringList& families);

} // namespace orvelle
