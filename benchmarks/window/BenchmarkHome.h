#pragma once

#include "RealCatalog.h"
#include "app/QuillmereApp.h"
#include "support/TemporarySettings.h"

namespace quillmere {

/// What somebody has on the disk who has used the program before, for one window at a time.
class BenchmarkHome {
 public:
  BenchmarkHome();

  /// The catalog's documents as they were downloaded.
  void keepCatalog(const CatalogBytes& documents) const;
  void keepHistory(const CommandHistory& history) const;
  void keepPrefix(const QUrl& prefix) const;

  /// The file of a document that was kept.
  [[nodiscard]] QString formulaFile() const;
  [[nodiscard]] QString caskFile() const;

  [[nodiscard]] AppEnvironment surroundings() const;

 private:
  test::TemporarySettings settings_;
};

}  // namespace quillmere
