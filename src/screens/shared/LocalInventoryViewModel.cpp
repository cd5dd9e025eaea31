#include "screens/shared/LocalInventoryViewModel.h"

#include <utility>
#include <variant>

#include "platform/SanitizedText.h"

namespace quillmere {

QString rescanWarning(const LocalInventoryInputs& inputs, bool usesCatalog) {
  if (inputs.needsRescan) {
    return QStringLiteral("A command ran since this scan");
  }
  return inputs.isCatalogNewer && usesCatalog
             ? QStringLiteral("A newer catalog was fetched since this scan")
             : QString();
}

LocalInventoryViewModel::LocalInventoryViewModel(Clock clock, QObject* parent)
    : QObject(parent), clock_(std::move(clock)) {
}

void LocalInventoryViewModel::setInputs(const LocalInventoryInputs& inputs) {
  const LocalInventoryInputs previous = std::exchange(inputs_, inputs);
  applyInputs(previous);
  notifyChanges();
}

LocalInventoryViewModel::Phase LocalInventoryViewModel::phase() const {
  static_assert(std::variant_size_v<decltype(inputs_.state.value)> == Failed + 1);
  return static_cast<Phase>(inputs_.state.value.index());
}

QString LocalInventoryViewModel::rescanWarning() const {
  return quillmere::rescanWarning(inputs_, usesCatalog());
}

QString LocalInventoryViewModel::accessProblemText() const {
  return phase() == AccessNeeded && inputs_.selectedPrefixPath && !inputs_.accessProblem.isEmpty()
             ? QStringLiteral("Selected prefix: %1. %2")
                   .arg(sanitizedText(*inputs_.selectedPrefixPath), inputs_.accessProblem)
             : QString();
}

bool LocalInventoryViewModel::needsPrefix() const {
  return phase() == Idle && !inputs_.selectedPrefixPath;
}

QString LocalInventoryViewModel::progressText() const {
  return phase() == Loading && inputs_.totalPackages > 0
             ? QStringLiteral("%1 of %2 packages scanned")
                   .arg(QString::number(inputs_.scannedPackages),
                        QString::number(inputs_.totalPackages))
             : QString();
}

double LocalInventoryViewModel::progressFraction() const {
  return phase() == Loading && inputs_.totalPackages > 0
             ? static_cast<double>(inputs_.scannedPackages) / inputs_.totalPackages
             : -1;
}

const QString& LocalInventoryViewModel::failure() const {
  return std::get<InstalledPackagesState::Failed>(inputs_.state.value).message;
}

/// Empty where nothing came about.
QString LocalInventoryViewModel::spokenState() const {
  switch (phase()) {
    case Loading:
      return title();
    case Loaded:
      return spokenResult();
    case Failed:
      return title() + QStringLiteral(". ") + text();
    case Idle:
    case AccessNeeded:
      break;
  }
  return {};
}

void LocalInventoryViewModel::notifyChanges() {
  Q_EMIT changed();
  const QString spoken = spokenState();
  if (spoken_.accept(spoken)) {
    Q_EMIT announced(spoken);
  }
}

}  // namespace quillmere
