"""The same events in the form of each calendar that is measured: a file's name, and how an event stands in it.

An event is (year or None for every year, month, day, text). The other calendars get the two lines of a text as one.
"""
MONTHS = "Jan Feb Mar Apr May Jun Jul Aug Sep Oct Nov Dec".split()
LONG_AGO = 1990  # where a form wants the first day of what comes every year


def one_line(text):
    return text.replace("\r\n", " ")


def own(year, month, day, text):
    return '"%d/%d/%d=%s"\r\n' % (day, month, year or 9999, text.replace("&", "&&"))


def gcal(year, month, day, text):
    return "%04d%02d%02d %s\n" % (year or 0, month, day, one_line(text))


def remind(year, month, day, text):
    date = f"{day} {MONTHS[month - 1]}" + (f" {year}" if year else "")
    return f"REM {date} MSG {one_line(text)}\n"


def calcurse(year, month, day, text):
    return "%02d/%02d/%d [1]%s %s\n" % (month, day, year or LONG_AGO, "" if year else " {1Y}", one_line(text))


def when(year, month, day, text):
    return f"{year or '*'} {MONTHS[month - 1].lower()} {day} , {one_line(text)}\n"


FORMS = {
    "calendar.dat": own,
    "events.gcal": gcal,
    "events.rem": remind,
    "calcurse/apts": calcurse,
    "events.when": when,
}
