"""Lists the records of the catalog documents in a folder, one line each, as formula.txt and
cask.txt: a reader that shares nothing with the one under test."""

import json
import sys
from pathlib import Path


def texts(values):
    return "[" + "|".join(values) + "]"


def optional(value):
    return "-" if value is None else "=" + value


def formulaLine(record):
    return [
        record["name"],
        optional(record["desc"]),
        optional(record["versions"]["stable"]),
        optional(record["versions"]["head"]),
        optional(record["homepage"]),
        optional(record["license"]),
        optional(record["tap"]),
        texts(record["dependencies"]),
    ]


def caskLine(record):
    return [
        record["token"],
        texts(record["name"]),
        optional(record["desc"]),
        optional(record["version"]),
        optional(record["homepage"]),
        optional(record["tap"]),
        texts(next(iter(artifact)) for artifact in record["artifacts"]),
    ]


folder = Path(sys.argv[1])
for name, line in (("formula", formulaLine), ("cask", caskLine)):
    records = json.loads((folder / f"{name}.json").read_text("utf-8"))
    lines = ("\t".join(line(record)) + "\n" for record in records)
    (folder / f"{name}.txt").write_text("".join(lines), "utf-8")
