#include "bytes.h"
#include "parsers.h"
#include "require.h"
#include "shell/painted/portal_values.h"
#include "shell/tray/tray_menu.h"

#include <QDBusVariant>

#include <array>

namespace orvelle::fuzz {
namespace {

/// A value of any type that the portal may answer with.
QVariant takeValue(Bytes& bytes) {
    switch (bytes.below(12)) {
    case 0:
        return bytes.below(2) == 1;
    case 1:
        return bytes.number<int>();
    case 2:
        return bytes.number<uint>();
    case 3:
        return bytes.number<qlonglong>();
    case 4:
        return bytes.number<qulonglong>();
    case 5:
        return bytes.number<double>();
    case 6:
        return QVariant::fromValue(bytes.number<uchar>());
    case 7:
        return QVariant::fromValue(QDBusVariant(bytes.line()));
    case 8:
        return QStringList{bytes.line(), bytes.line()};
    case 9:
        return QVariantMap{{bytes.line(), bytes.line()}};
    case 10:
        return {};
    default:
        return bytes.line();
    }
}

QString takeKey(Bytes& bytes) {
    constexpr std::array keys{"enable-animations", "reduced-motion", "AnimationDurationFactor", "font-name",
                              "monospace-font-name"};
    const std::size_t index = bytes.below(keys.size() + 1);
    return index < keys.size() ? QString::fromLatin1(keys.at(index)) : bytes.line();
}

QList<int> takeNumbers(Bytes& bytes) {
    QList<int> numbers;
    for (std::size_t count = bytes.below(8); count > 0; --count)
        numbers.append(bytes.number<qint8>());
    return numbers;
}

QStringList takeNames(Bytes& bytes) {
    QStringList names;
    for (std::size_t count = bytes.below(4); count > 0; --count)
        names.append(bytes.below(2) == 0 ? QStringLiteral("label") : bytes.line());
    return names;
}

QList<MenuEvent> takeEvents(Bytes& bytes) {
    QList<MenuEvent> events;
    for (const int id : takeNumbers(bytes))
        events.append({.id = id,
                       .event = bytes.below(2) == 0 ? QStringLiteral("clicked") : bytes.line(),
                       .data = QDBusVariant(bytes.number<int>()),
                       .timestamp = bytes.number<uint>()});
    return events;
}

bool isNode(int id, std::size_t entryCount) {
    return id >= 0 && id <= static_cast<int>(entryCount);
}

/// Asks one of the menu's methods.
void call(TrayMenu& menu, std::size_t entryCount, Bytes& bytes) {
    const int id = bytes.below(2) == 0 ? bytes.number<qint8>() : bytes.number<int>();
    MenuLayoutNode layout;
    QList<int> unknown;
    switch (bytes.below(7)) {
    case 0:
        menu.GetLayout(id, bytes.number<qint8>(), takeNames(bytes), layout);
        require(layout.id == (isNode(id, entryCount) ? id : 0), "a layout is that of the node");
        require(static_cast<std::size_t>(layout.children.size()) <= entryCount, "a node has few children");
        return;
    case 1:
        require(static_cast<std::size_t>(
                    menu.GetGroupProperties(takeNumbers(bytes), takeNames(bytes)).size()) <= entryCount + 1,
                "only nodes have properties");
        return;
    case 2:
        require(menu.GetProperty(id, bytes.line()).variant().isValid(), "every call has an answer");
        return;
    case 3:
        menu.Event(id, QStringLiteral("clicked"), QDBusVariant(id), 0);
        return;
    case 4:
        for (const int number : menu.EventGroup(takeEvents(bytes)))
            require(!isNode(number, entryCount), "only nodes that do not exist are unknown");
        return;
    case 5:
        require(menu.AboutToShow(id) == !isNode(id, entryCount), "a node is ready to be shown");
        return;
    default:
        menu.AboutToShowGroup(takeNumbers(bytes), unknown);
        for (const int number : unknown)
            require(!isNode(number, entryCount), "only nodes that do not exist are unknown");
    }
}

} // namespace

/// Settings as the portal tells them: namespace, key, value, over and over.
void fuzzPortalValues(std::string_view text) {
    Bytes bytes(text);
    PortalValues values;
    const QStringList namespaces = PortalValues::namespaces();
    require(!values.reducesMotion(), "before the portal tells anything nothing is known");
    while (!bytes.isEmpty()) {
        const auto index =
            static_cast<qsizetype>(bytes.below(static_cast<std::size_t>(namespaces.size()) + 1));
        const QString settings = index < namespaces.size() ? namespaces.at(index) : bytes.line();
        const QString key = takeKey(bytes);
        const QVariant value = takeValue(bytes);
        const std::optional<bool> reduced = values.reducesMotion();
        const DesktopFontNames fonts = values.fonts();
        values.take(settings, key, value);
        require(!reduced || values.reducesMotion(), "what is known stays known");
        require(key.endsWith(QStringLiteral("font-name")) || values.fonts() == fonts,
                "only the settings of fonts change fonts");
        require(value.typeId() == QMetaType::QString || values.fonts() == fonts, "only texts are fonts");
    }
}

/// Calls of the tray to the menu, which has up to seven entries.
void fuzzMenuCalls(std::string_view text) {
    Bytes bytes(text);
    TrayMenuObject owner;
    TrayMenu menu(owner);
    const std::size_t entryCount = bytes.below(8);
    std::vector<MenuEntry> entries(entryCount);
    for (MenuEntry& entry : entries)
        entry.title = bytes.line();
    menu.setEntries(entries);
    while (!bytes.isEmpty())
        call(menu, entryCount, bytes);
}

} // namespace orvelle::fuzz
