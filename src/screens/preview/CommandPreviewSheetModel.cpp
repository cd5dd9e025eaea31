#include "screens/preview/CommandPreviewSheetModel.h"

#include <QCoroFuture>
#include <QtConcurrent/QtConcurrentRun>
#include <QtCore/QPointer>

#include <utility>

#include "execution/DirectCommandDiagnosticLogger.h"
#include "persistence/LocalPersistenceStore.h"
#include "platform/BackgroundThreads.h"

using namespace Qt::StringLiterals;

namespace quillmere {
namespace {

QLatin1StringView words(BrewCommandOperation operation) {
  switch (operation) {
    case BrewCommandOperation::info:
      return "Info"_L1;
    case BrewCommandOperation::install:
      return "Install"_L1;
    case BrewCommandOperation::uninstall:
      return "Uninstall"_L1;
    case BrewCommandOperation::update:
      return "Update"_L1;
    case BrewCommandOperation::upgrade:
      return "Upgrade"_L1;
    case BrewCommandOperation::outdated:
      return "Outdated"_L1;
    case BrewCommandOperation::cleanup:
      return "Cleanup"_L1;
    case BrewCommandOperation::dependencies:
      return "Dependencies"_L1;
    case BrewCommandOperation::reverseDependencies:
      return "Reverse dependencies"_L1;
    case BrewCommandOperation::servicesList:
      return "Services list"_L1;
    case BrewCommandOperation::doctor:
      return "Doctor"_L1;
  }
  return {};
}

QLatin1StringView words(BrewCommandTargetKind kind) {
  switch (kind) {
    case BrewCommandTargetKind::formula:
      return "Formula"_L1;
    case BrewCommandTargetKind::cask:
      return "Cask"_L1;
    case BrewCommandTargetKind::global:
      return "All of Homebrew"_L1;
    case BrewCommandTargetKind::diagnostic:
      return "Diagnostics"_L1;
  }
  return {};
}

QLatin1StringView words(BrewCommandRiskLevel level) {
  switch (level) {
    case BrewCommandRiskLevel::informational:
      return "Informational"_L1;
    case BrewCommandRiskLevel::low:
      return "Low"_L1;
    case BrewCommandRiskLevel::medium:
      return "Medium"_L1;
    case BrewCommandRiskLevel::destructive:
      return "Destructive"_L1;
  }
  return {};
}

}  // namespace

CommandPreviewSheetModel::CommandPreviewSheetModel(CommandPreviewContext context,
                                                   BrewCommand command,
                                                   std::optional<QString> sourceScreen,
                                                   std::function<void()> onCopy, QObject* parent)
    : QObject(parent),
      context_(std::move(context)),
      command_(std::move(command)),
      sourceScreen_(std::move(sourceScreen)),
      onCopy_(std::move(onCopy)),
      decision_(executionPolicyDecision(command_, context_.appCapabilities)) {
}

CommandPreviewSheetModel::~CommandPreviewSheetModel() = default;

QString CommandPreviewSheetModel::operationText() const {
  return words(command_.operation);
}

QString CommandPreviewSheetModel::targetText() const {
  const QString kind = words(command_.target.kind);
  return command_.target.name ? kind + u' ' + *command_.target.name : kind;
}

QString CommandPreviewSheetModel::riskText() const {
  return words(command_.riskLevel);
}

QString CommandPreviewSheetModel::riskLevel() const {
  return rawValue(command_.riskLevel);
}

bool CommandPreviewSheetModel::canRun() const {
  return decision_.mode != DirectExecutionPolicyMode::previewOnly;
}

QString CommandPreviewSheetModel::confirmTitle() const {
  return quillmere::confirmTitle(command_);
}

QString CommandPreviewSheetModel::errorMessage() const {
  return directRunErrorMessage_ && !directRunErrorMessage_->isEmpty()
             ? *directRunErrorMessage_
             : QStringLiteral("Quillmere Direct could not start this command.");
}

bool CommandPreviewSheetModel::isRunning() const {
  return directExecutionSessionController_ &&
         !hasEnded(directExecutionSessionController_->status());
}

bool CommandPreviewSheetModel::canClose() const {
  return !isRunning() || directExecutionSessionController_->cancellationRequested();
}

void CommandPreviewSheetModel::copy() {
  onCopy_();
  Q_EMIT copied();
}

void CommandPreviewSheetModel::run() {
  if (phase_ != Phase::Preview) {
    return;
  }
  switch (decision_.mode) {
    case DirectExecutionPolicyMode::runDirectly:
      resolveAndStart();
      break;
    case DirectExecutionPolicyMode::requiresConfirmation:
    case DirectExecutionPolicyMode::requiresStrongConfirmation:
      directRunConfirmation_ = {QUuid::createUuid(), decision_};
      Q_EMIT confirmationChanged();
      break;
    case DirectExecutionPolicyMode::previewOnly:
      break;
  }
}

void CommandPreviewSheetModel::confirmRun() {
  if (confirmationPending()) {
    cancelConfirmation();
    resolveAndStart();
  }
}

void CommandPreviewSheetModel::cancelConfirmation() {
  if (std::exchange(directRunConfirmation_, std::nullopt)) {
    Q_EMIT confirmationChanged();
  }
}

void CommandPreviewSheetModel::cancelStartup() {
  if (phase_ == Phase::Starting) {
    startup_ = {};
    setPhase(Phase::Preview);
  }
}

void CommandPreviewSheetModel::cancelRun() {
  if (directExecutionSessionController_) {
    directExecutionSessionController_->cancel();
  }
}

void CommandPreviewSheetModel::dismissError() {
  if (std::exchange(directRunErrorMessage_, std::nullopt)) {
    Q_EMIT errorChanged();
  }
}

void CommandPreviewSheetModel::close() {
  if (canClose()) {
    cancelStartup();
    Q_EMIT closed();
  }
}

QCoro::Task<> CommandPreviewSheetModel::resolveAndStart() {
  const QPointer<CommandPreviewSheetModel> self(this);
  const QUuid startup = startup_ = QUuid::createUuid();
  dismissError();
  startupDiagnostics_.clear();
  addStartupDiagnostic(QStringLiteral("Preparing to resolve selected Homebrew prefix."));
  addStartupDiagnostic(QStringLiteral("Command: ") + command_.commandText);
  addStartupDiagnostic(
      QStringLiteral("Selected prefix: ") +
      context_.store.selectedHomebrewPrefixPath().value_or(QStringLiteral("none")));
  addStartupDiagnostic(QStringLiteral("Resolving selected-prefix bin/brew."));
  setPhase(Phase::Starting);

  // A future of its own: g++ 12 destroys the captures of a lambda that stands inside a co_await
  // twice.
  const QFuture<BrewExecutableResolution> resolving = QtConcurrent::run(
      backgroundThreads(),
      [resolver = context_.resolver, prefix = context_.store.resolvedPrefixURL()] {
        return resolver.resolve(prefix);
      });
  const BrewExecutableResolution resolution = co_await resolving;
  if (!self || startup != startup_) {
    co_return;
  }
  addStartupDiagnostic(QStringLiteral("Resolver status: ") + diagnosticText(resolution.status));
  if (resolution.status == BrewExecutableResolution::Status::resolved) {
    startSession(resolution);
  } else {
    setPhase(Phase::Preview);
    directRunErrorMessage_ = message(resolution.status);
    Q_EMIT errorChanged();
  }
}

void CommandPreviewSheetModel::startSession(const BrewExecutableResolution& resolution) {
  directExecutionSessionController_ = std::make_unique<DirectExecutionSessionController>(
      command_, decision_, resolution, context_.executionStarter);
  const auto* controller = directExecutionSessionController_.get();
  connect(controller, &DirectExecutionSessionController::resultChanged, this,
          &CommandPreviewSheetModel::recordRun);
  connect(controller, &DirectExecutionSessionController::statusChanged, this,
          &CommandPreviewSheetModel::followSession);
  connect(controller, &DirectExecutionSessionController::cancellationRequestedChanged, this,
          &CommandPreviewSheetModel::canCloseChanged);
  Q_EMIT sessionCreated(directExecutionSessionController_.get());
  setPhase(Phase::Session);
  directExecutionSessionController_->start();
}

void CommandPreviewSheetModel::followSession() {
  recordRun();
  Q_EMIT canCloseChanged();
  if (!isRunning()) {
    Q_EMIT runEnded();
  }
}

void CommandPreviewSheetModel::recordRun() {
  const auto& result = directExecutionSessionController_->result();
  if (result && result->endedAt != recordedExecutionEndedAt_) {
    recordedExecutionEndedAt_ = result->endedAt;
    context_.store.recordExecution(*result, sourceScreen_);
  }
}

void CommandPreviewSheetModel::setPhase(Phase phase) {
  phase_ = phase;
  Q_EMIT phaseChanged();
  Q_EMIT canCloseChanged();
}

void CommandPreviewSheetModel::addStartupDiagnostic(const QString& message) {
  startupDiagnostics_ += diagnosticLine(message);
  Q_EMIT startupDiagnosticsChanged();
}

}  // namespace quillmere
