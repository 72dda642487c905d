// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <functional>

namespace dropshade {

/// The editing of one name. However it ends, but for a cancel, a name that isn't blank is taken.
class NameEdit {
public:
    NameEdit(const QString& title, const QString& initialName,
             std::function<void(const QString&)> onCommit);

    const QString& title() const { return m_title; }
    const QString& name() const { return m_name; }

    void setName(const QString& name) { m_name = name; }
    void cancel() { m_isCancelled = true; }
    /// The editor has gone away, by whatever path. Takes effect once.
    void dismissed();

private:
    QString m_title;
    QString m_name;
    std::function<void(const QString&)> m_onCommit;
    bool m_isCancelled = false;
};

} // namespace dropshade
