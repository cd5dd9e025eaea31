"""Judges the system calls of a run of the program: that it wrote nowhere but in its own folders,
executed nothing but the prefix's bin/brew and connected to nothing that nobody asked for."""

import collections
import os
import re
import shlex

from desktop import Failed

# A name is made, changed or taken away by these. A descriptor that was opened for writing is judged
# when it is opened.
CHANGING_CALLS = (
    "mkdir mkdirat rmdir unlink unlinkat rename renameat renameat2 link linkat symlink symlinkat "
    "truncate chmod fchmod fchmodat chown lchown fchown fchownat mknod mknodat utime utimes "
    "futimesat utimensat setxattr lsetxattr fsetxattr removexattr lremovexattr fremovexattr creat"
).split()
OPENING_CALLS = "open openat openat2 open_by_handle_at".split()
# Where one of these is possible, a trace of the others tells too little.
OPAQUE_CALLS = "chdir fchdir chroot mount umount2 io_uring_setup ptrace".split()
EXECUTING_CALLS = "execve execveat".split()
FORKING_CALLS = "clone clone3 vfork fork".split()
CONNECTING_CALLS = "socket connect".split()
TRACED_CALLS = (CHANGING_CALLS + OPENING_CALLS + OPAQUE_CALLS + EXECUTING_CALLS + FORKING_CALLS
                + CONNECTING_CALLS)
# Not as the program's parent: it would wait for whoever a child leaves behind.
STRACE = ["strace", "-D", "-f", "-qq", "-y", "-ttt", "--seccomp-bpf", "-s", "4096",
          "-e", "trace=" + ",".join(TRACED_CALLS)]

LINE = re.compile(r"^(\d+) +(\d+\.\d+) (.*)$")
RESUMED = re.compile(r"^<\.\.\. \w+ resumed>(.*)$")
CALL = re.compile(r"^(\w+)(\(.*)$")
UNFINISHED = " <unfinished ...>"
TEXT = r'"((?:[^"\\]|\\.)*)"'
# A folder's descriptor, which strace names, or a text; the path that a descriptor stands for at the
# end of an opening call.
ARGUMENT = re.compile(rf"(?:AT_FDCWD|\b\d+)<([^>]*)>|{TEXT}")
OPENED = re.compile(r"= \d+<([^>]*)>(?:\(deleted\))?$")
WRITING = re.compile(r"\bO_(WRONLY|RDWR|CREAT|TRUNC|APPEND|TMPFILE)\b")
# These take the last name of a path for itself, where the others follow it.
NOT_FOLLOWING = re.compile(r"^(mkdir|rmdir|unlink|rename|link|symlink|mknod|l)")
# Where a write leaves no file.
DEVICES = re.compile(r"^/dev/(null|tty|ptmx|dri/.*|shm/.*)$|^/memfd:|^/proc/self/|^/proc/\d+/")

Call = collections.namedtuple("Call", "time name rest")


class Judgement:
    """What a trace shows beside the guilt that it does not show."""

    def __init__(self):
        self.commands = []
        self.connections = []
        self.writes = []


def whole_calls(lines):
    """The process and the call, in the order of their ends; what another call interrupted is put
    together and keeps the time of its begin."""
    begun = {}
    for line in lines:
        if not (parts := LINE.match(line.rstrip("\n"))):
            continue
        pid, time, text = parts.groups()
        if resumed := RESUMED.match(text):
            time, before = begun.pop(pid, (time, ""))
            text = before + resumed.group(1)
        elif text.endswith(UNFINISHED):
            begun[pid] = (time, text.removesuffix(UNFINISHED))
            continue
        if call := CALL.match(text):
            yield pid, Call(float(time), *call.groups())
    # Who was killed in a call has no end of it.
    for pid, (time, text) in begun.items():
        if call := CALL.match(text):
            yield pid, Call(float(time), *call.groups())


def calls_of_the_program(lines):
    """The calls of the program's own threads, and those of its children until they execute another
    program: from then on it is that program's doing."""
    calls = list(whole_calls(lines))
    ours = {calls[0][0]} if calls else set()
    children = set()
    # A parent that waits for its child's execution ends its own call after it, so that the
    # relations have to be known before the calls are told apart.
    known = -1
    while known != len(ours) + len(children):
        known = len(ours) + len(children)
        for pid, call in calls:
            made = re.search(r"= (\d+)(?:<[^>]*>)?$", call.rest)
            if pid in ours and call.name in FORKING_CALLS and made:
                (ours if "CLONE_THREAD" in call.rest else children).add(made.group(1))
    for pid, call in calls:
        if pid in ours:
            yield False, call
        elif pid in children:
            yield True, call
            if call.name in EXECUTING_CALLS and call.rest.endswith("= 0"):
                children.remove(pid)


