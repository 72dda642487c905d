# Copyright (c) 2026 The Dropshade authors
# SPDX-License-Identifier: MIT
"""A session nobody sees: folders, a message bus and programs that are private to it and end with it."""

import os
import pathlib
import shutil
import signal
import subprocess
import tempfile
import time

WAIT_SECONDS = 10.0
SHARED_VARIABLES = ("PATH", "LANG", "LD_LIBRARY_PATH", "ASAN_OPTIONS", "UBSAN_OPTIONS")

# Without any service folder: nothing starts on this bus but what a test starts.
BUS_CONFIGURATION = """<!DOCTYPE busconfig PUBLIC "-//freedesktop//DTD D-Bus Bus Configuration 1.0//EN"
 "http://www.freedesktop.org/standards/dbus/1.0/busconfig.dtd">
<busconfig>
  <type>session</type>
  <listen>unix:path={path}</listen>
  <policy context="default">
    <allow send_destination="*" eavesdrop="true"/>
    <allow eavesdrop="true"/>
    <allow own="*"/>
  </policy>
</busconfig>
"""


def wait_until(condition, what, seconds=WAIT_SECONDS):
    """The first true result of `condition`, asked again and again; fails with `what` in its text."""
    deadline = time.monotonic() + seconds
    while True:
        result = condition()
        if result:
            return result
        if time.monotonic() > deadline:
            raise TimeoutError(f"waited {seconds} s in vain for {what}")
        time.sleep(0.005)


class Process:
    """A child of the desktop, in a process group of its own."""

    def __init__(self, command, environment, output=None):
        self._popen = subprocess.Popen(
            command, env=environment, stdin=subprocess.DEVNULL, stdout=output or subprocess.DEVNULL,
            stderr=output or subprocess.DEVNULL, start_new_session=True)
        self.pid = self._popen.pid

    @property
    def returncode(self):
        return self._popen.poll()

    def wait(self, seconds=WAIT_SECONDS):
        return self._popen.wait(seconds)

    def is_busy(self):
        """True while it has something to do, though it may still wait for a processor."""
        try:
            threads = list(pathlib.Path(f"/proc/{self.pid}/task").glob("*/stat"))
            return any(thread.read_text().rpartition(")")[2].split()[0] == "R" for thread in threads)
        except (FileNotFoundError, ProcessLookupError):
            return False  # It, or one of its threads, has ended meanwhile.

    def send(self, number):
        self._popen.send_signal(number)

    def end(self):
        """Asks it to end, and makes it end."""
        if self._popen.poll() is None:
            self._popen.terminate()
            try:
                self._popen.wait(5)
            except subprocess.TimeoutExpired:
                os.killpg(self.pid, signal.SIGKILL)
                self._popen.wait()


class PrivateSession:
    """The base of the desktops; `with` starts everything, and ends it however the block ends."""

    def __init__(self):
        self._children = []
        self._folder = tempfile.mkdtemp(prefix="dropshade-desktop-")
        self.environment = {name: os.environ[name] for name in SHARED_VARIABLES if name in os.environ}

    def __enter__(self):
        try:
            self._make_folders()
            self.start_all()
        except BaseException:
            self.__exit__()
            raise
        return self

    def __exit__(self, *_):
        for child in reversed(self._children):
            child.end()
        shutil.rmtree(self._folder, ignore_errors=True)

    def start_all(self):
        """Starts what makes the desktop, in the folders that are ready."""
        raise NotImplementedError

    def _make_folders(self):
        for variable, name in (("HOME", "home"), ("XDG_RUNTIME_DIR", "runtime"),
                               ("XDG_CONFIG_HOME", "home/.config")):
            path = os.path.join(self._folder, name)
            os.makedirs(path, mode=0o700, exist_ok=True)
            self.environment[variable] = path
        self.environment["QT_LOGGING_RULES"] = "qt.qpa.theme*=false"

    def start(self, command, **variables):
        """Starts a child that ends with the desktop; `variables` are added to its environment."""
        with open(os.path.join(self._folder, "output.txt"), "ab") as log:
            child = Process(command, {**self.environment, **variables}, log)
        self._children.append(child)
        return child

    def output(self):
        """All that the children have printed, for the message of a failed test."""
        with open(os.path.join(self._folder, "output.txt"), errors="replace") as file:
            return file.read()

    def start_bus(self):
        path = os.path.join(self.environment["XDG_RUNTIME_DIR"], "bus")
        self.environment["DBUS_SESSION_BUS_ADDRESS"] = f"unix:path={path}"
        config = os.path.join(self._folder, "bus.conf")
        with open(config, "w") as file:
            file.write(BUS_CONFIGURATION.format(path=path))
        self.start(["dbus-daemon", "--nofork", "--nopidfile", f"--config-file={config}"])
        wait_until(lambda: os.path.exists(path), "the message bus")

    def bus_has_name(self, name):
        result = subprocess.run(
            ["dbus-send", "--session", "--print-reply=literal", "--dest=org.freedesktop.DBus",
             "/org/freedesktop/DBus", "org.freedesktop.DBus.NameHasOwner", f"string:{name}"],
            env=self.environment, capture_output=True, text=True, check=False)
        return "true" in result.stdout
