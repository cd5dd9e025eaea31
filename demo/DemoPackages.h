#pragma once

#include <QtCore/QString>
#include <QtCore/QUrl>

#include "screens/package/PackageDetailViewModel.h"
#include "screens/shared/LocalInventoryInputs.h"

namespace quillmere::demo {

/// What the screens of the inventory are given in a scene: "idle", "idle-prefix", "access",
/// "away" (a prefix that cannot be read), "looking", "scanning", "failed", "empty", "current",
/// "review", "updates", "many" (five thousand packages), "long" (texts without an end, in several
/// scripts).
[[nodiscard]] LocalInventoryInputs demoInventory(const QString& scene, const QUrl& prefix);

/// What a package's page is given in a scene: "formula", "installed", "cask", "installed-cask",
/// "many" (61 dependencies and 745 dependants), "long", "right-to-left", "refused" (a name that can
/// stand in no command), "bare" (nothing but a name).
[[nodiscard]] PackageDetailViewModel::Inputs demoPackage(const QString& scene);

}  // namespace quillmere::demo
