// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/ScreenSampler.h"

#include <QDBusMessage>
#include <QDBusServiceWatcher>
#include <QObject>

namespace dropshade {

/// Asks the desktop portal to have the user pick a colour: the one way to read the screen where
/// programs can't see each other. What the user sees meanwhile is the desktop's own, so the
/// description of colours isn't used.
class PortalScreenSampler : public QObject, public ScreenSampler {
    Q_OBJECT

public:
    PortalScreenSampler();

    void sample(Describe describe, Completion completion) override;

private Q_SLOTS:
    void response(const QDBusMessage& message);

private:
    void listenTo(const QString& request);
    void finish(const std::optional<SRGBColor>& color);

    Completion m_completion;
    QString m_request;
    QDBusServiceWatcher m_portalWatch;
};

} // namespace dropshade
