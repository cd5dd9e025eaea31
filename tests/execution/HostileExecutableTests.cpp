#include <QtCore/QFile>
#include <QtTest/QSignalSpy>
#include <QtTest/QTest>

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>

#include "execution/DirectExecutionSessionController.h"
#include "execution/RunFixture.h"

namespace quillmere::test {
namespace {

using namespace Qt::StringLiterals;
using Resolution = BrewExecutableResolution::Status;

/// An ELF file as far as its header, for a machine that nobody has built.
QByteArray foreignProgram() {
  QByteArray header(64, '\0');
  header.replace(0, 8,
                 QByteArray("\x7F"
                            "ELF\x02\x01\x01\0",
                            8));
  header[16] = 2;  // executable
  header[18] = '\xFE';
  header[19] = '\x7F';
  header[20] = 1;
  return header;
}

/// What stands in place of `bin/brew`, what the resolver says of it and why it is not run.
struct Impostor {
  const char* name;
  void (*make)(TestPrefix& prefix, const QString& brew);
  Resolution resolution;
  const char* failure;
};

void makeLink(const QString& target, const QString& link) {
  ASSERT_TRUE(QFile::link(target, link));
}

const Impostor impostors[] = {
    {"ADirectory", [](TestPrefix& prefix, const QString&) { prefix.withFolder(u"bin/brew"_s); },
     Resolution::resolved, "Permission denied"},
    {"ADanglingLink", [](TestPrefix&, const QString& brew) { makeLink(u"/no/such/brew"_s, brew); },
     Resolution::missingExecutable, "No such file or directory"},
    {"ALinkToItself", [](TestPrefix&, const QString& brew) { makeLink(brew, brew); },
     Resolution::missingExecutable, "Too many levels of symbolic links"},
    {"APipe",
     [](TestPrefix&, const QString& brew) {
       ASSERT_EQ(mkfifo(QFile::encodeName(brew).constData(), 0755), 0);
     },
     Resolution::resolved, "Permission denied"},
    {"ADevice", [](TestPrefix&, const QString& brew) { makeLink(u"/dev/zero"_s, brew); },
     Resolution::resolved, "Permission denied"},
    {"WhatMayNotBeExecuted",
     [](TestPrefix& prefix, const QString&) { prefix.withFile(u"bin/brew"_s, "#!/bin/sh\n"); },
     Resolution::resolved, "Permission denied"},
    {"AProgramOfAnotherMachine",
     [](TestPrefix& prefix, const QString&) { prefix.withBrew(foreignProgram()); },
     Resolution::resolved, "Exec format error"},
    {"AScriptWithoutItsInterpreter",
     [](TestPrefix& prefix, const QString&) { prefix.withBrew("#!/no/such/interpreter\n"); },
     Resolution::resolved, "No such file or directory"},
    {"AScriptThatADirectoryInterprets",
     [](TestPrefix& prefix, const QString&) { prefix.withBrew("#!/usr\n"); }, Resolution::resolved,
     "Permission denied"},
    {"AnEmptyFile", [](TestPrefix& prefix, const QString&) { prefix.withBrew({}); },
     Resolution::resolved, "Exec format error"},
    {"AScriptWithoutAnInterpreter",
     [](TestPrefix& prefix, const QString&) { prefix.withBrew("echo a shell ran this\n"); },
     Resolution::resolved, "Exec format error"},
    {"Nothing", [](TestPrefix&, const QString&) {}, Resolution::missingExecutable,
     "No such file or directory"},
};

class HostileExecutable : public testing::TestWithParam<Impostor> {
 protected:
  void putInPlace() {
    const QString brew = prefix.pathOf(u"bin/brew"_s);
    QFile::remove(brew);
    GetParam().make(prefix, brew);
  }

  /// Runs what was resolved to the end.
  void run(const BrewExecutableResolution& resolution) {
    session = std::make_unique<DirectExecutionSessionController>(
        infoCommand(), DirectExecutionPolicyDecision{}, resolution,
        std::make_shared<DirectCommandRunner>());
    QSignalSpy changed(session.get(), &DirectExecutionSessionController::statusChanged);
    session->start();
    while (!hasEnded(session->status())) {
      ASSERT_TRUE(changed.wait(20'000));
    }
  }

  void expectFailure(const QString& message) const {
    const auto* const failed = std::get_if<SessionFailed>(&session->status());
    ASSERT_NE(failed, nullptr);
    EXPECT_EQ(failed->message, message);
    EXPECT_EQ(session->result(), std::nullopt);
  }

  TestPrefix prefix;
  std::unique_ptr<DirectExecutionSessionController> session;
};

TEST_P(HostileExecutable, IsToldOfBeforeItIsRun) {
  prefix.withFolder(u"bin"_s);
  putInPlace();
  const BrewExecutableResolution resolution = BrewExecutableResolver().resolve(prefix.url());
  EXPECT_EQ(resolution.status, GetParam().resolution);
  run(resolution);
  expectFailure(resolution.status == Resolution::resolved ? QString::fromLatin1(GetParam().failure)
                                                          : message(resolution.status));
}

TEST_P(HostileExecutable, TakesThePlaceOfWhatWasResolved) {
  prefix.withBrew("#!/bin/sh\n");
  run(BrewExecutableResolver().resolve(prefix.url()));  // what is made once is made now
  const BrewExecutableResolution resolution = BrewExecutableResolver().resolve(prefix.url());
  ASSERT_EQ(resolution.status, Resolution::resolved);
  session.reset();
  const qsizetype descriptors = openDescriptors();
  putInPlace();
  // A sanitizer may open descriptors and have a child of its own, but not for each run.
  constexpr int runs = 20;
  for (int i = 0; i < runs; ++i) {
    run(resolution);
    expectFailure(QString::fromLatin1(GetParam().failure));
    EXPECT_EQ(session->outputChunks().back().text,
              QByteArray("[quillmere] Process launch failed: ") + GetParam().failure + '\n');
    EXPECT_LE(waitpid(-1, nullptr, WNOHANG), 0) << "a zombie";
    session.reset();
  }
  // The threads of the runs may still hold what they ended with.
  EXPECT_TRUE(
      QTest::qWaitFor([descriptors] { return openDescriptors() < descriptors + runs; }, 20'000));
}

INSTANTIATE_TEST_SUITE_P(Impostors, HostileExecutable, testing::ValuesIn(impostors),
                         [](const auto& impostor) { return std::string(impostor.param.name); });

}  // namespace
}  // namespace quillmere::test
