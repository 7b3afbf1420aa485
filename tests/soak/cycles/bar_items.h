#pragma once

#include "failures.h"
#include "menu_bar/item_presenter.h"
#include "menu_bar/modules.h"
#include "support/manual_clock.h"

#include <memory>
#include <vector>

namespace orvelle::soak {

/// The items of all modules, shown as the program shows them, without a desktop.
class BarItems {
public:
    explicit BarItems(const ModuleContext& context);
    ~BarItems();

    /// Shows the present values and eases them for as long as there is until the next sample.
    void show(Failures& failures);
    /// Paints all items into a picture.
    void paint();

private:
    class Item;

    ModuleContext m_context;
    ManualClock m_clock;
    std::vector<std::unique_ptr<Item>> m_items;
    std::vector<std::unique_ptr<ItemPresenter>> m_presenters;
};

} // namespace orvelle::soak
