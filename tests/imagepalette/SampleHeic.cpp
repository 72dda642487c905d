// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "imagepalette/HeifPointer.h"

#include "imagepalette/SampleFiles.h"
#include <libheif/heif.h>

#include <cstring>

#ifdef __SANITIZE_ADDRESS__
// The encoder keeps some memory until the process ends.
extern "C" const char* __lsan_default_suppressions() {
    return "leak:libx265";
}
#endif

namespace dropshade::SampleFiles {

namespace {

using Context = HeifPointer<heif_context, heif_context_free>;
using ColorProfile = HeifPointer<heif_color_profile_nclx, heif_nclx_color_profile_free>;
using Encoder = HeifPointer<heif_encoder, heif_encoder_release>;
using Image = HeifPointer<heif_image, heif_image_release>;
using Options = HeifPointer<heif_encoding_options, heif_encoding_options_free>;

Image heifImageOf(const QImage& image) {
    const bool hasAlpha = image.hasAlphaChannel();
    const QImage pixels =
        image.convertToFormat(hasAlpha ? QImage::Format_RGBA8888 : QImage::Format_RGB888);
    heif_image* raw = nullptr;
    heif_image_create(pixels.width(), pixels.height(), heif_colorspace_RGB,
                      hasAlpha ? heif_chroma_interleaved_RGBA : heif_chroma_interleaved_RGB, &raw);
    Image result(raw);
    heif_image_add_plane(raw, heif_channel_interleaved, pixels.width(), pixels.height(), 8);
    int stride = 0;
    std::uint8_t* plane = heif_image_get_plane(raw, heif_channel_interleaved, &stride);
    for (int y = 0; y < pixels.height(); ++y)
        std::memcpy(plane + static_cast<std::ptrdiff_t>(y) * stride, pixels.constScanLine(y),
                    static_cast<std::size_t>(pixels.width()) * (hasAlpha ? 4 : 3));
    return result;
}

heif_orientation orientationOf(int rotateDegrees) {
    switch (rotateDegrees) {
    case 90:
        return heif_orientation_rotate_90_cw;
    case 180:
        return heif_orientation_rotate_180;
    default:
        return heif_orientation_normal;
    }
}

heif_error append(heif_context*, const void* data, std::size_t size, void* target) {
    static_cast<QByteArray*>(target)->append(static_cast<const char*>(data),
                                             static_cast<qsizetype>(size));
    return {heif_error_Ok, heif_suberror_Unspecified, nullptr};
}

} // namespace

QByteArray heic(const QImage& image, const HeicOptions& wanted) {
    const Context context(heif_context_alloc());
    heif_encoder* rawEncoder = nullptr;
    heif_context_get_encoder_for_format(context.get(), heif_compression_HEVC, &rawEncoder);
    if (!rawEncoder)
        return {};
    const Encoder encoder(rawEncoder);
    heif_encoder_set_lossy_quality(encoder.get(), 90);
    const Image pixels = heifImageOf(image);
    const Options options(heif_encoding_options_alloc());
    options->image_orientation = orientationOf(wanted.rotateDegrees);
    // Without this the encoder leaves coded primaries out, for an old reader's sake.
    options->macOS_compatibility_workaround_no_nclx_profile = 0;
    ColorProfile profile;
    if (!wanted.iccProfile.isEmpty())
        heif_image_set_raw_color_profile(pixels.get(), "prof", wanted.iccProfile.constData(),
                                         static_cast<std::size_t>(wanted.iccProfile.size()));
    if (wanted.primaries != 0) {
        profile.reset(heif_nclx_color_profile_alloc());
        profile->color_primaries = static_cast<heif_color_primaries>(wanted.primaries);
        profile->transfer_characteristics = heif_transfer_characteristic_IEC_61966_2_1;
        profile->matrix_coefficients = heif_matrix_coefficients_ITU_R_BT_601_6;
        profile->full_range_flag = 1;
        heif_image_set_nclx_color_profile(pixels.get(), profile.get());
        options->output_nclx_profile = profile.get();
    }
    heif_context_encode_image(context.get(), pixels.get(), encoder.get(), options.get(), nullptr);
    QByteArray file;
    heif_writer writer{1, append};
    heif_context_write(context.get(), &writer, &file);
    return file;
}

} // namespace dropshade::SampleFiles
