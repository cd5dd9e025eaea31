#include "screens/SettingsViewModel.h"

#include <QtCore/QLatin1StringView>

#include <array>

#include "persistence/LocalPersistenceStore.h"

using namespace Qt::StringLiterals;

namespace quillmere {
namespace {

struct ConfirmationTexts {
  QLatin1StringView title;
  QLatin1StringView message;
  QLatin1StringView confirmTitle;
  void (LocalPersistenceStore::*action)() = nullptr;
};

// In the order of the cases.
constexpr std::array confirmationTexts = {
    ConfirmationTexts{"Reset Homebrew Prefix?"_L1,
                      "Quillmere will forget the selected prefix path and local scan marker. It "
                      "will not change Homebrew files."_L1,
                      "Reset Prefix"_L1, &LocalPersistenceStore::resetPrefix},
};

const ConfirmationTexts& textsOf(SettingsConfirmation confirmation) {
  return confirmationTexts[static_cast<std::size_t>(confirmation)];
}

}  // namespace

SettingsViewModel::SettingsViewModel(LocalPersistenceStore& store, QObject* parent)
    : QObject(parent), store_(store), prefixSelection_(store) {
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

void SettingsViewModel::confirm() {
  if (!confirmation_) {
    return;
  }
  const SettingsConfirmation confirmed = *confirmation_;
  setConfirmation(std::nullopt);
  (store_.*textsOf(confirmed).action)();
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
