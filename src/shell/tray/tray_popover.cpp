#include "shell/tray/tray_popover.h"

#include <utility>

namespace orvelle {

StagedPopup::StagedPopup(TrayStage& stage, std::unique_ptr<Popup> popup, std::function<void()> vanished)
    : m_stage(stage)
    , m_popup(std::move(popup))
    , m_vanished(std::move(vanished)) {
    connect(m_popup.get(), &Popup::closed, this, &StagedPopup::handleClosed);
    connect(m_popup.get(), &Popup::painted, this, &Popup::painted);
    connect(m_popup.get(), &Popup::dismissed, this, [this] {
        m_isToldToClose = true; // by Escape
        Q_EMIT dismissed();
    });
}

void StagedPopup::show(QScreen& /*screen*/, const QRect& geometry, const QRectF& /*spared*/) {
    m_isToldToClose = false;
    m_stage.popupOpens();
    m_popup->show(m_stage.screen(), m_stage.placeOf(geometry), m_stage.sparedRectangle());
    m_stage.popupChanged();
}

void StagedPopup::close() {
    m_isToldToClose = true;
    m_popup->close();
}

void StagedPopup::handleClosed() {
    if (!m_isToldToClose)
        m_vanished();
    Q_EMIT closed();
    m_stage.popupChanged();
}

TrayPopover::TrayPopover(TrayStage& stage, Bar& tabs, KeptPopovers& kept, const MakePopup& makePopup,
                         const PopoverContent& makeContent, Events events)
    : m_stage(stage)
    , m_events(std::move(events))
    , m_popover(
          tabs, kept,
          [this, makePopup](QWindow& window) {
              return std::make_unique<StagedPopup>(m_stage, makePopup(window),
                                                   [this] { m_events.vanished(m_identifier); });
          },
          makeContent) {
    m_stage.add(*this);
}

TrayPopover::~TrayPopover() {
    m_stage.remove(*this);
}

void TrayPopover::show(const StatusItem& item) {
    m_identifier = item.identifier();
    m_events.shown(m_identifier);
    m_popover.show(static_cast<const TrayStatusItem&>(item).tab());
}

void TrayPopover::close() {
    m_popover.close();
    m_stage.popupChanged();
}

TrayContextMenu::TrayContextMenu(TrayStage& stage, Bar& tabs, const MakePopup& makePopup)
    : m_stage(stage)
    , m_menu(
          tabs,
          [this, &makePopup](QWindow& window) {
              auto popup = std::make_unique<StagedPopup>(m_stage, makePopup(window), [] {});
              m_popup = popup.get();
              return popup;
          },
          [] {}) {
    m_stage.add(*this);
}

TrayContextMenu::~TrayContextMenu() {
    m_stage.remove(*this);
}

void TrayContextMenu::show(const StatusItem& item, std::vector<MenuEntry> entries) {
    m_menu.show(static_cast<const TrayStatusItem&>(item).tab(), std::move(entries));
}

} // namespace orvelle
