// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "interchange/LittleCms.h"

#include "libraries/LateLibrary.h"

namespace dropshade {
namespace {

constexpr int interfaceVersion = 2;

LittleCms loaded() {
    LateLibrary library(QStringLiteral("lcms2"), interfaceVersion);
    LittleCms lcms;
    library.resolve("cmsCloseProfile", lcms.closeProfile)
        .resolve("cmsCreateLab4Profile", lcms.createLab4Profile)
        .resolve("cmsCreate_sRGBProfile", lcms.createSRGBProfile)
        .resolve("cmsCreateTransform", lcms.createTransform)
        .resolve("cmsDeleteTransform", lcms.deleteTransform)
        .resolve("cmsDoTransform", lcms.doTransform)
        .resolve("cmsGetColorSpace", lcms.getColorSpace)
        .resolve("cmsIsMatrixShaper", lcms.isMatrixShaper)
        .resolve("cmsIsTag", lcms.isTag)
        .resolve("cmsOpenProfileFromMem", lcms.openProfileFromMem);
    return library.isWhole() ? lcms : LittleCms();
}

} // namespace

const LittleCms* LittleCms::load() {
    static const LittleCms lcms = loaded();
    return lcms.doTransform ? &lcms : nullptr;
}

} // namespace dropshade
