"""Shows that the judge lets an innocent trace pass and stops each guilty one."""

import os
import tempfile
import unittest

import judge
from desktop import Failed

CWD = "AT_FDCWD</work>"


class JudgeTest(unittest.TestCase):
    """Each test tells of a few calls of a program whose home is a real folder."""

    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.home = os.path.realpath(folder.name)
        self.own = f"{self.home}/.config/Quillmere"
        self.prefix = f"{self.home}/prefix"
        self.brew = f"{self.prefix}/bin/brew"
        os.makedirs(self.own)
        os.makedirs(f"{self.prefix}/bin")
        self.clock = 100.0

    def line(self, call, pid=10):
        self.clock += 1
        return f"{pid} {self.clock:.6f} {call}\n"

    def judge(self, *calls, **options):
        """Judges calls of the first thread, each a text, or of another process, with its number."""
        start = 'execve("/usr/bin/quillmere", ["quillmere"], 0x7ff /* 20 vars */) = 0'
        lines = [self.line(start)] + [
            self.line(*reversed(call)) if isinstance(call, tuple) else self.line(call)
            for call in calls
        ]
        return judge.judge(lines, "/work", [self.own], brews={self.brew},
                           **{"shown": {"brew info wget"}, **options})

    def assertStops(self, text, *calls, **options):
        with self.assertRaises(Failed) as caught:
            self.judge(*calls, **options)
        self.assertIn(text, str(caught.exception))

    def run_of(self, arguments, program=None):
        program = program or self.brew
        words = ", ".join(f'"{word}"' for word in [program, *arguments])
        return [
            "clone(child_stack=0x7f, flags=CLONE_VM|CLONE_VFORK|SIGCHLD <unfinished ...>",
            (30, f'execve("{program}", [{words}], 0x7f /* 9 vars */) = 0'),
            "<... clone resumed>) = 30",
        ]


class AnInnocentTrace(JudgeTest):
    def test_reads_everywhere_and_writes_in_its_own_folders(self):
        judgement = self.judge(
            f'openat({CWD}, "{self.prefix}/Cellar", O_RDONLY|O_DIRECTORY) = 3<{self.prefix}/Cellar>',
            f'openat({CWD}, "{self.own}/a", O_RDWR|O_CREAT, 0666) = 4<{self.own}/a>',
            f'openat({CWD}, "{self.own}", O_RDWR|O_TMPFILE, 0666) = 5<{self.own}/#12>(deleted)',
            f'rename("{self.own}/a", "{self.own}/b") = 0',
            f'mkdir("{self.home}/.config", 0777) = -1 EEXIST (File exists)',
            f'openat({CWD}, "/dev/null", O_WRONLY) = 6</dev/null>',
            "fchmod(4</memfd:x>(deleted), 0600) = 0",
        )
        self.assertEqual(len(judgement.writes), 6)

    def test_runs_what_was_shown(self):
        self.assertEqual(self.judge(*self.run_of(["info", "wget"])).commands, ["brew info wget"])

    def test_is_not_what_brew_does_itself(self):
        self.judge(*self.run_of(["info", "wget"]),
                   (30, f'unlink("{self.brew}") = 0'),
                   (30, "fork() = 31"),
                   (31, 'execve("/usr/bin/curl", ["curl"], 0x7f /* 9 vars */) = 0'),
                   (31, "socket(AF_INET, SOCK_DGRAM, IPPROTO_UDP) = 3<socket:[1]>"))

    def test_fetches_from_the_server_when_it_was_asked_to(self):
        judgement = self.judge(
            "socket(AF_INET, SOCK_STREAM|SOCK_CLOEXEC, IPPROTO_TCP) = 9<socket:[1]>",
            "connect(9<socket:[1]>, {sa_family=AF_INET, sin_port=htons(80), "
            'sin_addr=inet_addr("127.0.0.1")}, 16) = -1 EINPROGRESS (Operation now in progress)',
            'connect(8<socket:[2]>, {sa_family=AF_UNIX, sun_path="/tmp/.X11-unix/X0"}, 110) = 0',
            server="127.0.0.1:80", asked_at=[101.5])
        self.assertEqual(len(judgement.connections), 1)


