// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include <lcms2.h>

namespace dropshade {

/// The functions of LittleCMS that are used, from the library loaded at the first call and kept:
/// most runs of the program never see a colour that needs them.
struct LittleCms {
    decltype(&cmsCloseProfile) closeProfile = nullptr;
    decltype(&cmsCreateLab4Profile) createLab4Profile = nullptr;
    decltype(&cmsCreate_sRGBProfile) createSRGBProfile = nullptr;
    decltype(&cmsCreateTransform) createTransform = nullptr;
    decltype(&cmsDeleteTransform) deleteTransform = nullptr;
    decltype(&cmsDoTransform) doTransform = nullptr;
    decltype(&cmsGetColorSpace) getColorSpace = nullptr;
    decltype(&cmsIsMatrixShaper) isMatrixShaper = nullptr;
    decltype(&cmsIsTag) isTag = nullptr;
    decltype(&cmsOpenProfileFromMem) openProfileFromMem = nullptr;

    /// Nothing where the library isn't there.
    [[nodiscard]] static const LittleCms* load();
};

} // namespace dropshade
