// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "imagepalette/HeifDecoder.h"

#include "imagepalette/LibHeif.h"

#include <QColorSpace>
#include <QPointF>

namespace dropshade {

namespace {

using Context = HeifPointer<heif_context, giveBack<&LibHeif::contextFree>>;
using ColorProfile = HeifPointer<heif_color_profile_nclx, giveBack<&LibHeif::nclxColorProfileFree>>;
using Handle = HeifPointer<heif_image_handle, giveBack<&LibHeif::imageHandleRelease>>;
using Options = HeifPointer<heif_decoding_options, giveBack<&LibHeif::decodingOptionsFree>>;

bool succeeded(const heif_error& error) {
    return error.code == heif_error_Ok;
}

Context contextOf(const LibHeif& heif, const QByteArray& data) {
    Context context(heif.contextAlloc());
    if (!context ||
        !succeeded(heif.contextReadFromMemoryWithoutCopy(
            context.get(), data.constData(), static_cast<std::size_t>(data.size()), nullptr)))
        return nullptr;
    return context;
}

Handle primaryImageOf(const LibHeif& heif, heif_context* context) {
    heif_image_handle* handle = nullptr;
    if (!succeeded(heif.contextGetPrimaryImageHandle(context, &handle)))
        return nullptr;
    return Handle(handle);
}

QColorSpace iccColorSpace(const LibHeif& heif, const heif_image_handle* handle) {
    const std::size_t size = heif.imageHandleGetRawColorProfileSize(handle);
    QByteArray profile(static_cast<qsizetype>(size), Qt::Uninitialized);
    if (size == 0 || !succeeded(heif.imageHandleGetRawColorProfile(handle, profile.data())))
        return {};
    return QColorSpace::fromIccProfile(profile);
}

/// Code points of ITU-T H.273. Television's curves are taken for that of sRGB, as browsers take
/// them.
QColorSpace codedColorSpace(const LibHeif& heif, const heif_image_handle* handle) {
    heif_color_profile_nclx* raw = nullptr;
    const bool isKnown = succeeded(heif.imageHandleGetNclxColorProfile(handle, &raw));
    // Given out even where a code point in it is unknown.
    const ColorProfile profile(raw);
    if (!isKnown || !profile)
        return QColorSpace::SRgb;
    auto curve = QColorSpace::TransferFunction::SRgb;
    float gamma = 0.0F;
    if (profile->transfer_characteristics == heif_transfer_characteristic_linear) {
        curve = QColorSpace::TransferFunction::Linear;
    } else if (profile->transfer_characteristics ==
               heif_transfer_characteristic_ITU_R_BT_470_6_System_M) {
        curve = QColorSpace::TransferFunction::Gamma;
        gamma = 2.2F;
    }
    switch (profile->color_primaries) {
    case heif_color_primaries_SMPTE_EG_432_1:
        return {QColorSpace::Primaries::DciP3D65, curve, gamma};
    case heif_color_primaries_ITU_R_BT_2020_2_and_2100_0:
        return {QPointF(0.3127, 0.3290),
                QPointF(0.708, 0.292),
                QPointF(0.170, 0.797),
                QPointF(0.131, 0.046),
                curve,
                gamma};
    default:
        return {QColorSpace::Primaries::SRgb, curve, gamma};
    }
}

QColorSpace colorSpaceOf(const LibHeif& heif, const heif_image_handle* handle) {
    const QColorSpace icc = iccColorSpace(heif, handle);
    return icc.isValid() ? icc : codedColorSpace(heif, handle);
}

/// The decoded pixels, which the image keeps alive.
QImage decoded(const LibHeif& heif, const heif_image_handle* handle) {
    const Options options(heif.decodingOptionsAlloc());
    options->convert_hdr_to_8bit = 1;
    options->strict_decoding = 1;
    heif_image* image = nullptr;
    if (!succeeded(heif.decodeImage(handle, &image, heif_colorspace_RGB,
                                    heif_chroma_interleaved_RGBA, options.get())))
        return {};
    int stride = 0;
    const std::uint8_t* plane =
        heif.imageGetPlaneReadonly(image, heif_channel_interleaved, &stride);
    const auto format = !heif.imageHandleHasAlphaChannel(handle) ? QImage::Format_RGBX8888
                        : heif.imageHandleIsPremultipliedAlpha(handle)
                            ? QImage::Format_RGBA8888_Premultiplied
                            : QImage::Format_RGBA8888;
    const auto release = [](void* owned) {
        giveBack<&LibHeif::imageRelease>(static_cast<heif_image*>(owned));
    };
    QImage result;
    if (plane)
        result = QImage(plane, heif.imageGetWidth(image, heif_channel_interleaved),
                        heif.imageGetHeight(image, heif_channel_interleaved), stride, format,
                        release, image);
    if (result.isNull())
        release(image);
    return result;
}

} // namespace

std::optional<QImage> decodeHeif(const QByteArray& data) {
    const LibHeif* loaded = LibHeif::load();
    if (!loaded)
        return std::nullopt;
    const LibHeif& heif = *loaded;
    const Context context = contextOf(heif, data);
    const Handle handle = context ? primaryImageOf(heif, context.get()) : nullptr;
    if (!handle)
        return std::nullopt;
    const QSize size(heif.imageHandleGetWidth(handle.get()),
                     heif.imageHandleGetHeight(handle.get()));
    QImage image = decoded(heif, handle.get());
    if (image.isNull() || image.size() != size)
        return std::nullopt;
    image.setColorSpace(colorSpaceOf(heif, handle.get()));
    return image;
}

} // namespace dropshade
