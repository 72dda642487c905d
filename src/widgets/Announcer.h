// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QPointer>
#include <QString>

class QWidget;

namespace dropshade {

/// Says a sentence to a screen reader, also when the window that it is about has just closed. Where
/// no screen reader listens it does nothing.
class Announcer {
public:
    Announcer() = default;
    ~Announcer();
    Announcer(const Announcer&) = delete;
    Announcer& operator=(const Announcer&) = delete;

    void announce(const QString& sentence);

private:
    QPointer<QWidget> m_notice;
};

} // namespace dropshade
