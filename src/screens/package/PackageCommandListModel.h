#pragma once

#include <QtCore/QAbstractListModel>
#include <QtQml/qqmlregistration.h>

#include <vector>

#include "catalog/HomebrewPackageSummary.h"
#include "commands/BrewCommand.h"

namespace quillmere {

/// A command that is offered for a package, and how its button looks.
struct PackageCommand {
  QString title;
  QString symbolName;
  BrewCommand command;
};

/// The commands for a formula or a cask, in the order of their buttons; none for what cannot be the
/// name of a package. Pure but for the commands' fresh ids.
[[nodiscard]] std::vector<PackageCommand> packageCommands(HomebrewPackageSummary::Kind kind,
                                                          const SharedText& id);

/// The buttons of those commands; they never change. Owned by `PackageDetailViewModel`; UI thread
/// only.
class PackageCommandListModel : public QAbstractListModel {
  Q_OBJECT
  QML_ANONYMOUS

 public:
  enum Role {
    TitleRole = Qt::UserRole,
    SymbolNameRole,
    AccessibleLabelRole,
    HintRole,
    DestructiveRole,
  };

  explicit PackageCommandListModel(std::vector<PackageCommand> commands, QObject* parent = nullptr);

  [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
  [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

  /// The command of a row; null where there is no such row.
  [[nodiscard]] const BrewCommand* command(int row) const;

 private:
  std::vector<PackageCommand> commands_;
};

}  // namespace quillmere
