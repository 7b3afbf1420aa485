#include "shell/painted/bar_popups.h"

#include "shell/desktop.h"

#include <QScreen>

namespace orvelle {
namespace {

constexpr std::size_t keptWindowCount = 2;

} // namespace

BarPopover::BarPopover(Bar& bar, KeptPopovers& kept, MakePopup makePopup, PopoverContent makeContent,
                       std::function<void()> dismissed)
    : m_bar(bar)
    , m_kept(kept)
    , m_makePopup(std::move(makePopup))
    , m_makeContent(std::move(makeContent))
    , m_dismissed(std::move(dismissed)) {
    connect(&m_bar, &Bar::moved, this, &BarPopover::close); // another dock has come or gone
}

BarPopover::~BarPopover() {
    std::erase(m_kept, this);
}

void BarPopover::show(const StatusItem& item) {
    if (!isShown())
        QMetaObject::invokeMethod(this, &BarPopover::open, Qt::QueuedConnection);
    m_sinceShow.start();
    setItem(&item);
}

void BarPopover::close() {
    setItem(nullptr);
    if (m_popup)
        m_popup->close();
}

void BarPopover::open() {
    const bool isOpen = m_popup && m_popup->isShown();
    if (!isShown() || isOpen)
        return; // it has been closed again, or two of these were on their way
    Popup* opened = popup();
    if (opened == nullptr) {
        setItem(nullptr);
        return;
    }
    keepWindow();
    QScreen& screen = *m_bar.place().screen;
    const QRectF bounds = m_bar.desktopBounds(*m_item);
    opened->show(screen, popoverGeometry(bounds, m_size, screen.geometry()), bounds);
}

Popup* BarPopover::popup() {
    if (m_popup != nullptr)
        return m_popup.get();
    m_window = m_makeContent(popupCornerRadiusPoints);
    if (m_window == nullptr)
        return nullptr;
    m_size = m_window->size();
    m_popup = m_makePopup(*m_window);
    connect(m_popup.get(), &Popup::closed, this, [this] { setItem(nullptr); });
    connect(m_popup.get(), &Popup::dismissed, this, [this] { m_dismissed(); });
    connect(m_popup.get(), &Popup::painted, this, &BarPopover::logPainted);
    return m_popup.get();
}

void BarPopover::releaseWindow() {
    m_popup.reset();
    m_window.reset();
}

void BarPopover::keepWindow() {
    std::erase(m_kept, this);
    m_kept.push_back(this);
    if (m_kept.size() > keptWindowCount) {
        m_kept.front()->releaseWindow();
        m_kept.erase(m_kept.begin());
    }
}

void BarPopover::setItem(const StatusItem* item) {
    if (m_item != nullptr)
        m_bar.setExpanded(*m_item, false);
    m_item = item;
    if (m_item != nullptr)
        m_bar.setExpanded(*m_item, true);
}

void BarPopover::logPainted() {
    if (isShown())
        qCDebug(openLog, "the %s panel was painted %.1f ms after it was asked for",
                qPrintable(m_item->identifier()), static_cast<double>(m_sinceShow.nsecsElapsed()) / 1e6);
}

BarContextMenu::BarContextMenu(const Bar& bar, const MakePopup& makePopup, std::function<void()> dismissed)
    : m_bar(bar)
    , m_popup(makePopup(m_window)) {
    connect(m_popup.get(), &Popup::dismissed, this, std::move(dismissed));
    connect(m_popup.get(), &Popup::closed, this, [this] { m_item = nullptr; });
    connect(&m_bar, &Bar::moved, this, &BarContextMenu::close); // another dock has come or gone
    connect(&m_window, &MenuWindow::chosen, this, &BarContextMenu::choose);
}

void BarContextMenu::show(const StatusItem& item, std::vector<MenuEntry> entries) {
    const bool wasShownThere = m_item == &item;
    close();
    if (wasShownThere)
        return;
    m_item = &item;
    m_window.setEntries(std::move(entries));
    QScreen& screen = *m_bar.place().screen;
    const QRectF bounds = m_bar.desktopBounds(item);
    m_popup->show(screen, menuGeometry(bounds, m_window.wantedSize(), screen.geometry()), bounds);
}

void BarContextMenu::choose(std::size_t index) {
    // A copy, because the action may end the menu.
    const std::function<void()> action = m_window.entries().at(index).action;
    close();
    if (action)
        action();
}

} // namespace orvelle
