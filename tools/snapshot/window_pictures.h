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

/// The settings as high as they are, with what can be unfolded unfolded. The window is shown while it is
/// painted.
[[nodiscard]] WindowPicture settingsPicture(FreshSettings& settings);

} // namespace orvelle
