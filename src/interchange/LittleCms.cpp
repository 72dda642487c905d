// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "interchange/LittleCms.h"

#include <QLibrary>

namespace dropshade {
namespace {

/// The number in the library's name that changes when its functions do.
constexpr int interfaceVersion = 2;

template <typename Function>
bool resolve(QLibrary& library, const char* name, Function& function) {
    function = reinterpret_cast<Function>(library.resolve(name));
    return function != nullptr;
}

LittleCms loaded() {
    QLibrary library(QStringLiteral("lcms2"), interfaceVersion);
    LittleCms lcms;
    const bool isWhole = resolve(library, "cmsCloseProfile", lcms.closeProfile) &&
                         resolve(library, "cmsCreateLab4Profile", lcms.createLab4Profile) &&
                         resolve(library, "cmsCreate_sRGBProfile", lcms.createSRGBProfile) &&
                         resolve(library, "cmsCreateTransform", lcms.createTransform) &&
                         resolve(library, "cmsDeleteTransform", lcms.deleteTransform) &&
                         resolve(library, "cmsDoTransform", lcms.doTransform) &&
                         resolve(library, "cmsGetColorSpace", lcms.getColorSpace) &&
                         resolve(library, "cmsIsMatrixShaper", lcms.isMatrixShaper) &&
                         resolve(library, "cmsIsTag", lcms.isTag) &&
                         resolve(library, "cmsOpenProfileFromMem", lcms.openProfileFromMem);
    return isWhole ? lcms : LittleCms();
}

} // namespace

const LittleCms* LittleCms::load() {
    static const LittleCms lcms = loaded();
    return lcms.doTransform ? &lcms : nullptr;
}

} // namespace dropshade
