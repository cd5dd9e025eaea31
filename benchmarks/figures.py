#!/usr/bin/env python3
"""Measures what figures.tsv lists and prints it as the table of docs/performance.md.

    benchmarks/figures.py BUILD [REGULAR EXPRESSION OF ROWS OR PROGRAMS]
    benchmarks/figures.py --smoke PROGRAM [REGULAR EXPRESSION OF ARGUMENTS]

The second runs each benchmark of a program once, but for those with such arguments, and looks at no
time: it fails when one of them reports an error or lacks what the table names."""

import json
import os
import platform
import re
import statistics
import subprocess
import sys
import tempfile
from dataclasses import dataclass
from pathlib import Path

HERE = Path(__file__).resolve().parent
TABLE = HERE / "figures.tsv"
NONE = "-"
REPETITIONS = 5
# Each unit with what it is in seconds or in bytes, from the largest on.
TIMES = {"s": 1, "ms": 1e-3, "µs": 1e-6, "ns": 1e-9}
SIZES = {"MB": 1e6, "kB": 1e3, "B": 1}
# How a benchmark is timed stands behind its name, but is no part of it.
TIMING = r"(/(real_time|manual_time|process_time|iterations:[0-9]+))*$"
PLAIN = re.compile(r"([0-9.]+) (\S+)")
REFERENCE = re.compile(r"(?P<max>max )?(?P<benchmark>[^: ]+)(:(?P<counter>\w+))?")
REMARKED = re.compile(r"\{([^}]*)\}")


class Problem(Exception):
    """What makes a row, or a program, of no use."""


@dataclass(frozen=True)
class Value:
    """A time in seconds, a size in bytes, or a number of things."""

    number: float
    units: dict

    def __str__(self):
        if not self.units:
            return f"{self.number:.0f}"
        # From a tenth of a microsecond on, so that the small ones can be compared at a glance.
        unit, factor = next(((unit, factor) for unit, factor in self.units.items()
                             if self.number >= (factor / 10 if unit == "µs" else factor)),
                            list(self.units.items())[-1])
        scaled = self.number / factor
        digits = 2 if scaled < 1 or unit == "s" else 1 if scaled < 100 else 0
        return f"{scaled:.{digits}f} {unit}"


def plainValue(text):
    """`16 ms` as a value, or None where the text is no such thing."""
    match = PLAIN.fullmatch(text)
    units = match and next((units for units in (TIMES, SIZES) if match[2] in units), None)
    return Value(float(match[1]) * units[match[2]], units) if units else None


def ratioText(ratio):
    """Two digits that count."""
    rounded = float(f"{ratio:.1e}")
    return f"{rounded:.0f}" if rounded >= 10 else f"{rounded:#.2g}"


@dataclass(frozen=True)
class Row:
    what: str
    program: str
    measured: str
    remark: str
    floor: str
    floorRemark: str
    limit: str

    def references(self):
        """What the row wants to know of its program."""
        inRemarks = REMARKED.findall(self.remark) + REMARKED.findall(self.floorRemark)
        floor = [self.floor] if self.floor != NONE and not plainValue(self.floor) else []
        return [self.measured, *floor, *inRemarks]


def rowsOf(text):
    rows = []
    for number, line in enumerate(text.splitlines(), 1):
        if not line or line.startswith("#"):
            continue
        cells = line.split("\t")
        if len(cells) != 7 or "" in cells:
            raise Problem(f"{TABLE.name}:{number}: a row has seven cells, none of them empty")
        row = Row(*cells)
        for reference in row.references():
            match = REFERENCE.fullmatch(reference)
            if not match or "*" in reference and not match["max"]:
                raise Problem(f"{TABLE.name}:{number}: what is {reference!r} to mean?")
        if row.limit != NONE and not plainValue(row.limit) and not re.fullmatch("[0-9.]+", row.limit):
            raise Problem(f"{TABLE.name}:{number}: {row.limit!r} is no limit")
        rows.append(row)
    return rows


