#include "screens/settings/SettingsViewModel.h"

#include <QtCore/QLatin1StringView>

#include <array>

#include "persistence/LocalPersistenceStore.h"
#include "platform/DateTexts.h"

using namespace Qt::StringLiterals;

namespace quillmere {
namespace {

struct ConfirmationTexts {
  QLatin1StringView title;
  QLatin1StringView message;
  QLatin1StringView confirmTitle;
  QLatin1StringView done;
  void (LocalPersistenceStore::*action)() = nullptr;
};

// In the order of the cases.
constexpr std::array confirmationTexts = {
    ConfirmationTexts{"Reset Homebrew Prefix?"_L1,
                      "Quillmere will forget the selected prefix path and local scan marker. It "
                      "will not change Homebrew files."_L1,
                      "Reset Prefix"_L1, "Homebrew prefix reset"_L1,
                      &LocalPersistenceStore::resetPrefix},
    ConfirmationTexts{"Clear Metadata Cache?"_L1,
                      "Quillmere will remove locally cached catalog metadata and freshness "
                      "markers. It will not change Homebrew files."_L1,
                      "Clear Cache"_L1, "Metadata cache cleared"_L1,
                      &LocalPersistenceStore::clearCacheMarkers},
    ConfirmationTexts{"Clear Command History?"_L1,
                      "Quillmere will remove locally stored command history records."_L1,
                      "Clear History"_L1, "Command history cleared"_L1,
                      &LocalPersistenceStore::clearHistory},
    ConfirmationTexts{"Reset Onboarding?"_L1,
                      "Quillmere will show onboarding again the next time the main window is "
                      "active."_L1,
                      "Reset Onboarding"_L1, "Onboarding reset"_L1,
                      &LocalPersistenceStore::resetOnboarding},
};

const ConfirmationTexts& textsOf(SettingsConfirmation confirmation) {
  return confirmationTexts[static_cast<std::size_t>(confirmation)];
}

QString dateOrNever(const std::optional<QDateTime>& date) {
  return date ? dateText(*date) : QStringLiteral("Never");
}

}  // namespace

SettingsViewModel::SettingsViewModel(LocalPersistenceStore& store, QObject* parent)
    : QObject(parent), store_(store), prefixSelection_(store) {
  connect(&store_, &LocalPersistenceStore::localInventoryLastScanDateChanged, this,
          &SettingsViewModel::lastScanChanged);
  connect(&store_, &LocalPersistenceStore::catalogLastRefreshDateChanged, this,
          &SettingsViewModel::recheckCache);
  connect(&store_, &LocalPersistenceStore::catalogCacheChanged, this,
          &SettingsViewModel::recheckCache);
  connect(&store_, &LocalPersistenceStore::commandHistoryChanged, this,
          &SettingsViewModel::historyCountChanged);
  connect(&store_, &LocalPersistenceStore::hasCompletedOnboardingChanged, this,
          &SettingsViewModel::onboardingChanged);
  recheckCache();
}

QString SettingsViewModel::lastScanText() const {
  return dateOrNever(store_.localInventoryLastScanDate());
}

QString SettingsViewModel::lastRefreshText() const {
  return dateOrNever(store_.catalogLastRefreshDate());
}

QString SettingsViewModel::historyCountText() const {
  return QString::number(store_.commandHistory().size());
}

QString SettingsViewModel::onboardingCompletedText() const {
  return store_.hasCompletedOnboarding() ? QStringLiteral("Yes") : QStringLiteral("No");
}

void SettingsViewModel::recheckCache() {
  canClearMetadataCache_ =
      store_.catalogLastRefreshDate().has_value() || store_.hasReadableCatalogCache();
  Q_EMIT cacheChanged();
}

QString SettingsViewModel::confirmationTitle() const {
  return confirmation_ ? QString(textsOf(*confirmation_).title) : QString();
}

QString SettingsViewModel::confirmationMessage() const {
  return confirmation_ ? QString(textsOf(*confirmation_).message) : QString();
}

QString SettingsViewModel::confirmTitle() const {
  return confirmation_ ? QString(textsOf(*confirmation_).confirmTitle) : QString();
}

void SettingsViewModel::askResetPrefix() {
  setConfirmation(SettingsConfirmation::resetPrefix);
}

void SettingsViewModel::askClearCacheMarkers() {
  setConfirmation(SettingsConfirmation::clearCacheMarkers);
}

void SettingsViewModel::askClearHistory() {
  setConfirmation(SettingsConfirmation::clearHistory);
}

void SettingsViewModel::askResetOnboarding() {
  setConfirmation(SettingsConfirmation::resetOnboarding);
}

void SettingsViewModel::confirm() {
  if (!confirmation_) {
    return;
  }
  const SettingsConfirmation confirmed = *confirmation_;
  setConfirmation(std::nullopt);
  (store_.*textsOf(confirmed).action)();
  Q_EMIT actionCompleted(textsOf(confirmed).done);
}

void SettingsViewModel::cancel() {
  setConfirmation(std::nullopt);
}

void SettingsViewModel::setConfirmation(std::optional<SettingsConfirmation> confirmation) {
  if (confirmation_ == confirmation) {
    return;
  }
  confirmation_ = confirmation;
  Q_EMIT confirmationChanged();
}

}  // namespace quillmere
