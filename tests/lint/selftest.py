"""Shows for each lint that it lets a good sample pass and stops a bad one."""

import json
import os
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

HERE = Path(__file__).resolve().parent
PROJECT = HERE.parent.parent
ARROWS = """platform :
app-values :
commands : platform app-values
screens/components :
screens/one : commands screens/components
screens/two : screens/components
app : screens/*
"""
README = """Owns: names.
Must never know: Homebrew.
Entry types: `Name`.
Threads: any.
May use: nothing.
"""


def qml(body):
    return "import QtQuick\n" + body + "\n"


class LintTest(unittest.TestCase):
    """Each test writes a small project of its own and runs one lint over it."""

    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.root = Path(folder.name).resolve()
        self.write("src/arrows.txt", "platform :\n")

    def write(self, name, text):
        path = self.root / name
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_text(text)
        return path

    def run_(self, *command, cwd=None):
        return subprocess.run([str(part) for part in command], capture_output=True, text=True,
                              cwd=cwd or self.root, check=False)

    def lint(self, name, *arguments):
        return self.run_(sys.executable, HERE / f"{name}.py", self.root, *arguments)

    def assertPasses(self, result):
        self.assertEqual(result.returncode, 0, result.stdout + result.stderr)

    def assertStops(self, result, *texts):
        self.assertNotEqual(result.returncode, 0, result.stdout + result.stderr)
        for text in texts:
            self.assertIn(text, result.stdout + result.stderr)

    def assertStopsEach(self, lint, file, samples):
        for sample in samples:
            with self.subTest(sample=sample):
                path = self.write(file, sample)
                self.assertStops(self.lint(lint), file + ":")
                path.unlink()

    def assertPassesEach(self, lint, file, samples):
        for sample in samples:
            with self.subTest(sample=sample):
                path = self.write(file, sample)
                self.assertPasses(self.lint(lint))
                path.unlink()


class Arrows(LintTest):
    def setUp(self):
        super().setUp()
        self.write("src/arrows.txt", ARROWS)
        # What uses each arrow of the table.
        self.write("src/commands/Used.h", '#include "platform/A.h"\n#include "app/AppSection.h"\n')
        self.write("src/screens/one/Used.h", '#include "commands/Used.h"\n')
        self.write("src/screens/one/Used.qml", "import Quillmere.Components\n")
        self.write("src/screens/two/Used.h", '#include "screens/components/A.h"\n')

    def testLetsAllowedIncludesPass(self):
        self.write("src/commands/A.h", '#include "platform/B.h"\n#include "app/AppSection.h"\n'
                   '#include "commands/C.h"\n// #include "screens/one/D.h"\n'
                   '#include <QtCore/QString>\n')
        self.write("src/commands/A.cpp", '#include "moc_A.cpp"\n')
        self.assertPasses(self.lint("arrows"))

    def testStopsAnIncludeAgainstTheTable(self):
        self.write("src/platform/A.h", '#pragma once\n#include "commands/B.h"\n')
        self.assertStops(self.lint("arrows"), "src/platform/A.h:2:", "may not use commands")

    def testStopsAnIncludeInAngleBracketsToo(self):
        self.write("src/platform/A.h", "#include <commands/B.h>\n")
        self.assertStops(self.lint("arrows"), "src/platform/A.h:1:")

    def testStopsAppFromBelow(self):
        self.write("src/commands/A.h", '#include "app/ContentViewModel.h"\n')
        self.assertStops(self.lint("arrows"), "src/commands/A.h:1:", "may not use app")

    def testStopsAnIncludeOfNoFolder(self):
        self.write("src/commands/A.h", '#include "B.h"\n')
        self.assertStops(self.lint("arrows"), '"B.h" names no folder')

    def testStopsALoopInTheTable(self):
        self.write("src/arrows.txt", "platform : commands\ncommands : platform\n")
        self.assertStops(self.lint("arrows"), "src/arrows.txt:1:", "loop")

    def testStopsAnArrowThatNothingNeeds(self):
        (self.root / "src/screens/one/Used.h").unlink()
        self.assertStops(self.lint("arrows"), "src/arrows.txt:5:", "screens/one -> commands")

    def testStopsAFolderThatIsNotInTheTable(self):
        self.write("src/helpers/A.h", "\n")
        self.assertStops(self.lint("arrows"), "helpers is no row")
        self.write("src/screens/A.qml", "import QtQuick\n")
        self.assertStops(self.lint("arrows"), "screens is no row")

    def testLetsAppUseEachScreen(self):
        self.write("src/app/A.qml", "import Quillmere.One\nimport Quillmere.Components\n")
        self.write("src/app/A.h", '#include "screens/two/B.h"\n')
        self.assertPasses(self.lint("arrows"))

    def testStopsOneScreenFromUsingAnother(self):
        self.write("src/screens/one/A.h", '#include "screens/two/B.h"\n')
        self.write("src/screens/two/A.qml", "import QtQuick\nimport Quillmere.One\n")
        self.assertStops(self.lint("arrows"),
                         "src/screens/one/A.h:1:", "screens/one may not use screens/two",
                         "src/screens/two/A.qml:2:", "screens/two may not import Quillmere.One")

    def testStopsComponentsFromUsingAScreen(self):
        self.write("src/screens/components/A.qml", "import Quillmere.One\n")
        self.write("src/screens/components/A.h", '#include "screens/one/B.h"\n')
        self.assertStops(self.lint("arrows"), "components/A.qml:1:", "components/A.h:1:")

    def testStopsAnImportOfNoModule(self):
        self.write("src/screens/one/A.qml", "import Quillmere.Screens\n")
        self.assertStops(self.lint("arrows"), "src/screens/one/A.qml:1:")

    def testStopsImportsByFolder(self):
        self.write("src/screens/one/A.qml", 'import "../components"\n')
        self.assertStops(self.lint("arrows"), "src/screens/one/A.qml:1:")


