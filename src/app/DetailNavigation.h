#pragma once

#include <QtCore/QObject>
#include <QtQml/qqmlregistration.h>

#include <memory>
#include <vector>

#include "screens/package/PackageDetailViewModel.h"

namespace quillmere {

/// The packages that were opened inside a section, one from the other, of which the last is shown
/// over the section. Owned by `ContentViewModel`; UI thread only.
class DetailNavigation : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("Made by the main window's view model")
  Q_PROPERTY(quillmere::PackageDetailViewModel* current READ current NOTIFY currentChanged)

 public:
  using QObject::QObject;
  ~DetailNavigation() override;

  /// Null when the section itself is shown.
  [[nodiscard]] PackageDetailViewModel* current() const;

  void push(std::unique_ptr<PackageDetailViewModel> detail);
  /// Goes back to the package before, or to the section.
  Q_INVOKABLE void back();
  /// Goes back to the section.
  void clear();

 Q_SIGNALS:
  void currentChanged();

 private:
  void retire(std::unique_ptr<PackageDetailViewModel> detail);

  std::vector<std::unique_ptr<PackageDetailViewModel>> details_;
};

}  // namespace quillmere
