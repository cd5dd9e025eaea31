#pragma once

#include <QtQml/qqmlregistration.h>
#include <QtQuick/QQuickItem>

namespace quillmere {

/// Lets the window's shortcuts work while `target` has the keyboard. A text of Qt's that can be
/// read only claims every key for itself, those that it has no use for as well. Made by the text;
/// UI thread only.
class ShortcutPassage : public QObject {
  Q_OBJECT
  QML_ELEMENT
  Q_PROPERTY(QQuickItem* target READ target WRITE setTarget NOTIFY targetChanged)

 public:
  using QObject::QObject;

  [[nodiscard]] QQuickItem* target() const { return target_; }

  void setTarget(QQuickItem* target);

  bool eventFilter(QObject* watched, QEvent* event) override;

 Q_SIGNALS:
  void targetChanged();

 private:
  QQuickItem* target_ = nullptr;
};

}  // namespace quillmere
