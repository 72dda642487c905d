// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "interchange/ColorSpaces.h"

#include <array>
#include <cmath>

namespace dropshade {
namespace {

using Vector = std::array<double, 3>;
/// By rows.
using Matrix = std::array<Vector, 3>;

enum class Curve { linear, sRGB, genericGamma, adobeGamma };

struct Definition {
    Curve curve;
    Matrix toXYZ;
};

constexpr double genericGamma = 461.0 / 256.0;
constexpr double adobeGamma = 563.0 / 256.0;

/// IEC 61966-2-1, adapted to D50.
constexpr Matrix sRGBPrimaries = {
    {{0.43607, 0.38515, 0.14307}, {0.22249, 0.71687, 0.06061}, {0.01392, 0.09708, 0.71410}}};

constexpr Definition definitionOf(RgbSpace space) {
    switch (space) {
    case RgbSpace::sRGB:
        break;
    case RgbSpace::linearSRGB:
        return {Curve::linear, sRGBPrimaries};
    case RgbSpace::genericRGB:
        return {Curve::genericGamma,
                {{{0.45427, 0.35333, 0.15662},
                  {0.24190, 0.67357, 0.08450},
                  {0.01488, 0.09062, 0.71950}}}};
    case RgbSpace::displayP3:
        return {Curve::sRGB,
                {{{0.51512, 0.29198, 0.15710},
                  {0.24120, 0.69225, 0.06657},
                  {-0.00105, 0.04189, 0.78407}}}};
    case RgbSpace::adobeRGB:
        return {Curve::adobeGamma,
                {{{0.60974, 0.20528, 0.14919},
                  {0.31111, 0.62567, 0.06322},
                  {0.01947, 0.06087, 0.74457}}}};
    }
    return {Curve::sRGB, sRGBPrimaries};
}

constexpr Vector product(const Matrix& matrix, const Vector& vector) {
    Vector result = {};
    for (std::size_t row = 0; row < 3; ++row)
        for (std::size_t column = 0; column < 3; ++column)
            result[row] += matrix[row][column] * vector[column];
    return result;
}

/// By cofactors; all matrices here have an inverse.
constexpr Matrix inverse(const Matrix& m) {
    Matrix result = {};
    double determinant = 0.0;
    for (std::size_t row = 0; row < 3; ++row) {
        for (std::size_t column = 0; column < 3; ++column) {
            const std::size_t row1 = (row + 1) % 3;
            const std::size_t row2 = (row + 2) % 3;
            const std::size_t column1 = (column + 1) % 3;
            const std::size_t column2 = (column + 2) % 3;
            result[column][row] =
                m[row1][column1] * m[row2][column2] - m[row1][column2] * m[row2][column1];
        }
        determinant += m[row][0] * result[0][row];
    }
    for (Vector& row : result)
        for (double& entry : row)
            entry /= determinant;
    return result;
}

/// Each curve goes on below 0 as its mirror image.
double decoded(Curve curve, double channel) {
    const double size = std::abs(channel);
    double light = size;
    if (curve == Curve::sRGB)
        light = size <= 0.04045 ? size / 12.92 : std::pow((size + 0.055) / 1.055, 2.4);
    else if (curve != Curve::linear)
        light = std::pow(size, curve == Curve::genericGamma ? genericGamma : adobeGamma);
    return std::copysign(light, channel);
}

double encoded(Curve curve, double light) {
    const double size = std::abs(light);
    double channel = size;
    if (curve == Curve::sRGB)
        channel = size <= 0.0031308 ? 12.92 * size : 1.055 * std::pow(size, 1 / 2.4) - 0.055;
    else if (curve != Curve::linear)
        channel = std::pow(size, 1 / (curve == Curve::genericGamma ? genericGamma : adobeGamma));
    return std::copysign(channel, light);
}

RGBChannels converted(const RGBChannels& color, RgbSpace from, RgbSpace to) {
    if (from == to)
        return color;
    const Definition source = definitionOf(from);
    const Definition target = definitionOf(to);
    const Vector light = {decoded(source.curve, color.red), decoded(source.curve, color.green),
                          decoded(source.curve, color.blue)};
    const Vector result = product(inverse(target.toXYZ), product(source.toXYZ, light));
    return {encoded(target.curve, result[0]), encoded(target.curve, result[1]),
            encoded(target.curve, result[2])};
}

} // namespace

RGBChannels sRGBFrom(RgbSpace space, const RGBChannels& color) {
    return converted(color, space, RgbSpace::sRGB);
}

RGBChannels fromSRGB(const SRGBColor& color, RgbSpace space) {
    return converted({color.red(), color.green(), color.blue()}, RgbSpace::sRGB, space);
}

double sRGBFromGenericGray(double white) {
    return encoded(Curve::sRGB, decoded(Curve::genericGamma, white));
}

} // namespace dropshade
