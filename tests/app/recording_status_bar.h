#pragma once

#include "shell/status_bar.h"

#include <QStringList>
#include <QWindow>

#include <algorithm>
#include <vector>

namespace orvelle {

/// A status bar without a desktop: holds the items and records the calls.
class RecordingStatusBar final : public StatusBar {
public:
    static constexpr double cornerRadius = 7; ///< for the content of every popover

    class Item final : public StatusItem {
    public:
        Item(QString identifier, double length)
            : m_identifier(std::move(identifier))
            , m_length(length) {}
        [[nodiscard]] const QString& identifier() const override { return m_identifier; }
        [[nodiscard]] double length() const override { return m_length; }
        void setPaint(ItemPaint newPaint) override { paint = std::move(newPaint); }
        void repaint() override { ++repaintCount; }
        void setWords(const QString& newName, const QString& newText) override {
            accessibleName = newName;
            accessibleText = newText;
        }
        [[nodiscard]] double visiblePixelsPerPoint() const override { return 0; }
        void setClickHandler(std::function<void(ClickButton)> handler) override {
            click = std::move(handler);
        }
        [[nodiscard]] bool showsIcon() const override { return hasIcon; }
        void setIcon(const ItemIcon& newIcon) override { icon = newIcon; }

        bool hasIcon = false;
        ItemIcon icon;
        std::function<void(ClickButton)> click;
        ItemPaint paint;
        int repaintCount = 0;
        QString accessibleName;
        QString accessibleText;

    private:
        QString m_identifier;
        double m_length;
    };

    class Panel final : public Popover {
    public:
        Panel(RecordingStatusBar& bar, PopoverContent makeContent)
            : m_bar(bar)
            , m_makeContent(std::move(makeContent)) {}
        [[nodiscard]] bool isShown() const override { return m_isShown; }
        void show(const StatusItem& item) override {
            m_bar.calls.append(QStringLiteral("open ") + item.identifier());
            if (m_content == nullptr)
                m_content = m_makeContent(cornerRadius);
            m_identifier = item.identifier();
            m_isShown = true;
        }
        void close() override {
            m_bar.calls.append(QStringLiteral("close ") + m_identifier);
            m_isShown = false;
        }

    private:
        RecordingStatusBar& m_bar;
        PopoverContent m_makeContent;
        std::unique_ptr<QWindow> m_content;
        QString m_identifier;
        bool m_isShown = false;
    };

    class Menu final : public ContextMenu {
    public:
        explicit Menu(RecordingStatusBar& bar)
            : m_bar(bar) {}
        void show(const StatusItem& item, std::vector<MenuEntry> entries) override {
            m_bar.calls.append(QStringLiteral("menu ") + item.identifier());
            m_bar.menuEntries = std::move(entries);
        }
        void close() override {
            m_bar.calls.append(QStringLiteral("close menu"));
            m_bar.menuEntries.clear();
        }

    private:
        RecordingStatusBar& m_bar;
    };

    [[nodiscard]] bool addsItemsOnTheLeft() const override { return addsOnTheLeft; }
    [[nodiscard]] StatusItem& addItem(const QString& identifier, double length) override {
        calls.append(QStringLiteral("add ") + identifier);
        auto item = std::make_unique<Item>(identifier, length);
        item->hasIcon = hasIcons;
        return **items.insert(addsOnTheLeft ? items.begin() : items.end(), std::move(item));
    }
    void removeItem(StatusItem& item) override {
        calls.append(QStringLiteral("remove ") + item.identifier());
        std::erase_if(items, [&item](const auto& present) { return present.get() == &item; });
    }

    [[nodiscard]] std::unique_ptr<Popover> makePopover(PopoverContent makeContent) override {
        return std::make_unique<Panel>(*this, std::move(makeContent));
    }
    [[nodiscard]] std::unique_ptr<ContextMenu> makeContextMenu() override {
        return std::make_unique<Menu>(*this);
    }

    void setMenu(const std::vector<MenuEntry>& entries) override { desktopMenu = entries; }

    void takeKeyboard() override { calls.append(QStringLiteral("keyboard")); }

    void chooseItem(const StatusItem& item) override {
        calls.append(QStringLiteral("choose ") + item.identifier());
    }

    [[nodiscard]] QStringList identifiers() const {
        QStringList identifiers;
        for (const auto& item : items)
            identifiers.append(item->identifier());
        return identifiers;
    }

    std::vector<std::unique_ptr<Item>> items; ///< the present items, from left to right
    std::vector<MenuEntry> menuEntries;       ///< of the visible menu
    bool addsOnTheLeft = false;
    bool hasIcons = false;              ///< of the items that are added next
    std::vector<MenuEntry> desktopMenu; ///< that the desktop shows
    QStringList calls;
};

} // namespace orvelle
