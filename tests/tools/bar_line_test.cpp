#include "probe/bar_line.h"

#include <gtest/gtest.h>

namespace orvelle {
namespace {

ModuleReport reportWith(const char* text, Severity severity, std::optional<double> fraction = {}) {
    return {.text = QString::fromLatin1(text),
            .details = {QString::fromLatin1(text) + QStringLiteral(" in full"), QStringLiteral("  more")},
            .fraction = fraction,
            .severity = severity};
}

TEST(BarLine, ShowsTheModulesFromLeftToRight) {
    const BarLine line =
        barLine({reportWith("CPU 12%", Severity::normal), reportWith("MEM 40%", Severity::normal)});
    EXPECT_EQ(line.text, QStringLiteral("CPU 12%  MEM 40%"));
    EXPECT_EQ(line.tooltip, QStringLiteral("CPU 12% in full\n  more\nMEM 40% in full\n  more"));
}

TEST(BarLine, IsAsUrgentAsItsMostUrgentModule) {
    const ModuleReport normal = reportWith("a", Severity::normal);
    const ModuleReport warning = reportWith("b", Severity::warning);
    const ModuleReport critical = reportWith("c", Severity::critical);
    EXPECT_EQ(barLine({normal, normal}).severity, Severity::normal);
    EXPECT_EQ(barLine({normal, warning, normal}).severity, Severity::warning);
    EXPECT_EQ(barLine({critical, warning, normal}).severity, Severity::critical);
}

TEST(BarLine, HasThePercentageOfTheFirstModuleWithAny) {
    EXPECT_EQ(barLine({reportWith("net", Severity::normal), reportWith("cpu", Severity::normal, 0.126),
                       reportWith("memory", Severity::normal, 0.9)})
                  .percentage,
              13);
    EXPECT_EQ(barLine({reportWith("net", Severity::normal)}).percentage, std::nullopt);
}

TEST(BarLine, WithoutModulesIsEmpty) {
    EXPECT_EQ(jsonFrom(barLine({})), (QJsonObject{{QStringLiteral("text"), QString()},
                                                  {QStringLiteral("full_text"), QString()},
                                                  {QStringLiteral("tooltip"), QString()},
                                                  {QStringLiteral("class"), QStringLiteral("normal")}}));
}

TEST(BarLine, NamesItsFieldsAsStatusBarsDo) {
    EXPECT_EQ(jsonFrom({.text = QStringLiteral("CPU 80%"),
                        .tooltip = QStringLiteral("more"),
                        .percentage = 80,
                        .severity = Severity::critical}),
              (QJsonObject{{QStringLiteral("text"), QStringLiteral("CPU 80%")},
                           {QStringLiteral("full_text"), QStringLiteral("CPU 80%")},
                           {QStringLiteral("tooltip"), QStringLiteral("more")},
                           {QStringLiteral("class"), QStringLiteral("critical")},
                           {QStringLiteral("percentage"), 80}}));
    EXPECT_EQ(jsonFrom({.severity = Severity::warning})[u"class"].toString(), QStringLiteral("warning"));
}

} // namespace
} // namespace orvelle
