"""test_faults.py: what scripts/faults.sh plants, plays and counts. It is run in the project's root."""
import pathlib
import sys
import tempfile
import time
import unittest

sys.path.insert(0, "tools/faults")
from plant import Fault, faults_in, planted  # noqa: E402
from run import Tally  # noqa: E402
from tree_copy import COMPILERS_WORD, TIMED_OUT, bring_up_to_date, run_alone  # noqa: E402

A_FAULT = Fault("src/basic/text.cpp", 1, "a", "b")


def changed(line):
    return [fault.new for fault in faults_in("x.cpp", line)]


class Planting(unittest.TestCase):
    def test_a_call_is_dropped(self):
        self.assertEqual(changed("  Draw(box);"), [""])
        self.assertEqual(changed("  window.Boxes[i].Draw();"), [""])

    def test_a_call_behind_a_condition_on_its_line_is_dropped(self):
        self.assertEqual(changed("  if (a.Open()) Draw(box);"), ["  if (a.Open()) {}"])
        self.assertEqual(changed("  else if (a) Draw(box);"), ["  else if (a) {}"])
        self.assertEqual(changed("  for (Box& box : boxes) box.Draw();"), ["  for (Box& box : boxes) {}"])
        self.assertEqual(changed("  else Draw(box);"), ["  else  {}"])

    def test_what_is_no_call_is_left(self):
        for line in ("  if (a) return Draw(box);", "  if (a.Open(b) &&", "  return Draw(box);", "Draw(box);", "  if (a) b = c;",
                     '  // if (a) Draw("");'):
            self.assertNotIn("", changed(line))
            self.assertFalse([new for new in changed(line) if new.endswith("{}")], line)

    def test_operators_and_numbers_outside_of_texts_are_changed(self):
        self.assertEqual(changed('  return a == 7 ? "1 == 2" : b;'),
                         ['  return a != 7 ? "1 == 2" : b;', '  return a == 8 ? "1 == 2" : b;'])

    def test_one_line_changes(self):
        fault = faults_in("x.cpp", "a;\n  return true;\nb;\n")[0]
        self.assertEqual(planted("a;\n  return true;\nb;\n", fault), "a;\n  return false;\nb;\n")


class Compiling(unittest.TestCase):
    def test_the_compilers_refusal_is_known_in_a_folder_with_a_blank_too(self):
        for line in b"/tree/a.cpp:3:4: error: no", b"/my tree/a.cpp:3:4: fatal error: no":
            self.assertTrue(COMPILERS_WORD.search(b"[1/2] Building\n" + line + b"\n"), line)

    def test_what_else_ends_a_build_is_not_the_compilers_refusal(self):
        for line in b"ninja: error: no space", b"/tree/a.cpp:3:4: warning: no", b"c++: fatal error: killed":
            self.assertFalse(COMPILERS_WORD.search(line + b"\n"), line)


class Counting(unittest.TestCase):
    def complaint(self, count, *results):
        tally = Tally(count, [])
        tally.results = [(A_FAULT, result) for result in results]
        return tally.complaint()

    def test_all_noticed_passes(self):
        self.assertIsNone(self.complaint(2, "noticed by a", f"{TIMED_OUT} in b"))

    def test_fewer_than_asked_for_fails(self):
        self.assertIsNotNone(self.complaint(1))
        self.assertIsNotNone(self.complaint(2, "noticed by a", "refused", "same"))

    def test_many_refused_fails(self):
        self.assertIsNone(self.complaint(2, "noticed by a", "noticed by a", "refused", "refused"))
        self.assertIsNotNone(self.complaint(2, "noticed by a", "noticed by a", "refused", "refused", "refused"))

    def test_more_than_5_percent_surviving_fails(self):
        self.assertIsNone(self.complaint(20, "survived", *["noticed by a"] * 19))
        self.assertIsNotNone(self.complaint(19, "survived", *["noticed by a"] * 18))

    def test_another_is_tried_for_one_that_does_not_count(self):
        tally = Tally(1, [A_FAULT, A_FAULT])
        tally.add(tally.next(), "refused")
        self.assertIsNotNone(tally.next())
        self.assertIsNone(tally.next())


class Playing(unittest.TestCase):
    def setUp(self):
        scratch = tempfile.TemporaryDirectory()
        self.addCleanup(scratch.cleanup)
        self.folder = pathlib.Path(scratch.name)

    def test_a_time_out_ends_what_the_command_has_started(self):
        mark = self.folder / "mark"
        began = time.monotonic()
        status = run_alone(("sh", "-c", f"(echo there; exec sleep 100) >{mark} & echo $! >{mark}.id; wait"), 1,
                           self.folder / "log", self.folder)
        self.assertEqual(status, TIMED_OUT)
        self.assertLess(time.monotonic() - began, 50)
        child = pathlib.Path("/proc", (self.folder / "mark.id").read_text().strip(), "stat")
        deadline = time.monotonic() + 20
        while child.exists() and child.read_text().rpartition(")")[2].split()[0] != "Z":
            self.assertLess(time.monotonic(), deadline, "the command's child is still there")

    def test_a_copy_loses_what_the_tree_has_lost_and_keeps_its_build(self):
        tree, copy = self.folder / "tree", self.folder / "copy"
        for name in ("a/b.cpp", "c.h", "build/x", ".git/y"):
            (tree / name).parent.mkdir(parents=True, exist_ok=True)
            (tree / name).write_text(name, encoding="utf-8")
        bring_up_to_date(tree, copy)
        (copy / "build").mkdir()
        (copy / "build/built").touch()
        kept = (copy / "a/b.cpp").stat().st_mtime_ns
        (tree / "c.h").unlink()
        bring_up_to_date(tree, copy)
        left = {str(path.relative_to(copy)) for path in copy.rglob("*") if path.is_file()}
        self.assertEqual(left, {"a/b.cpp", "build/built"})
        self.assertEqual((copy / "a/b.cpp").stat().st_mtime_ns, kept)


unittest.main()
