#include "execution/ProcessDirectCommandExecution.h"

#include <QtCore/QFile>

#include <array>
#include <cerrno>
#include <chrono>
#include <poll.h>
#include <sys/eventfd.h>
#include <system_error>
#include <thread>
#include <utility>

#include "execution/RemainingOutput.h"
#include "platform/FileUrl.h"

namespace quillmere {
namespace {

using namespace std::chrono_literals;

// How often to check for the child's exit where the system has no descriptor to wait for.
constexpr auto exitPollInterval = 50ms;

std::unexpected<DirectCommandRunnerError> systemFailure(std::error_code error) {
  return std::unexpected(DirectCommandRunnerError(SystemFailure{error}));
}

QString valueOrUnset(const Environment& environment, const std::string& name) {
  const auto entry = environment.find(name);
  return entry == environment.end() ? QStringLiteral("unset")
                                    : QString::fromStdString(entry->second);
}

}  // namespace

auto ProcessDirectCommandExecution::start(Run run)
    -> std::expected<std::shared_ptr<DirectCommandExecution>, DirectCommandRunnerError> {
  auto standardOutput = ChildProcess::openPipe();
  if (!standardOutput) {
    return systemFailure(standardOutput.error());
  }
  auto standardError = ChildProcess::openPipe();
  if (!standardError) {
    return systemFailure(standardError.error());
  }
  FileDescriptor cancelSignal(eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK));
  if (!cancelSignal.isOpen()) {
    return systemFailure({errno, std::system_category()});
  }
  std::shared_ptr<ProcessDirectCommandExecution> execution(
      new ProcessDirectCommandExecution(std::move(run), std::move(*standardOutput),
                                        std::move(*standardError), std::move(cancelSignal)));
  execution->logPreparation();
  try {
    // Nothing joins this thread: the run may outlive the screen that started it, and the thread
    // owns all that it touches.
    std::thread([execution] { execution->runToEnd(); }).detach();
  } catch (const std::system_error& error) {
    return systemFailure(error.code());
  }
  return execution;
}

ProcessDirectCommandExecution::ProcessDirectCommandExecution(Run run,
                                                             ChildProcess::Pipe standardOutput,
                                                             ChildProcess::Pipe standardError,
                                                             FileDescriptor cancelSignal)
    : run_(std::move(run)),
      startedAt_(QDateTime::currentDateTimeUtc()),
      output_(std::make_shared<OutputChunkStream>()),
      logger_(output_),
      standardOutput_(std::move(standardOutput)),
      standardError_(std::move(standardError)),
      standardOutputReader_(
          makeReader(standardOutput_, DirectExecutionOutputStream::standardOutput)),
      standardErrorReader_(makeReader(standardError_, DirectExecutionOutputStream::standardError)),
      cancelSignal_(std::move(cancelSignal)) {
  if (run_.prefixURL) {
    access_.emplace(*run_.prefixURL);
  }
  promise_.start();
}

StreamingFileHandleDataReader ProcessDirectCommandExecution::makeReader(
    ChildProcess::Pipe& pipe, DirectExecutionOutputStream stream) const {
  return {std::move(pipe.reading), [output = output_, stream](const QByteArray& text) {
            output->yield(makeChunk(stream, text));
          }};
}

void ProcessDirectCommandExecution::logPreparation() const {
  const Environment& environment = run_.environment;
  logger_.log(QStringLiteral("Preparing Direct Homebrew process."));
  logger_.log(QStringLiteral("Executable: ") + filePath(run_.brewExecutableURL));
  logger_.log(QStringLiteral("Arguments: ") + run_.arguments.join(u' '));
  logger_.log(QStringLiteral("Selected prefix: ") +
              (run_.prefixURL ? filePath(*run_.prefixURL) : QStringLiteral("none")));
  logger_.log(QStringLiteral("Security scope started: ") +
              (access_ && access_->started() ? QStringLiteral("yes") : QStringLiteral("no")));
  logger_.log(QStringLiteral("PATH: ") + valueOrUnset(environment, "PATH"));
  logger_.log(QStringLiteral("Homebrew flags: HOMEBREW_NO_AUTO_UPDATE=") +
              valueOrUnset(environment, "HOMEBREW_NO_AUTO_UPDATE") +
              QStringLiteral(", HOMEBREW_NO_INPUT=") +
              valueOrUnset(environment, "HOMEBREW_NO_INPUT") +
              QStringLiteral(", HOMEBREW_NO_ANALYTICS=") +
              valueOrUnset(environment, "HOMEBREW_NO_ANALYTICS"));
}

