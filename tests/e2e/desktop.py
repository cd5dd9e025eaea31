"""Drives the real window as a person does who works with a screen reader and a keyboard.

Runs a story on a virtual display of its own with a session bus and the accessibility bus:
    /usr/bin/python3 desktop.py STORY.py ARGUMENTS...
A story imports this module and asks for what it needs by accessible role and name.
"""

import os
import re
import subprocess
import sys
import tempfile
import threading
import time

PATIENCE = 30.0
# What Qt says when one of our files or calls is wrong; nobody sees it but who looks for it.
COMPLAINT = re.compile(r"qrc:/|TypeError|ReferenceError|Binding loop|QML |QObject::|QQuick|Could not")

CHOOSER = "Select your Homebrew prefix. For Apple Silicon Macs, this is usually /opt/homebrew."

# Newer versions of the accessibility bus call some roles otherwise.
OLDER_ROLE_NAMES = {"button": "push button"}


class Failed(AssertionError):
    pass


def wait_for(what, question):
    """The first true answer to `question`, asked until patience ends."""
    end = time.monotonic() + PATIENCE
    while time.monotonic() < end:
        try:
            answer = question()
        except Exception as error:  # the tree changes while it is being read
            if type(error).__name__ not in ("Error", "GError", "LookupError", "RuntimeError"):
                raise
            answer = None
        if answer:
            return answer
        time.sleep(0.05)
    raise Failed(f"waited {PATIENCE:.0f} s in vain for {what}")


def role_of(node):
    name = node.getRoleName()
    return OLDER_ROLE_NAMES.get(name, name)


class Listener:
    """Passes on what a program prints to its standard error, and keeps it."""

    def __init__(self, pipe):
        self._lines = []
        self._thread = threading.Thread(target=self._listen, args=[pipe], daemon=True)
        self._thread.start()

    def _listen(self, pipe):
        for line in pipe:
            self._lines.append(line.rstrip("\n"))
            sys.stderr.write(line)

    def lines(self):
        """All that was printed, when the program has ended."""
        self._thread.join(PATIENCE)
        return self._lines


