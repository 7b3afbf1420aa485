#include "theme/app_theme.h"

#include "theme/colors.h"

#include <array>

namespace orvelle {
namespace {

/// A colour of the table, by its components from 0 to 1 or by its name.
class TableColor {
public:
    constexpr TableColor(double red, double green, double blue, double opacity = 1)
        : m_components{static_cast<float>(red), static_cast<float>(green), static_cast<float>(blue),
                       static_cast<float>(opacity)} {}
    constexpr TableColor(const QColor& named)
        : m_named(&named) {}

    [[nodiscard]] QColor color() const {
        const auto [red, green, blue, opacity] = m_components;
        return m_named ? *m_named : QColor::fromRgbF(red, green, blue, opacity);
    }

private:
    std::array<float, 4> m_components{};
    const QColor* m_named = nullptr;
};

constexpr TableColor white(double opacity = 1) {
    return {1, 1, 1, opacity};
}

/// The columns of the table.
constexpr std::array fields{
    &AppTheme::cpuColor,
    &AppTheme::memoryColor,
    &AppTheme::networkColor,
    &AppTheme::diskColor,
    &AppTheme::batteryColor,
    &AppTheme::sensorColor,
    &AppTheme::backgroundColor,
    &AppTheme::textColor,
    &AppTheme::accentColor,
    &AppTheme::graphLine,
    &AppTheme::graphFill,
    &AppTheme::graphGrid,
    &AppTheme::networkDownloadColor,
    &AppTheme::networkUploadColor,
    &AppTheme::diskReadColor,
    &AppTheme::diskWriteColor,
};

struct TableRow {
    const char* id;
    const char* name;
    std::array<TableColor, fields.size()> colors; ///< in the order of `fields`
};

// clang-format off
constexpr std::array<TableRow, 12> table{{
    {"midnight", "Midnight",
     {{{0.2, 0.5, 1.0}, {0.0, 0.85, 0.55}, {0.6, 0.4, 1.0},
      {1.0, 0.6, 0.1}, {0.2, 0.9, 0.4}, {1.0, 0.3, 0.3},
      {0.06, 0.07, 0.15}, white(), {0.3, 0.6, 1.0}, {0.3, 0.6, 1.0}, {0.2, 0.4, 0.8}, white(0.06),
      SystemColors::cyan, SystemColors::orange, {1.0, 0.6, 0.1}, SystemColors::purple}}},
    {"cyberpunk", "Cyberpunk",
     {{{1.0, 0.0, 0.6}, {0.0, 1.0, 0.9}, {0.9, 0.0, 1.0},
      {1.0, 0.9, 0.0}, {0.0, 1.0, 0.4}, {1.0, 0.2, 0.0},
      {0.08, 0.02, 0.15}, {0.9, 0.9, 1.0}, {1.0, 0.0, 0.6},
      {0.0, 1.0, 0.9}, {1.0, 0.0, 0.6}, {0.5, 0.0, 0.8, 0.15}, {0.0, 1.0, 0.9}, {1.0, 0.0, 0.6},
      {1.0, 0.9, 0.0}, {0.9, 0.0, 1.0}}}},
    {"nord", "Nord",
     {{{0.506, 0.631, 0.757}, {0.639, 0.745, 0.549}, {0.702, 0.557, 0.678},
      {0.922, 0.796, 0.545}, {0.639, 0.745, 0.549}, {0.749, 0.38, 0.416},
      {0.18, 0.204, 0.251}, {0.925, 0.937, 0.957}, {0.533, 0.753, 0.816},
      {0.533, 0.753, 0.816}, {0.369, 0.506, 0.675}, {0.925, 0.937, 0.957, 0.06},
      {0.533, 0.753, 0.816}, {0.922, 0.796, 0.545}, {0.922, 0.796, 0.545}, {0.702, 0.557, 0.678}}}},
    {"dracula", "Dracula",
     {{{0.741, 0.576, 0.976}, {0.314, 0.98, 0.482}, {1.0, 0.475, 0.776},
      {0.945, 0.98, 0.549}, {0.314, 0.98, 0.482}, {1.0, 0.333, 0.333},
      {0.157, 0.165, 0.212}, {0.973, 0.973, 0.949}, {0.741, 0.576, 0.976},
      {0.51, 0.831, 0.98}, {0.741, 0.576, 0.976}, {0.973, 0.973, 0.949, 0.06},
      {0.51, 0.831, 0.98}, {1.0, 0.722, 0.424}, {0.945, 0.98, 0.549}, {1.0, 0.475, 0.776}}}},
    {"solarizedDark", "Solarized Dark",
     {{{0.149, 0.545, 0.824}, {0.522, 0.6, 0.0}, {0.827, 0.212, 0.51},
      {0.71, 0.537, 0.0}, {0.522, 0.6, 0.0}, {0.863, 0.196, 0.184},
      {0.0, 0.169, 0.212}, {0.514, 0.58, 0.588}, {0.149, 0.545, 0.824},
      {0.149, 0.545, 0.824}, {0.149, 0.545, 0.824, 0.3}, {0.514, 0.58, 0.588, 0.08},
      {0.165, 0.631, 0.596}, {0.71, 0.537, 0.0}, {0.71, 0.537, 0.0}, {0.827, 0.212, 0.51}}}},
    {"minimal", "Minimal",
     {{white(0.9), white(0.8), white(0.7),
      white(0.75), white(0.8), white(0.85),
      {0.05, 0.05, 0.05}, white(0.9), white(0.6), white(0.8), white(0.08), white(0.04),
      white(0.7), white(0.45), white(0.75), white(0.45)}}},
    {"synthwave", "Synthwave",
     {{{1.0, 0.0, 0.8}, {0.4, 0.0, 1.0}, {1.0, 0.4, 0.0},
      {1.0, 0.85, 0.0}, {0.0, 1.0, 0.6}, {1.0, 0.1, 0.3},
      {0.1, 0.0, 0.18}, {1.0, 0.9, 1.0}, {1.0, 0.0, 0.8},
      {1.0, 0.0, 0.8}, {0.5, 0.0, 1.0}, {1.0, 0.0, 0.5, 0.08}, {0.4, 0.0, 1.0}, {1.0, 0.4, 0.0},
      {1.0, 0.85, 0.0}, {1.0, 0.0, 0.8}}}},
    {"forest", "Forest",
     {{{0.3, 0.7, 0.3}, {0.4, 0.8, 0.4}, {0.55, 0.65, 0.4},
      {0.7, 0.55, 0.3}, {0.5, 0.8, 0.3}, {0.85, 0.45, 0.2},
      {0.06, 0.1, 0.06}, {0.85, 0.9, 0.8}, {0.4, 0.75, 0.35},
      {0.4, 0.75, 0.35}, {0.2, 0.5, 0.2}, {0.4, 0.6, 0.3, 0.08}, {0.4, 0.8, 0.4}, {0.7, 0.55, 0.3},
      {0.7, 0.55, 0.3}, {0.55, 0.65, 0.4}}}},
    {"ocean", "Ocean",
     {{{0.0, 0.6, 0.9}, {0.0, 0.8, 0.7}, {0.3, 0.5, 0.9},
      {0.4, 0.75, 0.65}, {0.0, 0.85, 0.65}, {0.9, 0.4, 0.35},
      {0.02, 0.06, 0.12}, {0.8, 0.92, 0.98}, {0.0, 0.7, 0.85},
      {0.0, 0.7, 0.85}, {0.0, 0.4, 0.7}, {0.0, 0.5, 0.7, 0.08}, {0.0, 0.8, 0.7}, {0.4, 0.75, 0.65},
      {0.4, 0.75, 0.65}, {0.3, 0.5, 0.9}}}},
    {"sunset", "Sunset",
     {{{1.0, 0.45, 0.15}, {1.0, 0.7, 0.2}, {0.9, 0.25, 0.35},
      {0.95, 0.6, 0.1}, {1.0, 0.8, 0.2}, {0.85, 0.15, 0.2},
      {0.12, 0.04, 0.06}, {1.0, 0.92, 0.85}, {1.0, 0.5, 0.2},
      {1.0, 0.5, 0.2}, {0.8, 0.2, 0.1}, {1.0, 0.5, 0.2, 0.08}, {1.0, 0.7, 0.2}, {0.9, 0.25, 0.35},
      {0.95, 0.6, 0.1}, {0.9, 0.25, 0.35}}}},
    {"monochromeGreen", "Monochrome Green",
     {{{0.0, 1.0, 0.3}, {0.0, 0.9, 0.25}, {0.0, 0.85, 0.2},
      {0.0, 0.8, 0.3}, {0.0, 0.95, 0.25}, {0.0, 0.75, 0.2},
      {0.0, 0.02, 0.0}, {0.0, 0.9, 0.3}, {0.0, 1.0, 0.35},
      {0.0, 1.0, 0.3}, {0.0, 0.5, 0.15}, {0.0, 0.6, 0.2, 0.1}, {0.0, 1.0, 0.3}, {0.0, 0.6, 0.15},
      {0.0, 0.8, 0.3}, {0.0, 0.5, 0.15}}}},
    {"pastel", "Pastel",
     {{{0.6, 0.7, 1.0}, {0.6, 0.9, 0.7}, {0.85, 0.65, 0.9},
      {1.0, 0.82, 0.6}, {0.65, 0.9, 0.65}, {1.0, 0.65, 0.65},
      {0.12, 0.12, 0.16}, {0.9, 0.9, 0.95}, {0.7, 0.75, 1.0},
      {0.7, 0.75, 1.0}, {0.6, 0.65, 0.9}, {0.7, 0.7, 0.8, 0.06}, {0.6, 0.85, 0.9}, {1.0, 0.75, 0.6},
      {1.0, 0.82, 0.6}, {0.85, 0.65, 0.9}}}},
}};
// clang-format on

AppTheme themeOf(const TableRow& row) {
    AppTheme theme;
    theme.id = QLatin1StringView(row.id);
    theme.name = QLatin1StringView(row.name);
    for (std::size_t field = 0; field < fields.size(); ++field)
        theme.*fields[field] = row.colors[field].color();
    return theme;
}

} // namespace

const QList<AppTheme>& builtInThemes() {
    static const QList<AppTheme> themes = [] {
        QList<AppTheme> built;
        for (const TableRow& row : table)
            built.append(themeOf(row));
        return built;
    }();
    return themes;
}

} // namespace orvelle
