#pragma once

#include <QtTest/QSignalSpy>

#include <gtest/gtest.h>
#include <memory>

#include "commands/BrewCommandBuilder.h"
#include "execution/DirectCommandRunner.h"
#include "platform/FileUrl.h"
#include "screens/run/DirectExecutionSessionViewModel.h"
#include "support/TestPrefix.h"

namespace quillmere::test {

/// A run of a script, seen through the view model.
class SessionView : public testing::Test {
 protected:
  DirectExecutionSessionViewModel& view(const QByteArray& script, const BrewCommand& command) {
    prefix.withBrew(script);
    controller = std::make_unique<DirectExecutionSessionController>(
        command, DirectExecutionPolicyDecision{},
        BrewExecutableResolution{BrewExecutableResolution::Status::resolved, prefix.url(),
                                 appendingPath(prefix.url(), u"bin/brew")},
        std::make_shared<DirectCommandRunner>());
    model = std::make_unique<DirectExecutionSessionViewModel>(*controller);
    return *model;
  }

  void runToEnd(int patience = 20'000) {
    QSignalSpy settled(model.get(), &DirectExecutionSessionViewModel::outputSettled);
    controller->start();
    ASSERT_TRUE(settled.wait(patience));
  }

  [[nodiscard]] QStringList log(int role = RawOutputListModel::TextRole) const {
    QStringList lines;
    for (int row = 0; row < model->rawOutput()->rowCount(); ++row) {
      lines += model->rawOutput()->index(row).data(role).toString();
    }
    return lines;
  }

  [[nodiscard]] QStringList summary() const {
    QStringList titles;
    for (int row = 0; row < model->summaryRows()->rowCount(); ++row) {
      titles += model->summaryRows()->index(row).data(OutputSummaryListModel::TitleRole).toString();
    }
    return titles;
  }

  [[nodiscard]] QStringList stepStates() const {
    QStringList states;
    for (int row = 0; row < model->progressSteps()->rowCount(); ++row) {
      states +=
          model->progressSteps()->index(row).data(ProgressStepListModel::StateRole).toString();
    }
    return states;
  }

  const BrewCommand upgrade = BrewCommandBuilder().upgrade(std::nullopt).value();
  TestPrefix prefix;
  std::unique_ptr<DirectExecutionSessionController> controller;
  std::unique_ptr<DirectExecutionSessionViewModel> model;
};

}  // namespace quillmere::test
