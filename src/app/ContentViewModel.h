#pragma once

#include <QtCore/QObject>
#include <QtCore/QString>
#include <QtCore/QUuid>
#include <QtQml/qqmlregistration.h>

#include <memory>
#include <optional>

#include "app/AppCapabilities.h"
#include "app/AppSection.h"
#include "app/AppSectionListModel.h"
#include "app/CatalogWorkflows.h"
#include "app/CommandWorkflow.h"
#include "app/DetailNavigation.h"
#include "app/InventoryWorkflows.h"
#include "app/PrefixSelectionWorkflow.h"
#include "app/QuitGuard.h"
#include "execution/BrewExecutableResolver.h"
#include "execution/DirectCommandExecution.h"
#include "screens/browse/FormulaCatalogViewModel.h"
#include "screens/cleanup/CleanupGuidanceViewModel.h"
#include "screens/dashboard/DashboardViewModel.h"
#include "screens/history/CommandHistoryViewModel.h"
#include "screens/installed/InstalledPackagesViewModel.h"
#include "screens/package/PackageDetailInputs.h"
#include "screens/services/ServicesGuidanceViewModel.h"
#include "screens/settings/SettingsViewModel.h"
#include "screens/updates/UpdatesViewModel.h"

namespace quillmere {

class LocalPersistenceStore;

/// The state of the windows as a whole: the section that is shown, what is known of the catalog and
/// of the prefix with the workflows that find it out, and the view models of all screens. Owned by
/// `QuillmereApp`; UI thread only.
class ContentViewModel : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("Made by the application")
  Q_PROPERTY(quillmere::AppSectionListModel* sections READ sections CONSTANT)
  Q_PROPERTY(int selectedIndex READ selectedIndex NOTIFY selectedSectionChanged)
  Q_PROPERTY(QString selectedSection READ selectedSectionName NOTIFY selectedSectionChanged)
  Q_PROPERTY(QString selectedTitle READ selectedTitle NOTIFY selectedSectionChanged)
  Q_PROPERTY(quillmere::PrefixSelectionWorkflow* prefixSelection READ prefixSelection CONSTANT)
  Q_PROPERTY(quillmere::DetailNavigation* details READ details CONSTANT)
  Q_PROPERTY(bool showsOnboarding READ showsOnboarding NOTIFY showsOnboardingChanged)
  Q_PROPERTY(quillmere::DashboardViewModel* dashboard READ dashboard CONSTANT)
  Q_PROPERTY(quillmere::InstalledPackagesViewModel* installed READ installed CONSTANT)
  Q_PROPERTY(quillmere::FormulaCatalogViewModel* browse READ browse CONSTANT)
  Q_PROPERTY(quillmere::UpdatesViewModel* updates READ updates CONSTANT)
  Q_PROPERTY(quillmere::CleanupGuidanceViewModel* cleanup READ cleanup CONSTANT)
  Q_PROPERTY(quillmere::ServicesGuidanceViewModel* services READ services CONSTANT)
  Q_PROPERTY(quillmere::CommandHistoryViewModel* history READ history CONSTANT)
  Q_PROPERTY(quillmere::SettingsViewModel* settings READ settings CONSTANT)
  Q_PROPERTY(quillmere::SettingsViewModel* settingsWindow READ settingsWindow CONSTANT)
  Q_PROPERTY(quillmere::CommandWorkflow* commands READ commands CONSTANT)
  Q_PROPERTY(quillmere::QuitGuard* quitGuard READ quitGuard CONSTANT)

 public:
  ContentViewModel(LocalPersistenceStore& store, const AppCapabilities& appCapabilities,
                   std::shared_ptr<const DirectCommandExecutionStarting> executionStarter,
                   CatalogWorkflows::Clients catalogClients,
                   BrewExecutableResolver resolver = BrewExecutableResolver(),
                   QObject* parent = nullptr);
  ~ContentViewModel() override;

  [[nodiscard]] const AppCapabilities& appCapabilities() const { return appCapabilities_; }

  [[nodiscard]] const std::optional<AppSection>& selectedSection() const {
    return selectedSection_;
  }

