"""The table of all figures as Markdown: for a file of its own, and for its place in README.md."""
import datetime

import figures
import peers

BEGIN = "<!-- From here on scripts/bench.sh --readme writes. -->"
END = "<!-- Up to here. -->"


def markdown(found, machine, quick):
    """The date, the machine and the table."""
    day = datetime.date.today()
    run = "the quick run" if quick else "the whole run"
    reached = sum(figure.reached for figure in found)
    return (f"Measured on {day.day} {day:%B %Y} by {run} on {machine}; {reached} of {len(found)} goals reached. "
            f"Beside: {peers.versions()}.\n\n{figures.table(found, padded=False)}\n")


def put_between_markers(path, text):
    """Throws unless each marker is there once."""
    whole = path.read_text(encoding="utf-8")
    if whole.count(BEGIN) != 1 or whole.count(END) != 1:
        raise RuntimeError(f"{path.name} has no one place for the figures")
    before, rest = whole.split(BEGIN)
    path.write_text(f"{before}{BEGIN}\n{text}{END}{rest.split(END)[1]}", encoding="utf-8")
