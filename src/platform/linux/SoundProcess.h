// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/SoundPlayer.h"

#include <QDeadlineTimer>
#include <QProcess>

#include <chrono>
#include <functional>

namespace dropshade {

/// Has a process of its own play the sound, which ends by itself a few seconds after the last one.
/// Qt's audio takes 3 MB and 6 ms at start, stays for good once loaded, waits for a sound server
/// that hangs, and looks for one that is missing every three seconds: none of it here.
class SoundProcess : public SoundPlayer {
public:
    /// `program` gives the path of the sound program and is asked when it is to be started. Where
    /// that cannot be started or finds no device, the next try comes after `restWithoutDevice`.
    explicit SoundProcess(std::function<QString()> program,
                          std::chrono::milliseconds restWithoutDevice = std::chrono::minutes(1));
    ~SoundProcess() override;

    void prepare(const QString& path) override;
    void play() override;

private:
    [[nodiscard]] bool start();
    void rest();
    void end();

    std::function<QString()> m_program;
    std::chrono::milliseconds m_restWithoutDevice;
    QString m_path;
    QProcess m_process;
    QDeadlineTimer m_rest;
};

} // namespace dropshade
