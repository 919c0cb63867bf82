"""A month printed by this calendar's reader and by the calendars that a user might pick instead, on the same events."""
import os
import re
import subprocess

from figures import Figure
from timing import medians, seconds_of

PEERS = ["gcal", "remind", "calcurse", "when"]
YEAR, MONTH, DAYS = 2004, 3, 31
OWN = "this calendar"


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


def texts_of_the_month(data):
    lines = (data / "events.gcal").read_text(encoding="ascii").splitlines()
    return [line[9:] for line in lines if re.match(f"(0000|{YEAR}){MONTH:02}", line)]


def check(name, command, environment, texts):
    """Throws unless it prints every event of the month, and as many as there are: who skips work isn't measured."""
    output = subprocess.run([str(word) for word in command], env=environment, check=True, stdin=subprocess.DEVNULL,
                            stdout=subprocess.PIPE, timeout=300).stdout.decode("ascii")
    page = " ".join(output.replace("&&", "&").split())
    missing = sum(1 for text in texts if " ".join(text.split()) not in page)
    if missing or len(page) > sum(map(len, texts)) + 40 * len(texts):
        raise RuntimeError(f"{name} prints another month: {missing} of {len(texts)} events are missing")


def month_print(programs, data, rounds):
    environment, texts = home(data), texts_of_the_month(data)
    called = commands(programs, data)
    for name, command in called.items():
        check(name, command, environment, texts)
    times = medians(rounds, *(lambda command=command: seconds_of(command, environment) for command in called.values()))
    milliseconds = {name: time * 1e3 for name, time in zip(called, times)}
    own = milliseconds.pop(OWN)
    fastest = min(milliseconds, key=milliseconds.get)
    floor = milliseconds.pop(fastest)
    events = (data / "events.gcal").read_bytes().count(b"\n")
    return [Figure(f"Month printed of {events:,} events, whole process", own, "ms", 1, floor, fastest, milliseconds)]
