"""Whole processes timed, in turns, so that each meets the same machine."""
import os
import shutil
import statistics
import time


def seconds_of(command, environment=None):
    """From before the start of the program to its end."""
    words = [str(word) for word in command]
    path = shutil.which(words[0])
    nothing = [(os.POSIX_SPAWN_OPEN, number, os.devnull, os.O_RDWR, 0) for number in (0, 1, 2)]
    start = time.perf_counter()
    process = os.posix_spawn(path, words, os.environ if environment is None else environment, file_actions=nothing)
    status = os.waitpid(process, 0)[1]
    passed = time.perf_counter() - start
    if status != 0:
        raise RuntimeError(f"{words[0]} ended with status {os.waitstatus_to_exitcode(status)}")
    return passed


def medians(rounds, *measures):
    """Calls the measures in turns, one round of all unheard first; gives the median of each."""
    results = [[measure() for measure in measures] for _ in range(rounds + 1)][1:]
    return [statistics.median(column) for column in zip(*results)]