def patternOf(benchmark):
    """A regular expression, for Google Benchmark too, of all names that a row's name stands for."""
    quoted = re.sub(r"[.^$+?()\[\]{}|\\]", r"\\\g<0>", benchmark)
    return "^" + quoted.replace("*", ".*") + TIMING


class Runs:
    """What the benchmarks of a program reported, repetition by repetition."""

    def __init__(self, reports):
        self._reports = [report for report in reports if report.get("run_type") == "iteration"]

    def errors(self):
        return sorted({f"{report['name']}: {report['error_message']}" for report in self._reports
                       if report.get("error_occurred")})

    def named(self, pattern):
        return [report for report in self._reports if re.search(pattern, report["name"])]

    def value(self, reference):
        match = REFERENCE.fullmatch(reference)
        reports = self.named(patternOf(match["benchmark"]))
        if not reports:
            raise Problem(f"there is no benchmark {match['benchmark']}")
        values = [self._valueOf(report, match["counter"]) for report in reports]
        pick = max if match["max"] else statistics.median
        return Value(pick(value.number for value in values), values[0].units)

    @staticmethod
    def _valueOf(report, counter):
        if report.get("error_occurred"):
            raise Problem(f"{report['name']}: {report['error_message']}")
        if not counter:
            unit = report["time_unit"].replace("us", "µs")
            return Value(report["real_time"] * TIMES[unit], TIMES)
        if counter not in report:
            raise Problem(f"{report['name']} has no counter {counter}")
        if counter.endswith("Ms"):
            return Value(report[counter] / 1e3, TIMES)
        return Value(report[counter], SIZES if counter.endswith("Bytes") else {})


def remarkText(remark, runs):
    return "" if remark == NONE else ", " + REMARKED.sub(lambda m: str(runs.value(m[1])), remark)


def isBeyond(limit, value, ratio):
    absolute = plainValue(limit)
    if absolute:
        return value.number > absolute.number
    return limit != NONE and ratio is not None and ratio > float(limit)


def cellsOf(row, runs):
    """The five cells of a row, and whether it is beyond its limit."""
    value = runs.value(row.measured)
    floor, ratio = "", None
    if row.floor != NONE:
        least = plainValue(row.floor) or runs.value(row.floor)
        ratio = value.number / least.number if least.number else None
        floor = row.floor if plainValue(row.floor) else str(least)
        floor += remarkText(row.floorRemark, runs)
    beyond = isBeyond(row.limit, value, ratio)
    limit = "" if row.limit == NONE else row.limit
    return (
        row.what,
        f"{value}{remarkText(row.remark, runs)}",
        floor,
        ratioText(ratio) if ratio is not None else "",
        f"{limit}, **exceeded**" if beyond else limit,
    ), beyond


def environment(**more):
    shown = "xcb" if os.environ.get("DISPLAY") else "offscreen"
    return {**os.environ, "QT_QUICK_BACKEND": "software", "QT_QPA_PLATFORM": shown, **more}


def ask(program, *options, **variables):
    """What a program of benchmarks prints with these options."""
    try:
        answer = subprocess.run([program, *options], env=environment(**variables), text=True,
                                stdin=subprocess.DEVNULL, capture_output=True, check=False)
    except OSError as error:
        raise Problem(f"{error.strerror}: {program}") from error
    if answer.returncode != 0:
        raise Problem(f"{program} ended with {answer.returncode}\n{answer.stderr}")
    return answer.stdout


def runOf(program, *options, **variables):
    # A file, because a benchmark may print what it likes.
    with tempfile.TemporaryDirectory(prefix="quillmere-figures-") as folder:
        report = Path(folder, "report.json")
        ask(program, *options, f"--benchmark_out={report}", "--benchmark_out_format=json",
            **variables)
        try:
            return Runs(json.loads(report.read_text(encoding="utf-8"))["benchmarks"])
        except ValueError as error:
            raise Problem(f"{program} ran no benchmark") from error


