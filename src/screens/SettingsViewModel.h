#pragma once

#include <QtCore/QObject>
#include <QtCore/QString>
#include <QtQml/qqmlregistration.h>

#include <optional>

#include "screens/HomebrewPrefixSelectionViewModel.h"

namespace quillmere {

class LocalPersistenceStore;

/// What can be asked before the settings take something away.
enum class SettingsConfirmation { resetPrefix };

/// The settings screen: the prefix selection and the resets, each behind a confirmation. The
/// settings window and the settings section have one each over the same store, so that a question
/// asked in one is not asked in the other. Owned by the main window's view model; UI thread only.
class SettingsViewModel : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("Made by the main window")
  Q_PROPERTY(
      quillmere::HomebrewPrefixSelectionViewModel* prefixSelection READ prefixSelection CONSTANT)
  Q_PROPERTY(bool confirmationPending READ confirmationPending NOTIFY confirmationChanged)
  Q_PROPERTY(QString confirmationTitle READ confirmationTitle NOTIFY confirmationChanged)
  Q_PROPERTY(QString confirmationMessage READ confirmationMessage NOTIFY confirmationChanged)
  Q_PROPERTY(QString confirmTitle READ confirmTitle NOTIFY confirmationChanged)

 public:
  explicit SettingsViewModel(LocalPersistenceStore& store, QObject* parent = nullptr);

  [[nodiscard]] HomebrewPrefixSelectionViewModel* prefixSelection() { return &prefixSelection_; }

  [[nodiscard]] const std::optional<SettingsConfirmation>& confirmation() const {
    return confirmation_;
  }

  [[nodiscard]] bool confirmationPending() const { return confirmation_.has_value(); }

  [[nodiscard]] QString confirmationTitle() const;
  [[nodiscard]] QString confirmationMessage() const;
  [[nodiscard]] QString confirmTitle() const;

  Q_INVOKABLE void askResetPrefix();
  /// Carries out what was asked.
  Q_INVOKABLE void confirm();
  /// Drops the question; nothing changes.
  Q_INVOKABLE void cancel();

 Q_SIGNALS:
  void confirmationChanged();

 private:
  void setConfirmation(std::optional<SettingsConfirmation> confirmation);

  LocalPersistenceStore& store_;
  HomebrewPrefixSelectionViewModel prefixSelection_;
  std::optional<SettingsConfirmation> confirmation_;
};

}  // namespace quillmere
