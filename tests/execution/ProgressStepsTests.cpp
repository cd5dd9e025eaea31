#include <gtest/gtest.h>

#include "execution/DirectCommandOutputPresentation.h"

namespace quillmere {
namespace {

using namespace Qt::StringLiterals;
using Operation = BrewCommandOperation;
using State = DirectExecutionProgressStep::State;
using enum DirectExecutionProgressStep::State;

BrewCommand commandFor(Operation operation) {
  BrewCommand command;
  command.operation = operation;
  return command;
}

struct TitlesRow {
  Operation operation;
  const char* run;
  const char* capture;
};

class ProgressStepTitles : public testing::TestWithParam<TitlesRow> {};

TEST_P(ProgressStepTitles, NameTheFourSteps) {
  const auto steps = makeProgressSteps(commandFor(GetParam().operation), SessionReady(), false);
  EXPECT_EQ(steps[0].id, u"prepare"_s);
  EXPECT_EQ(steps[0].title, u"Prepared command"_s);
  EXPECT_EQ(steps[1].id, u"run"_s);
  EXPECT_EQ(steps[1].title.toStdString(), GetParam().run);
  EXPECT_EQ(steps[2].id, u"capture"_s);
  EXPECT_EQ(steps[2].title.toStdString(), GetParam().capture);
  EXPECT_EQ(steps[3].id, u"finish"_s);
  EXPECT_EQ(steps[3].title, u"Finished"_s);
}

INSTANTIATE_TEST_SUITE_P(
    Operations, ProgressStepTitles,
    testing::Values(TitlesRow{Operation::info, "Requested package info", "Capturing explanation"},
                    TitlesRow{Operation::install, "Installing package", "Capturing changes"},
                    TitlesRow{Operation::uninstall, "Uninstalling package", "Capturing changes"},
                    TitlesRow{Operation::update, "Updating Homebrew", "Capturing changes"},
                    TitlesRow{Operation::upgrade, "Upgrading packages", "Capturing changes"},
                    TitlesRow{Operation::outdated, "Checking outdated packages", "Capturing list"},
                    TitlesRow{Operation::cleanup, "Cleaning cache", "Capturing changes"},
                    TitlesRow{Operation::dependencies, "Listing dependencies", "Capturing list"},
                    TitlesRow{Operation::reverseDependencies, "Finding dependents",
                              "Capturing list"},
                    TitlesRow{Operation::servicesList, "Listing services", "Capturing list"},
                    TitlesRow{Operation::doctor, "Running diagnostics", "Capturing explanation"}));

struct StatesRow {
  DirectExecutionSessionStatus status;
  bool hasOutput;
  State run;
  State capture;
  State finish;
};

class ProgressStepStates : public testing::TestWithParam<StatesRow> {};

TEST_P(ProgressStepStates, FollowTheStatus) {
  const StatesRow& row = GetParam();
  for (const auto& operation : rawValues<Operation>) {
    const auto steps = makeProgressSteps(commandFor(operation.value), row.status, row.hasOutput);
    EXPECT_EQ(steps[0].state, complete);
    EXPECT_EQ(steps[1].state, row.run);
    EXPECT_EQ(steps[2].state, row.capture);
    EXPECT_EQ(steps[3].state, row.finish);
  }
}

INSTANTIATE_TEST_SUITE_P(
    Statuses, ProgressStepStates,
    testing::Values(StatesRow{SessionReady(), false, pending, pending, pending},
                    StatesRow{SessionReady(), true, pending, active, pending},
                    StatesRow{SessionRunning(), false, active, pending, pending},
                    StatesRow{SessionRunning(), true, active, active, pending},
                    StatesRow{SessionCompleted{0}, false, complete, complete, complete},
                    StatesRow{SessionCompleted{0}, true, complete, complete, complete},
                    StatesRow{SessionFailed{u"no"_s}, false, failed, complete, failed},
                    StatesRow{SessionFailed{u"no"_s}, true, failed, complete, failed},
                    StatesRow{SessionCancelled(), false, complete, complete, complete},
                    StatesRow{SessionCancelled(), true, complete, complete, complete}));

struct StatusRow {
  DirectExecutionSessionStatus status;
  const char* text;
  const char* symbolName;
};

class StatusLine : public testing::TestWithParam<StatusRow> {};

TEST_P(StatusLine, HasATextAndASymbol) {
  EXPECT_EQ(statusText(GetParam().status).toStdString(), GetParam().text);
  EXPECT_EQ(statusSymbolName(GetParam().status), QLatin1StringView(GetParam().symbolName));
}

INSTANTIATE_TEST_SUITE_P(
    Statuses, StatusLine,
    testing::Values(
        StatusRow{SessionReady(), "Ready", "clock"},
        StatusRow{SessionRunning(), "Running", "terminal"},
        StatusRow{SessionCompleted{0}, "Completed with exit code 0", "checkmark.circle"},
        StatusRow{SessionCompleted{-1}, "Completed with exit code -1", "checkmark.circle"},
        StatusRow{SessionFailed{u"Command exited with status 1."_s},
                  "Command exited with status 1.", "xmark.octagon"},
        StatusRow{SessionCancelled(), "Cancelled", "stop.circle"}));

}  // namespace
}  // namespace quillmere
