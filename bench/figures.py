"""Figures with their goals, and the table of them."""
import os
from typing import Mapping, NamedTuple, Optional


class Figure(NamedTuple):
    name: str
    value: float
    unit: str
    limit: float  # of the ratio where there is a floor, else of the value itself
    floor: Optional[float] = None
    floor_name: str = ""
    beside: Mapping[str, float] = {}  # what a user would pick instead, in the same unit

    @property
    def ratio(self):
        return self.value / self.floor if self.floor else None

    @property
    def reached(self):
        return (self.value if self.floor is None else self.ratio) <= self.limit

    def row(self):
        limit, floor, ratio = f"{number(self.limit)} {self.unit}".rstrip(), "", ""
        if self.floor is not None:
            limit, ratio = f"{self.limit:g} times", f"{self.ratio:.2f}"
            floor = f"{number(self.floor)} {self.unit}: {self.floor_name}"
        return [self.name, f"{number(self.value)} {self.unit}".rstrip(), floor, ratio, limit, self.others(), self.mark()]

    def others(self):
        return ", ".join(f"{name} {number(value)} {self.unit}" for name, value in self.beside.items())

    def mark(self):
        return "PASS" if self.reached else "over"


HEAD = ["Figure", "Measured", "Floor", "Ratio", "At most", "Beside", ""]


def number(value):
    """Three digits that count, and whole numbers as they are."""
    if value == int(value) or abs(value) >= 100:
        return f"{value:,.0f}"
    return f"{value:.3g}"


def table(figures, padded=True):
    """In Markdown."""
    rows = [HEAD] + [figure.row() for figure in figures]
    widths = [max(len(row[i]) for row in rows) if padded else 1 for i in range(len(HEAD))]
    lines = ["| " + " | ".join(cell.ljust(width) for cell, width in zip(row, widths)) + " |" for row in rows]
    lines.insert(1, "|" + "|".join("-" * (width + 2) for width in widths) + "|")
    return "\n".join(lines)


def machine():
    """What the figures were measured on, in one line."""
    with open("/proc/cpuinfo", encoding="utf-8") as file:
        model = next((line.split(":")[1].strip() for line in file if line.startswith("model name")), "unknown processor")
    return f"{os.cpu_count()} processors ({model}), load {os.getloadavg()[0]:.1f} when the run began"
