#!/usr/bin/env python3
"""make_events.py COUNT FOLDER [--today YYYY-MM-DD] [--in-month N] [--seed N]

Writes the same COUNT events into FOLDER in the form of each calendar that is measured (forms.py). Of them --in-month
(100) belong to the month of --today (2004-03-05): those of that month, and those of every year in it. A tenth of all
events, at most one for each day of a year, are of every year. None is on --today itself: its alert would stand in the way
of the measurements. The same arguments give the same bytes.
"""
import argparse
import calendar
import datetime
import pathlib
import random

from forms import FORMS

WORDS = """dentist meeting call Anna Tom Jane birthday of the team lunch with rent due pay bill garden market train to
Lisbon flight hotel school concert review draft plan holiday car service at nine half past ten bring plates cups and cake
remember keys ring doctor parcel library books return swim match home away weekly report budget""".split()

FIRST_YEAR, LAST_YEAR = 1990, 2040


def make_text(source):
    """5 to 200 characters; some with "&", some with commas, one in twenty of two lines."""
    wanted = source.randint(5, 200)
    ampersands, commas, two_lines = source.random() < 0.10, source.random() < 0.30, source.random() < 0.05
    text = source.choice(WORDS)
    while len(text) < wanted:
        chance = source.random()
        joint = " & " if ampersands and chance < 0.15 else ", " if commas and chance < 0.35 else " "
        text += joint + source.choice(WORDS)
    text = text[:wanted].rstrip(" ,&").ljust(5, ".")
    text = text[0].upper() + text[1:]
    cut = text.find(" ", len(text) // 2)
    if two_lines and cut > 10:
        text = text[:cut] + "\r\n" + text[cut + 1 :]
    return text


class Calendar:
    """The days on which events fall, drawn from a source of chance."""

    def __init__(self, today, source):
        self.today = today
        self.source = source
        self.first = datetime.date(FIRST_YEAR, 1, 1).toordinal()
        self.last = datetime.date(LAST_YEAR, 12, 31).toordinal()

    def is_today(self, day):
        return (day.month, day.day) == (self.today.month, self.today.day)

    def in_view(self, day):
        return (day.year, day.month) == (self.today.year, self.today.month)

    def days_of_every_year(self, count):
        """Days of a year, never 29 February."""
        days = [datetime.date(2001, 1, 1) + datetime.timedelta(i) for i in range(365)]
        days = [day for day in days if not self.is_today(day)]
        return self.source.sample(days, min(count, len(days)))

    def day_in_view(self):
        length = calendar.monthrange(self.today.year, self.today.month)[1]
        while True:
            day = self.today.replace(day=self.source.randint(1, length))
            if not self.is_today(day):
                return day

    def day_out_of_view(self):
        while True:
            day = datetime.date.fromordinal(self.source.randint(self.first, self.last))
            if not self.is_today(day) and not self.in_view(day):
                return day


def make_events(count, in_month, today, seed):
    """(year or None for every year, month, day, text) of each event."""
    source = random.Random(seed)
    days = Calendar(today, source)
    every_year = days.days_of_every_year(count // 10)
    share = in_month - sum(1 for day in every_year if day.month == today.month)
    dates = [(None, day.month, day.day) for day in every_year]
    for i in range(count - len(every_year)):
        day = days.day_in_view() if i < share else days.day_out_of_view()
        dates.append((day.year, day.month, day.day))
    source.shuffle(dates)
    return [(*date, make_text(source)) for date in dates]


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("count", type=int)
    parser.add_argument("folder", type=pathlib.Path)
    parser.add_argument("--today", type=datetime.date.fromisoformat, default=datetime.date(2004, 3, 5))
    parser.add_argument("--in-month", type=int, default=100)
    parser.add_argument("--seed", type=int, default=7)
    options = parser.parse_args()
    events = make_events(options.count, options.in_month, options.today, options.seed)
    for name, form in FORMS.items():
        file = options.folder / name
        file.parent.mkdir(parents=True, exist_ok=True)
        file.write_bytes("".join(form(*event) for event in events).encode("ascii"))


if __name__ == "__main__":
    main()
