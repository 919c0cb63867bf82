"""The figures of the Linux build."""
import json
import subprocess

from figures import Figure

SMALL_CHANGE = "month change, 1,000 records, of which 32,767 are 32.767 times as many"
NANOSECONDS_PER = {"ns": 1, "us": 1e3, "ms": 1e6, "s": 1e9}


def google_benchmark(program, *arguments, largest=()):
    """Runs it and gives its medians by name; of the counters in `largest` the largest of all runs, so that one bad run
    doesn't hide behind the good ones."""
    command = [str(program), *map(str, arguments), "--benchmark_format=json", "--benchmark_enable_random_interleaving=true"]
    output = subprocess.run(command, check=True, timeout=300, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL).stdout
    runs = json.loads(output)["benchmarks"]
    medians = {run["run_name"]: run for run in runs if run.get("aggregate_name") == "median"}
    for name, median in medians.items():
        single = [run for run in runs if run["run_name"] == name and run["run_type"] == "iteration"]
        median.update({counter: max(run[counter] for run in single) for counter in largest if counter in median})
    return medians


def nanoseconds(run, clock="real_time"):
    return run[clock] * NANOSECONDS_PER[run["time_unit"]]


def month_change(programs, data, repetitions):
    runs = google_benchmark(programs / "bench_month_change", data, f"--benchmark_repetitions={repetitions}",
                            "--benchmark_min_time=0.03")
    times = {name.removesuffix("/manual_time"): nanoseconds(run) / 1e6 for name, run in runs.items()}
    change = times["Month_Change/32767"]
    return [
        Figure("Month change, 32,767 records", change, "ms", 2, times["Fresh_Buffer_And_Memchr/32767"],
               "read into a fresh buffer, quotes by memchr"),
        Figure("Growth from 1,000 records on", change, "ms", 32.767, times["Month_Change/1000"], SMALL_CHANGE),
    ]


def tick(programs, data):
    runs = google_benchmark(programs / "bench_tick", data / "32767", "--benchmark_repetitions=3",
                            largest=["allocations", "growth"])
    usual, day = runs["Usual_Tick"], next(run for name, run in runs.items() if name.startswith("Day_Of_Ticks"))
    return [
        Figure("Usual tick", nanoseconds(usual, "cpu_time") / 1e3, "us", 2),
        Figure("Allocations of the usual ticks", usual["allocations"], "", 0),
        Figure("A day of 864,000 ticks", nanoseconds(day, "cpu_time") / 1e9, "s", 5),
        Figure("Growth of memory over that day", day["growth"], "bytes", 0),
    ]


def overview(programs, data):
    run = google_benchmark(programs / "bench_overview", data / "32767", "--benchmark_repetitions=3")["Sort_And_Show"]
    if run["entries"] != 32767:
        raise RuntimeError("the list of all events isn't whole")
    return [Figure("All events sorted and listed, 32,767", nanoseconds(run) / 1e6, "ms", 150)]


def exchange(programs):
    runs = google_benchmark(programs / "bench_exchange", "--benchmark_repetitions=5")
    return [
        Figure("CSV export of 32,767 events", nanoseconds(runs["Export_Csv"]) / 1e6, "ms", 100),
        Figure("CSV import of 10,000 rows of new days", nanoseconds(runs["Import_Csv"]) / 1e6, "ms", 20000),
        Figure("CSV import of 10,000 rows into the first 7 of 30,000 lines",
               nanoseconds(runs["Import_Csv_Into_The_First_Lines/iterations:1"]) / 1e6, "ms", 20000),
    ]
