"""Shows that figures.py reads its table, tells what a program reported, and says what is amiss."""

import json
import os
import tempfile
import unittest
from pathlib import Path

import figures
from figures import Problem, Row, Runs, Value

ROW = Row("a task", "sample", "work/5", "-", "least/5", "the same, copied", "2")


def reported(name, *milliseconds, **more):
    return [{"name": name, "run_type": "iteration", "real_time": time, "time_unit": "ms", **more}
            for time in milliseconds]


class Texts(unittest.TestCase):
    def testWritesValuesForPeople(self):
        for number, units, text in (
                (1.1, figures.TIMES, "1.10 s"), (0.277, figures.TIMES, "277 ms"),
                (0.0258, figures.TIMES, "25.8 ms"), (0.0045, figures.TIMES, "4.5 ms"),
                (0.94e-6, figures.TIMES, "0.94 µs"), (40e-6, figures.TIMES, "40.0 µs"),
                (12e-9, figures.TIMES, "12.0 ns"),
                (8e6, figures.SIZES, "8.0 MB"), (745, {}, "745")):
            self.assertEqual(str(Value(number, units)), text)

    def testWritesTwoDigitsOfARatio(self):
        for ratio, text in ((1.65e-2, "0.017"), (0.7, "0.70"), (1, "1.0"), (1.96, "2.0"),
                            (9.96, "10"), (31.4, "31")):
            self.assertEqual(figures.ratioText(ratio), text)

    def testReadsPlainValues(self):
        self.assertEqual(figures.plainValue("16 ms"), Value(0.016, figures.TIMES))
        self.assertEqual(figures.plainValue("6 MB"), Value(6e6, figures.SIZES))
        self.assertIsNone(figures.plainValue("work/5"))
        self.assertIsNone(figures.plainValue("16 eels"))


class Table(unittest.TestCase):
    def testReadsARow(self):
        text = "# a comment\n\na task\tsample\twork/5\t-\tleast/5\tthe same, copied\t2\n"
        self.assertEqual(figures.rowsOf(text), [ROW])

    def testStopsRowsThatMeanNothing(self):
        for text in ("a task\tsample\twork/5\n",
                     "a task\tsample\twork/5\t\tleast/5\t-\t2\n",
                     "a task\tsample\twork/*\t-\tleast/5\t-\t2\n",
                     "a task\tsample\tlongest work/5\t-\tleast/5\t-\t2\n",
                     "a task\tsample\twork/5\t-\tleast/5\t-\tlittle\n"):
            with self.subTest(text=text), self.assertRaisesRegex(Problem, "figures.tsv:1:"):
                figures.rowsOf(text)

    def testOursNamesProgramsThatAreBuilt(self):
        recipes = "".join(recipe.read_text() for recipe in figures.HERE.glob("*.cmake"))
        for row in figures.rowsOf(figures.TABLE.read_text(encoding="utf-8")):
            self.assertRegex(recipes, rf"quillmere_benchmark\({row.program}\s", row.what)


class Rows(unittest.TestCase):
    def cells(self, reports, **changes):
        row = Row(**{**vars(ROW), **changes})
        return figures.cellsOf(row, Runs(reports))

    def testTakesTheMediansAndTheirRatio(self):
        cells, beyond = self.cells(reported("work/5/real_time", 9, 3, 4) +
                                   reported("work/50", 99) + reported("least/5", 2, 2, 8) +
                                   [{"name": "work/5_mean", "run_type": "aggregate"}])
        self.assertEqual(cells, ("a task", "4.0 ms", "2.0 ms, the same, copied", "2.0", "2"))
        self.assertFalse(beyond)

    def testMarksWhatIsBeyondItsLimit(self):
        reports = reported("work/5", 5) + reported("least/5", 2)
        self.assertEqual(self.cells(reports)[0][4], "2, **exceeded**")
        self.assertEqual(self.cells(reports, limit="4 ms")[0][4], "4 ms, **exceeded**")
        self.assertEqual(self.cells(reports, limit="6 ms")[0][4], "6 ms")
        self.assertEqual(self.cells(reports, limit="-")[0][4], "")

    def testTakesTheLargestOfAFamily(self):
        reports = reported("search/lib", 1, 7) + reported("search/e", 2) + reported("least/5", 2)
        self.assertEqual(self.cells(reports, measured="max search/*")[0][1], "7.0 ms")

    def testTakesCountersAndPlainFloors(self):
        reports = reported("work/5/iterations:9/manual_time", 1, 1, gapMs=8, keptBytes=4e6)
        cells, _ = self.cells(reports, measured="work/5:gapMs", floor="16 ms",
                              floorRemark="one frame", remark="in {work/5:keptBytes}")
        self.assertEqual(cells[1:4], ("8.0 ms, in 4.0 MB", "16 ms, one frame", "0.50"))

    def testKnowsNamesThatLookLikeExpressions(self):
        reports = reported("sort<(a|b)>/5", 3) + reported("least/5", 1)
        self.assertEqual(self.cells(reports, measured="sort<(a|b)>/5")[0][3], "3.0")

    def testStopsWhatIsNotThere(self):
        reports = reported("work/5", 1) + reported("least/5", 1)
        for changes in ({"measured": "works/5"}, {"floor": "least"}, {"measured": "work/5:gapMs"},
                        {"remark": "of which {part}"}):
            with self.subTest(changes=changes), self.assertRaisesRegex(Problem, "no "):
                self.cells(reports, **changes)

    def testStopsWhatReportedAnError(self):
        reports = reported("work/5", 0, error_occurred=True, error_message="output was lost")
        self.assertEqual(Runs(reports).errors(), ["work/5: output was lost"])
        with self.assertRaisesRegex(Problem, "output was lost"):
            self.cells(reports + reported("least/5", 1))


class Smoke(unittest.TestCase):
    """Runs a program that reports what it is told to."""

    def problems(self, reports):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        program = Path(folder.name, "benchmark_commands")
        program.write_text(f"""#!/usr/bin/env python3
import sys
reports = {json.dumps(reports).replace("true", "True")}
for option in sys.argv:
    if option == "--benchmark_list_tests=true":
        print("\\n".join(report["name"] for report in reports))
    if option.startswith("--benchmark_out="):
        open(option.split("=")[1], "w").write({json.dumps(json.dumps({"benchmarks": reports}))})
""")
        os.chmod(program, 0o700)
        return figures.smoke(str(program))

    def reports(self):
        rows = figures.rowsOf(figures.TABLE.read_text(encoding="utf-8"))
        return [report for row in rows if row.program == "commands"
                for name in row.references() for report in reported(name, 1)]

    def testLetsAWholeProgramPass(self):
        self.assertEqual(self.problems(self.reports()), [])

    def testStopsAnErrorAndAMissingName(self):
        reports = self.reports()
        reports[0]["error_occurred"], reports[0]["error_message"] = True, "no disk"
        missing = reports.pop()["name"]
        problems = self.problems(reports)
        self.assertIn("no disk", problems[0])
        self.assertIn(missing, problems[1])


if __name__ == "__main__":
    unittest.main()
