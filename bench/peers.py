"""A month printed by this calendar's reader and by the calendars that a user might pick instead, on the same events."""
import os
import re
import subprocess

from figures import Figure
from timing import medians, seconds_of

PEERS = ["gcal", "remind", "calcurse", "when"]
YEAR, MONTH, DAYS = 2004, 3, 31
OWN = "the calendar's reader"


def versions():
    """Of the packages, in one line."""
    listed = subprocess.run(["dpkg-query", "-W", "-f", "${Package} ${Version}, ", *PEERS], check=True, text=True,
                            stdout=subprocess.PIPE).stdout
    return listed.rstrip(", ")


def commands(programs, data):
    """What prints the events of the month, for each calendar. Each starts anew, reads its whole file and ends."""
    return {
        OWN: [programs / "bench_month_print", data / "calendar.dat", MONTH, YEAR],
        "gcal": ["gcal", "-H", "no", "-u", f"-f{data / 'events.gcal'}", "-cm", f"%{YEAR}{MONTH:02}01"],
        "remind": ["remind", "-q", "-r", "-s1", data / "events.rem", f"{YEAR}-{MONTH:02}-01"],
        "calcurse": ["calcurse", "--read-only", "-D", data / "calcurse", "-C", data / "calcurse", "-Q", "--from",
                     f"{MONTH:02}/01/{YEAR}", "--days", DAYS],
        "when": ["when", f"--calendar={data / 'events.when'}", f"--now={YEAR} {MONTH} 1", "--past=0",
                 f"--future={DAYS - 1}", "--noheader", "--nopaging", "--wrap=0"],
    }


def home(data):
    """An environment in which none asks a question at its first start, and none meets the user's own files."""
    folder = data / "home"
    for file in [folder / ".when/preferences", data / "calcurse/todo"]:
        file.parent.mkdir(parents=True, exist_ok=True)
        file.touch()
    return dict(os.environ, HOME=str(folder), LC_ALL="C.UTF-8", TZ="UTC")


def texts(data):
    """Those of the month, and those of the other months."""
    of_month, others = [], []
    for line in (data / "events.gcal").read_text(encoding="ascii").splitlines():
        (of_month if re.match(f"(0000|{YEAR}){MONTH:02}", line) else others).append(" ".join(line[9:].split()))
    return of_month, others


def check(name, command, environment, of_month, others):
    """Throws unless it prints every event of the month and none of another one: who skips work isn't measured. A short
    text may stand within a longer one of the month."""
    output = subprocess.run([str(word) for word in command], env=environment, check=True, stdin=subprocess.DEVNULL,
                            stdout=subprocess.PIPE, timeout=300).stdout.decode("ascii")
    page = " ".join(output.replace("&&", "&").split())
    missing = sum(text not in page for text in of_month)
    allowed = "\n".join(of_month)
    foreign = sum(text in page and text not in allowed for text in others)
    if missing or foreign:
        raise RuntimeError(f"{name} prints another month: {missing} of {len(of_month)} events are missing, {foreign} too many")


def month_print(programs, data, rounds):
    environment, (of_month, others) = home(data), texts(data)
    called = commands(programs, data)
    for name, command in called.items():
        check(name, command, environment, of_month, others)
    times = medians(rounds, *(lambda command=command: seconds_of(command, environment) for command in called.values()))
    milliseconds = {name: time * 1e3 for name, time in zip(called, times)}
    own = milliseconds.pop(OWN)
    fastest = min(milliseconds, key=milliseconds.get)
    floor = milliseconds.pop(fastest)
    events = (data / "events.gcal").read_bytes().count(b"\n")
    return [Figure(f"Month printed of {events:,} events by the calendar's reader, whole process", own, "ms", 1, floor, fastest,
                   milliseconds)]
