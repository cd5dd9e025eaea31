"""Two starts of the program at the same time: each adds to the history, neither loses what the other
has added, and whoever comes back to a window finds it there."""

import subprocess

import desktop
from desktop import Window, wait_for

LISTING = "Command brew services list, "


def come_to(window):
    """As a click on it would; the titles of both are the same."""
    subprocess.run(
        ["xdotool", "search", "--sync", "--onlyvisible", "--all", "--pid", str(window.process.pid),
         "--name", "^Quillmere$", "windowfocus", "--sync"],
        check=True, stdout=subprocess.DEVNULL,
    )


def copy(window):
    come_to(window)
    desktop.copy_services_list(window)


def shows(window, count):
    come_to(window)
    window.key("ctrl+7")
    wait_for(f"{count} records",
             lambda: len(window.find_all("list item", contains=LISTING)) == count)


def story(program, _demo_prefix):
    with desktop.temporary_home() as home:
        desktop.remember_prefix(home, f"{home}/nowhere")
        first = Window(program, home)
        second = Window(program, home)
        copy(first)
        shows(second, 1)
        copy(second)
        copy(second)
        shows(first, 3)
        copy(first)
        # Leaves with what it knew before.
        come_to(second)
        second.quit()
        come_to(first)
        first.quit()

        window = Window(program, home)
        shows(window, 4)
        window.quit()


if __name__ == "__main__":
    desktop.tell(story)
