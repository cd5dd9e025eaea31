#pragma once

#include <QtCore/QObject>
#include <QtCore/QString>
#include <QtQml/qqmlregistration.h>

#include <optional>

#include "screens/settings/HomebrewPrefixSelectionViewModel.h"

namespace quillmere {

class LocalPersistenceStore;

/// What can be asked before the settings take something away.
enum class SettingsConfirmation { resetPrefix, clearCacheMarkers, clearHistory, resetOnboarding };

/// The settings screen: what is stored, the prefix selection and the resets, each behind a
/// confirmation. The settings window and the settings section have one each over the same store, so
/// that a question asked in one is not asked in the other. Owned by the main window's view model;
/// UI thread only.
class SettingsViewModel : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("Made by the main window")
  Q_PROPERTY(
      quillmere::HomebrewPrefixSelectionViewModel* prefixSelection READ prefixSelection CONSTANT)
  Q_PROPERTY(QString lastScanText READ lastScanText NOTIFY lastScanChanged)
  Q_PROPERTY(QString lastRefreshText READ lastRefreshText NOTIFY cacheChanged)
  Q_PROPERTY(bool canClearMetadataCache READ canClearMetadataCache NOTIFY cacheChanged)
  Q_PROPERTY(QString historyCountText READ historyCountText NOTIFY historyCountChanged)
  Q_PROPERTY(QString onboardingCompletedText READ onboardingCompletedText NOTIFY onboardingChanged)
  Q_PROPERTY(bool confirmationPending READ confirmationPending NOTIFY confirmationChanged)
  Q_PROPERTY(QString confirmationTitle READ confirmationTitle NOTIFY confirmationChanged)
  Q_PROPERTY(QString confirmationMessage READ confirmationMessage NOTIFY confirmationChanged)
  Q_PROPERTY(QString confirmTitle READ confirmTitle NOTIFY confirmationChanged)

 public:
  explicit SettingsViewModel(LocalPersistenceStore& store, QObject* parent = nullptr);

  [[nodiscard]] HomebrewPrefixSelectionViewModel* prefixSelection() { return &prefixSelection_; }

  [[nodiscard]] QString lastScanText() const;
  [[nodiscard]] QString lastRefreshText() const;

  /// Whether there is a date or a document to forget. A document counts while it can be read.
  [[nodiscard]] bool canClearMetadataCache() const { return canClearMetadataCache_; }

  [[nodiscard]] QString historyCountText() const;
  [[nodiscard]] QString onboardingCompletedText() const;

  [[nodiscard]] const std::optional<SettingsConfirmation>& confirmation() const {
    return confirmation_;
  }

  [[nodiscard]] bool confirmationPending() const { return confirmation_.has_value(); }

  [[nodiscard]] QString confirmationTitle() const;
  [[nodiscard]] QString confirmationMessage() const;
  [[nodiscard]] QString confirmTitle() const;

  Q_INVOKABLE void askResetPrefix();
  Q_INVOKABLE void askClearCacheMarkers();
  Q_INVOKABLE void askClearHistory();
  Q_INVOKABLE void askResetOnboarding();
  /// Carries out what was asked.
  Q_INVOKABLE void confirm();
  /// Drops the question; nothing changes.
  Q_INVOKABLE void cancel();

  /// Looks at the cache again, which may have been changed without this program.
  Q_INVOKABLE void recheckCache();

 Q_SIGNALS:
  void lastScanChanged();
  void cacheChanged();
  void historyCountChanged();
  void onboardingChanged();
  void confirmationChanged();
  /// What was asked is done; `text` says so.
  void actionCompleted(const QString& text);

 private:
  void setConfirmation(std::optional<SettingsConfirmation> confirmation);

  LocalPersistenceStore& store_;
  HomebrewPrefixSelectionViewModel prefixSelection_;
  bool canClearMetadataCache_ = false;
  std::optional<SettingsConfirmation> confirmation_;
};

}  // namespace quillmere