class Linking(LintTest):
    """Builds two screens of which one uses the other, as the project builds its own."""

    def build(self, arrows):
        self.write("src/arrows.txt", arrows)
        self.write("CMakeLists.txt", f"""
            cmake_minimum_required(VERSION 3.25)
            project(Sample LANGUAGES CXX)
            add_library(quillmere_compiler INTERFACE)
            include("{PROJECT}/cmake/QuillmereFolder.cmake")
            add_subdirectory(src)
            add_executable(two Main.cpp)
            target_link_libraries(two PRIVATE quillmere_screens_two)
            """)
        self.write("Main.cpp", '#include "screens/two/Two.h"\nint main() { return two(); }\n')
        for file in ("src/CMakeLists.txt", "src/screens/CMakeLists.txt"):
            self.write(file, (PROJECT / file).read_text())
        self.write("src/screens/one/CMakeLists.txt", "quillmere_folder(screens/one"
                   " HEADERS screens/one/One.h SOURCES screens/one/One.cpp)\n")
        self.write("src/screens/one/One.h", "int one();\n")
        self.write("src/screens/one/One.cpp", "int one() { return 1; }\n")
        self.write("src/screens/two/CMakeLists.txt", "quillmere_folder(screens/two"
                   " HEADERS screens/two/Two.h SOURCES screens/two/Two.cpp)\n")
        self.write("src/screens/two/Two.h", "int two();\n")
        self.write("src/screens/two/Two.cpp", '#include "screens/two/Two.h"\n'
                   '#include "screens/one/One.h"\nint two() { return one(); }\n')
        self.assertPasses(self.run_("cmake", "-S", ".", "-B", "build"))
        return self.run_("cmake", "--build", "build")

    def testLinksAnArrowOfTheTable(self):
        self.assertPasses(self.build("screens/one :\nscreens/two : screens/one\n"))

    def testDoesNotLinkOneScreenWithAnother(self):
        self.assertStops(self.build("screens/one :\nscreens/two :\n"), "undefined reference", "one()")


class Readmes(LintTest):
    def setUp(self):
        super().setUp()
        self.write("src/platform/Name.h", "struct Name {};\n")

    def testLetsATrueReadmePass(self):
        self.write("src/platform/README.md", README)
        self.assertPasses(self.lint("readmes"))

    def testStopsAMissingReadme(self):
        self.assertStops(self.lint("readmes"), "src/platform/README.md:1:", "missing")

    def testStopsANameThatTheCodeHasNot(self):
        self.write("src/platform/README.md", README.replace("`Name`", "`OldName`"))
        self.assertStops(self.lint("readmes"), "src/platform/README.md:3:", "OldName")

    def testStopsAFileThatIsNotThere(self):
        self.write("src/platform/README.md", README.replace("`Name`", "`platform/Old.h`"))
        self.assertStops(self.lint("readmes"), "no file platform/Old.h")

    def testStopsOtherArrowsThanTheTable(self):
        self.write("src/platform/README.md", README.replace("nothing", "commands"))
        self.assertStops(self.lint("readmes"), "src/platform/README.md:5:", "May use: nothing.")

    def testStopsAMissingHeading(self):
        self.write("src/platform/README.md", README.replace("Threads: any.\n", ""))
        self.assertStops(self.lint("readmes"), '"Threads: …" is missing')

    def testStopsALongReadme(self):
        self.write("src/platform/README.md", README + "more\n" * 16)
        self.assertStops(self.lint("readmes"), "src/platform/README.md:21:")


