#include "appkit/simulated/objects.h"
#include "shell/macos/hosted_window.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QPlatformSurfaceEvent>

#include <unordered_map>

using namespace orvelle::simulated;

// Replaces the answer of Qt on macOS: a view for each native window of a window, which a window that was
// closed loses, and gets anew when it is shown again. As in the oldest Qt that is supported, the view tells
// Qt that it has the keyboard only if it becomes the first responder of a window that has it already.

/// Sends what it gets on to a window of Qt.
@interface SimulatedQtView : NSView {
  @public
    QWindow* m_qtWindow; ///< null when the window has none of this view any more
    unsigned m_focused;  ///< when it told Qt, by the changes of the keyboard
    BOOL m_hasFocus;
}
@end

@implementation SimulatedQtView
- (BOOL)acceptsFirstResponder {
    return YES;
}
- (BOOL)becomeFirstResponder {
    desktop().expect(m_qtWindow != nullptr, "keys for a view that its window has given up");
    m_hasFocus = [[self window] isKeyWindow];
    m_focused = keyboardChanges();
    return YES;
}
- (BOOL)resignFirstResponder {
    m_hasFocus = NO;
    return YES;
}
/// Qt passes no key on, whether or not it has a use for it.
- (void)keyDown:(NSEvent*)event {
    QKeyEvent press(QEvent::KeyPress, event->m_key, Qt::NoModifier);
    if (isQtsViewWithFocus(self))
        QCoreApplication::sendEvent(m_qtWindow, &press);
}
@end

namespace orvelle {
namespace {

using View = Retained<SimulatedQtView*>;

std::unordered_map<const QObject*, View>& presentViews() {
    static std::unordered_map<const QObject*, View> views;
    return views;
}

/// Lets go of the view with the native window, when the listeners of the window have heard of it.
class ViewKeeper final : public QObject {
  public:
    explicit ViewKeeper(QWindow& window) : QObject(&window), m_window(window) {
        window.installEventFilter(this);
        connect(&window, &QWindow::visibleChanged, this, [this](bool visible) {
            if (const auto view = presentViews().find(&m_window); view != presentViews().end())
                [view->second.get() setHidden:visible ? NO : YES];
        });
    }
    ~ViewKeeper() override { presentViews().erase(&m_window); }
    ViewKeeper(const ViewKeeper&) = delete;
    ViewKeeper& operator=(const ViewKeeper&) = delete;

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::PlatformSurface &&
            static_cast<QPlatformSurfaceEvent*>(event)->surfaceEventType() ==
                QPlatformSurfaceEvent::SurfaceAboutToBeDestroyed)
            giveUpView();
        return QObject::eventFilter(watched, event);
    }

  private:
    void giveUpView() {
        const auto view = presentViews().find(&m_window);
        if (view == presentViews().end())
            return;
        [view->second.get() removeFromSuperview];
        view->second.get()->m_qtWindow = nullptr;
        m_last = std::move(view->second); // those who hear of it later may still use it
        presentViews().erase(view);
    }

    QWindow& m_window;
    View m_last;
};

View makeView(QWindow& window) {
    View view([[SimulatedQtView alloc] initWithFrame:NSMakeRect(0, 0, window.width(), window.height())]);
    view.get()->m_qtWindow = &window;
    [view.get() setHidden:window.isVisible() ? NO : YES];
    return view;
}

} // namespace

NSView* nativeView(QWindow& window) {
    window.create();
    if (window.findChild<QObject*>(QStringLiteral("ViewKeeper")) == nullptr)
        (new ViewKeeper(window))->setObjectName(QStringLiteral("ViewKeeper"));
    const auto known = presentViews().find(&window);
    if (known != presentViews().end())
        return known->second.get();
    return presentViews().emplace(&window, makeView(window)).first->second.get();
}

namespace simulated {

bool isQtsViewWithFocus(NSResponder* responder) {
    if (![responder isKindOfClass:[SimulatedQtView class]])
        return false;
    auto* const view = static_cast<SimulatedQtView*>(responder);
    return view->m_hasFocus && view->m_focused == keyboardChanges() && [[view window] isKeyWindow];
}

bool showsQtsContent(NSView* view) {
    return [view isKindOfClass:[SimulatedQtView class]] && ![view isHidden] &&
           static_cast<SimulatedQtView*>(view)->m_qtWindow != nullptr;
}

} // namespace simulated
} // namespace orvelle
