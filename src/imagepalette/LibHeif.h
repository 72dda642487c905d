// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "imagepalette/HeifPointer.h"

#include <libheif/heif.h>

namespace dropshade {

/// The functions of libheif that are used, from the library loaded at the first call and kept. It
/// brings four video codecs along, for the few runs of the program that meet such a file.
struct LibHeif {
    decltype(&heif_context_alloc) contextAlloc = nullptr;
    decltype(&heif_context_free) contextFree = nullptr;
    decltype(&heif_context_get_primary_image_handle) contextGetPrimaryImageHandle = nullptr;
    decltype(&heif_context_read_from_memory_without_copy) contextReadFromMemoryWithoutCopy =
        nullptr;
    decltype(&heif_decode_image) decodeImage = nullptr;
    decltype(&heif_decoding_options_alloc) decodingOptionsAlloc = nullptr;
    decltype(&heif_decoding_options_free) decodingOptionsFree = nullptr;
    decltype(&heif_image_get_height) imageGetHeight = nullptr;
    decltype(&heif_image_get_plane_readonly) imageGetPlaneReadonly = nullptr;
    decltype(&heif_image_get_width) imageGetWidth = nullptr;
    decltype(&heif_image_handle_get_height) imageHandleGetHeight = nullptr;
    decltype(&heif_image_handle_get_nclx_color_profile) imageHandleGetNclxColorProfile = nullptr;
    decltype(&heif_image_handle_get_raw_color_profile) imageHandleGetRawColorProfile = nullptr;
    decltype(&heif_image_handle_get_raw_color_profile_size) imageHandleGetRawColorProfileSize =
        nullptr;
    decltype(&heif_image_handle_get_width) imageHandleGetWidth = nullptr;
    decltype(&heif_image_handle_has_alpha_channel) imageHandleHasAlphaChannel = nullptr;
    decltype(&heif_image_handle_is_premultiplied_alpha) imageHandleIsPremultipliedAlpha = nullptr;
    decltype(&heif_image_handle_release) imageHandleRelease = nullptr;
    decltype(&heif_image_release) imageRelease = nullptr;
    decltype(&heif_nclx_color_profile_free) nclxColorProfileFree = nullptr;

    /// Nothing where the library isn't there.
    [[nodiscard]] static const LibHeif* load();
};

/// Gives one of libheif's objects back with the function that `release` names. Who has such an
/// object has loaded the library.
template <auto release>
inline constexpr auto giveBack = [](auto* object) { (LibHeif::load()->*release)(object); };

} // namespace dropshade
