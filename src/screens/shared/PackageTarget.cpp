#include "screens/shared/PackageTarget.h"

namespace quillmere {

std::expected<BrewCommandTarget, BrewCommandBuilderError> packageTarget(
    HomebrewPackageSummary::Kind kind, const SharedText& id) {
  const QString name = QString::fromUtf8(nameInPackageId(kind, id));
  if (!isPlausiblePackageName(name)) {
    return std::unexpected(BrewCommandBuilderError{name});
  }
  return BrewCommandTarget{.kind = kind == HomebrewPackageSummary::Kind::formula
                                       ? BrewCommandTargetKind::formula
                                       : BrewCommandTargetKind::cask,
                           .name = name};
}

}  // namespace quillmere
