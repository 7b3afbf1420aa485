#include "app/shell/x11/x11_popover.h"

#include "app/shell/open_log.h"
#include "app/shell/x11/transient_geometry.h"

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
    if (m_transient)
        m_transient->close();
}

void X11Popover::open() {
    const bool isOpen = m_transient && m_transient->isShown();
    if (!isShown() || isOpen)
        return; // it has been closed again, or two of these were on their way
    TransientWindow* transient = transientWindow();
    if (transient == nullptr) {
        setItem(nullptr);
        return;
    }
    keepWindow();
    QScreen& screen = *m_bar.screen();
    const QRectF bounds = m_bar.desktopBounds(*m_item);
    transient->show(screen, popoverGeometry(bounds, m_size, screen.geometry()), bounds);
}

TransientWindow* X11Popover::transientWindow() {
    if (m_transient)
        return &*m_transient;
    m_window = m_makeContent(TransientWindow::cornerRadiusPoints);
    if (m_window == nullptr)
        return nullptr;
    m_size = m_window->size();
    TransientWindow& made = m_transient.emplace(*m_window);
    connect(&made, &TransientWindow::closed, this, [this] { setItem(nullptr); });
    connect(&made, &TransientWindow::dismissed, this, [this] { m_dismissed(); });
    connect(&made, &TransientWindow::painted, this, &X11Popover::logPainted);
    return &made;
}

void X11Popover::releaseWindow() {
    m_transient.reset();
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
