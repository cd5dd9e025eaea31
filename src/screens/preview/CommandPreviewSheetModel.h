#pragma once

#include <QCoroTask>
#include <QtCore/QDateTime>
#include <QtCore/QObject>
#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QUuid>
#include <QtQml/qqmlregistration.h>

#include <functional>
#include <memory>
#include <optional>

#include "app/AppCapabilities.h"
#include "commands/BrewCommand.h"
#include "commands/DirectExecutionPolicy.h"
#include "execution/BrewExecutableResolver.h"
#include "execution/DirectCommandExecution.h"
#include "execution/DirectExecutionSessionController.h"

namespace quillmere {

class LocalPersistenceStore;

/// A question that waits for the user's answer: may the command be run?
struct DirectRunConfirmation {
  /// Fresh for each request, so that each is an alert of its own.
  QUuid id;
  DirectExecutionPolicyDecision decision;
};

/// What a preview needs of the rest of the program.
struct CommandPreviewContext {
  AppCapabilities appCapabilities;
  LocalPersistenceStore& store;
  BrewExecutableResolver resolver;
  std::shared_ptr<const DirectCommandExecutionStarting> executionStarter;
};

/// One command from its preview to the end of its run. Kept after the sheet was closed until a run
/// that still goes on has ended and is recorded. UI thread only.
class CommandPreviewSheetModel : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("Made by the main window")
  Q_PROPERTY(QString commandText READ commandText CONSTANT)
  Q_PROPERTY(QString operationText READ operationText CONSTANT)
  Q_PROPERTY(QString targetText READ targetText CONSTANT)
  Q_PROPERTY(QString riskText READ riskText CONSTANT)
  Q_PROPERTY(QString riskLevel READ riskLevel CONSTANT)
  Q_PROPERTY(QStringList effects READ effects CONSTANT)
  Q_PROPERTY(QString explanation READ explanation CONSTANT)
  Q_PROPERTY(QString policyTitle READ policyTitle CONSTANT)
  Q_PROPERTY(QString policyMessage READ policyMessage CONSTANT)
  Q_PROPERTY(bool canRun READ canRun CONSTANT)
  Q_PROPERTY(Phase phase READ phase NOTIFY phaseChanged)
  Q_PROPERTY(
      QStringList startupDiagnostics READ startupDiagnostics NOTIFY startupDiagnosticsChanged)
  Q_PROPERTY(bool confirmationPending READ confirmationPending NOTIFY confirmationChanged)
  Q_PROPERTY(QString confirmationTitle READ confirmationTitle CONSTANT)
  Q_PROPERTY(QString confirmationMessage READ confirmationMessage CONSTANT)
  Q_PROPERTY(QString confirmTitle READ confirmTitle CONSTANT)
  Q_PROPERTY(bool errorPending READ errorPending NOTIFY errorChanged)
  Q_PROPERTY(QString errorMessage READ errorMessage NOTIFY errorChanged)
  Q_PROPERTY(bool canClose READ canClose NOTIFY canCloseChanged)

 public:
  enum class Phase { Preview, Starting, Session };
  Q_ENUM(Phase)

  /// `onCopy` carries out the copy: the sheet itself never writes to the clipboard.
  CommandPreviewSheetModel(CommandPreviewContext context, BrewCommand command,
                           std::optional<QString> sourceScreen, std::function<void()> onCopy,
                           QObject* parent = nullptr);
  ~CommandPreviewSheetModel() override;

  [[nodiscard]] QString commandText() const { return command_.commandText; }

  [[nodiscard]] QString operationText() const;
  [[nodiscard]] QString targetText() const;
  [[nodiscard]] QString riskText() const;
  [[nodiscard]] QString riskLevel() const;

  [[nodiscard]] QStringList effects() const { return command_.possibleEffects; }

  [[nodiscard]] QString explanation() const { return command_.explanation; }

  [[nodiscard]] QString policyTitle() const { return decision_.title; }

  [[nodiscard]] QString policyMessage() const { return decision_.message; }

  /// Whether the policy lets the command be run at all.
  [[nodiscard]] bool canRun() const;

  [[nodiscard]] Phase phase() const { return phase_; }

  [[nodiscard]] const QStringList& startupDiagnostics() const { return startupDiagnostics_; }

  [[nodiscard]] bool confirmationPending() const { return directRunConfirmation_.has_value(); }

  [[nodiscard]] const std::optional<DirectRunConfirmation>& directRunConfirmation() const {
    return directRunConfirmation_;
  }

  [[nodiscard]] QString confirmationTitle() const { return decision_.title; }

  [[nodiscard]] QString confirmationMessage() const { return decision_.message; }

  [[nodiscard]] QString confirmTitle() const;

  [[nodiscard]] bool errorPending() const { return directRunErrorMessage_.has_value(); }

  [[nodiscard]] QString errorMessage() const;

  [[nodiscard]] const DirectExecutionSessionController* sessionController() const {
    return directExecutionSessionController_.get();
  }

  /// A sheet stays while its run goes on, unless the run was asked to end and does not.
  [[nodiscard]] bool canClose() const;
  /// Whether a run has begun and not ended.
  [[nodiscard]] bool isRunning() const;

  Q_INVOKABLE void copy();
  Q_INVOKABLE void run();
  Q_INVOKABLE void confirmRun();
  Q_INVOKABLE void cancelConfirmation();
  Q_INVOKABLE void cancelStartup();
  /// Asks the run to end; does nothing before one has begun.
  void cancelRun();
  Q_INVOKABLE void dismissError();
  /// Closes the sheet if it can be closed.
  Q_INVOKABLE void close();

 Q_SIGNALS:
  void phaseChanged();
  void startupDiagnosticsChanged();
  void confirmationChanged();
  void errorChanged();
  void canCloseChanged();
  /// The run is about to start; `controller` lives as long as this model.
  void sessionCreated(quillmere::DirectExecutionSessionController* controller);
  void copied();
  void closed();
  /// The run, if there was one, is over and recorded.
  void runEnded();

 private:
  QCoro::Task<> resolveAndStart();
  void startSession(const BrewExecutableResolution& resolution);
  void followSession();
  void recordRun();
  void setPhase(Phase phase);
  void addStartupDiagnostic(const QString& message);

  CommandPreviewContext context_;
  BrewCommand command_;
  std::optional<QString> sourceScreen_;
  std::function<void()> onCopy_;
  DirectExecutionPolicyDecision decision_;
  Phase phase_ = Phase::Preview;
  /// Tells a start-up that is still wanted from one that was cancelled meanwhile.
  QUuid startup_;
  QStringList startupDiagnostics_;
  std::optional<DirectRunConfirmation> directRunConfirmation_;
  std::optional<QString> directRunErrorMessage_;
  std::unique_ptr<DirectExecutionSessionController> directExecutionSessionController_;
  std::optional<QDateTime> recordedExecutionEndedAt_;
};

}  // namespace quillmere
