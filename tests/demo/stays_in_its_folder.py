"""What the making of a demo home and the runs of its brew change: nothing outside of its folder.
The system calls tell."""

import os
import re
import subprocess
import sys
import tempfile

SKIPPED = 77
CHANGING_CALLS = (
    "mkdir mkdirat rmdir unlink unlinkat rename renameat renameat2 link linkat symlink symlinkat "
    "truncate chmod fchmodat chown fchownat mknod mknodat utimensat setxattr creat"
).split()
COMMANDS = (
    ["info", "jq"], ["deps", "curl"], ["uses", "gmp"], ["outdated"], ["services", "list"],
    ["doctor"], ["update"], ["install", "wget"], ["upgrade", "jq"], ["upgrade", "--cask", "firefox"],
    ["uninstall", "yq"], ["cleanup"], ["frobnicate"],
)


def may_trace():
    return subprocess.run(
        ["strace", "-o", "/dev/null", "true"], stderr=subprocess.DEVNULL
    ).returncode == 0


def changed_paths(log, folder):
    """The paths that a call changes, absolute. Relative ones are those of a folder that is ours: no
    command leaves it."""
    changing = re.compile(rf"\b({'|'.join(CHANGING_CALLS)})\((.*)$")
    opening = re.compile(r"\b(open|openat)\((.*)$")
    with open(log, encoding="utf-8", errors="replace") as lines:
        for line in lines:
            match = changing.search(line)
            if not match:
                match = opening.search(line)
                if not match or not re.search(r"O_(WRONLY|RDWR|CREAT|TRUNC|APPEND)", line):
                    continue
            if " = -1 " in line:
                continue
            paths = re.findall(r'"((?:[^"\\]|\\.)*)"', match.group(2))
            # What a link leads to stays as it is.
            isLink = match.group(1) in ("link", "linkat", "symlink", "symlinkat")
            for path in paths[-1:] if isLink else paths:
                yield os.path.normpath(os.path.join(folder, path))


def trace(command, log, home):
    environment = {"PATH": "/usr/bin:/bin:/usr/sbin:/sbin", "HOME": home, "TMPDIR": home,
                   "XDG_RUNTIME_DIR": home}
    return subprocess.run(
        ["strace", "-f", "-qq", "-s", "4096", "-o", log, "-e",
         "trace=open,openat," + ",".join(CHANGING_CALLS), *command],
        env=environment, cwd=home, stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL,
        stderr=subprocess.DEVNULL,
    ).returncode


def judge(log, home, what):
    changed = list(changed_paths(log, home))
    for path in changed:
        if path != home and not path.startswith(home + "/") and not path.startswith("/dev/"):
            sys.exit(f"stays_in_its_folder: {what} changed {path}")
    return changed


def main(demo_home):
    if not may_trace():
        print("skipped: this machine lets nobody trace system calls")
        sys.exit(SKIPPED)
    with tempfile.TemporaryDirectory(prefix="quillmere-demo-test-") as folder:
        folder = os.path.realpath(folder)
        log, home = f"{folder}/calls", f"{folder}/home"
        os.mkdir(home)
        if trace([demo_home, home], log, home) != 0:
            sys.exit("stays_in_its_folder: the home was not made")
        if not judge(log, home, "demo_home"):
            sys.exit("stays_in_its_folder: the trace shows no change: it proves nothing")
        with open(f"{home}/homebrew/var/pace", "w", encoding="utf-8") as pace:
            pace.write("0\n")
        for command in COMMANDS:
            status = trace([f"{home}/homebrew/bin/brew", *command], log, home)
            if status != (1 if command[0] in ("doctor", "frobnicate") else 0):
                sys.exit(f"stays_in_its_folder: brew {command} ended with {status}")
            judge(log, home, f"brew {command}")


if __name__ == "__main__":
    main(*sys.argv[1:])
