"""Whole processes timed, in turns, so that each meets the same machine."""
import statistics
import subprocess
import time


def seconds_of(command, environment=None):
    start = time.perf_counter()
    subprocess.run([str(word) for word in command], env=environment, check=True, timeout=60, stdin=subprocess.DEVNULL,
                   stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    return time.perf_counter() - start


def medians(rounds, *measures):
    """Calls the measures in turns, one round of all unheard first; gives the median of each."""
    results = [[measure() for measure in measures] for _ in range(rounds + 1)][1:]
    return [statistics.median(column) for column in zip(*results)]
