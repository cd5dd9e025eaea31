#include "screens/PackageTarget.h"

namespace quillmere {

std::expected<BrewCommandTarget, BrewCommandBuilderError> packageTarget(
    HomebrewPackageSummary::Kind kind, const SharedText& id) {
  const bool isFormula = kind == HomebrewPackageSummary::Kind::formula;
  const QString lead = isFormula ? QStringLiteral("formula:") : QStringLiteral("cask:");
  QString name = id.toString();
  if (name.startsWith(lead)) {
    name.remove(0, lead.size());
  }
  if (!couldBePackage(name)) {
    return std::unexpected(BrewCommandBuilderError{name});
  }
  return BrewCommandTarget{
      .kind = isFormula ? BrewCommandTargetKind::formula : BrewCommandTargetKind::cask,
      .name = name};
}

}  // namespace quillmere
