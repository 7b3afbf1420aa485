#pragma once

#include <QImage>
#include <QList>
#include <QString>

class QQuickView;

namespace orvelle {

class SystemMonitor;
struct FreshSettings;

/// What a window shows, without its frame.
struct WindowPicture {
    QString name; ///< of the file, without scale and ending
    QImage image;
};

/// What this window shows now. It must have been shown; its scale is that of the application's screen.
[[nodiscard]] QImage pictureOf(QQuickView& window);

/// The panels of all modules with what `monitor` holds now. Their windows are shown while they are painted.
[[nodiscard]] QList<WindowPicture> panelPictures(SystemMonitor& monitor, FreshSettings& settings);

/// How the settings window stands in a picture.
struct SettingsPose {
    QString name;            ///< of the picture
    QSize size;              ///< points
    bool isUnfolded = false; ///< what can be unfolded
    bool isWhole = false;    ///< as high as everything that could be scrolled to
};

/// All of it, unfolded and folded; as it stands at its smallest; and all of it unfolded at its smallest
/// width.
[[nodiscard]] QList<SettingsPose> settingsPoses();

/// The window is shown while it is painted.
[[nodiscard]] WindowPicture settingsPicture(FreshSettings& settings, const SettingsPose& pose);

} // namespace orvelle