def measure(program, rows):
    wanted = {patternOf(REFERENCE.fullmatch(reference)["benchmark"])
              for row in rows for reference in row.references()}
    return runOf(program, f"--benchmark_filter={'|'.join(sorted(wanted))}",
                 f"--benchmark_repetitions={REPETITIONS}",
                 "--benchmark_report_aggregates_only=false",
                 "--benchmark_enable_random_interleaving=true")


def hasRealCatalog():
    folder = Path(os.environ.get("QUILLMERE_REAL_DATA", HERE.parent.parent / "shared/data"))
    return all((folder / f"{name}.json.xz").exists() for name in ("formula", "cask"))


def surroundings(build):
    models = re.findall(r"^model name\s*: (.*)$", Path("/proc/cpuinfo").read_text(), re.MULTILINE)
    catalog = "the real catalog" if hasRealCatalog() else "a made-up catalog, the real one was absent"
    return "\n".join((
        f"- machine: {models[0] if models else platform.machine()}, {os.cpu_count()} cores,"
        f" {platform.system()} {platform.release()}",
        f"- built with: {Path(build, 'benchmarks/built-with.txt').read_text().strip()}",
        f"- measured on: {catalog}",
    ))


def printFigures(build, only=""):
    rows = [row for row in rowsOf(TABLE.read_text(encoding="utf-8"))
            if re.search(only, row.what) or re.search(only, row.program)]
    if not rows:
        raise Problem(f"no row and no program is called {only!r}")
    runs, problems = {}, []
    for program in dict.fromkeys(row.program for row in rows):
        print(f"measuring {program} …", file=sys.stderr, flush=True)
        try:
            runs[program] = measure(Path(build, "benchmarks", f"benchmark_{program}").resolve(),
                                    [row for row in rows if row.program == program])
            problems += runs[program].errors()
        except Problem as problem:
            problems.append(problem)
    print("| what | measured | floor | ratio | at most |\n|---|---|---|---|---|")
    exceeded = 0
    for row in (row for row in rows if row.program in runs):
        try:
            cells, beyond = cellsOf(row, runs[row.program])
            exceeded += beyond
        except Problem as problem:
            problems.append(f"{row.program}: {problem}")
            cells = (row.what, "**failed**", "", "", "")
        print(f"| {' | '.join(cells)} |")
    print(f"\n{surroundings(build)}\n- beyond their limit: {exceeded} of {len(rows)}")
    return problems


def namesMissed(row, names, runs):
    """What the row names and the program has not. `runs` may lack benchmarks; counters are looked for
    where the function ran at all."""
    for reference in row.references():
        match = REFERENCE.fullmatch(reference)
        benchmark = match["benchmark"]
        if not any(re.search(patternOf(benchmark), name) for name in names):
            yield f"there is no benchmark {benchmark}"
        elif match["counter"]:
            relatives = runs.named("^" + re.escape(benchmark.split("/")[0]) + "(/|$)")
            if relatives and not any(match["counter"] in report for report in relatives):
                yield f"{benchmark} has no counter {match['counter']}"


def smoke(program, large=None):
    absent = {"QUILLMERE_REAL_DATA": str(HERE / "absent"), "QT_QPA_PLATFORM": "offscreen"}
    names = ask(program, "--benchmark_list_tests=true", **absent).split("\n")
    runs = runOf(program, "--benchmark_min_time=0",
                 f"--benchmark_filter={f'-{large}(/|$)' if large else '.'}", **absent)
    ownName = Path(program).name.removeprefix("benchmark_")
    return runs.errors() + [
        f"{row.what}: {missed}" for row in rowsOf(TABLE.read_text(encoding="utf-8"))
        if row.program == ownName for missed in namesMissed(row, names, runs)]


def main(arguments):
    isSmoke = arguments[:1] == ["--smoke"]
    if len(arguments) - isSmoke not in (1, 2):
        sys.exit(__doc__)
    try:
        problems = smoke(*arguments[1:]) if isSmoke else printFigures(*arguments)
    except Problem as problem:
        problems = [problem]
    for problem in problems:
        print(problem, file=sys.stderr)
    return 1 if problems else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