void ProcessDirectCommandExecution::cancel() {
  cancellationState_.cancel();
  eventfd_write(cancelSignal_.get(), 1);
}

void ProcessDirectCommandExecution::runToEnd() {
  const DirectCommandOutcome outcome = launchAndFollow();
  access_.reset();
  promise_.addResult(outcome);
  promise_.finish();
}

DirectCommandOutcome ProcessDirectCommandExecution::launchAndFollow() {
  logger_.log(QStringLiteral("Output readers started. Launching process."));
  if (cancellationState_.isCancelled()) {
    logger_.log(QStringLiteral(
        "Cancellation requested before process launch. Closing Direct session stream."));
    output_->finish();
    // No child's exit status can be negative.
    constexpr std::int32_t neverLaunched = -1;
    return makeResult(neverLaunched);
  }

  ChildProcess::Launch launch{
      QFile::encodeName(filePath(run_.brewExecutableURL)).toStdString(), {}, run_.environment};
  for (const QString& argument : std::as_const(run_.arguments)) {
    launch.arguments.push_back(argument.toStdString());
  }
  auto child = ChildProcess::launch(launch, standardOutput_, standardError_);
  if (!child) {
    logger_.log(QStringLiteral("Process launch failed: ") +
                description(SystemFailure{child.error()}));
    output_->finish();
    return systemFailure(child.error());
  }

  logger_.log(QStringLiteral("Process launched with pid %1. Waiting for exit.").arg(child->pid()));
  if (cancellationState_.isCancelled() && !child->hasExited()) {
    logger_.log(
        QStringLiteral("Cancellation requested after process launch. Terminating process."));
    child->terminateSession();
  }
  followUntilExit(*child);
  const auto exitCode = child->reap();
  if (exitCode) {
    logger_.log(QStringLiteral("Process exited with status %1. Collecting remaining output.")
                    .arg(*exitCode));
  } else {
    logger_.log(QStringLiteral("Process exited, but its status is lost: %1. "
                               "Collecting remaining output.")
                    .arg(description(SystemFailure{exitCode.error()})));
  }
  readRemainingOutput(standardOutputReader_, standardErrorReader_);
  logger_.log(QStringLiteral("Output collection finished. Closing Direct session stream."));
  output_->finish();
  if (!exitCode) {
    return systemFailure(exitCode.error());
  }
  return makeResult(*exitCode);
}

void ProcessDirectCommandExecution::followUntilExit(const ChildProcess& child) {
  while (!child.hasExited()) {
    readUntilExitOrCancel(child);
    eventfd_t requests = 0;
    if (eventfd_read(cancelSignal_.get(), &requests) == 0 && !child.hasExited()) {
      child.terminateSession();
    }
  }
  if (cancellationState_.isCancelled()) {
    // Again, for processes that the child started between the first request and its own exit.
    child.terminateSession();
  }
}

void ProcessDirectCommandExecution::readUntilExitOrCancel(const ChildProcess& child) {
  const bool canWaitForExit = child.exitDescriptor().isOpen();
  const int timeout = canWaitForExit ? -1 : static_cast<int>(exitPollInterval.count());
  for (bool woken = false; !woken;) {
    std::array entries = {listenTo(standardOutputReader_.fileHandle()),
                          listenTo(standardErrorReader_.fileHandle()), listenTo(cancelSignal_),
                          listenTo(child.exitDescriptor())};
    const int ready = poll(entries.data(), entries.size(), timeout);
    if (ready > 0) {
      readIfReady(standardOutputReader_, entries[0]);
      readIfReady(standardErrorReader_, entries[1]);
    }
    woken = !canWaitForExit || (ready > 0 && (entries[2].revents != 0 || entries[3].revents != 0));
  }
}

DirectCommandResult ProcessDirectCommandExecution::makeResult(std::int32_t exitCode) const {
  DirectCommandResult result{
      .command = run_.command,
      .brewExecutableURL = run_.brewExecutableURL,
      .arguments = run_.arguments,
      .standardOutput = standardOutputReader_.text(),
      .standardError = standardErrorReader_.text(),
      .exitCode = exitCode,
      .startedAt = startedAt_,
      .endedAt = QDateTime::currentDateTimeUtc(),
      .wasCancelled = cancellationState_.isCancelled(),
      .outcome = {},
  };
  result.outcome = makeRunOutcome({.operation = run_.command.operation,
                                   .target = run_.command.target.name.value_or(QString()),
                                   .exitCode = exitCode,
                                   .wasCancelled = result.wasCancelled,
                                   .standardOutput = result.standardOutput,
                                   .standardError = result.standardError});
  return result;
}

}  // namespace quillmere
