#include "app/ContentViewModel.h"

#include <utility>

#include "persistence/LocalPersistenceStore.h"

namespace quillmere {

ContentViewModel::ContentViewModel(
    LocalPersistenceStore& store, const AppCapabilities& appCapabilities,
    std::shared_ptr<const DirectCommandExecutionStarting> executionStarter,
    CatalogWorkflows::Clients catalogClients, BrewExecutableResolver resolver, QObject* parent)
    : QObject(parent),
      store_(store),
      appCapabilities_(appCapabilities),
      catalog_(store, std::move(catalogClients)),
      inventory_(store),
      prefixSelection_(store),
      commands_({appCapabilities, store, std::move(resolver), std::move(executionStarter)}),
      dashboard_(store, appCapabilities),
      updates_(previewCallback()),
      cleanup_(previewCallback()),
      services_(previewCallback()),
      history_(store),
      settings_(store),
      settingsWindow_(store) {
  connectCatalog();
  connectInventory();
  connectCommands();
  connectScreens();
  updateBrowse();
  updateInventoryScreens();
}

ContentViewModel::~ContentViewModel() = default;

void ContentViewModel::select(AppSection section) {
  if (selectedSection_ == section) {
    return;
  }
  selectedSection_ = section;
  detailNavigationResetID_ = QUuid::createUuid();
  details_.clear();
  Q_EMIT selectedSectionChanged();
}

int ContentViewModel::selectedIndex() const {
  return selectedSection_ ? static_cast<int>(*selectedSection_) : -1;
}

QString ContentViewModel::selectedSectionName() const {
  return selectedSection_ ? QString(rawValue(*selectedSection_)) : QString();
}

QString ContentViewModel::selectedTitle() const {
  return selectedSection_ ? QString(title(*selectedSection_)) : QString();
}

void ContentViewModel::selectIndex(int index) {
  if (index >= 0 && index < sections_.rowCount()) {
    select(allAppSections[static_cast<std::size_t>(index)]);
  }
}

bool ContentViewModel::showsOnboarding() const {
  return !store_.hasCompletedOnboarding();
}

void ContentViewModel::finishOnboarding() {
  store_.setHasCompletedOnboarding(true);
}

PreviewCallback ContentViewModel::previewCallback() {
  return [this](const BrewCommand& command, const QString& sourceScreen) {
    commands_.openPreview(command, sourceScreen);
  };
}

}  // namespace quillmere
