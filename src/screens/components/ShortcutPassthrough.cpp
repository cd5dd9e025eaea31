#include "screens/components/ShortcutPassthrough.h"

#include <QtCore/QEvent>

namespace quillmere {

void ShortcutPassthrough::setTarget(QObject* target) {
  if (target_ == target) {
    return;
  }
  target_ = target;
  if (target_ != nullptr) {
    target_->installEventFilter(this);
  }
  Q_EMIT targetChanged();
}

bool ShortcutPassthrough::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::ShortcutOverride) {
    return QObject::eventFilter(watched, event);
  }
  event->ignore();
  return true;
}

}  // namespace quillmere
