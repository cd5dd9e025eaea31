"""Homes that no developer has: on a path of blanks and foreign letters, with settings that are
rubbish, on a disk that may not be written, on one that is full. The program starts in each, works,
and remembers what the disk lets it."""

import os
import random
import stat
import subprocess

import desktop
from desktop import Window, expect

SKIPPED = 77
# Takes the disk of the home away from the program alone: its own view of the mounts.
ON_A_DISK = ["unshare", "--mount", "--propagation", "private", "sh", "-e", "-c"]
READ_ONLY = 'mount --bind "$HOME" "$HOME"; mount -o remount,bind,ro "$HOME"; exec "$0"'
FULL = ('mount -t tmpfs -o size=64k,mode=700 quillmere "$HOME"; cat /dev/zero >"$HOME/rest" 2>/dev/null || :; '
        'exec "$0"')


def may_mount(home):
    return subprocess.run([*ON_A_DISK, READ_ONLY, "true"], env={**os.environ, "HOME": home},
                          stderr=subprocess.DEVNULL).returncode == 0


def settings_of(home):
    return f"{home}/.config/Quillmere/Quillmere.conf"


def works_in(program, home, wrapper=()):
    window = Window(program, home, wrapper)
    desktop.take_first_steps(window)
    desktop.copy_services_list(window)
    shows_it(window)
    window.quit()


def remembers(program, home):
    window = Window(program, home)
    shows_it(window)
    window.quit()


def shows_it(window):
    window.key("ctrl+7")
    window.get("list item", contains="Command brew services list, ")


def on_a_path_of_foreign_letters(program, home):
    home = f"{home}/Zoë's \"home\" 你好 é %20 #1"
    os.mkdir(home, 0o700)
    works_in(program, home)
    remembers(program, home)
    mode = stat.S_IMODE(os.stat(settings_of(home)).st_mode)
    expect(mode == 0o600, f"others may use the settings: {mode:o}")


def with_rubbish_for_settings(program, home):
    rubbish = random.Random(6).randbytes(100_000)
    for content in (rubbish, b"[General\n\xff\xfe=\0@ByteArray(", b"commandHistory=@ByteArray([{}"):
        os.makedirs(os.path.dirname(settings_of(home)), exist_ok=True)
        with open(settings_of(home), "wb") as settings:
            settings.write(content)
        works_in(program, home)
        remembers(program, home)


def on_a_disk_that_may_not_be_written(program, home):
    works_in(program, home, [*ON_A_DISK, READ_ONLY])
    expect(not os.path.exists(settings_of(home)), "the disk was written after all")


def on_a_disk_that_is_full(program, home):
    works_in(program, home, [*ON_A_DISK, FULL])


def story(program, _demo_prefix):
    for happens in (on_a_path_of_foreign_letters, with_rubbish_for_settings):
        with desktop.temporary_home() as home:
            happens(program, home)
    with desktop.temporary_home() as home:
        if not may_mount(home):
            raise SystemExit(SKIPPED)
    for happens in (on_a_disk_that_may_not_be_written, on_a_disk_that_is_full):
        with desktop.temporary_home() as home:
            happens(program, home)


if __name__ == "__main__":
    desktop.tell(story)
