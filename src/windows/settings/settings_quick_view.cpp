#include "windows/settings/settings_quick_view.h"

#include <QQuickItem>

namespace orvelle {

void SettingsQuickView::open() {
    setSource(QUrl(QStringLiteral("qrc:/Orvelle/Settings/SettingsScrollView.qml")));
    if (rootObject() == nullptr)
        return; // the engine has told why
    setColor(rootObject()->property("color").value<QColor>());
    connect(rootObject(), SIGNAL(quitApp()), this, SLOT(quitApp()));
}

} // namespace orvelle