class Literals(LintTest):
    def testStopsLiteralsOfTheLook(self):
        self.assertStopsEach("literals", "src/screens/A.qml", map(qml, (
            'Rectangle { color: "#ff0000" }',
            'Rectangle { color: "red" }',
            'Rectangle { border.color: on ? "red" : Theme.line }',
            "Rectangle { color: Qt.rgba(1, 0, 0, 1) }",
            "TextInput { font.pixelSize: 12 }",
            "TextInput { font { pointSize: 9 } }",
            "TextInput { font.pixelSize: Theme.body + 2 }",
            'TextInput { font.family: "Arial" }',
            "Row { spacing: 8 }",
            "Rectangle { radius: 6 }",
            "Item {\n  anchors.margins: 12\n}",
        )))

    def testStopsTextsThatMayBecomeMarkup(self):
        self.assertStopsEach("literals", "src/screens/A.qml", map(qml, (
            "Text { text: model.description }",
            "Label { text: model.description; Item { textFormat: Text.PlainText } }",
            "Label { textFormat: Text.RichText }",
            "TextArea { textFormat: TextEdit.AutoText }",
        )))

    def testLetsTheThemesNamesPass(self):
        self.assertPassesEach("literals", "src/screens/A.qml", map(qml, (
            'Rectangle { color: "transparent"; radius: Theme.radius; border.color: Theme.line }',
            "TextInput { font.pixelSize: Theme.body; font.family: Theme.monospaced }",
            'Rectangle { color: Theme.fill("blue") }',
            'Rectangle { color: stream === "error" ? Theme.red : Theme.text }',
            "Row { spacing: 0 }",
            "Rectangle { radius: width / 2 } // was 12, \"#fff\"",
            'Text {\n  text: "a {"\n  textFormat: Text.PlainText\n}',
            "TextEdit { textFormat: TextEdit.PlainText }",
            "TextMetrics { font: Theme.body }",
        )))

    def testLetsTheThemeItselfHoldThem(self):
        self.assertPassesEach("literals", "src/screens/components/Theme.qml", (
            qml('QtObject { property color line: "#d0d0d0"; property int spacing: 8 }'),))


class Sizes(LintTest):
    def testKeepsTheLimits(self):
        for name, limit in (("A.h", 400), ("A.cpp", 400), ("A.qml", 150)):
            with self.subTest(name=name):
                path = self.write("src/screens/one/" + name, "\n" * (limit - 1))
                self.assertPasses(self.lint("sizes"))
                self.write("src/screens/one/" + name, "\n" * limit)
                self.assertStops(self.lint("sizes"), f"src/screens/one/{name}:{limit}:")
                path.unlink()

    def testKeepsFoldersSmall(self):
        for folder, limit in (("src/screens/one", 30), ("src/screens/components", 60),
                              ("src/platform", 60)):
            with self.subTest(folder=folder):
                for number in range(limit):
                    self.write(f"{folder}/A{number}.h", "")
                self.assertPasses(self.lint("sizes"))
                self.write(f"{folder}/B.h", "")
                self.assertStops(self.lint("sizes"), f"{folder}: {limit + 1} files")
                (self.root / folder / "B.h").unlink()

    def testKeepsScreensInFoldersOfTheirOwn(self):
        self.write("src/screens/README.md", "")
        self.write("src/screens/CMakeLists.txt", "")
        self.assertPasses(self.lint("sizes"))
        self.write("src/screens/A.qml", "")
        self.assertStops(self.lint("sizes"), "src/screens: 3 files")


