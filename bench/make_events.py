#!/usr/bin/env python3
"""make_events.py COUNT FOLDER [--seed N] [--in-month N]

Writes the same COUNT events as FOLDER/calendar.dat and as FOLDER/events.gcal (a resource file of gcal). Of them --in-month
(100 if there is room for them) belong to March 2004: those of that month, and those of every year in a March. A tenth of
all events, at most one for each day of a year, are of every year. None is on 5 March, which is the present day of the
measurements: an alert would stand in their way. The same arguments give the same bytes.
"""
import argparse
import datetime
import os
import random

WORDS = """dentist meeting call Anna Tom Jane birthday of the team lunch with rent due pay bill garden market train to
Lisbon flight hotel school concert review draft plan holiday car service at nine half past ten bring plates cups and cake
remember keys ring doctor parcel library books return swim match home away weekly report budget""".split()

VIEW_YEAR, VIEW_MONTH = 2004, 3
PRESENT_DAY = 5
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


def is_present_day(day, month):
    return (day, month) == (PRESENT_DAY, VIEW_MONTH)


def every_year_days(source, count):
    """Days of a year, never 29 February; those of the month on view are counted in its share."""
    days = [datetime.date(2001, 1, 1) + datetime.timedelta(i) for i in range(365)]
    days = [day for day in days if not is_present_day(day.day, day.month)]
    return [(day.day, day.month, None) for day in source.sample(days, min(count, len(days)))]


def dated_day(source, in_month):
    while True:
        if in_month:
            year, month, day = VIEW_YEAR, VIEW_MONTH, source.randint(1, 31)
        else:
            first = datetime.date(FIRST_YEAR, 1, 1).toordinal()
            last = datetime.date(LAST_YEAR, 12, 31).toordinal()
            date = datetime.date.fromordinal(source.randint(first, last))
            year, month, day = date.year, date.month, date.day
        if is_present_day(day, month) or (not in_month and (year, month) == (VIEW_YEAR, VIEW_MONTH)):
            continue
        return day, month, year


def make_events(count, in_month, seed):
    source = random.Random(seed)
    days = every_year_days(source, count // 10)
    share = sum(1 for _, month, _ in days if month == VIEW_MONTH)
    for i in range(count - len(days)):
        days.append(dated_day(source, i < in_month - share))
    source.shuffle(days)
    return [(day, month, year, make_text(source)) for day, month, year in days]


def write(folder, name, pieces):
    with open(os.path.join(folder, name), "wb") as file:
        file.write("".join(pieces).encode("ascii"))


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("count", type=int)
    parser.add_argument("folder")
    parser.add_argument("--seed", type=int, default=7)
    parser.add_argument("--in-month", type=int, default=100)
    options = parser.parse_args()
    events = make_events(options.count, options.in_month, options.seed)
    os.makedirs(options.folder, exist_ok=True)
    write(options.folder, "calendar.dat",
          ('"%d/%d/%d=%s"\r\n' % (day, month, year or 9999, text.replace("&", "&&")) for day, month, year, text in events))
    write(options.folder, "events.gcal",
          ("%04d%02d%02d %s\n" % (year or 0, month, day, text.replace("\r\n", " ")) for day, month, year, text in events))


if __name__ == "__main__":
    main()
