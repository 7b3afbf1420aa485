#pragma once

#include "app/views/views.h"
#include "panels/panel_factory.h"

namespace orvelle {

/// The windows' contents in Qt Quick. One engine serves them all; it is created with the object.
class QuickViews final : public Views {
public:
    explicit QuickViews(const ViewContext& context);

    [[nodiscard]] std::unique_ptr<QWindow> makePanel(QStringView key, double cornerRadius) override;
    [[nodiscard]] std::unique_ptr<QWindow> makeSettings() override;

private:
    PanelFactory m_panels;
};

} // namespace orvelle
