"""A Wine prefix for one test: a light copy of the one that scripts/lib/wine.sh makes."""
import contextlib
import ctypes
import os
import pathlib
import shutil
import signal
import subprocess
import tempfile

from .waiting import wait_for

ROOT = pathlib.Path(__file__).resolve().parents[3]
WINE, SERVER = "/usr/lib/wine/wine64", "/usr/lib/wine/wineserver64"
FAKE_CLOCK = "/usr/lib/x86_64-linux-gnu/faketime/libfaketime.so.1"
SHARED_MEMORY = pathlib.Path("/dev/shm")


def fix_memory_layout():
    """From now on programs that this process starts have their memory where it always is. Otherwise the heap of Debian's
    Wine, which is linked at a fixed place just below 0x7ffe0000 and comes without a preloader, begins anywhere in the
    gigabyte behind that place, and now and then lies where Windows programs need a page of the system's: such a program
    ends before its first instruction. Where a container forbids this call, that stays as it is."""
    no_randomising, as_it_is = 0x0040000, 0xffffffff
    library = ctypes.CDLL(None)
    library.personality.argtypes = [ctypes.c_ulong]
    library.personality(library.personality(as_it_is) | no_randomising)


fix_memory_layout()


def golden_prefix():
    script = '. "$1/scripts/lib/wine.sh" && make_golden_prefix && echo "$golden_prefix"'
    result = subprocess.run(["bash", "-c", script, "bash", str(ROOT)], timeout=300, check=True, text=True,
                            stdin=subprocess.DEVNULL, stdout=subprocess.PIPE)
    return pathlib.Path(result.stdout.strip())


def registry_text(text):
    """A text as it stands between the quotes of a registry file."""
    escaped = str(text).replace("\\", "\\\\").replace('"', '\\"')
    return "".join(c if " " <= c <= "~" else f"\\x{ord(c):04x}" for c in escaped)


class Prefix:
    def __init__(self, folder, environment, language):
        golden = golden_prefix()
        self.folder = pathlib.Path(folder)
        self.drive = self.folder / "drive_c"
        self.drive.mkdir(parents=True)
        for file in [*golden.glob("*.reg"), golden / ".update-timestamp"]:
            shutil.copy2(file, self.folder)
        shutil.copytree(golden / "dosdevices", self.folder / "dosdevices", symlinks=True)
        shutil.copytree(golden / "drive_c/users", self.drive / "users", symlinks=True)
        (self.drive / "windows").symlink_to(golden / "drive_c/windows")
        self.clock = self.folder / "clock"
        self.environment = dict(environment, WINEPREFIX=str(self.folder), WINEDEBUG="-all", LC_ALL=f"{language}.UTF-8",
                                WINEDLLOVERRIDES="mscoree,mshtml=")
        self.booted = False
        self._idle = None

    def preset(self, key, values):
        """Values below HKEY_CURRENT_USER, before the prefix is booted."""
        assert not self.booted
        with open(self.folder / "user.reg", "a", encoding="ascii", newline="\n") as file:
            file.write(f"\n[{registry_text(key)}] 1\n")
            file.writelines(f'"{registry_text(name)}"="{registry_text(value)}"\n' for name, value in values.items())

    def boot(self, stands):
        """On the real clock, so that only the program sees the false one; `stands` tells whether Wine's desktop has come
        up. It would go a second after the last program on it, so an idle command line stays there until the end."""
        subprocess.run([SERVER, "-p60"], env=self.environment, timeout=60, check=True)
        self.booted = True
        self._idle = subprocess.Popen([WINE, "cmd"], env=self.environment, stdin=subprocess.PIPE,
                                      stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        wait_for(stands, "Wine's desktop", seconds=30)

    def end(self):
        """Ends every program of the prefix."""
        subprocess.run([SERVER, "-k"], env=self.environment, timeout=30, check=False)
        subprocess.run([SERVER, "-w"], env=self.environment, timeout=30, check=False)
        if self._idle:
            self._idle.communicate(timeout=30)

    def run(self, *command, seconds=60):
        """Runs a program to its end; returns its exit status and what it printed."""
        result = subprocess.run([WINE, *command], env=self.environment, timeout=seconds, stdin=subprocess.DEVNULL,
                                stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, check=False)
        return result.returncode, result.stdout

    def set_clock(self, moment):
        """The program's clock stands at "YYYY-MM-DD HH:MM:SS" from now on and runs on, also during a run."""
        fresh = self.clock.with_suffix(".new")
        fresh.write_text(f"@{moment}\n", encoding="ascii")
        fresh.replace(self.clock)

    def start(self, *command):
        """Starts a program without waiting for it, on the false clock if there is one."""
        environment = dict(self.environment)
        if self.clock.exists():
            environment.update(TZ="UTC", LD_PRELOAD=FAKE_CLOCK, FAKETIME_TIMESTAMP_FILE=str(self.clock),
                               FAKETIME_NO_CACHE="1", FAKETIME_DONT_FAKE_MONOTONIC="1", NO_FAKE_STAT="1")
        return subprocess.Popen([WINE, *command], env=environment, stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL,
                                stderr=subprocess.DEVNULL)

    def registry_value(self, key, name):
        """The text of a value such as HKCU\\Software\\..., None if it isn't there."""
        status, output = self.run("reg", "query", key, "/v", name)
        if status != 0:
            return None
        for line in output.decode("latin-1").splitlines():
            words = line.strip().split("    ")
            if words[0] == name and len(words) >= 2:
                return words[2] if len(words) > 2 else ""
        return None

    def set_registry_value(self, key, name, text):
        status, _ = self.run("reg", "add", key, "/v", name, "/t", "REG_SZ", "/d", text, "/f")
        assert status == 0, f"couldn't set {key} {name}"
