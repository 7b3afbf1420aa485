#pragma once

#include "settings/settings_store.h"
#include "support/frames.h"
#include "support/temporary_settings.h"
#include "theme/theme_manager.h"
#include "windows/common/quick_engine.h"
#include "windows/settings/settings_window.h"

#include <QAccessible>
#include <QFile>
#include <QQmlEngine>
#include <QQuickItem>
#include <gtest/gtest.h>

namespace orvelle {

/// Reports on launching at login.
class ScriptedLogin : public QObject {
    Q_OBJECT
    Q_PROPERTY(QString error MEMBER error NOTIFY errorChanged)
    Q_PROPERTY(bool needsApproval MEMBER needsApproval NOTIFY needsApprovalChanged)
public:
    QString error;
    bool needsApproval = false;
    int requests = 0;
    Q_INVOKABLE void askForApproval() { ++requests; }
Q_SIGNALS:
    void errorChanged();
    void needsApprovalChanged();
};

/// The settings window over temporary settings. A warning of Qt or QML fails the test.
class SettingsFixture : public ::testing::Test {
protected:
    SettingsFixture() {
        QAccessible::setActive(true); // as while an assistive program runs
        s_previousHandler = qInstallMessageHandler(&SettingsFixture::failOnMessage);
    }
    ~SettingsFixture() override {
        view.reset();
        qInstallMessageHandler(s_previousHandler);
    }

    void SetUp() override { open(); }

    void open() {
        view->show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(view.get()));
        view->requestActivate();
        ASSERT_TRUE(QTest::qWaitForWindowActive(view.get()));
        settle();
    }
    /// Waits until everything is laid out and painted.
    void settle() { ASSERT_TRUE(orvelle::settle(*view)) << "it is repainted again and again"; }
    void resizeTo(const QSize& size) {
        view->resize(size);
        settle();
        ASSERT_EQ(view->rootObject()->size(), size.toSizeF());
    }

    /// The items that `isWanted` picks, in tree order.
    template <class Predicate>
    [[nodiscard]] QList<QQuickItem*> items(Predicate isWanted) const {
        QList<QQuickItem*> found;
        collect(view->contentItem(), isWanted, found);
        return found;
    }
    /// The item with this object name. A missing one fails the test.
    [[nodiscard]] QQuickItem* item(const char* name, const QQuickItem* inside = nullptr) const {
        QList<QQuickItem*> found;
        collect(
            inside != nullptr ? inside : view->contentItem(),
            [&](const QQuickItem* each) { return each->objectName() == QLatin1String(name); }, found);
        if (found.isEmpty())
            ADD_FAILURE() << "no item is called " << name;
        return found.isEmpty() ? nullptr : found.first();
    }
    /// The visible buttons, switches and fields with this accessible name.
    [[nodiscard]] QQuickItem* control(QStringView name, const QQuickItem* inside = nullptr) const {
        QList<QQuickItem*> found;
        collect(
            inside != nullptr ? inside : view->contentItem(),
            [&](QQuickItem* each) { return isControl(each) && each->isVisible() && nameOf(each) == name; },
            found);
        if (found.isEmpty())
            ADD_FAILURE() << "no control is called " << name.toString().toStdString();
        return found.isEmpty() ? nullptr : found.first();
    }
    /// A group of choices by its name.
    [[nodiscard]] QQuickItem* group(QStringView name) const {
        const QList<QQuickItem*> found = items([&](const QQuickItem* each) {
            return each->property("chosenIndex").isValid() && each->property("name").toString() == name;
        });
        if (found.isEmpty())
            ADD_FAILURE() << "no group is called " << name.toString().toStdString();
        return found.isEmpty() ? nullptr : found.first();
    }
    [[nodiscard]] static bool isControl(const QQuickItem* item) {
        return item->inherits("QQuickAbstractButton") || item->inherits("QQuickSlider") ||
               item->inherits("QQuickTextInput");
    }
    [[nodiscard]] static QString nameOf(QQuickItem* item) {
        QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(item);
        return accessible != nullptr ? accessible->text(QAccessible::Name) : QString();
    }
    [[nodiscard]] static QAccessible::Role roleOf(QQuickItem* item) {
        QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(item);
        return accessible != nullptr ? accessible->role() : QAccessible::NoRole;
    }
    static void doAction(QQuickItem* item, const QString& action) {
        QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(item);
        ASSERT_TRUE(accessible != nullptr && accessible->actionInterface() != nullptr);
        ASSERT_TRUE(accessible->actionInterface()->actionNames().contains(action)) << action.toStdString();
        accessible->actionInterface()->doAction(action);
    }

    /// Scrolls the item into view and clicks into its middle.
    void click(QQuickItem* target) {
        ASSERT_NE(target, nullptr);
        QMetaObject::invokeMethod(item("scroller"), "reveal", Q_ARG(QVariant, QVariant::fromValue(target)));
        settle();
        const QPointF middle = target->mapToScene({target->width() / 2, target->height() / 2});
        QTest::mouseClick(view.get(), Qt::LeftButton, {}, middle.toPoint());
    }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(view.get(), key, modifiers);
    }
    void type(const char* text) {
        for (; *text != '\0'; ++text)
            QTest::keyClick(view.get(), *text);
    }
    /// The text of the settings file.
    [[nodiscard]] QString settingsText() const {
        QFile stored(path);
        return stored.open(QIODevice::ReadOnly) ? QString::fromUtf8(stored.readAll()) : QString();
    }
    [[nodiscard]] QQuickItem* focused() const { return view->activeFocusItem(); }

    void openOverrides() {
        click(item("disclosure"));
        settle();
    }
    /// The row that chooses a module's own colour.
    [[nodiscard]] QQuickItem* overrideRow(QStringView label) const {
        const QList<QQuickItem*> rows = items([&](const QQuickItem* each) {
            return each->property("colorHex").isValid() && each->property("label").toString() == label;
        });
        if (rows.isEmpty())
            ADD_FAILURE() << "no row for " << label.toString().toStdString();
        return rows.isEmpty() ? nullptr : rows.first();
    }

    TemporarySettings file;
    QString path = file.path();
    SettingsStore settings{path};
    ThemeManager themes{settings};
    ScriptedLogin login;
    int quits = 0;
    std::unique_ptr<QQmlEngine> engine = makeEngine();
    std::unique_ptr<QQuickView> view = makeSettingsView(
        *engine,
        {.settings = settings, .themes = themes, .launchAtLogin = &login, .quitApp = [this] { ++quits; }});

private:
    static void failOnMessage(QtMsgType type, const QMessageLogContext& context, const QString& message) {
        if (type != QtDebugMsg && type != QtInfoMsg)
            ADD_FAILURE() << "a message: " << message.toStdString();
        s_previousHandler(type, context, message);
    }
    template <class Predicate>
    static void collect(const QQuickItem* root, const Predicate& isWanted, QList<QQuickItem*>& found) {
        for (QQuickItem* child : root->childItems()) {
            if (isWanted(child))
                found.append(child);
            collect(child, isWanted, found);
        }
    }

    static inline QtMessageHandler s_previousHandler = nullptr;
};

} // namespace orvelle
