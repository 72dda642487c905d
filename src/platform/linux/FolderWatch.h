// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QSocketNotifier>

#include <memory>

namespace dropshade {

/// Tells of changes in a folder, also of those made within a file. The kernel knows nothing of
/// what other computers do to a shared file system: look there now and then all the same.
class FolderWatch : public QObject {
    Q_OBJECT

public:
    explicit FolderWatch(const QString& folder);
    ~FolderWatch() override;

Q_SIGNALS:
    void didChange();

private:
    void drain();

    int m_descriptor;
    std::unique_ptr<QSocketNotifier> m_notifier;
};

} // namespace dropshade
