// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "imagepalette/LibHeif.h"

#include "libraries/LateLibrary.h"

namespace dropshade {
namespace {

constexpr int interfaceVersion = 1;

LibHeif loaded() {
    LateLibrary library(QStringLiteral("heif"), interfaceVersion);
    LibHeif heif;
    library.resolve("heif_context_alloc", heif.contextAlloc)
        .resolve("heif_context_free", heif.contextFree)
        .resolve("heif_context_get_primary_image_handle", heif.contextGetPrimaryImageHandle)
        .resolve("heif_context_read_from_memory_without_copy",
                 heif.contextReadFromMemoryWithoutCopy)
        .resolve("heif_decode_image", heif.decodeImage)
        .resolve("heif_decoding_options_alloc", heif.decodingOptionsAlloc)
        .resolve("heif_decoding_options_free", heif.decodingOptionsFree)
        .resolve("heif_image_get_height", heif.imageGetHeight)
        .resolve("heif_image_get_plane_readonly", heif.imageGetPlaneReadonly)
        .resolve("heif_image_get_width", heif.imageGetWidth)
        .resolve("heif_image_handle_get_height", heif.imageHandleGetHeight)
        .resolve("heif_image_handle_get_nclx_color_profile", heif.imageHandleGetNclxColorProfile)
        .resolve("heif_image_handle_get_raw_color_profile", heif.imageHandleGetRawColorProfile)
        .resolve("heif_image_handle_get_raw_color_profile_size",
                 heif.imageHandleGetRawColorProfileSize)
        .resolve("heif_image_handle_get_width", heif.imageHandleGetWidth)
        .resolve("heif_image_handle_has_alpha_channel", heif.imageHandleHasAlphaChannel)
        .resolve("heif_image_handle_is_premultiplied_alpha", heif.imageHandleIsPremultipliedAlpha)
        .resolve("heif_image_handle_release", heif.imageHandleRelease)
        .resolve("heif_image_release", heif.imageRelease)
        .resolve("heif_nclx_color_profile_free", heif.nclxColorProfileFree);
    return library.isWhole() ? heif : LibHeif();
}

} // namespace

const LibHeif* LibHeif::load() {
    static const LibHeif heif = loaded();
    return heif.decodeImage ? &heif : nullptr;
}

} // namespace dropshade
