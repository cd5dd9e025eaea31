#include "app/CommandWorkflow.h"

#include <QtGui/QClipboard>
#include <QtGui/QGuiApplication>

#include <utility>

#include "commands/PreparedCommandAction.h"
#include "persistence/LocalPersistenceStore.h"

namespace quillmere {

CommandWorkflow::CommandWorkflow(CommandPreviewContext context, QObject* parent)
    : QObject(parent), context_(std::move(context)) {
}

CommandWorkflow::~CommandWorkflow() = default;

void CommandWorkflow::openPreview(const BrewCommand& command, const QString& sourceScreen) {
  if (preview_) {
    return;
  }
  preview_ = std::make_unique<CommandPreviewSheetModel>(
      context_, command, sourceScreen,
      [this, command, sourceScreen] { copy(command, sourceScreen); });
  connect(preview_.get(), &CommandPreviewSheetModel::sessionCreated, this,
          &CommandWorkflow::showSession);
  connect(preview_.get(), &CommandPreviewSheetModel::closed, this, &CommandWorkflow::closePreview);
  if (mayChangePackages(command)) {
    connect(preview_.get(), &CommandPreviewSheetModel::runEnded, this,
            &CommandWorkflow::packagesMayHaveChanged);
  }
  Q_EMIT previewChanged();
}

void CommandWorkflow::copy(const BrewCommand& command, const QString& sourceScreen) {
  const PreparedCommandAction action =
      PreviewOnlyCommandRunner().prepare(command, sourceScreen, QDateTime::currentDateTimeUtc());
  QClipboard* clipboard = QGuiApplication::clipboard();
  clipboard->clear();
  clipboard->setText(action.commandText);
  context_.store.appendHistory(action.historyRecord);
}

void CommandWorkflow::showSession(DirectExecutionSessionController* controller) {
  session_ = std::make_unique<DirectExecutionSessionViewModel>(*controller);
  Q_EMIT sessionChanged();
}

void CommandWorkflow::closePreview() {
  CommandPreviewSheetModel* const closed = preview_.release();
  Q_EMIT previewChanged();
  // The sheet goes first, then what it shows, then what that observes: later, and in this order.
  if (DirectExecutionSessionViewModel* const session = session_.release()) {
    session->deleteLater();
    Q_EMIT sessionChanged();
  }
  if (closed->isRunning()) {
    // A run that was asked to end and does not is left to itself, but its end is still recorded.
    closed->setParent(this);
    connect(closed, &CommandPreviewSheetModel::runEnded, closed, &QObject::deleteLater);
  } else {
    closed->deleteLater();
  }
}

}  // namespace quillmere
