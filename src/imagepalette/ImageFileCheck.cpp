// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "imagepalette/ImageFileCheck.h"

#include "bytes/ByteReader.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <string_view>

namespace dropshade {

namespace {

using namespace std::string_view_literals;

struct Signature {
    ImageFileFormat format;
    std::size_t offset;
    std::string_view bytes;
};

constexpr std::array signatures = {
    Signature{ImageFileFormat::png, 0, "\x89PNG\r\n\x1A\n"sv},
    Signature{ImageFileFormat::jpeg, 0, "\xFF\xD8\xFF"sv},
    Signature{ImageFileFormat::gif, 0, "GIF87a"sv},
    Signature{ImageFileFormat::gif, 0, "GIF89a"sv},
    Signature{ImageFileFormat::bmp, 0, "BM"sv},
    Signature{ImageFileFormat::tiff, 0, "II*\0"sv},
    Signature{ImageFileFormat::tiff, 0, "MM\0*"sv},
    Signature{ImageFileFormat::webp, 8, "WEBP"sv},
    Signature{ImageFileFormat::heif, 4, "ftypheic"sv},
    Signature{ImageFileFormat::heif, 4, "ftypheix"sv},
    Signature{ImageFileFormat::heif, 4, "ftypheim"sv},
    Signature{ImageFileFormat::heif, 4, "ftypheis"sv},
    Signature{ImageFileFormat::heif, 4, "ftyphevc"sv},
    Signature{ImageFileFormat::heif, 4, "ftyphevx"sv},
    Signature{ImageFileFormat::heif, 4, "ftypmif1"sv},
    Signature{ImageFileFormat::heif, 4, "ftypmsf1"sv},
};

bool matches(const Signature& signature, std::span<const std::uint8_t> file) {
    return file.size() >= signature.offset + signature.bytes.size() &&
           std::equal(signature.bytes.begin(), signature.bytes.end(),
                      file.begin() + static_cast<std::ptrdiff_t>(signature.offset),
                      [](char expected, std::uint8_t byte) {
                          return static_cast<std::uint8_t>(expected) == byte;
                      });
}

} // namespace

std::optional<ImageFileFormat> imageFileFormatOf(std::span<const std::uint8_t> file) {
    const auto found =
        std::find_if(signatures.begin(), signatures.end(),
                     [file](const Signature& signature) { return matches(signature, file); });
    return found == signatures.end() ? std::nullopt : std::optional(found->format);
}

bool isWholeImageFile(ImageFileFormat format, std::span<const std::uint8_t> file) {
    switch (format) {
    case ImageFileFormat::png:
        return isWholePng(file);
    case ImageFileFormat::jpeg:
        return isWholeJpeg(file);
    case ImageFileFormat::gif:
        return isWholeGif(file);
    case ImageFileFormat::bmp:
        return isWholeBmp(file);
    case ImageFileFormat::tiff:
        return isWholeTiff(file);
    case ImageFileFormat::webp:
    case ImageFileFormat::heif:
        return true;
    }
    return false;
}

bool isWholePng(std::span<const std::uint8_t> file) {
    constexpr std::uint32_t endChunk = 0x49454E44;
    constexpr std::uint64_t checksumSize = 4;
    ByteReader reader(file);
    reader.skip(8);
    while (!reader.failed()) {
        const std::uint32_t length = reader.u32();
        const std::uint32_t type = reader.u32();
        reader.skip(length + checksumSize);
        if (type == endChunk)
            return !reader.failed();
    }
    return false;
}

} // namespace dropshade
