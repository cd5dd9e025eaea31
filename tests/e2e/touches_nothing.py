"""A command runs in a prefix: what the program itself does there is to start bin/brew and nothing
else. Told traced; a story like any other without."""

import os
import subprocess

import desktop
from desktop import Window


def tell(program, demo_prefix):
    with desktop.temporary_home() as home:
        prefix = os.path.join(home, "prefix")
        subprocess.run([demo_prefix, prefix], check=True)
        desktop.remember_prefix(home, prefix)
        window = Window(program, home)
        window.key("ctrl+8")
        window.get("label", "Looks like a Homebrew prefix")
        window.key("ctrl+6")
        window.press("push button", "Preview services list command")
        window.press("push button", "Run Command")
        window.get("label", "Completed with exit code 0")
        window.press("push button", "Close")
        window.gone("dialog", "Command Preview")
        window.quit()


if __name__ == "__main__":
    desktop.tell(tell)
