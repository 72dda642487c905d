// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT

// The program that is heard: it plays each audio file that comes through its standard input, and
// ends when nothing has come for a while. The main program starts it at a copy.
#include "platform/linux/sound/AudioSinkPlayer.h"
#include "platform/linux/sound/SoundPipe.h"

#include <QCoreApplication>
#include <QSocketNotifier>
#include <QTimer>

#include <unistd.h>

#include <array>
#include <cerrno>
#include <chrono>

namespace dropshade {

namespace {

/// The next copy is often near; starting takes longer than playing.
constexpr std::chrono::seconds longestPause{5};

/// A sound server that hangs takes its callers with it. The kernel ends us then.
constexpr unsigned longestHangSeconds = 30;

class SoundProgram {
public:
    SoundProgram() : m_input(STDIN_FILENO, QSocketNotifier::Read) {
        m_pause.setSingleShot(true);
        m_pause.setInterval(longestPause);
        QObject::connect(&m_pause, &QTimer::timeout, &QCoreApplication::quit);
        QObject::connect(&m_input, &QSocketNotifier::activated, &m_input, [this] { readInput(); });
        m_pause.start();
    }

private:
    void readInput() {
        std::array<char, 65536> bytes;
        const ssize_t count = ::read(STDIN_FILENO, bytes.data(), bytes.size());
        if (count < 0 && errno == EINTR)
            return;
        if (count > 0)
            m_pipe.append(QByteArrayView(bytes.data(), count));
        if (const auto file = m_pipe.takeLast())
            play(*file);
        if (count <= 0 || m_pipe.isBroken())
            QCoreApplication::quit();
    }

    void play(const QByteArray& file) {
        ::alarm(longestHangSeconds);
        m_pause.start();
        // Taking a stream down runs the event loop, which must not come back here.
        m_input.setEnabled(false);
        if (m_player.play(file) == AudioSinkPlayer::Result::NoDevice)
            QCoreApplication::exit(noSoundDeviceExitCode);
        m_input.setEnabled(true);
    }

    QSocketNotifier m_input;
    QTimer m_pause;
    SoundPipe m_pipe;
    AudioSinkPlayer m_player;
};

} // namespace

} // namespace dropshade

int main(int argc, char** argv) {
    ::alarm(dropshade::longestHangSeconds);
    QCoreApplication application(argc, argv);
    const dropshade::SoundProgram program;
    // Now and then the toolkit takes its connection to the server down beneath the thread that
    // reads from it. There is nothing to take down that the kernel doesn't.
    ::_exit(QCoreApplication::exec());
}
