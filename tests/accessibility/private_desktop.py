"""A desktop of a test's own: a display that nobody sees, a message bus, and an accessibility bus on it.

Everything on it is started here, carries the mark of this desktop in its environment, and is ended by its process id:
nothing of the session that the test runs in is asked, shown or changed.
"""

import atexit
import os
import shutil
import signal
import subprocess
import tempfile
import time

BUS_CONFIG = """<busconfig><type>session</type><listen>unix:path={}</listen><auth>EXTERNAL</auth>
<policy context="default"><allow send_destination="*" eavesdrop="true"/><allow eavesdrop="true"/><allow own="*"/></policy>
</busconfig>"""
LAUNCHER = "/usr/libexec/at-spi-bus-launcher"
MARK = "QUILLMERE_PRIVATE_DESKTOP"
PATIENCE = 60  # s; only a test that fails waits so long


def wait_for(look, what):
    """What `look` gives as soon as it gives something; fails after a long while."""
    end = time.monotonic() + PATIENCE
    while time.monotonic() < end:
        found = look()
        if found:
            return found
        time.sleep(0.02)
    raise AssertionError(f"not there after {PATIENCE} s: {what}")


class PrivateDesktop:
    """Starts the display and the buses; `with_accessibility` leaves the accessibility bus to the test where it is not set."""

    def __init__(self, with_accessibility=True):
        self.folder = tempfile.mkdtemp(prefix="quillmere-desktop-")
        self.children = []
        atexit.register(self.end)  # also where the test itself is told to end
        self.environment = {
            "PATH": os.environ["PATH"], "HOME": self.folder, "TMPDIR": self.folder, "XDG_RUNTIME_DIR": self.folder,
            "LC_ALL": "C.UTF-8", "GSETTINGS_BACKEND": "memory", MARK: self.folder, "QT_QPA_PLATFORM": "xcb",
            "QT_QUICK_BACKEND": "software", "QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1", "QML_DISABLE_DISK_CACHE": "1",
        }
        for name, value in os.environ.items():
            if name.endswith("SAN_OPTIONS"):
                self.environment[name] = value
        try:
            self.start_display()
            self.start_bus()
            if with_accessibility:
                self.start([LAUNCHER, "--launch-immediately"], stderr=subprocess.DEVNULL)
        except BaseException:
            self.end()
            raise

    def start(self, command, **options):
        """A program on this desktop, ended with it."""
        child = subprocess.Popen(command, env=self.environment, cwd=self.folder, stdin=subprocess.DEVNULL, **options)
        self.children.append(child)
        return child

    def start_display(self):
        reading, writing = os.pipe()
        # It would begin anew with its last window, and refuse the next program meanwhile.
        self.start(["Xvfb", "-displayfd", str(writing), "-screen", "0", "1400x900x24", "-nolisten", "tcp", "-noreset"],
                   pass_fds=[writing], stderr=subprocess.DEVNULL)
        os.close(writing)
        with os.fdopen(reading) as stream:
            number = stream.readline().strip()
        assert number, "Xvfb did not start"
        self.environment["DISPLAY"] = ":" + number

    def start_bus(self):
        path = os.path.join(self.folder, "bus")
        with open(path + ".conf", "w", encoding="utf-8") as stream:
            stream.write(BUS_CONFIG.format(path))
        self.start(["dbus-daemon", f"--config-file={path}.conf", "--nofork", "--nopidfile"], stderr=subprocess.DEVNULL)
        wait_for(lambda: os.path.exists(path), "the message bus")
        self.environment["DBUS_SESSION_BUS_ADDRESS"] = "unix:path=" + path

    def press(self, *keys):
        """Keys of the display's keyboard, in xdotool's words ("Down", "shift+F10")."""
        subprocess.run(["xdotool", "key", "--delay", "0", *keys], env=self.environment, check=True, timeout=PATIENCE)

    def give_window_the_keyboard(self, title="Quillmere"):
        """There is no window manager here that would. A window that is only just being mapped refuses it."""
        command = ["xdotool", "search", "--onlyvisible", "--name", f"^{title}$", "windowfocus", "--sync"]
        wait_for(lambda: subprocess.run(command, env=self.environment, check=False, timeout=PATIENCE,
                                        capture_output=True).returncode == 0, f"the window '{title}'")

    def processes(self):
        """The ids of all processes of this desktop, also of those that its programs have started."""
        found = []
        mark = f"{MARK}={self.folder}".encode()
        for name in filter(str.isdigit, os.listdir("/proc")):
            try:
                with open(f"/proc/{name}/environ", "rb") as stream:
                    if mark in stream.read().split(b"\0"):
                        found.append(int(name))
            except OSError:
                continue  # another user's, or just gone
        return found

    def process(self, word):
        """The id of a process of this desktop with that word in its command line, as soon as there is one."""
        def look():
            for process in self.processes():
                try:
                    with open(f"/proc/{process}/cmdline", "rb") as stream:
                        if word.encode() in stream.read():
                            return process
                except OSError:
                    continue
            return None
        return wait_for(look, f"a process '{word}'")

    def stop(self, child):
        """Ends one of the programs; gives its exit code, negative for a signal."""
        self.children.remove(child)
        if child.poll() is None:
            child.terminate()
        try:
            return child.wait(PATIENCE)
        except subprocess.TimeoutExpired:
            child.kill()
            raise

    def end(self):
        """Ends everything, the last started first, and takes the folder away."""
        while self.children:
            self.stop(self.children[-1])
        for process in self.processes():  # what the accessibility bus has started goes with it, yet not at once
            try:
                os.kill(process, signal.SIGTERM)
            except ProcessLookupError:
                pass
        wait_for(lambda: not self.processes(), "the end of every process")
        shutil.rmtree(self.folder, ignore_errors=True)
