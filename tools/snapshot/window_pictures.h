#pragma once

#include <QImage>
#include <QList>
#include <QString>

class QQuickView;

namespace orvelle {

class SystemMonitor;
struct FreshSettings;

/// The content of a window, without its frame.
struct WindowPicture {
    QString name; ///< of the file, without scale and ending
    QImage image;
};

/// The present content of a window, which must have been shown. Its scale is that of the application's
/// screen.
[[nodiscard]] QImage pictureOf(QQuickView& window);

/// The panels of all modules with the present values of `monitor`. Their windows are shown meanwhile.
[[nodiscard]] QList<WindowPicture> panelPictures(SystemMonitor& monitor, FreshSettings& settings);

/// A size and state of the settings window.
struct SettingsPose {
    QString name;            ///< of the picture
    QSize size;              ///< points
    bool isUnfolded = false; ///< the foldable groups
    bool isWhole = false;    ///< as high as its content, so that nothing scrolls
};

/// The whole window unfolded and folded, at its smallest size, and whole and unfolded at its smallest width.
[[nodiscard]] QList<SettingsPose> settingsPoses();

/// The window is shown meanwhile.
[[nodiscard]] WindowPicture settingsPicture(FreshSettings& settings, const SettingsPose& pose);

} // namespace orvelle
