#include "shell/macos/hosted_window.h"

#include <unordered_map>

// Replaces the answer of Qt on macOS: a view for each window, which lives as long as the window.
namespace orvelle {

NSView* nativeView(QWindow& window) {
    static std::unordered_map<const QObject*, Retained<NSView*>> views;
    const auto known = views.find(&window);
    if (known != views.end())
        return known->second.get();
    QObject::connect(&window, &QObject::destroyed, [](QObject* destroyed) { views.erase(destroyed); });
    const NSRect frame = NSMakeRect(0, 0, window.width(), window.height());
    Retained<NSView*> view([[NSView alloc] initWithFrame:frame]);
    return views.emplace(&window, std::move(view)).first->second.get();
}

} // namespace orvelle
