#pragma once

#include <QtCore/QList>
#include <QtCore/QObject>
#include <QtCore/QPointer>
#include <QtCore/QString>
#include <QtQml/qqmlregistration.h>

namespace quillmere {

class CommandPreviewSheetModel;

/// Keeps the program from ending under a command that runs: nobody would read its output any more,
/// and how it ended would be recorded nowhere. Owned by the main window's view model; UI thread
/// only.
class QuitGuard : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("Made by the main window's view model")
  Q_PROPERTY(bool confirmationPending READ confirmationPending NOTIFY stateChanged)
  Q_PROPERTY(QString title READ title NOTIFY stateChanged)
  Q_PROPERTY(QString message READ message NOTIFY stateChanged)
  Q_PROPERTY(QString confirmTitle READ confirmTitle NOTIFY stateChanged)
  Q_PROPERTY(QString cancelTitle READ cancelTitle NOTIFY stateChanged)
  Q_PROPERTY(QString waitingText READ waitingText NOTIFY stateChanged)

 public:
  explicit QuitGuard(QObject* parent = nullptr) : QObject(parent) {}

  /// Watches what may become a run.
  void watch(CommandPreviewSheetModel* run);

  /// Whether the window may close now; where it may not, a question is put to the user.
  [[nodiscard]] Q_INVOKABLE bool requestQuit();
  /// The user rather stays: the command runs on, or is waited for.
  Q_INVOKABLE void cancelQuit();
  /// The user quits: the command is cancelled and its end waited for, or no longer waited for.
  Q_INVOKABLE void confirmQuit();

  [[nodiscard]] bool confirmationPending() const;
  [[nodiscard]] QString title() const;
  [[nodiscard]] QString message() const;
  [[nodiscard]] QString confirmTitle() const;
  [[nodiscard]] QString cancelTitle() const;
  /// What is waited for before the program ends; empty while it is to stay.
  [[nodiscard]] QString waitingText() const;

 Q_SIGNALS:
  void stateChanged();
  /// Nothing keeps the program any more.
  void quitAllowed();

 private:
  enum class State {
    /// Nobody wants to quit.
    Idle,
    /// Shall the command be cancelled?
    AskingToCancel,
    /// It was cancelled and has not ended.
    Waiting,
    /// Shall the program end without waiting?
    AskingToLeave,
    /// The program ends.
    Leaving,
  };

  [[nodiscard]] bool isRunning() const;
  [[nodiscard]] QString commandText() const;
  void followEnd();
  void setState(State state);

  State state_ = State::Idle;
  QList<QPointer<CommandPreviewSheetModel>> runs_;
};

}  // namespace quillmere
