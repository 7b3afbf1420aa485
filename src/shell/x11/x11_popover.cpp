#include "shell/x11/x11_popover.h"

#include "shell/open_log.h"
#include "shell/painted/popup_geometry.h"

#include <QScreen>

namespace orvelle {
namespace {

constexpr std::size_t keptWindowCount = 3;

} // namespace

X11Popover::X11Popover(BarWindow& bar, KeptPopovers& kept, PopoverContent makeContent,
                       std::function<void()> dismissed)
    : m_bar(bar)
    , m_kept(kept)
    , m_makeContent(std::move(makeContent))
    , m_dismissed(std::move(dismissed)) {
    connect(&m_bar, &QWindow::yChanged, this, &X11Popover::close); // another dock has come or gone
}

X11Popover::~X11Popover() {
    std::erase(m_kept, this);
}

void X11Popover::show(const StatusItem& item) {
    if (!isShown())
        QMetaObject::invokeMethod(this, &X11Popover::open, Qt::QueuedConnection);
    m_sinceShow.start();
    setItem(&item);
}

void X11Popover::close() {
    setItem(nullptr);
    if (m_popup)
        m_popup->close();
}

void X11Popover::open() {
    const bool isOpen = m_popup && m_popup->isShown();
    if (!isShown() || isOpen)
        return; // it has been closed again, or two of these were on their way
    PopupWindow* popup = popupWindow();
    if (popup == nullptr) {
        setItem(nullptr);
        return;
    }
    keepWindow();
    QScreen& screen = *m_bar.screen();
    const QRectF bounds = m_bar.desktopBounds(*m_item);
    popup->show(screen, popoverGeometry(bounds, m_size, screen.geometry()), bounds);
}

PopupWindow* X11Popover::popupWindow() {
    if (m_popup)
        return &*m_popup;
    m_window = m_makeContent(popupCornerRadiusPoints);
    if (m_window == nullptr)
        return nullptr;
    m_size = m_window->size();
    PopupWindow& made = m_popup.emplace(*m_window);
    connect(&made, &PopupWindow::closed, this, [this] { setItem(nullptr); });
    connect(&made, &PopupWindow::dismissed, this, [this] { m_dismissed(); });
    connect(&made, &PopupWindow::painted, this, &X11Popover::logPainted);
    return &made;
}

void X11Popover::releaseWindow() {
    m_popup.reset();
    m_window.reset();
}

void X11Popover::keepWindow() {
    std::erase(m_kept, this);
    m_kept.push_back(this);
    if (m_kept.size() > keptWindowCount) {
        m_kept.front()->releaseWindow();
        m_kept.erase(m_kept.begin());
    }
}

void X11Popover::setItem(const StatusItem* item) {
    if (m_item != nullptr)
        m_bar.setExpanded(*m_item, false);
    m_item = item;
    if (m_item != nullptr)
        m_bar.setExpanded(*m_item, true);
}

void X11Popover::logPainted() {
    if (isShown())
        qCDebug(openLog, "the %s panel was painted %.1f ms after it was asked for",
                qPrintable(m_item->identifier()), static_cast<double>(m_sinceShow.nsecsElapsed()) / 1e6);
}

} // namespace orvelle
