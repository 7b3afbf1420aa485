#include "shell/tray/tray_strip.h"

#include <cmath>

namespace orvelle {

TrayStrip::TrayStrip(const MakePopup& makePopup) {
    m_window.setTitle(QStringLiteral("Orvelle tabs"));
    // The panel stays open wherever a window manager moves the strip.
    QObject::disconnect(&m_window, &QWindow::yChanged, &bar(), nullptr);
    if (makePopup)
        m_popup = makePopup(m_window);
}

QSize TrayStrip::wantedSize() const {
    if (m_popup == nullptr || bar().items().size() < 2)
        return {};
    double width = 2 * barRightMarginPoints;
    for (const auto& item : bar().items())
        width += item->length();
    return {static_cast<int>(std::ceil(width)), barHeightPoints};
}

void TrayStrip::select(const QString& identifier) {
    for (const auto& item : bar().items())
        item->setHighlighted(item->identifier() == identifier);
}

void TrayStrip::show(QScreen& screen, const QRect& geometry) {
    const bool isThere = isShown() && m_geometry == geometry;
    m_geometry = geometry;
    if (m_popup != nullptr && !isThere)
        m_popup->show(screen, geometry, {});
}

void TrayStrip::hide() {
    if (m_popup != nullptr)
        m_popup->close();
}

} // namespace orvelle
