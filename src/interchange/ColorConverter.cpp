// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "interchange/ColorConverter.h"

#include "interchange/LittleCms.h"

#include <QFile>
#include <QStandardPaths>

#include <algorithm>
#include <array>
#include <cmath>

namespace dropshade {
namespace {

/// Every range that is asked for holds 0.
double clamped(double number, double least, double most) {
    return std::isnan(number) ? 0.0 : std::clamp(number, least, most);
}

double fraction(double number) {
    return clamped(number, 0.0, 1.0);
}

/// A profile that closes itself.
class Profile {
public:
    Profile(const LittleCms& lcms, cmsHPROFILE profile) : m_lcms(lcms), m_profile(profile) {}
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

private:
    const LittleCms& m_lcms;
    cmsHPROFILE m_profile;
};

} // namespace

/// From one kind of colour to sRGB; without effect where it can't be had.
class ColorConverter::Transform {
public:
    static std::unique_ptr<Transform> fromCmyk(const QString& path) {
        auto transform = std::make_unique<Transform>();
        QFile file(path);
        if (!transform->m_lcms || path.isEmpty() || !file.open(QIODevice::ReadOnly))
            return transform;
        const QByteArray bytes = file.readAll();
        const Profile profile(*transform->m_lcms,
                              transform->m_lcms->openProfileFromMem(bytes.constData(),
                                                                    cmsUInt32Number(bytes.size())));
        if (profile.isOf(cmsSigCmykData))
            transform->build(profile, TYPE_CMYK_DBL, cmsFLAGS_BLACKPOINTCOMPENSATION);
        return transform;
    }

    static std::unique_ptr<Transform> fromLab() {
        auto transform = std::make_unique<Transform>();
        if (!transform->m_lcms)
            return transform;
        const Profile profile(*transform->m_lcms, transform->m_lcms->createLab4Profile(nullptr));
        transform->build(profile, TYPE_Lab_DBL, 0);
        return transform;
    }

    Transform() : m_lcms(LittleCms::load()) {}
    ~Transform() {
        if (m_transform)
            m_lcms->deleteTransform(m_transform);
    }
    Transform(const Transform&) = delete;
    Transform& operator=(const Transform&) = delete;

    [[nodiscard]] bool works() const { return m_transform != nullptr; }

    /// One colour, its numbers in the range that LittleCMS wants.
    [[nodiscard]] SRGBColor operator()(const double* numbers) const {
        std::array<double, 3> rgb = {};
        m_lcms->doTransform(m_transform, numbers, rgb.data(), 1);
        return SRGBColor(rgb[0], rgb[1], rgb[2]);
    }

private:
    void build(const Profile& from, cmsUInt32Number format, cmsUInt32Number flags) {
        const Profile to(*m_lcms, m_lcms->createSRGBProfile());
        // A cache of one colour and tables made for whole images cost more than they save here.
        m_transform = m_lcms->createTransform(from.get(), format, to.get(), TYPE_RGB_DBL,
                                              INTENT_RELATIVE_COLORIMETRIC,
                                              flags | cmsFLAGS_NOCACHE | cmsFLAGS_NOOPTIMIZE);
    }

    const LittleCms* m_lcms;
    cmsHTRANSFORM m_transform = nullptr;
};

ColorConverter::ColorConverter(const QString& cmykProfile) : m_cmykProfile(cmykProfile) {}

ColorConverter::ColorConverter() = default;

ColorConverter::~ColorConverter() = default;

SRGBColor ColorConverter::fromCmyk(double cyan, double magenta, double yellow, double black) {
    if (!m_fromCmyk) {
        if (m_cmykProfile.isNull())
            m_cmykProfile =
                QStandardPaths::locate(QStandardPaths::GenericDataLocation,
                                       QStringLiteral("color/icc/ghostscript/default_cmyk.icc"));
        m_fromCmyk = Transform::fromCmyk(m_cmykProfile);
    }
    const double light = 1.0 - fraction(black);
    if (!m_fromCmyk->works())
        return SRGBColor((1.0 - fraction(cyan)) * light, (1.0 - fraction(magenta)) * light,
                         (1.0 - fraction(yellow)) * light);
    // Here LittleCMS counts ink in percent.
    const std::array<double, 4> ink = {100.0 * fraction(cyan), 100.0 * fraction(magenta),
                                       100.0 * fraction(yellow), 100.0 * fraction(black)};
    return (*m_fromCmyk)(ink.data());
}

SRGBColor ColorConverter::fromLab(double lightness, double a, double b) {
    if (!m_fromLab)
        m_fromLab = Transform::fromLab();
    const std::array<double, 3> lab = {clamped(lightness, 0.0, 100.0), clamped(a, -128.0, 127.0),
                                       clamped(b, -128.0, 127.0)};
    if (!m_fromLab->works())
        return SRGBColor(lab[0] / 100.0, lab[0] / 100.0, lab[0] / 100.0);
    return (*m_fromLab)(lab.data());
}

} // namespace dropshade