class Forbidden(LintTest):
    def testStopsWhatSrcMustNotDo(self):
        self.assertStopsEach("forbidden", "src/screens/A.cpp", (
            "QCoreApplication::processEvents();\n",
            "QEventLoop loop;\n",
            "dialog.exec();\n",
            "QThread::msleep(5);\n",
            "std::this_thread::sleep_for(1ms);\n",
            "::usleep(5);\n",
            "process.waitForFinished();\n",
            "co_await a;\nprocess.waitForFinished(-1);\n",
            "QtConcurrent::blockingMap(a, b);\n",
            "const int a = co_await QtConcurrent::run(look, folder);\n",
            "co_await\n    QtConcurrent::run(look);\n",
            'std::system("ls");\n',
            'popen("ls", "r");\n',
            'start("/bin/sh", {});\n',
            "QProcess process;\n",
            'qputenv("A", "b");\n',
            'setenv("A", "b", 1);\n',
            "#define A 1\n",
            "QFile file(path);\n",
            "// TO" + "DO: later\n",
            "// FIX" + "ME\n",
        ))

    def testStopsLambdasWithCapturesInAnAwaitedExpression(self):
        self.assertStopsEach("forbidden", "src/screens/A.cpp", (
            "co_await later([a] { return a; });\n",
            "co_await later(1, [a = b()] { return a; });\n",
            "co_await later({1, 2},\n               [&] { return a; });\n",
            "co_await [this] { return later(); }();\n",
            "if (co_await later([] { return a[0]; }, [=] { return 1; })) {\n}\n",
        ))

    def testLetsOtherAwaitedExpressionsPass(self):
        self.assertPassesEach("forbidden", "src/screens/A.cpp", (
            "const auto future = QtConcurrent::run([a] { return a; });\nco_await future;\n",
            "co_await later([] { return 1; });\n",
            "co_await futures[i];\ncall([a] { return a; });\n",
            "if (co_await later()) {\n  call([a] { return a; });\n}\n",
            "call(co_await later(), [a] { return a; });\n",
            "// co_await QtConcurrent::run([a] {});\n",
        ))

    def testStopsTestsInAFileThatDoesNotSaySo(self):
        for sample in ("TEST(A, Does) {}\n", "TEST_F(A, Does) {}\n", "TEST_P(A, Does) {}\n"):
            with self.subTest(sample=sample):
                self.write("tests/screens/tst_a.cpp", sample)
                self.assertStops(self.lint("forbidden"), "tests/screens/tst_a.cpp:1:", "Tests.cpp")
        self.write("tests/screens/tst_a.cpp", "void test();\n")
        self.write("tests/screens/ATests.cpp", "TEST(A, Does) {}\n")
        self.assertPasses(self.lint("forbidden"))

    def testStopsWhatOneFolderMustNotKnow(self):
        self.assertStopsEach("forbidden", "src/commands/A.cpp",
                             ("auto now = QDateTime::currentDateTimeUtc();\n",
                              "std::chrono::steady_clock::now();\n"))
        self.assertStopsEach("forbidden", "src/prefix/A.cpp", ("file.open(QFile::WriteOnly);\n",))

    def testLetsTheRightPlacesDoIt(self):
        self.assertPassesEach("forbidden", "src/app/main.cpp", ("return application.exec();\n",))
        self.assertPassesEach("forbidden", "src/execution/A.cpp", (
            "QProcess process;\n",
            "co_await qCoro(process).waitForFinished(-1);\n",
            "// processEvents() would be wrong here\n",
            "const auto region = QLocale::system();\n",
        ))
        self.assertPassesEach("forbidden", "src/persistence/A.cpp", ("QSaveFile file(path);\n",))


class Words(LintTest):
    def testStopsReferencesThatNobodyCanFollow(self):
        self.assertStopsEach("words", "docs/a.md", (
            "see Pa" + "rt 6.1\n",
            "as the specif" + "ication says\n",
            "as spec" + "ified\n",
            "in /ro" + "ot/build\n",
        ))

    def testStopsThemInFileNames(self):
        self.write("docs/specif" + "ication.md", "\n")
        self.assertStops(self.lint("words"), "the file name")

    def testLetsTheRestPass(self):
        self.assertPassesEach("words", "docs/a.md", (
            "a part of it\n", "the desktop entry specif" + "ication\n",
            "/home/linuxbrew/.linuxbrew\n", "${top}/ro" + "ot/a\n"))


class Links(LintTest):
    def setUp(self):
        super().setUp()
        self.write("docs/guide.md", "# The guide\n\n## `brew` and you\n")
        self.write("docs/pictures/run.png", "")

    def testLetsTrueLinksPass(self):
        self.assertPassesEach("links", "README.md", (
            "[guide](docs/guide.md), ![a run](docs/pictures/run.png)\n",
            "[two\nlines](docs/guide.md#the-guide), [folder](docs/)\n",
            '[code](docs/guide.md#brew-and-you "with a title")\n',
            "# Here\n[above](#here)\n[guide]: docs/guide.md\n",
            "[elsewhere](https://brew.sh), <https://brew.sh>\n",
            "`[no](link.md)`\n```\n[no](link.md)\n```\n",
        ))
        self.assertPassesEach("links", "docs/site/a.html", (
            '<p id="b"><a href="#b">b</a> <a href="../guide.md">c</a> <a href="mailto:d@e">d</a>\n',
        ))

    def testStopsLinksThatLeadNowhere(self):
        self.assertStopsEach("links", "README.md", (
            "[guide](docs/old.md)\n",
            "![a run](docs/pictures/old.png)\n",
            "[guide]: docs/old.md\n",
            "[guide](docs/guide.md#old)\n",
            "[above](#old)\n",
            "[outside](../README.md)\n",
        ))
        self.assertStopsEach("links", "docs/site/a.html", (
            '<a href="b.html">b</a>\n',
            '<img src="../pictures/old.png" alt="">\n',
            '<a href="#b">b</a>\n',
        ))


