#include "app/ContentViewModel.h"

#include <QtGui/QClipboard>
#include <QtGui/QGuiApplication>

#include <utility>

#include "commands/PreparedCommandAction.h"
#include "persistence/LocalPersistenceStore.h"

namespace quillmere {

ContentViewModel::ContentViewModel(
    LocalPersistenceStore& store, const AppCapabilities& appCapabilities,
    std::shared_ptr<const DirectCommandExecutionStarting> executionStarter,
    CatalogWorkflows::Clients catalogClients, BrewExecutableResolver resolver, QObject* parent)
    : QObject(parent),
      store_(store),
      appCapabilities_(appCapabilities),
      executionStarter_(std::move(executionStarter)),
      resolver_(std::move(resolver)),
      catalog_(store, std::move(catalogClients)),
      inventory_(store),
      prefixSelection_(store),
      dashboard_(store, appCapabilities),
      updates_(previewRequest()),
      cleanup_(previewRequest()),
      services_(previewRequest()),
      history_(store),
      settings_(store),
      settingsWindow_(store) {
  connectCatalog();
  connectInventory();
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

PreviewRequest ContentViewModel::previewRequest() {
  return [this](const BrewCommand& command, const QString& sourceScreen) {
    openPreview(command, sourceScreen);
  };
}

void ContentViewModel::openPreview(const BrewCommand& command, const QString& sourceScreen) {
  if (preview_) {
    return;
  }
  preview_ = std::make_unique<CommandPreviewSheetModel>(
      CommandPreviewContext{appCapabilities_, store_, resolver_, executionStarter_}, command,
      sourceScreen, [this, command, sourceScreen] { copy(command, sourceScreen); });
  connect(preview_.get(), &CommandPreviewSheetModel::closed, this, &ContentViewModel::closePreview);
  if (command.riskLevel != BrewCommandRiskLevel::informational) {
    connect(preview_.get(), &CommandPreviewSheetModel::runEnded, &inventory_,
            &InventoryWorkflows::noteRun);
  }
  quitGuard_.watch(preview_.get());
  Q_EMIT previewChanged();
}

void ContentViewModel::closePreview() {
  CommandPreviewSheetModel* closed = preview_.release();
  Q_EMIT previewChanged();
  if (closed->isRunning()) {
    // A run that was asked to end and does not is left to itself, but its end is still recorded.
    closed->setParent(this);
    connect(closed, &CommandPreviewSheetModel::runEnded, closed, &QObject::deleteLater);
  } else {
    closed->deleteLater();
  }
}

void ContentViewModel::copy(const BrewCommand& command, const QString& sourceScreen) {
  const PreparedCommandAction action =
      PreviewOnlyCommandRunner().prepare(command, sourceScreen, QDateTime::currentDateTimeUtc());
  QClipboard* clipboard = QGuiApplication::clipboard();
  clipboard->clear();
  clipboard->setText(action.commandText);
  store_.appendHistory(action.historyRecord);
}

}  // namespace quillmere
