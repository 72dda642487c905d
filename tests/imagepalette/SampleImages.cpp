// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "imagepalette/SampleImages.h"

#include <algorithm>
#include <cmath>

namespace dropshade::SampleImages {

namespace {

int uniform(std::mt19937_64& generator, int low, int high) {
    return std::uniform_int_distribution<int>(low, high)(generator);
}

Pixel randomPixel(std::mt19937_64& generator, int low = 0, int high = 255) {
    return {static_cast<std::uint8_t>(uniform(generator, low, high)),
            static_cast<std::uint8_t>(uniform(generator, low, high)),
            static_cast<std::uint8_t>(uniform(generator, low, high))};
}

std::uint8_t byteOf(double value) {
    return static_cast<std::uint8_t>(std::clamp(std::round(value), 0.0, 255.0));
}

std::vector<Pixel> fewColors(std::mt19937_64& generator, std::size_t count) {
    std::vector<Pixel> colors;
    const int kinds = uniform(generator, 1, 40);
    for (int at = 0; at < kinds; ++at)
        colors.push_back(randomPixel(generator));
    std::vector<Pixel> pixels;
    while (pixels.size() < count)
        pixels.push_back(colors[static_cast<std::size_t>(uniform(generator, 0, kinds - 1))]);
    return pixels;
}

std::vector<Pixel> nearEqual(std::mt19937_64& generator, std::size_t count) {
    const int low = uniform(generator, 0, 250);
    const int high = low + uniform(generator, 0, 5);
    std::vector<Pixel> pixels;
    while (pixels.size() < count)
        pixels.push_back(randomPixel(generator, low, high));
    return pixels;
}

std::vector<Pixel> gradient(std::mt19937_64& generator, std::size_t count) {
    const Pixel from = randomPixel(generator);
    const Pixel to = randomPixel(generator);
    std::vector<Pixel> pixels;
    for (std::size_t at = 0; at < count; ++at) {
        const double part = static_cast<double>(at) / static_cast<double>(count);
        pixels.push_back({byteOf(from.red + (to.red - from.red) * part),
                          byteOf(from.green + (to.green - from.green) * part),
                          byteOf(from.blue + (to.blue - from.blue) * part)});
    }
    return pixels;
}

std::vector<Pixel> greys(std::mt19937_64& generator, std::size_t count) {
    std::vector<Pixel> pixels;
    while (pixels.size() < count) {
        const auto grey = static_cast<std::uint8_t>(uniform(generator, 0, 255));
        pixels.push_back({grey, grey, grey});
    }
    return pixels;
}

} // namespace

RandomBits seededBits(std::uint64_t seed) {
    return [generator = std::mt19937_64(seed)]() mutable { return generator(); };
}

std::vector<Pixel> noise(std::mt19937_64& generator, std::size_t count) {
    std::vector<Pixel> pixels(count);
    std::generate(pixels.begin(), pixels.end(), [&] { return randomPixel(generator); });
    return pixels;
}

std::vector<Pixel> scene(std::mt19937_64& generator, int width, int height) {
    struct Blob {
        double x, y, size;
        Pixel color;
    };
    std::vector<Blob> blobs;
    for (int at = 0; at < 12; ++at)
        blobs.push_back({static_cast<double>(uniform(generator, 0, width)),
                         static_cast<double>(uniform(generator, 0, height)),
                         uniform(generator, 5, 60) / 100.0 * std::max(width, height),
                         randomPixel(generator)});
    std::normal_distribution<double> grain(0.0, 3.0);
    std::vector<Pixel> pixels;
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            double weights = 1e-9, red = 0.0, green = 0.0, blue = 0.0;
            for (const Blob& blob : blobs) {
                const double distance = std::hypot(x - blob.x, y - blob.y) / blob.size;
                const double weight = std::exp(-distance * distance * 4.0);
                weights += weight;
                red += weight * blob.color.red;
                green += weight * blob.color.green;
                blue += weight * blob.color.blue;
            }
            pixels.push_back({byteOf(red / weights + grain(generator)),
                              byteOf(green / weights + grain(generator)),
                              byteOf(blue / weights + grain(generator))});
        }
    }
    return pixels;
}

std::vector<Pixel> randomImage(std::mt19937_64& generator, std::size_t most) {
    const auto count = static_cast<std::size_t>(uniform(generator, 1, static_cast<int>(most)));
    switch (uniform(generator, 0, 6)) {
    case 0:
        return noise(generator, count);
    case 1:
        return fewColors(generator, count);
    case 2:
        return nearEqual(generator, count);
    case 3:
        return gradient(generator, count);
    case 4:
        return greys(generator, count);
    case 5:
        return std::vector<Pixel>(count, randomPixel(generator));
    default: {
        const int side = std::max(1, static_cast<int>(std::sqrt(count)));
        return scene(generator, side, side);
    }
    }
}

} // namespace dropshade::SampleImages
