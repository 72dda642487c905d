// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "platform/linux/SoundProcess.h"

#include "platform/linux/sound/SoundPipe.h"

#include <QFile>

namespace dropshade {

namespace {

/// A program that has so much still to read is not reading.
constexpr qint64 mostBytesUnread = 512 << 10;

} // namespace

SoundProcess::SoundProcess(std::function<QString()> program,
                           std::chrono::milliseconds restWithoutDevice)
    : m_program(std::move(program)), m_restWithoutDevice(restWithoutDevice) {
    m_process.setStandardOutputFile(QProcess::nullDevice());
    m_process.setStandardErrorFile(QProcess::nullDevice());
    QObject::connect(&m_process, &QProcess::finished, &m_process, [this](int exitCode) {
        if (exitCode == noSoundDeviceExitCode)
            rest();
    });
    QObject::connect(&m_process, &QProcess::errorOccurred, &m_process,
                     [this](QProcess::ProcessError error) {
                         if (error == QProcess::FailedToStart)
                             rest();
                     });
}

SoundProcess::~SoundProcess() {
    m_process.disconnect();
    end();
}

void SoundProcess::prepare(const QString& path) {
    m_path = path;
}

void SoundProcess::play() {
    QFile file(m_path);
    if (!m_rest.hasExpired() || !file.exists() || !file.open(QIODevice::ReadOnly))
        return;
    if (m_process.bytesToWrite() > mostBytesUnread)
        end();
    if (m_process.state() != QProcess::NotRunning || start())
        m_process.write(framedSound(file.readAll()));
}

bool SoundProcess::start() {
    const QString program = m_program();
    if (program.isEmpty()) {
        rest();
        return false;
    }
    m_process.start(program, QStringList());
    return m_process.state() != QProcess::NotRunning;
}

void SoundProcess::rest() {
    m_rest.setRemainingTime(m_restWithoutDevice);
}

void SoundProcess::end() {
    if (m_process.state() == QProcess::NotRunning)
        return;
    m_process.kill();
    m_process.waitForFinished();
}

} // namespace dropshade
