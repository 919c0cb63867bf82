"""The pack Seasons: a scene of its own for every month."""

from autumn import november, october, september
from spring import april, march, may
from summer import august, july, june
from winter import december, february, january

MONTHS = [january, february, march, april, may, june, july, august, september, october, november, december]
