#pragma once

#include <QCoroTask>
#include <QtCore/QFuture>
#include <QtCore/QObject>
#include <QtCore/QTimer>
#include <QtQml/qqmlregistration.h>

#include <memory>

#include "execution/DirectExecutionSessionController.h"
#include "execution/OutputTranscript.h"
#include "screens/run/OutputSummaryListModel.h"
#include "screens/run/ProgressStepListModel.h"
#include "screens/run/RawOutputListModel.h"

namespace quillmere {

/// What the session view shows of a run. Output is read on the thread pool, at most ten times a
/// second while the run goes on and once when it has ended, so that a flood of it costs the window
/// nothing. The controller that it observes outlives it; UI thread only.
class DirectExecutionSessionViewModel : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("Made by the main window")
  Q_PROPERTY(QString commandText READ commandText CONSTANT)
  Q_PROPERTY(QString statusText READ statusText NOTIFY statusChanged)
  Q_PROPERTY(QString statusSymbol READ statusSymbol NOTIFY statusChanged)
  Q_PROPERTY(QString statusTint READ statusTint NOTIFY statusChanged)
  Q_PROPERTY(QString durationText READ durationText NOTIFY statusChanged)
  Q_PROPERTY(bool isRunning READ isRunning NOTIFY statusChanged)
  Q_PROPERTY(bool cancellationPending READ cancellationPending NOTIFY statusChanged)
  Q_PROPERTY(QString cancellationText READ cancellationText CONSTANT)
  Q_PROPERTY(QString cancelTitle READ cancelTitle NOTIFY statusChanged)
  Q_PROPERTY(QString summaryTitle READ summaryTitle NOTIFY presentationChanged)
  Q_PROPERTY(QString summarySymbol READ summarySymbol NOTIFY presentationChanged)
  Q_PROPERTY(QString summaryEmptyText READ summaryEmptyText NOTIFY presentationChanged)
  Q_PROPERTY(bool hasOutcome READ hasOutcome NOTIFY presentationChanged)
  Q_PROPERTY(QString outcomeSentence READ outcomeSentence NOTIFY presentationChanged)
  Q_PROPERTY(QString outcomeSymbol READ outcomeSymbol NOTIFY presentationChanged)
  Q_PROPERTY(QString outcomeTint READ outcomeTint NOTIFY presentationChanged)
  Q_PROPERTY(QStringList outcomeDetails READ outcomeDetails NOTIFY presentationChanged)
  Q_PROPERTY(QString outcomeCaveats READ outcomeCaveats NOTIFY presentationChanged)
  Q_PROPERTY(QStringList outcomeWarnings READ outcomeWarnings NOTIFY presentationChanged)
  Q_PROPERTY(QString adviceText READ adviceText NOTIFY presentationChanged)
  Q_PROPERTY(quillmere::OutputSummaryListModel* summaryRows READ summaryRows CONSTANT)
  Q_PROPERTY(quillmere::ProgressStepListModel* progressSteps READ progressSteps CONSTANT)
  Q_PROPERTY(
      bool showsRawOutput READ showsRawOutput WRITE setShowsRawOutput NOTIFY showsRawOutputChanged)
  Q_PROPERTY(QString rawOutputToggleTitle READ rawOutputToggleTitle NOTIFY showsRawOutputChanged)
  Q_PROPERTY(QString rawOutputToggleAccessibleName READ rawOutputToggleAccessibleName NOTIFY
                 showsRawOutputChanged)
  Q_PROPERTY(quillmere::RawOutputListModel* rawOutput READ rawOutput CONSTANT)
  Q_PROPERTY(bool rawOutputIsEmpty READ rawOutputIsEmpty NOTIFY rawOutputGrew)

 public:
  explicit DirectExecutionSessionViewModel(DirectExecutionSessionController& controller,
                                           QObject* parent = nullptr);
  ~DirectExecutionSessionViewModel() override;

