"""What the program itself does to a prefix while it runs a command in it: nothing but to start its
bin/brew. The system calls of a whole run tell."""

import os
import re
import subprocess
import sys

import desktop
from desktop import Failed, Window

SKIPPED = 77
CHANGING_CALLS = (
    "mkdir mkdirat rmdir unlink unlinkat rename renameat renameat2 link linkat symlink symlinkat "
    "truncate chmod fchmodat chown fchownat mknod mknodat utimensat setxattr creat"
).split()
CALL = re.compile(r"^(\d+) +(\w+)(\(.*)$")
RESUMED = re.compile(r"^(\d+) +<\.\.\. \w+ resumed>(.*)$")
UNFINISHED = " <unfinished ...>"


def may_trace():
    return subprocess.run(
        ["strace", "-o", "/dev/null", "true"], stderr=subprocess.DEVNULL
    ).returncode == 0


def record(program, demo_prefix, home, prefix, log):
    subprocess.run([demo_prefix, prefix], check=True)
    desktop.remember_prefix(home, prefix)
    calls = "trace=open,openat,execve,execveat,clone,clone3,vfork,fork," + ",".join(CHANGING_CALLS)
    window = Window(program, home, ["strace", "-f", "-qq", "-s", "4096", "-o", log, "-e", calls])
    window.key("ctrl+8")
    window.get("label", "Looks like a Homebrew prefix")
    window.key("ctrl+6")
    window.press("push button", "Preview services list command")
    window.press("push button", "Run Command")
    window.get("label", "Completed with exit code 0")
    window.press("push button", "Close")
    window.gone("dialog", "Command Preview")
    window.quit()


def whole_calls(log):
    """The calls in the order of their ends, those put together that another one interrupted."""
    begun = {}
    with open(log, encoding="utf-8", errors="replace") as lines:
        for line in lines:
            if resumed := RESUMED.match(line):
                pid, rest = resumed.groups()
                line = begun.pop(pid, "") + rest
            elif line.rstrip().endswith(UNFINISHED):
                begun[line.split()[0]] = line.rstrip().removesuffix(UNFINISHED)
                continue
            if call := CALL.match(line):
                yield call.groups()


def calls_of_the_program(log):
    """The calls of the program's own threads, and the first execution of each of its children.

    A child is in no thread group of ours; what it does after its first execution is Homebrew's
    doing and not the program's."""
    calls = list(whole_calls(log))
    ours = {calls[0][0]}
    children = set()
    # A parent that waits for its child's execution ends its own call after it, so that the
    # relations have to be known before the calls are told apart.
    known = 0
    while known != len(ours) + len(children):
        known = len(ours) + len(children)
        for pid, call, rest in calls:
            made = re.search(r"= (\d+)$", rest)
            if pid in ours and call in ("clone", "clone3", "vfork", "fork") and made:
                (ours if "CLONE_THREAD" in rest else children).add(made.group(1))
    for pid, call, rest in calls:
        if pid in ours:
            yield call, rest
        elif pid in children and call in ("execve", "execveat"):
            children.remove(pid)
            yield "child " + call, rest


def judge(log, prefix):
    executed = []
    own_program = True
    looked_at_prefix = False
    for call, rest in calls_of_the_program(log):
        if call == "child execve" or call == "child execveat":
            executed.append(re.search(r'"([^"]*)"', rest).group(1))
        elif call in ("execve", "execveat"):
            if not own_program:
                raise Failed(f"the program replaced itself: {rest}")
            own_program = False
        elif prefix in rest:
            looked_at_prefix = True
            if call in CHANGING_CALLS or re.search(r"O_(WRONLY|RDWR|CREAT|TRUNC|APPEND)", rest):
                raise Failed(f"the program changed the prefix: {call}{rest}")
    if not looked_at_prefix:
        raise Failed("the trace shows no look at the prefix: it proves nothing")
    if executed != [os.path.join(prefix, "bin/brew")]:
        raise Failed(f"executed: {executed}")


def tell(program, demo_prefix):
    if not may_trace():
        print("skipped: this machine lets nobody trace system calls")
        sys.exit(SKIPPED)
    with desktop.temporary_home() as home:
        prefix = os.path.join(home, "prefix")
        log = os.path.join(home, "calls")
        record(program, demo_prefix, home, prefix, log)
        judge(log, prefix)


if __name__ == "__main__":
    desktop.tell(tell)
