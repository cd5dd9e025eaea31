#include "app/QuitGuard.h"

#include <algorithm>
#include <utility>

#include "screens/preview/CommandPreviewSheetModel.h"

namespace quillmere {
namespace {

bool runs(const QPointer<CommandPreviewSheetModel>& run) {
  return run && run->isRunning();
}

}  // namespace

void QuitGuard::watch(CommandPreviewSheetModel* run) {
  runs_.removeIf([](const QPointer<CommandPreviewSheetModel>& gone) { return gone.isNull(); });
  runs_ += run;
  connect(run, &CommandPreviewSheetModel::runEnded, this, &QuitGuard::followEnd);
}

bool QuitGuard::requestQuit() {
  if (state_ == State::Leaving || !isRunning()) {
    return true;
  }
  if (state_ == State::Idle) {
    setState(State::AskingToCancel);
  } else if (state_ == State::Waiting) {
    setState(State::AskingToLeave);
  }
  return false;
}

void QuitGuard::cancelQuit() {
  if (state_ == State::AskingToCancel) {
    setState(State::Idle);
  } else if (state_ == State::AskingToLeave) {
    setState(State::Waiting);
  }
}

void QuitGuard::confirmQuit() {
  if (state_ == State::AskingToCancel) {
    setState(State::Waiting);
    for (const auto& run : std::as_const(runs_)) {
      if (runs(run)) {
        run->cancelRun();
      }
    }
  } else if (state_ == State::AskingToLeave) {
    setState(State::Leaving);
    Q_EMIT quitAllowed();
  }
}

bool QuitGuard::confirmationPending() const {
  return state_ == State::AskingToCancel || state_ == State::AskingToLeave;
}

QString QuitGuard::title() const {
  return state_ == State::AskingToLeave ? QStringLiteral("Quit Without Waiting?")
                                        : QStringLiteral("A Command Is Still Running");
}

QString QuitGuard::message() const {
  return state_ == State::AskingToLeave
             ? QStringLiteral(
                   "%1 was asked to end and is still finishing what it has begun. If "
                   "you quit now, it may run on by itself, and History will not tell "
                   "how it ended.")
                   .arg(commandText())
             : QStringLiteral(
                   "%1 has not ended yet. Quillmere can cancel it and quit as soon as "
                   "Homebrew has stopped.")
                   .arg(commandText());
}

QString QuitGuard::confirmTitle() const {
  return state_ == State::AskingToLeave ? QStringLiteral("Quit Now")
                                        : QStringLiteral("Cancel Command and Quit");
}

QString QuitGuard::cancelTitle() const {
  return state_ == State::AskingToLeave ? QStringLiteral("Keep Waiting")
                                        : QStringLiteral("Keep Running");
}

QString QuitGuard::waitingText() const {
  return state_ == State::Waiting || state_ == State::AskingToLeave
             ? QStringLiteral("Quillmere quits when %1 has ended.").arg(commandText())
             : QString();
}

bool QuitGuard::isRunning() const {
  return std::ranges::any_of(runs_, runs);
}

QString QuitGuard::commandText() const {
  const auto run = std::ranges::find_if(runs_, runs);
  return run == runs_.end() ? QString() : (*run)->commandText();
}

/// A question about a command that has ended by itself is no question any more.
void QuitGuard::followEnd() {
  if (isRunning() || state_ == State::Idle || state_ == State::Leaving) {
    return;
  }
  if (state_ == State::AskingToCancel) {
    setState(State::Idle);
    return;
  }
  setState(State::Leaving);
  Q_EMIT quitAllowed();
}

void QuitGuard::setState(State state) {
  state_ = state;
  Q_EMIT stateChanged();
}

}  // namespace quillmere
