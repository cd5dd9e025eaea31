"""The beginning of the tour leaves numbered pictures of the right size, each in light and in dark, and
no two of them alike; a picture that cannot be written ends it with a message that names it."""

import os
import re
import struct
import subprocess
import sys
import tempfile

STOPS = ("first-start", "first-start-folder-chooser", "first-start-no-prefix",
         "dashboard-catalog-only", "browse", "formula")
SIZE = (1200, 800)


def fail(what):
    sys.exit(f"short_tour: {what}")


def take(tour, folder, runtime):
    return subprocess.run(
        [tour, "beginning", folder], capture_output=True, text=True,
        env=dict(os.environ, XDG_RUNTIME_DIR=runtime),
    )


def size_of(picture):
    if picture[:8] != b"\x89PNG\r\n\x1a\n":
        fail("a picture is no PNG")
    return struct.unpack(">II", picture[16:24])


def main(tour):
    with tempfile.TemporaryDirectory(prefix="quillmere-tour-test-") as folder:
        runtime, album, full = (f"{folder}/{name}" for name in ("runtime", "album", "full"))
        os.mkdir(runtime, 0o700)
        run = take(tour, album, runtime)
        if run.returncode != 0:
            fail(f"ended with {run.returncode}: {run.stderr}")
        expected = [f"{901 + i}-{stop}-{theme}.png" for i, stop in enumerate(STOPS)
                    for theme in ("dark", "light")]
        if sorted(os.listdir(album)) != expected:
            fail(f"pictures: {sorted(os.listdir(album))}")
        pictures = [open(f"{album}/{name}", "rb").read() for name in expected]
        for name, picture in zip(expected, pictures):
            if size_of(picture) != SIZE:
                fail(f"{name} is of the size {size_of(picture)}")
        if len(set(pictures)) != len(pictures):
            fail("two pictures are alike")
        # A folder by the name of a picture is in its way, for root as for anybody.
        os.makedirs(f"{full}/{expected[3]}")
        run = take(tour, full, runtime)
        if run.returncode == 0 or not re.search(re.escape(expected[3]), run.stderr):
            fail(f"a picture that cannot be written is not named: {run.stderr}")


if __name__ == "__main__":
    main(*sys.argv[1:])
