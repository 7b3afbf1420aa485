#include "charts/glow.h"

#include "theme/colors.h"

#include <algorithm>
#include <cmath>
#include <utility>
#include <vector>

namespace orvelle {
namespace {

/// Three boxes in a row differ from a Gaussian of the same variance by less than 3 % of its peak.
constexpr int passes = 3;
/// More than any glow needs; it keeps the reach of the blur within an int.
constexpr double largestSigma = 1000;

/// A moving average: 2 x reach + 1 samples have the weight `middle`, and one more on each side has the
/// smaller weight `edge`. The weights add up to 1. The edges allow any variance; without them the width could
/// only step from one odd number to the next.
struct Box {
    int reach = 0;
    float middle = 1;
    float edge = 0;

    explicit Box(double variance) {
        // The widest whole box whose variance, (width^2 - 1) / 12, does not exceed the one asked for.
        const double whole = std::floor((std::sqrt(12 * variance + 1) - 1) / 2);
        const double width = 2 * whole + 1;
        const double next = whole + 1;
        // From: variance x (width + 2 share) = width x whole x next / 3 + 2 share x next^2.
        const double share = width * (variance - whole * next / 3) / (2 * (next * next - variance));
        reach = static_cast<int>(whole);
        middle = static_cast<float>(1 / (width + 2 * share));
        edge = static_cast<float>(share / (width + 2 * share));
    }

    static Box forSigma(double sigma) { return Box(sigma * sigma / passes); }
};

/// Rows of opacities from 0 to 255.
struct Plane {
    int width = 0;
    int height = 0;
    std::vector<float> values;

    Plane(int columns, int rows)
        : width(columns)
        , height(rows)
        , values(static_cast<std::size_t>(columns) * static_cast<std::size_t>(rows)) {}

    [[nodiscard]] float* row(int y) {
        return values.data() + static_cast<std::ptrdiff_t>(y) * static_cast<std::ptrdiff_t>(width);
    }
    [[nodiscard]] const float* row(int y) const {
        return values.data() + static_cast<std::ptrdiff_t>(y) * static_cast<std::ptrdiff_t>(width);
    }
};

/// Averages down the columns. Whole rows are added and subtracted at a time, which the compiler turns into
/// vector instructions; a running sum along a row could not be.
void averageColumns(const Plane& source, Plane& target, const Box& box) {
    const std::vector<float> clear(static_cast<std::size_t>(source.width));
    const auto rowOrClear = [&](int y) { return y >= 0 && y < source.height ? source.row(y) : clear.data(); };
    std::vector<float> sums(static_cast<std::size_t>(source.width));
    for (int y = 0; y < std::min(box.reach, source.height); ++y) {
        const float* entering = source.row(y);
        for (int x = 0; x < source.width; ++x)
            sums[static_cast<std::size_t>(x)] += entering[x];
    }
    for (int y = 0; y < source.height; ++y) {
        const float* entering = rowOrClear(y + box.reach);
        const float* leaving = rowOrClear(y - box.reach - 1); // also the edge above the box
        const float* below = rowOrClear(y + box.reach + 1);
        float* averages = target.row(y);
        float* sum = sums.data();
        for (int x = 0; x < source.width; ++x) {
            sum[x] += entering[x] - leaving[x];
            averages[x] = box.middle * sum[x] + box.edge * (leaving[x] + below[x]);
        }
    }
}

Plane blurredDownColumns(Plane plane, const Box& box) {
    Plane averaged(plane.width, plane.height);
    for (int pass = 0; pass < passes; ++pass) {
        averageColumns(plane, averaged, box);
        std::swap(plane, averaged);
    }
    return plane;
}

/// Rows and columns exchanged, in tiles that stay within the processor's nearest cache.
Plane transposed(const Plane& source) {
    constexpr int tile = 16;
    Plane target(source.height, source.width);
    for (int top = 0; top < source.height; top += tile) {
        for (int left = 0; left < source.width; left += tile) {
            const int bottom = std::min(top + tile, source.height);
            const int right = std::min(left + tile, source.width);
            for (int x = left; x < right; ++x) {
                for (int y = top; y < bottom; ++y)
                    target.row(x)[y] = source.row(y)[x];
            }
        }
    }
    return target;
}

Plane planeOf(const QImage& mask) {
    Plane plane(mask.width(), mask.height());
    for (int y = 0; y < plane.height; ++y)
        std::copy_n(mask.constScanLine(y), plane.width, plane.row(y));
    return plane;
}

QImage imageOf(const Plane& plane) {
    QImage mask(plane.width, plane.height, QImage::Format_Alpha8);
    for (int y = 0; y < plane.height; ++y) {
        const float* values = plane.row(y);
        uchar* pixels = mask.scanLine(y);
        for (int x = 0; x < plane.width; ++x)
            pixels[x] = static_cast<uchar>(std::clamp(values[x] + 0.5F, 0.0F, 255.0F));
    }
    return mask;
}

} // namespace

GlowStyle GlowStyle::of(const QColor& color, GlowIntensity intensity) {
    return {withOpacity(color, glowOpacity(intensity)), glowRadius(intensity)};
}

QRectF withGlowRoom(const QRectF& inked, double radius) {
    const double reach = glowReach(radius);
    return inked.adjusted(-reach, -reach, reach, reach);
}

void paintGlow(QPainter& painter, const Picture& mask, const GlowStyle& style) {
    if (mask.image.isNull() || !style.isVisible())
        return;
    const double sigmaPixels = style.radius / 2 * PixelGrid::under(painter).pixelsPerPoint;
    showPicture(painter, {tinted(blurredAlpha(mask.image, sigmaPixels), style.color), mask.offset});
}

void paintGlow(QPainter& painter, const QRectF& inked, const GlowStyle& style,
               const std::function<void(QPainter&)>& draw) {
    if (style.isVisible())
        paintGlow(painter,
                  rasterize(PixelGrid::under(painter), withGlowRoom(inked, style.radius),
                            QImage::Format_Alpha8, draw),
                  style);
}

QImage blurredAlpha(const QImage& mask, double sigma) {
    if (mask.isNull() || !std::isfinite(sigma) || sigma <= 0)
        return mask;
    const Box box = Box::forSigma(std::min(sigma, largestSigma));
    const Plane upright = blurredDownColumns(planeOf(mask), box);
    return imageOf(transposed(blurredDownColumns(transposed(upright), box)));
}

} // namespace orvelle
