#pragma once

#include <QtCore/QTemporaryDir>
#include <QtCore/QUrl>

#include <string>
#include <vector>

#include "catalog/HomebrewCask.h"
#include "catalog/HomebrewFormula.h"

namespace quillmere {

/// A prefix with `formulae` kegs, each with one version and its receipt, and a tenth as many
/// casks.
class InstalledPrefix {
 public:
  explicit InstalledPrefix(int formulae);

  /// Made once for each size: making it takes longer than scanning it.
  static const InstalledPrefix& ofSize(int formulae);

  [[nodiscard]] QUrl url() const { return QUrl::fromLocalFile(folder_.path()); }

  [[nodiscard]] const std::vector<HomebrewFormula>& catalog() const { return catalog_; }

  [[nodiscard]] const std::vector<HomebrewCask>& casks() const { return casks_; }

  /// The floor of every scan: the calls to the system that it makes, and hardly more.
  void callTheSystemAlike() const;

 private:
  void makeFolder(const std::string& relativePath) const;
  void makeFile(const std::string& relativePath, const std::string& content) const;

  QTemporaryDir folder_;
  std::string path_ = folder_.path().toStdString();
  std::vector<HomebrewFormula> catalog_;
  std::vector<HomebrewCask> casks_;
};

}  // namespace quillmere