class Format(LintTest):
    def check(self, text):
        self.write(".clang-format", (PROJECT / ".clang-format").read_text())
        self.write("src/platform/A.h", text)
        return self.run_("bash", HERE / "format.sh", self.root)

    def testLetsOurLayoutPass(self):
        self.assertPasses(self.check("int a();\n"))

    def testStopsAnother(self):
        self.assertStops(self.check("int  a( );\n"), "src/platform/A.h:1:")


class Tidy(LintTest):
    def check(self, text):
        self.write(".clang-tidy", (PROJECT / ".clang-tidy").read_text())
        file = self.write("src/platform/A.cpp", text)
        self.write("build/compile_commands.json", json.dumps([{
            "directory": str(self.root), "file": str(file),
            "command": f"clang++-19 -std=c++23 -c {file}"}]))
        return self.run_("bash", HERE / "tidy.sh", self.root, self.root / "build")

    def testLetsCleanCodePass(self):
        self.assertPasses(self.check("namespace {\nconst int answer = 42;\n}  // namespace\n"
                                     "int main() {\n  return answer;\n}\n"))

    def testStopsAMistake(self):
        self.assertStops(self.check("int* answer();\nint* answer() {\n  return 0;\n}\n"),
                         "src/platform/A.cpp:3:", "modernize-use-nullptr")

    def testStopsAForeignName(self):
        self.assertStops(self.check("int The_Answer();\nint The_Answer() {\n  return 1;\n}\n"),
                         "readability-identifier-naming")


class Headers(LintTest):
    def check(self, text):
        self.write("src/arrows.txt", "platform :\n")
        self.write("src/platform/A.h", text)
        self.write("src/platform/A.cpp", '#include <string>\n#include "platform/A.h"\n')
        self.write("CMakeLists.txt", f"""cmake_minimum_required(VERSION 3.25)
project(Sample LANGUAGES CXX)
add_library(quillmere_compiler INTERFACE)
include("{PROJECT}/cmake/QuillmereFolder.cmake")
quillmere_folder(platform HEADERS platform/A.h SOURCES platform/A.cpp)
set_target_properties(quillmere_platform PROPERTIES AUTOMOC OFF)
""")
        self.assertPasses(self.run_("cmake", "-G", "Ninja", "-B", "build",
                                    "-D", "CMAKE_CXX_COMPILER=clang++-19"))
        return self.run_("cmake", "--build", "build", "--target",
                         "all_verify_interface_header_sets")

    def testLetsAWholeHeaderPass(self):
        self.assertPasses(self.check("#include <string>\nstd::string a();\n"))

    def testStopsOneThatLeansOnItsIncluder(self):
        self.assertStops(self.check("std::string a();\n"), "src/platform/A.h:1:")


class Qml(LintTest):
    def check(self, text):
        self.write(".qmllint.ini", (PROJECT / ".qmllint.ini").read_text())
        self.write("src/screens/A.qml", text)
        return self.run_(os.environ["QT_QMLLINT"], "src/screens/A.qml")

    def testLetsCleanQmlPass(self):
        self.assertPasses(self.check(qml("Item { width: 1 }")))

    def testStopsEachKindOfCarelessness(self):
        for text in (qml("Item { width: nowhere }"), qml("import QtQuick.Layouts\nItem {}"),
                     qml("Item { Keys.enabled: true; Item { id: a; width: parent.nothing } }")):
            with self.subTest(text=text):
                self.assertStops(self.check(text), "A.qml")

    def testStopsAFileInNoModule(self):
        self.write("src/screens/A.qml", qml("Item {}"))
        ninja = self.write("build/build.ninja", "")
        self.assertStops(self.lint("qmlmodules", ninja.parent), "src/screens/A.qml:1:")
        ninja.write_text(str(self.root / "src/screens/A.qml"))
        self.assertPasses(self.lint("qmlmodules", ninja.parent))


if __name__ == "__main__":
    unittest.main()
