#include "windows/panels/panel_window.h"

#include <QQuickItem>

namespace orvelle {

void PanelWindow::makeTranslucent() {
    QSurfaceFormat translucent = requestedFormat();
    translucent.setAlphaBufferSize(8);
    setFormat(translucent);
    setColor(Qt::transparent);
}

void PanelWindow::setPanel(QQuickItem& panel, QVariantMap frameProperties) {
    frameProperties.insert(QStringLiteral("content"), QVariant::fromValue(&panel));
    setInitialProperties(frameProperties);
    setSource(QUrl(QStringLiteral("qrc:/Orvelle/Panels/PanelPopoverContainer.qml")));
    setResizeMode(SizeRootObjectToView);
    if (rootObject() != nullptr)
        connect(rootObject(), SIGNAL(openSettings()), this, SLOT(openSettings()));
}

} // namespace orvelle
