#include "app/WindowGeometry.h"

#include <utility>

namespace quillmere {
namespace {

constexpr QSize firstSize(1120, 760);

QString sizeKey() {
  return QStringLiteral("window/size");
}

QString maximizedKey() {
  return QStringLiteral("window/maximized");
}

}  // namespace

WindowGeometry::WindowGeometry(std::unique_ptr<QSettings> settings, QObject* parent)
    : QObject(parent),
      settings_(std::move(settings)),
      size_(settings_->value(sizeKey(), firstSize).toSize().expandedTo(minimumSize)),
      maximized_(settings_->value(maximizedKey(), false).toBool()) {
}

void WindowGeometry::save(const QSize& size, bool maximized) {
  if (!maximized) {
    settings_->setValue(sizeKey(), size);
  }
  settings_->setValue(maximizedKey(), maximized);
  settings_->sync();
}

}  // namespace quillmere
