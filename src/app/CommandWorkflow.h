#pragma once

#include <QtCore/QObject>
#include <QtCore/QString>
#include <QtQml/qqmlregistration.h>

#include <memory>

#include "screens/preview/CommandPreviewSheetModel.h"
#include "screens/run/DirectExecutionSessionViewModel.h"

namespace quillmere {

/// Opens the preview of a command and keeps it, with its run, until both are over. One preview is
/// open at a time; a run whose preview was closed goes on without it until it ends. Owned by
/// `ContentViewModel`; UI thread only.
class CommandWorkflow : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("Made by the main window's view model")
  Q_PROPERTY(quillmere::CommandPreviewSheetModel* preview READ preview NOTIFY previewChanged)
  Q_PROPERTY(quillmere::DirectExecutionSessionViewModel* session READ session NOTIFY sessionChanged)

 public:
  explicit CommandWorkflow(CommandPreviewContext context, QObject* parent = nullptr);
  ~CommandWorkflow() override;

  /// The preview that is open; null when none is.
  [[nodiscard]] CommandPreviewSheetModel* preview() { return preview_.get(); }

  /// The run of the open preview; null until it is started.
  [[nodiscard]] DirectExecutionSessionViewModel* session() { return session_.get(); }

  /// Opens the preview of a command; does nothing while another one is open.
  void openPreview(const BrewCommand& command, const QString& sourceScreen);

 Q_SIGNALS:
  void previewChanged();
  void sessionChanged();
  /// A run has ended that may have changed what is installed.
  void packagesMayHaveChanged();

 private:
  void copy(const BrewCommand& command, const QString& sourceScreen);
  void showSession(DirectExecutionSessionController* controller);
  void closePreview();

  CommandPreviewContext context_;
  // In this order: the session observes the run that the preview owns, and goes first.
  std::unique_ptr<CommandPreviewSheetModel> preview_;
  std::unique_ptr<DirectExecutionSessionViewModel> session_;
};

}  // namespace quillmere
