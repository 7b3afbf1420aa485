#include "shell/painted/window_frame.h"

#include "settings/settings_storage.h"

#include <QDir>
#include <QStringList>

#include <algorithm>
#include <array>

namespace orvelle {
namespace {

/// X11 counts pixels in 16 bits.
constexpr int farthest = 32767;

qint64 overlap(const QRect& frame, const QRect& screen) {
    const QRect common = frame & screen;
    return common.isEmpty() ? 0 : qint64{common.width()} * common.height();
}

} // namespace

QString frameText(const QRect& frame) {
    return QStringLiteral("%1 %2 %3 %4")
        .arg(QString::number(frame.x()), QString::number(frame.y()), QString::number(frame.width()),
             QString::number(frame.height()));
}

std::optional<QRect> parseFrame(const QString& text) {
    const QStringList words = text.split(u' ');
    std::array<int, 4> numbers{};
    if (words.size() != static_cast<qsizetype>(numbers.size()))
        return std::nullopt;
    for (std::size_t index = 0; index < numbers.size(); ++index) {
        bool isNumber = false;
        numbers[index] = words[static_cast<qsizetype>(index)].toInt(&isNumber);
        if (!isNumber || numbers[index] < -farthest || numbers[index] > farthest)
            return std::nullopt;
    }
    const auto [x, y, width, height] = numbers;
    if (width <= 0 || height <= 0)
        return std::nullopt;
    return QRect(x, y, width, height);
}

QRect frameOnScreens(const QRect& frame, const QList<QRect>& screens, const QSize& smallest) {
    const auto best =
        std::ranges::max_element(screens, {}, [&](const QRect& screen) { return overlap(frame, screen); });
    if (best == screens.end())
        return frame;
    if (best->contains(frame) && frame.size().expandedTo(smallest) == frame.size())
        return frame;
    const QRect room(best->topLeft(), best->size() - decorationRoom);
    QRect placed(frame.topLeft(), frame.size().boundedTo(room.size()).expandedTo(smallest));
    // The left and the upper edge matter more: the title bar and its buttons.
    placed.moveLeft(std::max(std::min(placed.left(), room.right() + 1 - placed.width()), room.left()));
    placed.moveTop(std::max(std::min(placed.top(), room.bottom() + 1 - placed.height()), room.top()));
    return placed;
}

QRect centredFrame(const QSize& size, const QRect& screen) {
    QRect frame({0, 0}, size.boundedTo(screen.size()));
    frame.moveCenter(screen.center());
    return frame;
}

std::unique_ptr<SettingsStorage> openStateFile() {
    QString folder = qEnvironmentVariable("XDG_STATE_HOME");
    if (!QDir::isAbsolutePath(folder))
        folder = QDir::homePath() + QStringLiteral("/.local/state");
    return std::make_unique<SettingsFile>(folder + QStringLiteral("/orvelle/state.conf"));
}

} // namespace orvelle
