"""Waiting for a state, with a bound, instead of sleeping for a guess."""
import time


def wait_for(condition, what, seconds=15, pause=0.05):
    """Polls until the condition gives something true, and returns that; fails with `what` when the time is over."""
    deadline = time.monotonic() + seconds
    while True:
        result = condition()
        if result:
            return result
        if time.monotonic() > deadline:
            raise AssertionError(f"waited {seconds} s in vain for {what}")
        time.sleep(pause)
