#include "screens/components/ShortcutPassage.h"

#include <QtCore/QEvent>

namespace quillmere {

void ShortcutPassage::setTarget(QObject* target) {
  if (target_ == target) {
    return;
  }
  target_ = target;
  if (target_ != nullptr) {
    target_->installEventFilter(this);
  }
  Q_EMIT targetChanged();
}

bool ShortcutPassage::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::ShortcutOverride) {
    return QObject::eventFilter(watched, event);
  }
  event->ignore();
  return true;
}

}  // namespace quillmere
