#pragma once

#include "core/system_monitor.h"
#include "platform/replay/fake_sources.h"
#include "settings/settings_store.h"
#include "support/frames.h"
#include "support/temporary_settings.h"
#include "theme/colors.h"
#include "theme/theme_manager.h"
#include "windows/common/quick_engine.h"
#include "windows/panels/panel_factory.h"

#include <QQmlEngine>
#include <QQuickItem>
#include <gtest/gtest.h>

#include <algorithm>
#include <array>

namespace orvelle {

/// A scripted machine and its panels. A warning of Qt or QML fails the test.
class PanelFixture : public ::testing::Test {
public:
    PanelFixture() { s_previousHandler = qInstallMessageHandler(&PanelFixture::failOnMessage); }
    ~PanelFixture() override { qInstallMessageHandler(s_previousHandler); }

protected:
    /// Samples the machine, and lets three seconds pass after each sample.
    void sample(int times = 1) {
        for (int count = 0; count < times; ++count) {
            monitor.updateCycle();
            machine.clock.advance(std::chrono::seconds(3));
        }
    }

    /// Shows the panel of the module with this key. Never null when it could be made.
    QQuickView* show(QStringView key) {
        const auto* module =
            std::ranges::find_if(moduleTable, [key](const ModuleInfo& each) { return key == each.key; });
        if (module == moduleTable.end()) {
            ADD_FAILURE() << "no module is called " << key.toString().toStdString();
            return nullptr;
        }
        panel = factory.makePanel(module->id);
        if (panel == nullptr) {
            ADD_FAILURE() << "no panel was made";
            return nullptr;
        }
        panel->show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(panel.get()));
        settle();
        return panel.get();
    }
    /// Lays out and paints every change.
    void settle() { ASSERT_TRUE(orvelle::settle(*panel)) << "it is repainted again and again"; }

    /// The item of the panel with this object name. Fails the test when there is none.
    [[nodiscard]] QQuickItem* item(const char* name) const {
        QQuickItem* found = find(panel->contentItem(), QString::fromLatin1(name));
        if (found == nullptr)
            ADD_FAILURE() << "no item is called " << name;
        return found;
    }
    [[nodiscard]] QString textOf(const char* name) const {
        const QQuickItem* found = item(name);
        return found != nullptr ? found->property("text").toString() : QString();
    }
    /// The colour with eight bits for each channel.
    [[nodiscard]] static QColor asShown(const QColor& color) { return QColor::fromRgba(color.rgba()); }
    [[nodiscard]] QColor colorOf(const char* name, const char* property = "color") const {
        const QQuickItem* found = item(name);
        return found != nullptr ? asShown(found->property(property).value<QColor>()) : QColor();
    }
    /// Every visible text, in the order of the tree.
    [[nodiscard]] QStringList shownTexts() const {
        QStringList texts;
        for (const QQuickItem* found : shownItems("QQuickText", "QQuickTextInput"))
            texts.append(found->property("text").toString());
        return texts;
    }
    /// The visible items of these classes, in the order of the tree.
    [[nodiscard]] QList<const QQuickItem*> shownItems(const char* className,
                                                      const char* otherClassName = nullptr) const {
        QList<const QQuickItem*> found;
        collect(panel->contentItem(), {className, otherClassName}, found);
        return found;
    }
    [[nodiscard]] bool shows(const char16_t* text) const {
        return shownTexts().contains(QString::fromUtf16(text));
    }

    /// Every item is inside the panel's width, and the content ends above the footer.
    void expectNothingIsCutOff() const {
        const QQuickItem* scroller = item("scroller");
        const QQuickItem* footer = item("footer");
        ASSERT_TRUE(scroller != nullptr && footer != nullptr);
        EXPECT_LE(scroller->y() + scroller->height(), footer->y());
        EXPECT_TRUE(scroller->clip());
        expectInside(panel->contentItem(), panel->width());
    }

    TemporarySettings file;
    SettingsStore settings{file.path()};
    ThemeManager themes{settings};
    FakeMachine machine;
    SystemMonitor monitor{machine.sources(), settings};
    int settingsOpened = 0;
    std::unique_ptr<QQmlEngine> engine = makeEngine();
    PanelFactory factory{*engine,
                         {.monitor = monitor, .settings = settings, .themes = themes, .openSettings = [this] {
                              ++settingsOpened;
                          }}};
    std::unique_ptr<QQuickView> panel;

private:
    static void failOnMessage(QtMsgType type, const QMessageLogContext& context, const QString& message) {
        if (type != QtDebugMsg && type != QtInfoMsg)
            ADD_FAILURE() << "a message: " << message.toStdString();
        s_previousHandler(type, context, message);
    }

    static QQuickItem* find(QQuickItem* root, const QString& name) {
        if (root->objectName() == name)
            return root;
        for (QQuickItem* child : root->childItems()) {
            if (QQuickItem* found = find(child, name))
                return found;
        }
        return nullptr;
    }
    static void collect(const QQuickItem* root, const std::array<const char*, 2>& classNames,
                        QList<const QQuickItem*>& found) {
        if (!root->isVisible())
            return;
        if (std::ranges::any_of(classNames, [root](const char* className) {
                return className != nullptr && root->inherits(className);
            }))
            found.append(root);
        for (const QQuickItem* child : root->childItems())
            collect(child, classNames, found);
    }
    static std::string describe(const QQuickItem* item) {
        return item->metaObject()->className() + (": " + item->property("text").toString().toStdString());
    }
    static void expectInside(const QQuickItem* root, double width) {
        // Only a rotated symbol and the canvas of a glowing chart may exceed their room.
        if (!root->isVisible() || root->rotation() != 0 || root->inherits("QQuickPaintedItem"))
            return;
        const QRectF place = root->mapRectToScene({0, 0, root->width(), root->height()});
        EXPECT_GE(place.left(), 0) << describe(root);
        EXPECT_LE(place.right(), width) << describe(root);
        for (const QQuickItem* child : root->childItems())
            expectInside(child, width);
    }

    static inline QtMessageHandler s_previousHandler = nullptr;
};

} // namespace orvelle
