# Copyright (c) 2026 The Dropshade authors
# SPDX-License-Identifier: MIT
"""A real PulseAudio that nobody hears: one sink without a device, and ears on its monitor."""

import os
import signal
import struct
import subprocess
import tempfile
import time

RATE = 48000
SAMPLE_BYTES = 2
AIFF_HEADER_SIZE = 54


def aiff_samples(path):
    """The samples of one of our own sounds, as the monitor would write them."""
    data = path.read_bytes()[AIFF_HEADER_SIZE:]
    count = len(data) // SAMPLE_BYTES
    return struct.pack(f"<{count}h", *struct.unpack(f">{count}h", data))


class SoundServer:
    """`with SoundServer() as server:` gives a server for programs started with `server.environment`.
    The sink has the rate, width and channel of our sounds and never rewinds, so that they pass
    through untouched and its monitor hears exactly what a device would play."""

    def __init__(self):
        self._folder = tempfile.TemporaryDirectory(prefix="dropshade-sound-")
        socket = os.path.join(self._folder.name, "socket")
        self.environment = {"PATH": os.environ["PATH"], "HOME": self._folder.name,
                            "XDG_RUNTIME_DIR": self._folder.name, "PULSE_SERVER": f"unix:{socket}"}
        self._socket = socket
        self._recording = os.path.join(self._folder.name, "recording")
        self._children = []

    def __enter__(self):
        try:
            self._start_all()
        except BaseException:
            self.__exit__()
            raise
        return self

    def _start_all(self):
        self._server = self._start(
            "pulseaudio", "-n", "--daemonize=no", "--use-pid-file=no", "--exit-idle-time=-1",
            "--disable-shm=yes", "-L",
            f"module-null-sink sink_name=room format=s16le rate={RATE} channels=1 channel_map=mono norewinds=1",
            "-L", f"module-native-protocol-unix socket={self._socket} auth-anonymous=1")
        # A sink that sleeps would swallow the first moments.
        self._start("pacat", "--raw", f"--rate={RATE}", "--channels=1", "--format=s16le",
                    "--latency-msec=20", source="/dev/zero", after=self._socket)
        with open(self._recording, "wb") as recording:
            self._start("parec", "--raw", f"--rate={RATE}", "--channels=1", "--format=s16le",
                        "--latency-msec=20", "--device=room.monitor", output=recording)
        self.wait_until(lambda: len(self.heard()) > 0, "the monitor")

    def __exit__(self, *_):
        for child in reversed(self._children):
            child.send_signal(signal.SIGCONT)
            child.kill()
            child.wait()
        self._folder.cleanup()

    def _start(self, *command, source="/dev/null", output=subprocess.DEVNULL, after=None):
        if after:
            self.wait_until(lambda: os.path.exists(after), after)
        with open(source, "rb") as file:
            child = subprocess.Popen(command, env=self.environment, stdin=file, stdout=output,
                                     stderr=subprocess.DEVNULL)
        self._children.append(child)
        return child

    def hang(self):
        """The server stops answering, without going away."""
        self._server.send_signal(signal.SIGSTOP)

    def heard(self):
        """All samples since the start, also the silent ones."""
        with open(self._recording, "rb") as file:
            data = file.read()
        return data[:len(data) // SAMPLE_BYTES * SAMPLE_BYTES]

    def wait_for_sound(self, samples, start=0):
        """Waits until all of `samples` have been heard, sample for sample, and then a quarter of a
        second of silence; the position of their first byte."""
        whole = samples + bytes(RATE // 4 * SAMPLE_BYTES)
        self.wait_until(lambda: self.heard().find(whole, start) >= 0, "the sound and the silence after it")
        return self.heard().find(whole, start)

    @staticmethod
    def wait_until(condition, what, seconds=20.0):
        deadline = time.monotonic() + seconds
        while not condition():
            if time.monotonic() > deadline:
                raise TimeoutError(f"waited {seconds} s in vain for {what}")
            time.sleep(0.01)
