#include "charts/blur.h"

#include <QColor>

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>
#include <vector>

namespace orvelle {
namespace {

/// Three boxes in a row differ from a Gaussian of the same variance by less than 3 % of its peak.
constexpr int passes = 3;
/// No glow needs more; it keeps the reach of the blur within an int.
constexpr double largestSigma = 1000;

/// A moving average over 2 x reach + 1 samples with the weight `middle` and one more on each side with the
/// smaller weight `edge`. The weights add up to 1. The edge lets the average have any variance, where whole
/// boxes could only step from one odd width to the next.
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

Plane planeOf(const QImage& alpha) {
    Plane plane(alpha.width(), alpha.height());
    for (int y = 0; y < plane.height; ++y)
        std::copy_n(alpha.constScanLine(y), plane.width, plane.row(y));
    return plane;
}

QImage imageOf(const Plane& plane) {
    QImage alpha(plane.width, plane.height, QImage::Format_Alpha8);
    for (int y = 0; y < plane.height; ++y) {
        const float* values = plane.row(y);
        uchar* pixels = alpha.scanLine(y);
        for (int x = 0; x < plane.width; ++x)
            pixels[x] = static_cast<uchar>(std::clamp(values[x] + 0.5F, 0.0F, 255.0F));
    }
    return alpha;
}

[[nodiscard]] bool blursAnything(double sigma) {
    return std::isfinite(sigma) && sigma > 0;
}

} // namespace

QImage blurredAlpha(const QImage& alpha, double sigma) {
    if (alpha.isNull() || !blursAnything(sigma))
        return alpha;
    const Box box = Box::forSigma(std::min(sigma, largestSigma));
    const Plane upright = blurredDownColumns(planeOf(alpha), box);
    return imageOf(transposed(blurredDownColumns(transposed(upright), box)));
}

QImage tinted(const QImage& alpha, const QColor& color) {
    std::array<QRgb, 256> shades{};
    const QRgb opaque = color.rgb();
    for (std::size_t opacity = 0; opacity < shades.size(); ++opacity) {
        const auto shade = static_cast<int>(std::lround(color.alphaF() * static_cast<float>(opacity)));
        shades[opacity] = qPremultiply(qRgba(qRed(opaque), qGreen(opaque), qBlue(opaque), shade));
    }
    QImage image(alpha.size(), QImage::Format_ARGB32_Premultiplied);
    const int width = alpha.width();
    for (int y = 0; y < alpha.height(); ++y) {
        const uchar* opacities = alpha.constScanLine(y);
        auto* pixels = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < width; ++x)
            pixels[x] = shades[opacities[x]];
    }
    return image;
}

} // namespace orvelle
