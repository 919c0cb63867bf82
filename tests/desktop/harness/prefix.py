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
# scripts/test-32-bit.sh plays the tests with another Wine.
WINE = os.environ.get("WINE64", "/usr/lib/wine/wine64")
SERVER = os.environ.get("WINESERVER", "/usr/lib/wine/wineserver64")
ARCHITECTURE = os.environ.get("MERIDEX_ARCHITECTURE", "x64")
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


# For root no file is read-only unless it gives up the right to write them all.
WITH_PERMISSIONS = ["setpriv", "--bounding-set=-dac_override"] if os.geteuid() == 0 else []


class Prefix:
    def __init__(self, folder, environment, language, permissions=False):
        """permissions: the program's files have the permissions that their modes tell, for root too."""
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
        self.environment = dict(environment, WINEPREFIX=str(self.folder), WINEDEBUG="fixme-all", LC_ALL=f"{language}.UTF-8",
                                WINEDLLOVERRIDES="mscoree,mshtml=")
        self._server = [*(WITH_PERMISSIONS if permissions else []), SERVER]
        self.booted = False
        self._idle = None
        self._complaints = tempfile.TemporaryFile()

    def preset(self, key, values):
        """Values below HKEY_CURRENT_USER, before the prefix is booted."""
        assert not self.booted
        with open(self.folder / "user.reg", "a", encoding="ascii", newline="\n") as file:
            file.write(f"\n[{registry_text(key)}] 1\n")
            file.writelines(f'"{registry_text(name)}"="{registry_text(value)}"\n' for name, value in values.items())

    def preset_number(self, key, name, value):
        assert not self.booted
        with open(self.folder / "user.reg", "a", encoding="ascii", newline="\n") as file:
            file.write(f'\n[{registry_text(key)}] 1\n"{name}"=dword:{value:08x}\n')

    def preset_refusal(self, key):
        """A key below HKEY_CURRENT_USER that can be neither read nor made: a link to one that isn't there."""
        assert not self.booted
        target = ",".join(f"{byte:02x}" for byte in "\\Registry\\Nowhere\\None".encode("utf-16-le"))
        with open(self.folder / "user.reg", "a", encoding="ascii", newline="\n") as file:
            file.write(f'\n[{registry_text(key)}] 1\n#link\n"SymbolicLinkValue"=hex(6):{target}\n')

    def boot(self, stands):
        """On the real clock, so that only the program sees the false one; `stands` tells whether Wine's desktop has come
        up. It would go a second after the last program on it, so an idle command line stays there until the end."""
        subprocess.run([*self._server, "-p60"], env=self.environment, timeout=60, check=True, stderr=self._complaints)
        self.booted = True
        self._idle = subprocess.Popen([WINE, "cmd"], env=self.environment, stdin=subprocess.PIPE,
                                      stdout=subprocess.DEVNULL, stderr=self._complaints)
        try:
            wait_for(lambda: self._idle.poll() is not None or stands(), "Wine's desktop", seconds=30)
        except AssertionError as failure:
            raise AssertionError(f"{failure}; {self.complaints()}") from None
        assert self._idle.poll() is None, f"Wine's command line ended; {self.complaints()}"

    def complaints(self):
        """The last that Wine has said of the programs of this prefix."""
        size = os.fstat(self._complaints.fileno()).st_size
        said = os.pread(self._complaints.fileno(), 2000, max(size - 2000, 0))
        return "Wine said: " + (said.decode("utf-8", "replace").strip() or "nothing")

    def end(self):
        """Ends every program of the prefix, and takes away what they leave outside it."""
        started = self._processes()
        try:
            subprocess.run([SERVER, "-k"], env=self.environment, timeout=30, check=False)
            subprocess.run([SERVER, "-w"], env=self.environment, timeout=30, check=False)
        finally:
            # A program that is just starting as the server goes waits for its first answer for ever: the server doesn't
            # know it yet and doesn't end it.
            for process in self._processes():
                with contextlib.suppress(ProcessLookupError):
                    os.kill(process, signal.SIGKILL)
        if self._idle:
            self._idle.communicate(timeout=30)
        for process in started:
            for name in (f"faketime_shm_{process}", f"sem.faketime_sem_{process}"):
                (SHARED_MEMORY / name).unlink(missing_ok=True)
        note = self.folder / "wineserver"  # Debian's server notes here which folder for its socket it has made
        name = note.read_text(encoding="ascii").strip() if note.exists() else ""
        if name.startswith("wine-") and "/" not in name:
            shutil.rmtree(pathlib.Path("/tmp", name), ignore_errors=True)
        self._complaints.close()

    def _processes(self):
        """Those of the prefix, also such as its server doesn't know."""
        mark = f"WINEPREFIX={self.folder}".encode()
        found = []
        for process in pathlib.Path("/proc").glob("[0-9]*"):
            with contextlib.suppress(OSError):
                if mark in (process / "environ").read_bytes().split(b"\0"):
                    found.append(int(process.name))
        return found

    def windows_path(self, path):
        """A path on the prefix's drive as Windows programs name it."""
        return "C:\\" + str(path.relative_to(self.drive)).replace("/", "\\")

    def run(self, *command, seconds=60):
        """Runs a program to its end; returns its exit status and what it printed."""
        result = subprocess.run([WINE, *command], env=self.environment, timeout=seconds, stdin=subprocess.DEVNULL,
                                stdout=subprocess.PIPE, stderr=self._complaints, check=False)
        return result.returncode, result.stdout

    def set_clock(self, moment):
        """The program's clock stands at "YYYY-MM-DD HH:MM:SS" from now on and runs on, also during a run."""
        fresh = self.clock.with_suffix(".new")
        fresh.write_text(f"@{moment}\n", encoding="ascii")
        fresh.replace(self.clock)

    def start(self, *command, under=(), output=subprocess.DEVNULL):
        """Starts a program without waiting for it, on the false clock if there is one; `under` is the beginning of the
        command line that Wine itself runs under, `output` the open file that takes what the program prints."""
        environment = dict(self.environment)
        if self.clock.exists():
            environment.update(TZ="UTC", LD_PRELOAD=FAKE_CLOCK, FAKETIME_TIMESTAMP_FILE=str(self.clock),
                               FAKETIME_NO_CACHE="1", FAKETIME_DONT_FAKE_MONOTONIC="1", NO_FAKE_STAT="1")
        return subprocess.Popen([*under, WINE, *command], env=environment, stdin=subprocess.DEVNULL, stdout=output,
                                stderr=self._complaints)

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