  [[nodiscard]] QString commandText() const;
  [[nodiscard]] QString statusText() const;
  [[nodiscard]] QString statusSymbol() const;
  /// "green", "red", "blue" or "neutral".
  [[nodiscard]] QString statusTint() const;
  /// Empty until the run has ended.
  [[nodiscard]] QString durationText() const;
  [[nodiscard]] bool isRunning() const;
  /// Whether the child was asked to end and still runs.
  [[nodiscard]] bool cancellationPending() const;
  [[nodiscard]] QString cancellationText() const;
  [[nodiscard]] QString cancelTitle() const;

  [[nodiscard]] QString summaryTitle() const { return presentation_.title; }

  [[nodiscard]] QString summarySymbol() const { return presentation_.symbolName; }

  [[nodiscard]] QString summaryEmptyText() const { return presentation_.emptyText; }

  /// Whether there is anything to say of what came of the run, which there is not before it ended.
  [[nodiscard]] bool hasOutcome() const { return !outcome_.isEmpty() || !adviceText_.isEmpty(); }

  [[nodiscard]] QString outcomeSentence() const { return outcome_.sentence; }

  [[nodiscard]] QString outcomeSymbol() const;
  /// "green", "red", "blue" or "neutral".
  [[nodiscard]] QString outcomeTint() const;

  [[nodiscard]] QStringList outcomeDetails() const { return outcome_.details; }

  [[nodiscard]] QString outcomeCaveats() const { return outcome_.caveats; }

  [[nodiscard]] QStringList outcomeWarnings() const { return outcome_.warnings; }

  /// What can be done about a run that failed; empty where nothing is known.
  [[nodiscard]] QString adviceText() const { return adviceText_; }

  [[nodiscard]] OutputSummaryListModel* summaryRows() { return &summaryRows_; }

  [[nodiscard]] ProgressStepListModel* progressSteps() { return &progressSteps_; }

  [[nodiscard]] bool showsRawOutput() const { return showsRawOutput_; }

  void setShowsRawOutput(bool shows);
  [[nodiscard]] QString rawOutputToggleTitle() const;
  [[nodiscard]] QString rawOutputToggleAccessibleName() const;

  [[nodiscard]] RawOutputListModel* rawOutput() { return &rawOutput_; }

  [[nodiscard]] bool rawOutputIsEmpty() const { return rawOutput_.rowCount() == 0; }

  Q_INVOKABLE void cancel();
  /// Puts some lines of the log on the clipboard; does nothing where there are none.
  Q_INVOKABLE void copyRawOutput(int first, int last);

 Q_SIGNALS:
  void statusChanged();
  void presentationChanged();
  void showsRawOutputChanged();
  void rawOutputGrew();
  /// A change that must not be missed by those who do not see it.
  void announced(const QString& text);
  /// Lines of the log were copied; `text` says how many.
  void rawOutputCopied(const QString& text);
  /// All that the ended run printed is shown.
  void outputSettled();

 private:
  struct Reading;
  struct Read;

  [[nodiscard]] bool isCancelled() const;
  void followStatus();
  void followCancellation();
  void showSteps();
  QCoro::Task<> readOutput();
  [[nodiscard]] QFuture<std::shared_ptr<Read>> startReading();
  void show(Read read);
  void showOutcome();
  void announceOutcome();

  DirectExecutionSessionController& controller_;
  std::shared_ptr<OutputTranscript> transcript_;
  std::size_t chunksRead_ = 0;
  bool isReading_ = false;
  bool isSettled_ = false;
  QTimer readTimer_;
  QTimer outcomeTimer_;
  DirectCommandOutputPresentation presentation_;
  RunOutcome outcome_;
  QString adviceText_;
  bool hasOutput_ = false;
  OutputSummaryListModel summaryRows_;
  ProgressStepListModel progressSteps_;
  RawOutputListModel rawOutput_;
  bool showsRawOutput_ = false;
};

}  // namespace quillmere