class AGuiltyTrace(JudgeTest):
    def test_changes_the_prefix(self):
        for call in (
            f'openat({CWD}, "{self.prefix}/x", O_WRONLY|O_CREAT, 0666) = 3<{self.prefix}/x>',
            f'openat({CWD}, "{self.prefix}/x", O_RDWR) = -1 ENOENT (No such file or directory)',
            f'open("{self.prefix}/x", O_RDONLY|O_TRUNC) = 3<{self.prefix}/x>',
            f'openat({CWD}, "{self.prefix}", O_RDWR|O_TMPFILE, 0600) = 3<{self.prefix}/#1>(deleted)',
            f'creat("{self.prefix}/x", 0666) = 3<{self.prefix}/x>',
            f'mkdir("{self.prefix}", 0777) = -1 EEXIST (File exists)',
            f'unlink("{self.prefix}/x") = -1 EACCES (Permission denied)',
            f'rename("{self.prefix}/x", "{self.own}/x") = 0',
            f'rename("{self.own}/x", "{self.prefix}/x") = 0',
            f'renameat2({CWD}, "{self.own}/x", {CWD}, "{self.prefix}/x", RENAME_EXCHANGE) = 0',
            f'link("{self.prefix}/x", "{self.own}/x") = 0',
            f'symlink("{self.own}/x", "{self.prefix}/x") = 0',
            f'chmod("{self.prefix}/bin", 0777) = 0',
            f"fchmod(3<{self.prefix}/bin>, 0777) = 0",
            f"fchown(3<{self.prefix}/bin>, 0, 0) = 0",
            f'truncate("{self.prefix}/x", 0) = 0',
            f'utimensat({CWD}, "{self.prefix}/x", NULL, 0) = 0',
            f"utimensat(3<{self.prefix}/x>, NULL, NULL, 0) = 0",
            f'setxattr("{self.prefix}/x", "user.a", "1", 1, 0) = 0',
            f'unlinkat(3<{self.prefix}>, "x", 0) = 0',
            f'mkdirat(3<{self.prefix}/bin>, "x", 0777) = 0',
            f'openat(3<{self.prefix}/bin>, "x", O_WRONLY) = -1 EACCES (Permission denied)',
        ):
            with self.subTest(call=call):
                self.assertStops("the program changed", call)

    def test_changes_it_by_a_detour(self):
        os.symlink(self.prefix, f"{self.own}/link")
        for call in (
            f'unlink("{self.own}/../../prefix/x") = 0',
            f'unlink("{self.own}/link/x") = 0',
            f'unlinkat(3<{self.own}>, "../../prefix/x", 0) = 0',
            f'openat({CWD}, "{self.own}/link/x", O_WRONLY) = -1 ENOENT (No such file or directory)',
            f'openat({CWD}, "{self.own}/gone/x", O_WRONLY|O_CREAT, 0666) = 3<{self.prefix}/x>',
            f'chmod("{self.own}/link", 0777) = 0',
            'unlink("a-name-in-the-working-folder") = 0',
        ):
            with self.subTest(call=call):
                self.assertStops("the program changed", call)

    def test_may_take_away_a_link_of_its_own(self):
        os.symlink(self.prefix, f"{self.own}/link")
        self.judge(f'unlink("{self.own}/link") = 0')

    def test_changes_it_in_a_thread_or_in_a_call_that_was_interrupted(self):
        change = f'unlink("{self.prefix}/x")'
        self.assertStops("the program changed",
                         "clone3({flags=CLONE_VM|CLONE_THREAD, exit_signal=0}, 88) = 20",
                         (20, f"{change} = 0"))
        self.assertStops("the program changed", f"{change.removesuffix(')')} <unfinished ...>",
                         (11, "getpid() = 11"), "<... unlink resumed>) = 0")
        self.assertStops("the program changed", f"{change.removesuffix(')')} <unfinished ...>")

    def test_changes_it_in_a_child_before_that_executes_anything(self):
        begin, *rest = self.run_of(["info", "wget"])
        self.assertStops("the program changed", begin, (30, f'unlink("{self.prefix}/x") = 0'), *rest)

    def test_changes_a_name_that_has_to_be_escaped(self):
        self.assertStops("b\"\u00e4", f'unlink("{self.prefix}/b\\"\\303\\244") = 0')

    def test_executes_something_else(self):
        self.assertStops("executed /usr/bin/brew",
                         *self.run_of(["info", "wget"], "/usr/bin/brew"))
        self.assertStops("executed /bin/sh", *self.run_of(["-c", "brew info wget"], "/bin/sh"))
        self.assertStops("replaced itself",
                         f'execve("{self.brew}", ["brew"], 0x7f /* 9 vars */) = 0')

    def test_executes_what_was_not_shown(self):
        for arguments in (["info"], ["info", "wget", "curl"], ["info wget"], ["uninstall", "wget"]):
            with self.subTest(arguments=arguments):
                self.assertStops("without having been shown", *self.run_of(arguments))

    def test_connects_to_somebody_else(self):
        connect = ("connect(9<socket:[1]>, {{sa_family=AF_INET, sin_port=htons({}), "
                   'sin_addr=inet_addr("{}")}}, 16) = 0')
        asked = {"server": "127.0.0.1:80", "asked_at": [1]}
        self.judge(connect.format(80, "127.0.0.1"), **asked)
        self.assertStops("somebody else", connect.format(443, "127.0.0.1"), **asked)
        self.assertStops("somebody else", connect.format(80, "192.0.2.1"), **asked)
        self.assertStops("somebody else",
                         "connect(9<socket:[1]>, {sa_family=AF_INET6, sin6_port=htons(80), "
                         "sin6_flowinfo=htonl(0), inet_pton(AF_INET6, \"2001:db8::1\", &sin6_addr), "
                         "sin6_scope_id=0}, 28) = 0", **asked)
        self.assertStops("before anybody asked", connect.format(80, "127.0.0.1"),
                         server="127.0.0.1:80")
        self.assertStops("before anybody asked", connect.format(80, "127.0.0.1"),
                         server="127.0.0.1:80", asked_at=[900])
        self.assertStops("not a socket of a fetch",
                         "socket(AF_INET, SOCK_DGRAM|SOCK_CLOEXEC, IPPROTO_IP) = 9<socket:[1]>",
                         **asked)

    def test_hides_from_the_trace(self):
        self.assertStops("proves nothing", 'chdir("/tmp") = 0')
        self.assertStops("proves nothing", "io_uring_setup(8, 0x7f) = 3")
        begin, *rest = self.run_of(["info", "wget"])
        self.assertStops("proves nothing", begin, (30, "fork() = 31"), *rest)


if __name__ == "__main__":
    unittest.main()
