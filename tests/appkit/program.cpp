#include "appkit/program.h"

#include "support/shown_modules.h"

#include <QKeyEvent>

#include <algorithm>

namespace orvelle {

using namespace simulated;

namespace {

/// Hides at Escape, as the real settings do.
class SettingsContent final : public QWindow {
    void keyPressEvent(QKeyEvent* event) override {
        if (event->key() == Qt::Key_Escape)
            hide();
    }
};

class RecordedWindowFactory final : public WindowFactory {
public:
    explicit RecordedWindowFactory(Program& program)
        : m_program(program) {}
    [[nodiscard]] std::unique_ptr<QWindow> makePanel(ModuleId module, double cornerRadius) override {
        m_program.panelCornerRadius = cornerRadius;
        return makeContent<QWindow>(moduleInfo(module).key, QSize(320, 500));
    }
    [[nodiscard]] std::unique_ptr<QWindow> makeSettings() override {
        return makeContent<SettingsContent>(QStringLiteral("settings"), QSize(460, 640));
    }

private:
    template <class Window>
    std::unique_ptr<QWindow> makeContent(const QString& name, QSize size) {
        m_program.contents.append(name);
        if (!m_program.canMakeContents)
            return nullptr;
        auto window = std::make_unique<Window>();
        window->resize(size);
        m_program.contentWindows.push_back(window.get());
        QObject::connect(window.get(), &QObject::destroyed, [this](QObject* gone) {
            std::erase_if(m_program.contentWindows, [gone](QWindow* present) { return present == gone; });
        });
        return window;
    }

    Program& m_program;
};

} // namespace

Program::Program()
    : delegate(monitor, settings, themes,
               {*statusBar,
                [this](const WindowContext& given) {
                    context.emplace(given);
                    return std::make_unique<RecordedWindowFactory>(*this);
                },
                [this](std::unique_ptr<QWindow> content) {
                    return desktop->makeSettingsWindow(std::move(content));
                }}) {
    showAll(true);
}

void Program::showAll(bool shown) {
    showEveryModule(settings, shown);
}

void AppKitTest::TearDown() {
    end();
    finishFading();
    EXPECT_EQ(desktop().live(), (std::map<std::string, std::size_t>{}));
    EXPECT_EQ(desktop().complaints(), std::vector<std::string>{});
}

Program& AppKitTest::launch() {
    program().delegate.applicationDidFinishLaunching();
    return program();
}

void AppKitTest::startAfresh() {
    AppKitTest::TearDown();
    startDesktop();
}

std::vector<std::string> itemIdentifiers() {
    std::vector<std::string> identifiers;
    for (const StatusItemState& item : statusItems())
        identifiers.push_back(item.identifier);
    return identifiers;
}

long shownPopoverCount() {
    return std::ranges::count_if(popovers(), &PopoverState::isShown);
}

PopoverState shownPopover() {
    EXPECT_EQ(shownPopoverCount(), 1);
    for (const PopoverState& popover : popovers()) {
        if (popover.isShown)
            return popover;
    }
    return {};
}

} // namespace orvelle
