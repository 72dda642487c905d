// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractNativeEventFilter>
#include <QDBusServiceWatcher>
#include <QObject>

namespace dropshade {

/// Waits for a program that shows tray icons. Qt decides between the two protocols once, when the
/// first icon is made, and does not see a host of the newer one that starts later; so the icon is
/// made only when there is a host.
class TrayHostWatch : public QObject, private QAbstractNativeEventFilter {
    Q_OBJECT

public:
    TrayHostWatch();
    ~TrayHostWatch() override;

    /// Begins to look; `found` comes once, perhaps before this call returns.
    void start();

Q_SIGNALS:
    void found();

private Q_SLOTS:
    void askWatcher();
    void report();

private:
    bool nativeEventFilter(const QByteArray& eventType, void* message, qintptr* result) override;
    [[nodiscard]] bool hasEmbeddingHost() const;

    QDBusServiceWatcher m_watcherName;
    quint32 m_managerAtom = 0;
    quint32 m_traySelection = 0;
    bool m_isReported = false;
};

} // namespace dropshade