class Window:
    """One start of the program, with a home of its own."""

    def __init__(self, program, home, wrapper=(), variables=None):
        import pyatspi

        self._atspi = pyatspi
        environment = dict(
            os.environ,
            HOME=home,
            XDG_CACHE_HOME=f"{home}/.cache",
            XDG_CONFIG_HOME=f"{home}/.config",
            XDG_DATA_HOME=f"{home}/.local/share",
            XDG_RUNTIME_DIR=home,
            QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1",
            QT_QPA_PLATFORM="xcb",
            **{"QT_QUICK_BACKEND": "software", **(variables or {})},
        )
        self.started = time.monotonic()
        self.process = subprocess.Popen(
            [*wrapper, program], env=environment, stdin=subprocess.PIPE, stderr=subprocess.PIPE,
            text=True,
        )
        self._complaints = Listener(self.process.stderr)
        wait_for("the window", lambda: self.find("frame", "Quillmere"))
        self.give_keyboard_to("Quillmere")

    def give_keyboard_to(self, title):
        """There is no window manager to hand it out."""
        subprocess.run(
            ["xdotool", "search", "--sync", "--onlyvisible", "--name", f"^{title}$",
             "windowfocus", "--sync"],
            check=True, stdout=subprocess.DEVNULL,
        )

    def _application(self):
        desktop = self._atspi.Registry.getDesktop(0)
        started = [each for each in desktop if each and each.name == "Quillmere"]
        own = [each for each in started if each.get_process_id() == self.process.pid]
        # One that something else started for us has another number.
        return next(iter(own or started), None)

    def everything(self, inside=None):
        """All that is showing, in reading order; only what is `inside` a node if there is one."""

        def visit(node):
            if node is None:
                return
            states = node.getState()
            if role_of(node) != "application" and not states.contains(
                self._atspi.STATE_SHOWING
            ):
                return
            yield node
            for child in node:
                yield from visit(child)

        root = inside or self._application()
        return visit(root) if root else iter(())

    def find_all(self, role, name=None, contains=None, inside=None):
        return [
            node
            for node in self.everything(inside)
            if role_of(node) == role
            and (name is None or node.name == name)
            and (contains is None or contains in node.name)
        ]

    def find(self, role, name=None, contains=None, inside=None):
        found = self.find_all(role, name, contains, inside)
        return found[0] if found else None

    def is_selected(self, role, name):
        return self.get(role, name).getState().contains(self._atspi.STATE_SELECTED)

    def focused(self):
        """The roles and names of what has the keyboard, from the outside in."""
        return [
            (role_of(node), node.name)
            for node in self.everything()
            if node.getState().contains(self._atspi.STATE_FOCUSED)
        ]

    def has_focus(self, role, name):
        wait_for(f"the focus on {role} {name!r}", lambda: (role, name) in self.focused())

    def get(self, role, name=None, contains=None, inside=None):
        return wait_for(
            f"{role} {name or contains!r}", lambda: self.find(role, name, contains, inside)
        )

    def gone(self, role, name=None, contains=None, inside=None):
        wait_for(
            f"{role} {name or contains!r} to go",
            lambda: not self.find(role, name, contains, inside),
        )

    def is_on(self, button):
        """Whether assistive technology takes the button for one that can be pressed."""
        return self.get("push button", button).description != "Not available now."

    def says(self, announcement):
        """What assistive technology is told without being asked."""
        self.get("notification", announcement)

    def press(self, role, name, inside=None):
        """Uses what a screen reader would use: the press action of the control of this name."""
        node = self.get(role, name, inside=inside)
        actions = node.queryAction()
        names = [actions.getName(i) for i in range(actions.nActions)]
        if "Press" not in names:
            raise Failed(f"{role} {name!r} cannot be pressed: {names}")
        actions.doAction(names.index("Press"))

    def click(self, role, name):
        """Uses the pointer, for controls that are not ours and offer no press action."""
        box = self.get(role, name).queryComponent().getExtents(self._atspi.DESKTOP_COORDS)
        subprocess.run(
            ["xdotool", "mousemove", str(box.x + box.width // 2), str(box.y + box.height // 2),
             "click", "1"],
            check=True,
        )

    def text_of(self, role, name=None, contains=None):
        node = self.get(role, name, contains)
        return node.queryText().getText(0, -1)

    def key(self, combination):
        subprocess.run(["xdotool", "key", "--clearmodifiers", combination], check=True)

    def type(self, text):
        subprocess.run(["xdotool", "type", "--delay", "5", text], check=True)

    def tab_to(self, role, name=None, contains=None):
        """Tabs on until the control has the keyboard, at most once around."""
        self._move_to("Tab", 25, role, name, contains)

    def move_down_to(self, role, name=None, contains=None):
        """The same with the key that leads down a list."""
        self._move_to("Down", 250, role, name, contains)

    def _move_to(self, key, times, role, name, contains):
        for _ in range(times):
            before = self.focused()
            if any(one[0] == role and (one[1] == name or contains and contains in one[1])
                   for one in before):
                return
            self.key(key)
            wait_for(f"{key} to lead on from {before}", lambda: self.focused() != before)
        raise Failed(f"{key} does not lead to {role} {name or contains!r}")

    def clipboard(self):
        """What was copied last; empty while nobody has copied anything."""
        return subprocess.run(
            ["xclip", "-selection", "clipboard", "-o"],
            check=False, capture_output=True, text=True, timeout=PATIENCE,
        ).stdout

    def picture(self, file):
        subprocess.run(["import", "-window", "root", file], check=True)

    def reads(self, *landmarks):
        """Holds the order in which a screen reader meets what is showing: the landmarks, each a
        role and a name, and nothing that lies above and not beside what was read before it."""
        nodes = list(self.everything())
        met = iter((role_of(node), node.name) for node in nodes)
        for landmark in landmarks:
            expect(landmark in met, f"{landmark} is not read, or too early, in\n{self.tree()}")
        before = None
        for node in nodes:
            if role_of(node) not in ("heading", "label", "push button", "list item", "text"):
                continue
            box = node.queryComponent().getExtents(self._atspi.DESKTOP_COORDS)
            if before and box.y + box.height <= before[0].y and box.x < before[0].x + before[0].width:
                raise Failed(f"{node.name!r} lies above {before[1]!r} and is read after it")
            before = (box, node.name)

    def tree(self):
        """The tree as text, for people who look into a failure."""
        return "\n".join(
            f"{role_of(node)} | {node.name!r} | {node.description!r}"
            for node in self.everything()
        )

    def quit(self):
        self.key("ctrl+q")
        self.has_ended()

    def has_ended(self):
        """Waits for the end of the program, which must be a good one."""
        # A sanitizer that found something says so here, like any crash on the way out.
        status = self.process.wait(PATIENCE)
        expect(status == 0, f"the program ended with {status}")
        complaints = [line for line in self._complaints.lines() if COMPLAINT.search(line)]
        expect(not complaints, f"the program complained: {complaints}")


def _run_on_a_desktop(story):
    reading, writing = os.pipe()
    # Without -noreset the server starts anew whenever its last client goes, and whoever connects
    # meanwhile is turned away.
    server = subprocess.Popen(
        ["Xvfb", "-displayfd", str(writing), "-noreset", "-screen", "0", "1700x1100x24",
         "-nolisten", "tcp"],
        pass_fds=[writing], stderr=subprocess.DEVNULL,
    )
    os.close(writing)
    try:
        display = os.read(reading, 16).decode().strip()
        environment = dict(os.environ, DISPLAY=f":{display}", NO_AT_BRIDGE="0")
        environment.pop("WAYLAND_DISPLAY", None)
        environment.pop("DBUS_SESSION_BUS_ADDRESS", None)
        script = (
            "/usr/libexec/at-spi-bus-launcher --launch-immediately >/dev/null 2>&1 &\n"
            'exec "$0" "$@"'
        )
        return subprocess.run(
            ["dbus-run-session", "--", "bash", "-c", script, sys.executable, *story],
            env=environment,
        ).returncode
    finally:
        server.terminate()
        server.wait()


def expect(condition, what):
    if not condition:
        raise Failed(what)


def remember_prefix(home, prefix):
    """The prefix as an earlier start of the program would have remembered it."""
    os.makedirs(f"{home}/.config/Quillmere")
    with open(f"{home}/.config/Quillmere/Quillmere.conf", "w", encoding="utf-8") as settings:
        settings.write("[General]\nhasCompletedOnboarding=true\n"
                       f"selectedHomebrewPrefixPath={prefix}\n")


def tell(story):
    """Runs a story with the arguments of its program; says in which one a step failed."""
    try:
        story(*sys.argv[1:])
    except Failed as failure:
        name = os.path.basename(sys.argv[0]).removesuffix(".py")
        sys.exit(f"{name}: {failure}")


def take_first_steps(window):
    """As a user does who wants nothing but the catalog."""
    window.get("dialog", "Welcome to Quillmere")
    window.press("push button", "Continue Catalog-Only")
    window.gone("dialog", "Welcome to Quillmere")


def come_to_chooser(window):
    """Waits for the folder chooser that Qt draws, as the desktop has none of its own here."""
    window.get("push button", "Select Prefix")
    # From Qt 6.8 on it is a window of its own; before, a popup in ours.
    if window.find("frame", CHOOSER):
        window.give_keyboard_to(CHOOSER)


def leave_chooser(window):
    window.gone("push button", "Select Prefix")
    window.give_keyboard_to("Quillmere")


def copy_services_list(window):
    """The shortest way to a record in the history."""
    window.key("ctrl+6")
    copy_command(window, "Preview services list command")


def copy_command(window, preview):
    window.press("push button", preview)
    window.has_focus("push button", "Copy Command")
    window.key("Return")
    window.says("Command copied")
    window.key("Escape")
    window.gone("dialog", "Command Preview")


def is_alive(pid):
    """Whether the process is there, and not only waits to be reaped."""
    try:
        with open(f"/proc/{pid}/stat", encoding="utf-8") as stat:
            return stat.read().rsplit(")", 1)[1].split()[0] != "Z"
    except (FileNotFoundError, ProcessLookupError):
        return False


def temporary_home():
    return tempfile.TemporaryDirectory(prefix="quillmere-e2e-")


if __name__ == "__main__":
    sys.exit(_run_on_a_desktop(sys.argv[1:]))
