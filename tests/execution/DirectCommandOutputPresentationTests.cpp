#include <QtCore/QSet>

#include <gtest/gtest.h>

#include "execution/DirectCommandOutputPresentation.h"

namespace quillmere {
namespace {

using namespace Qt::StringLiterals;
using Operation = BrewCommandOperation;
using Tint = DirectCommandOutputPresentation::Tint;
using Row = DirectCommandOutputPresentation::Row;

const DirectExecutionSessionStatus completed = SessionCompleted{0};
const DirectExecutionSessionStatus failed = SessionFailed{u"Command exited with status 1."_s};

DirectCommandOutputPresentation present(Operation operation, const QString& text,
                                        const DirectExecutionSessionStatus& status = completed) {
  BrewCommand command;
  command.operation = operation;
  return makePresentation(command, text, status);
}

QStringList titles(const DirectCommandOutputPresentation& presentation) {
  QStringList titles;
  for (const Row& row : presentation.rows) {
    titles += row.title;
  }
  return titles;
}

/// "line 1" to "line n".
QString numberedLines(int count, const QString& word = u"line"_s) {
  QStringList lines;
  for (int i = 1; i <= count; ++i) {
    lines += word + u' ' + QString::number(i);
  }
  return lines.join(u'\n');
}

void expectRows(const DirectCommandOutputPresentation& presentation, const QStringList& expected,
                const QString& symbolName, Tint tint) {
  EXPECT_EQ(titles(presentation), expected);
  for (const Row& row : presentation.rows) {
    EXPECT_EQ(row.detail, std::nullopt);
    EXPECT_EQ(row.symbolName, symbolName);
    EXPECT_EQ(row.tint, tint);
  }
}

struct HeadingRow {
  Operation operation;
  const char* title;
  const char* symbolName;
  const char* emptyTextWhenCompleted;
};

constexpr const char* noOutput = "Homebrew completed without additional output.";

class PresentationHeading : public testing::TestWithParam<HeadingRow> {};

TEST_P(PresentationHeading, FollowsTheOperation) {
  const auto presentation = present(GetParam().operation, u" \n\t\r\n"_s);
  EXPECT_EQ(presentation.title.toStdString(), GetParam().title);
  EXPECT_EQ(presentation.symbolName.toStdString(), GetParam().symbolName);
  EXPECT_EQ(presentation.emptyText.toStdString(), GetParam().emptyTextWhenCompleted);
  EXPECT_TRUE(presentation.rows.empty());
}

INSTANTIATE_TEST_SUITE_P(
    Operations, PresentationHeading,
    testing::Values(HeadingRow{Operation::info, "Package Information", "info.circle", noOutput},
                    HeadingRow{Operation::install, "Install Result", "checkmark.seal", noOutput},
                    HeadingRow{Operation::uninstall, "Uninstall Result", "checkmark.seal",
                               noOutput},
                    HeadingRow{Operation::update, "Update Result", "checkmark.seal", noOutput},
                    HeadingRow{Operation::upgrade, "Upgrade Result", "checkmark.seal", noOutput},
                    HeadingRow{Operation::outdated, "Outdated Packages", "list.bullet",
                               "Homebrew reported no outdated packages."},
                    HeadingRow{Operation::cleanup, "Cleanup Result", "checkmark.seal", noOutput},
                    HeadingRow{Operation::dependencies, "Dependencies", "list.bullet",
                               "Homebrew reported no dependencies."},
                    HeadingRow{Operation::reverseDependencies, "Used By", "list.bullet",
                               "Homebrew reported no formulae using this package."},
                    HeadingRow{Operation::servicesList, "Services", "list.bullet",
                               "Homebrew returned no services."},
                    HeadingRow{Operation::doctor, "Doctor Report", "stethoscope",
                               "Homebrew did not print diagnostics."}));

struct EmptyTextRow {
  DirectExecutionSessionStatus status;
  const char* text;
};

class PresentationEmptyText : public testing::TestWithParam<EmptyTextRow> {};

TEST_P(PresentationEmptyText, FollowsTheStatusForEveryOperation) {
  for (const auto& operation : rawValues<Operation>) {
    EXPECT_EQ(present(operation.value, {}, GetParam().status).emptyText.toStdString(),
              GetParam().text);
  }
}

constexpr const char* whileRunning =
    "Quillmere will summarize captured output here while the command runs. Raw stdout and stderr "
    "stay collapsed below.";

INSTANTIATE_TEST_SUITE_P(
    Statuses, PresentationEmptyText,
    testing::Values(EmptyTextRow{SessionReady(), whileRunning},
                    EmptyTextRow{SessionRunning(), whileRunning},
                    EmptyTextRow{failed,
                                 "No captured output was available for this failed command. Expand "
                                 "command-line output for diagnostics if present."},
                    EmptyTextRow{SessionCancelled(),
                                 "The command was cancelled before Quillmere captured output."}));

TEST(DirectCommandOutputPresentation, ShowsTheFirstSixLinesOfInfo) {
  expectRows(
      present(Operation::info, u"==> wget: stable 1.25.0\n\n  GNU tool \n"_s + numberedLines(9)),
      {u"wget: stable 1.25.0"_s, u"GNU tool"_s, u"line 1"_s, u"line 2"_s, u"line 3"_s, u"line 4"_s},
      u"info.circle"_s, Tint::blue);
}

TEST(DirectCommandOutputPresentation, ShowsInfoOfAFailedRunTheSameWay) {
  expectRows(present(Operation::info, u"Error: no"_s, failed), {u"Error: no"_s}, u"info.circle"_s,
             Tint::blue);
}

TEST(DirectCommandOutputPresentation, ShowsTheFirstFiveLinesOfDoctor) {
  const QStringList expected{u"line 1"_s, u"line 2"_s, u"line 3"_s, u"line 4"_s, u"line 5"_s};
  expectRows(present(Operation::doctor, numberedLines(9)), expected, u"checkmark.circle"_s,
             Tint::blue);
  expectRows(present(Operation::doctor, numberedLines(9), failed), expected,
             u"exclamationmark.triangle"_s, Tint::red);
}

TEST(DirectCommandOutputPresentation, RemovesEveryHeadingMarker) {
  EXPECT_EQ(titles(present(Operation::info, u"==> a ==> b\n==>c\n==> ==>"_s)),
            (QStringList{u"a b"_s, u"==>c"_s, u"==>"_s}));
}

struct CountingRow {
  Operation operation;
  int lineCount;
  const char* title;
  std::string detail;
};

class PresentationCount : public testing::TestWithParam<CountingRow> {};

TEST_P(PresentationCount, IsASingleRow) {
  const auto rows = present(GetParam().operation, numberedLines(GetParam().lineCount)).rows;
  ASSERT_EQ(rows.size(), 1U);
  EXPECT_EQ(rows[0].title.toStdString(), GetParam().title);
  EXPECT_EQ(rows[0].detail.value().toStdString(), GetParam().detail);
  EXPECT_EQ(rows[0].symbolName, u"list.bullet.circle"_s);
  EXPECT_EQ(rows[0].tint, Tint::blue);
}

const std::string eightLines = "line 1, line 2, line 3, line 4, line 5, line 6, line 7, line 8";

INSTANTIATE_TEST_SUITE_P(
    Counts, PresentationCount,
    testing::Values(
        CountingRow{Operation::outdated, 1, "Found 1 package", "line 1"},
        CountingRow{Operation::outdated, 3, "Found 3 packages", "line 1, line 2, line 3"},
        CountingRow{Operation::outdated, 8, "Found 8 packages", eightLines},
        CountingRow{Operation::outdated, 9, "Found 9 packages", eightLines + ", and 1 more"},
        CountingRow{Operation::outdated, 1234, "Found 1234 packages",
                    eightLines + ", and 1226 more"},
        CountingRow{Operation::dependencies, 1, "Found 1 dependency", "line 1"},
        CountingRow{Operation::dependencies, 2, "Found 2 dependencies", "line 1, line 2"},
        CountingRow{Operation::reverseDependencies, 1, "Found 1 dependent formula", "line 1"},
        CountingRow{Operation::reverseDependencies, 2, "Found 2 dependent formulae",
                    "line 1, line 2"}));

TEST(DirectCommandOutputPresentation, ListsLinesAsTheyAre) {
  EXPECT_EQ(present(Operation::outdated, u"==> wget\n  zlib "_s).rows.front().detail,
            u"==> wget, zlib"_s);
}

TEST(DirectCommandOutputPresentation, CountsTheSameInAFailedRun) {
  const auto rows = present(Operation::outdated, u"wget"_s, failed).rows;
  EXPECT_EQ(rows.front().tint, Tint::blue);
  EXPECT_EQ(rows.front().symbolName, u"list.bullet.circle"_s);
}

TEST(DirectCommandOutputPresentation, SumsUpServices) {
  const auto rows = present(Operation::servicesList,
                            u"Name    Status  User File\nredis   started anna\n"
                            "unbound STOPPED\nnginx   none\n"_s)
                        .rows;
  ASSERT_EQ(rows.size(), 1U);
  EXPECT_EQ(rows[0].title, u"Found 3 services"_s);
  EXPECT_EQ(rows[0].detail,
            u"1 started, 1 stopped\nredis   started anna\nunbound STOPPED\nnginx   none"_s);
  EXPECT_EQ(rows[0].symbolName, u"switch.2"_s);
  EXPECT_EQ(rows[0].tint, Tint::blue);
}

TEST(DirectCommandOutputPresentation, KeepsThePluralForOneService) {
  EXPECT_EQ(titles(present(Operation::servicesList, u"redis started"_s)),
            (QStringList{u"Found 1 services"_s}));
}

TEST(DirectCommandOutputPresentation, AddsNothingBehindTheCountsOfNoServices) {
  const auto rows = present(Operation::servicesList, u"Name Status User File\n"_s).rows;
  ASSERT_EQ(rows.size(), 1U);
  EXPECT_EQ(rows[0].title, u"Found 0 services"_s);
  EXPECT_EQ(rows[0].detail, u"0 started, 0 stopped"_s);
}

TEST(DirectCommandOutputPresentation, CountsAllServicesButListsSix) {
  const auto rows = present(Operation::servicesList, numberedLines(9, u"started"_s)).rows;
  EXPECT_EQ(rows[0].title, u"Found 9 services"_s);
  EXPECT_EQ(rows[0].detail, u"9 started, 0 stopped\n"_s + numberedLines(6, u"started"_s));
}

class PresentationOfAChange : public testing::TestWithParam<Operation> {};

TEST_P(PresentationOfAChange, ShowsTheFirstFourLinesWhenNoneIsNotable) {
  const QStringList firstFour{u"line 1"_s, u"line 2"_s, u"line 3"_s, u"line 4"_s};
  expectRows(present(GetParam(), numberedLines(10)), firstFour, u"checkmark.circle"_s, Tint::green);
  expectRows(present(GetParam(), numberedLines(5)), firstFour, u"checkmark.circle"_s, Tint::green);
  expectRows(present(GetParam(), numberedLines(4)), firstFour, u"checkmark.circle"_s, Tint::green);
  EXPECT_EQ(titles(present(GetParam(), numberedLines(1))), (QStringList{u"line 1"_s}));
}

TEST_P(PresentationOfAChange, ShowsUpToSixNotableLinesAndNoOther) {
  for (const int count : {1, 5, 6, 7, 8}) {
    const QString text = numberedLines(10) + u'\n' + numberedLines(count, u"Warning"_s);
    expectRows(present(GetParam(), text),
               numberedLines(std::min(count, 6), u"Warning"_s).split(u'\n'), u"checkmark.circle"_s,
               Tint::green);
  }
}

TEST_P(PresentationOfAChange, CleansHeadings) {
  EXPECT_EQ(titles(present(GetParam(), u"==> Pouring wget"_s)), (QStringList{u"Pouring wget"_s}));
}

TEST_P(PresentationOfAChange, IsRedWhenItFailed) {
  expectRows(present(GetParam(), u"==> Upgrading\nError: no\nmore"_s, failed),
             {u"Upgrading"_s, u"Error: no"_s}, u"exclamationmark.triangle"_s, Tint::red);
}

INSTANTIATE_TEST_SUITE_P(Changes, PresentationOfAChange,
                         testing::Values(Operation::install, Operation::uninstall,
                                         Operation::update, Operation::upgrade,
                                         Operation::cleanup));

TEST(DirectCommandOutputPresentation, GivesEveryRowAFreshIdentity) {
  QSet<QUuid> identifiers;
  for (int round = 0; round < 2; ++round) {
    const auto presentation = present(Operation::info, numberedLines(6));
    for (const Row& row : presentation.rows) {
      identifiers.insert(row.id);
    }
  }
  EXPECT_EQ(identifiers.size(), 12);
}

TEST(DirectCommandOutputPresentation, ShowsWhatATerminalWouldLeaveStanding) {
  EXPECT_EQ(
      titles(present(Operation::install, u"#  10%\r## 99%\rInstalled\r\n\x1b[31mError\x1b[0m"_s)),
      (QStringList{u"Installed"_s, u"Error"_s}));
}

DirectExecutionOutputChunk chunk(DirectExecutionOutputStream stream, const QByteArray& text) {
  return {QUuid::createUuid(), stream, text, QDateTime()};
}

TEST(PresentationText, JoinsTheChunksWithoutOurDiagnosticsBeforeTheResult) {
  using enum DirectExecutionOutputStream;
  const std::vector chunks{chunk(diagnostic, "[quillmere] Launching.\n"),
                           chunk(standardError, "==> Fet"), chunk(standardOutput, " out\n"),
                           chunk(diagnostic, "[quillmere] Done.\n"), chunk(standardError, "ched ")};
  EXPECT_EQ(presentationText(std::nullopt, chunks), u"==> Fet out\nched "_s);
  EXPECT_EQ(presentationText(std::nullopt, {}), QString());
}

DirectCommandResult resultWith(const QByteArray& output, const QByteArray& error) {
  DirectCommandResult result;
  result.standardOutput = output;
  result.standardError = error;
  return result;
}

TEST(PresentationText, IsTheTwoTextsOfTheResultOnceThereIsOne) {
  const std::vector chunks{chunk(DirectExecutionOutputStream::standardOutput, "streamed")};
  EXPECT_EQ(presentationText(resultWith("\n out \n", "\tfehler \u00e4\r\n"), chunks),
            u"out\n\nfehler \u00e4"_s);
}

TEST(PresentationText, LeavesOutATextThatIsBlank) {
  EXPECT_EQ(presentationText(resultWith("out\n", " \n"), {}), u"out"_s);
  EXPECT_EQ(presentationText(resultWith("", "error\n"), {}), u"error"_s);
  EXPECT_EQ(presentationText(resultWith("\n", ""), {}), QString());
}

}  // namespace
}  // namespace quillmere
