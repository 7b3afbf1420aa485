#include "shell/tray/tray_status_item.h"

#include "theme/symbols.h"

#include <utility>

namespace orvelle {
namespace {

void paintProgramIcon(QPainter& painter, const QRectF& square) {
    programIcon().paint(&painter, square.toRect());
}

} // namespace

TrayStatusItem::TrayStatusItem(BarItem& tab, std::function<void()> changed)
    : m_tab(tab)
    , m_changed(std::move(changed))
    , m_icon{paintProgramIcon, {}, {}} {}

void TrayStatusItem::setPaint(ItemPaint paint) {
    m_tab.setPaint(std::move(paint));
}

void TrayStatusItem::setWords(const QString& name, const QString& text) {
    m_tab.setWords(name, text);
    m_changed();
}

void TrayStatusItem::setIcon(const ItemIcon& icon) {
    m_icon = icon;
    m_changed();
}

void TrayStatusItem::setClickHandler(std::function<void(ClickButton)> handler) {
    m_tab.setClickHandler(std::move(handler));
}

} // namespace orvelle