  void select(AppSection section);

  /// New whenever another section is selected: what was opened inside the one before is gone.
  [[nodiscard]] const QUuid& detailNavigationResetID() const { return detailNavigationResetID_; }

  [[nodiscard]] CatalogWorkflows& catalog() { return catalog_; }

  [[nodiscard]] InventoryWorkflows& inventory() { return inventory_; }

  [[nodiscard]] PrefixSelectionWorkflow* prefixSelection() { return &prefixSelection_; }

  [[nodiscard]] AppSectionListModel* sections() { return &sections_; }

  /// The selected row of the sidebar; -1 for none.
  [[nodiscard]] int selectedIndex() const;
  [[nodiscard]] QString selectedSectionName() const;
  [[nodiscard]] QString selectedTitle() const;

  /// The packages that are open over the selected section.
  [[nodiscard]] DetailNavigation* details() { return &details_; }

  /// Whether the first steps are to be shown.
  [[nodiscard]] bool showsOnboarding() const;

  [[nodiscard]] DashboardViewModel* dashboard() { return &dashboard_; }

  [[nodiscard]] InstalledPackagesViewModel* installed() { return &installed_; }

  [[nodiscard]] FormulaCatalogViewModel* browse() { return &browse_; }

  [[nodiscard]] UpdatesViewModel* updates() { return &updates_; }

  [[nodiscard]] CleanupGuidanceViewModel* cleanup() { return &cleanup_; }

  [[nodiscard]] ServicesGuidanceViewModel* services() { return &services_; }

  [[nodiscard]] CommandHistoryViewModel* history() { return &history_; }

  /// The settings as a section of the main window, and those of the settings window.
  [[nodiscard]] SettingsViewModel* settings() { return &settings_; }

  [[nodiscard]] SettingsViewModel* settingsWindow() { return &settingsWindow_; }

  [[nodiscard]] CommandWorkflow* commands() { return &commands_; }

  [[nodiscard]] QuitGuard* quitGuard() { return &quitGuard_; }

  /// Selects the section in this row of the sidebar; does nothing for a row that is none.
  Q_INVOKABLE void selectIndex(int index);

  /// The user has seen the first steps.
  Q_INVOKABLE void finishOnboarding();

 Q_SIGNALS:
  void selectedSectionChanged();
  void showsOnboardingChanged();
  /// The catalog, the inventory or their dates say something else now.
  void knowledgeChanged();

 private:
  void connectCatalog();
  void connectInventory();
  void connectCommands();
  void connectInventoryScreen(LocalInventoryViewModel& screen);
  void connectScreens();
  void updateBrowse();
  void updateInventoryScreens();
  void updateSidebarCounts();
  [[nodiscard]] LocalInventoryInputs inventoryInputs() const;
  [[nodiscard]] PackageDetailContext detailContext() const;
  void openCatalogPackage(const HomebrewPackageSummary& package);
  void openInstalledPackage(const InstalledPackageSummary& package);
  void openFormula(PackageDetailViewModel& from, const QString& name);
  void openDetail(const HomebrewPackageSummary& package, PackageDetailOrigin origin);
  [[nodiscard]] PreviewCallback previewCallback();

  LocalPersistenceStore& store_;
  AppCapabilities appCapabilities_;
  std::optional<AppSection> selectedSection_ = AppSection::dashboard;
  QUuid detailNavigationResetID_ = QUuid::createUuid();
  CatalogWorkflows catalog_;
  InventoryWorkflows inventory_;
  PrefixSelectionWorkflow prefixSelection_;
  CommandWorkflow commands_;
  AppSectionListModel sections_;
  DetailNavigation details_;
  DashboardViewModel dashboard_;
  InstalledPackagesViewModel installed_;
  FormulaCatalogViewModel browse_;
  UpdatesViewModel updates_;
  CleanupGuidanceViewModel cleanup_;
  ServicesGuidanceViewModel services_;
  CommandHistoryViewModel history_;
  SettingsViewModel settings_;
  SettingsViewModel settingsWindow_;
  QuitGuard quitGuard_;
};

}  // namespace quillmere