def decoded(text):
    """A text as it was before strace wrote it down."""
    return text.encode("latin-1", "backslashreplace").decode("unicode_escape").encode(
        "latin-1").decode("utf-8", "surrogateescape")


def resolved(path, follow):
    if follow:
        return os.path.realpath(path)
    folder, name = os.path.split(path.rstrip("/"))
    if name in ("", ".", ".."):
        return os.path.realpath(path)
    return os.path.join(os.path.realpath(folder), name)


def paths_of(call, working_folder):
    """All that a call names, without links and dots."""
    folder = None
    paths = []
    arguments = list(ARGUMENT.finditer(call.rest))
    for argument in arguments:
        descriptor, text = argument.groups()
        if descriptor is not None:
            if folder is not None:
                paths.append(folder)
            folder = decoded(descriptor)
        else:
            named = os.path.join(folder or working_folder, decoded(text))
            paths.append(resolved(named, not NOT_FOLLOWING.match(call.name)))
            folder = None
    if folder is not None:  # no name beside it: the descriptor itself is meant
        paths.append(folder)
    return paths[-1:] if call.name.startswith("symlink") else paths


def is_inside(path, folders):
    return any(path == folder or path.startswith(folder + "/") for folder in folders)


def leads_to(path, folders):
    return any(folder.startswith(path + "/") for folder in folders)


def judge_change(call, working_folder, own_folders):
    """Returns whether the call is one that writes; fails where it does so elsewhere. The folders
    that lead to our own may have to be made."""
    if call.name not in CHANGING_CALLS and not (
            call.name in OPENING_CALLS and WRITING.search(call.rest)):
        return False
    paths = paths_of(call, working_folder)
    if call.name in OPENING_CALLS and (opened := OPENED.search(call.rest)):
        paths = [decoded(opened.group(1))]
    if not paths:
        raise Failed(f"nobody can tell what changed: {call.name}{call.rest}")
    for path in paths:
        if call.name == "mkdir" and leads_to(path, own_folders):
            continue
        if not is_inside(path, own_folders) and not DEVICES.match(path):
            raise Failed(f"the program changed {path}: {call.name}{call.rest}")
    return True


def arguments_of(call):
    listed = re.search(r"\[(.*?)\](?:, |\))", call.rest)
    return [decoded(text) for text in re.findall(TEXT, listed.group(1))]


def judge_execution(call, brews, shown, judgement):
    program, *arguments = arguments_of(call)
    executed = decoded(re.search(TEXT, call.rest).group(1))
    if executed not in brews or program != executed:
        raise Failed(f"the program executed {executed} as {program}")
    command = shlex.join(["brew", *arguments])
    if command not in shown:
        raise Failed(f"executed without having been shown: {command}")
    judgement.commands.append(command)


def judge_connection(call, server, asked_at, judgement):
    if "AF_INET" not in call.rest:
        return
    if call.name == "socket":
        if "SOCK_STREAM" not in call.rest:
            raise Failed(f"not a socket of a fetch: socket{call.rest}")
        return
    address = re.search(r'sin6?_port=htons\((\d+)\).*?"([^"]*)"', call.rest)
    if not address or server != ":".join(reversed(address.groups())):
        raise Failed(f"a connection to somebody else than {server}: connect{call.rest}")
    if not any(asked < call.time for asked in asked_at):
        raise Failed(f"a connection before anybody asked for the catalog: connect{call.rest}")
    judgement.connections.append(call.time)


def judge(lines, working_folder, own_folders, brews=(), shown=(), server=None, asked_at=()):
    """Fails at the first call that breaks the promise; returns what the others did.

    `own_folders` may be written in. `brews` are what may be executed, each time with the words of
    one of the commands that were `shown`. `server` is who may be connected to, as address and port,
    from the first of the times `asked_at` on."""
    judgement = Judgement()
    own_folders = [os.path.realpath(folder) for folder in own_folders]
    is_first = True
    for is_child, call in calls_of_the_program(lines):
        if call.name in EXECUTING_CALLS:
            if is_child:
                judge_execution(call, brews, shown, judgement)
            elif not is_first:
                raise Failed(f"the program replaced itself: {call.name}{call.rest}")
            is_first = False
        elif call.name in OPAQUE_CALLS or is_child and call.name in FORKING_CALLS:
            raise Failed(f"from here on the trace proves nothing: {call.name}{call.rest}")
        elif call.name in CONNECTING_CALLS:
            judge_connection(call, server, asked_at, judgement)
        elif judge_change(call, working_folder, own_folders):
            judgement.writes.append(call)
    return judgement
