// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "interchange/ColorTransform.h"

#include "interchange/LittleCms.h"

#include <algorithm>
#include <array>

namespace dropshade {
namespace {

/// Profiles of curves are some kilobytes.
constexpr qsizetype mostProfileBytes = 1024 * 1024;

/// A profile that closes itself.
class Profile {
public:
    Profile(const LittleCms& lcms, cmsHPROFILE profile) : m_lcms(lcms), m_profile(profile) {}
    Profile(const LittleCms& lcms, const QByteArray& bytes)
        : Profile(lcms, lcms.openProfileFromMem(bytes.constData(), cmsUInt32Number(bytes.size()))) {
    }
    ~Profile() {
        if (m_profile)
            m_lcms.closeProfile(m_profile);
    }
    Profile(const Profile&) = delete;
    Profile& operator=(const Profile&) = delete;

    [[nodiscard]] cmsHPROFILE get() const { return m_profile; }
    [[nodiscard]] bool isOf(cmsColorSpaceSignature space) const {
        return m_profile && m_lcms.getColorSpace(m_profile) == space;
    }
    [[nodiscard]] bool isOfCurves() const {
        constexpr std::array tables = {cmsSigAToB0Tag, cmsSigAToB1Tag, cmsSigAToB2Tag,
                                       cmsSigDToB0Tag, cmsSigDToB1Tag, cmsSigDToB2Tag,
                                       cmsSigDToB3Tag};
        return std::ranges::none_of(
            tables, [this](cmsTagSignature tag) { return m_lcms.isTag(m_profile, tag); });
    }

private:
    const LittleCms& m_lcms;
    cmsHPROFILE m_profile;
};

} // namespace

class ColorTransform::Builder {
public:
    Builder() : m_transform(std::make_unique<ColorTransform>()) {
        m_transform->m_lcms = LittleCms::load();
    }

    [[nodiscard]] const LittleCms* lcms() const { return m_transform->m_lcms; }

    void build(const Profile& from, cmsUInt32Number format, cmsUInt32Number flags = 0) {
        const Profile to(*lcms(), lcms()->createSRGBProfile());
        // A cache of one colour and tables made for whole images cost more than they save here.
        m_transform->m_transform = lcms()->createTransform(
            from.get(), format, to.get(), TYPE_RGB_DBL, INTENT_RELATIVE_COLORIMETRIC,
            flags | cmsFLAGS_NOCACHE | cmsFLAGS_NOOPTIMIZE);
        m_transform->m_channels = m_transform->works() ? T_CHANNELS(format) : 0;
    }

    [[nodiscard]] std::unique_ptr<ColorTransform> take() { return std::move(m_transform); }

private:
    std::unique_ptr<ColorTransform> m_transform;
};

std::unique_ptr<ColorTransform> ColorTransform::fromInk(const QByteArray& profile) {
    Builder builder;
    if (builder.lcms()) {
        const Profile ink(*builder.lcms(), profile);
        if (ink.isOf(cmsSigCmykData))
            builder.build(ink, TYPE_CMYK_DBL, cmsFLAGS_BLACKPOINTCOMPENSATION);
    }
    return builder.take();
}

std::unique_ptr<ColorTransform> ColorTransform::fromLab() {
    Builder builder;
    if (builder.lcms())
        builder.build(Profile(*builder.lcms(), builder.lcms()->createLab4Profile(nullptr)),
                      TYPE_Lab_DBL);
    return builder.take();
}

std::unique_ptr<ColorTransform> ColorTransform::fromProfile(const QByteArray& profile) {
    Builder builder;
    if (builder.lcms() && profile.size() <= mostProfileBytes) {
        const Profile space(*builder.lcms(), profile);
        if (space.isOf(cmsSigRgbData) && builder.lcms()->isMatrixShaper(space.get()) &&
            space.isOfCurves())
            builder.build(space, TYPE_RGB_DBL);
        else if (space.isOf(cmsSigGrayData) && space.isOfCurves())
            builder.build(space, TYPE_GRAY_DBL);
    }
    return builder.take();
}

ColorTransform::~ColorTransform() {
    if (m_transform)
        m_lcms->deleteTransform(m_transform);
}

SRGBColor ColorTransform::operator()(std::span<const double> numbers) const {
    std::array<double, 3> rgb = {};
    m_lcms->doTransform(m_transform, numbers.data(), rgb.data(), 1);
    return SRGBColor(rgb[0], rgb[1], rgb[2]);
}

} // namespace dropshade
