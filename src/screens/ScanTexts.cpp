#include "screens/ScanTexts.h"

namespace quillmere {

QString scanProgressText(const LocalInventoryInputs& inputs) {
  if (inputs.knownPackages == 0) {
    return QStringLiteral("Looking for installed packages...");
  }
  return QStringLiteral("%1 of %2 packages scanned")
      .arg(inputs.scannedPackages)
      .arg(inputs.knownPackages);
}

QString counted(qsizetype count, const QString& noun) {
  return QString::number(count) + u' ' + noun + (count == 1 ? QString() : QStringLiteral("s"));
}

}  // namespace quillmere
