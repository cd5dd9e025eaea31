#pragma once

#include <QtCore/QObject>
#include <QtQml/qqmlregistration.h>

namespace quillmere {

/// Lets the window's shortcuts work while the item `target` has the keyboard. A text of Qt's that
/// can be read only claims every key for itself, those that it has no use for as well. Made by the
/// text; UI thread only.
class ShortcutPassthrough : public QObject {
  Q_OBJECT
  QML_ELEMENT
  Q_PROPERTY(QObject* target READ target WRITE setTarget NOTIFY targetChanged)

 public:
  using QObject::QObject;

  [[nodiscard]] QObject* target() const { return target_; }

  void setTarget(QObject* target);

  bool eventFilter(QObject* watched, QEvent* event) override;

 Q_SIGNALS:
  void targetChanged();

 private:
  QObject* target_ = nullptr;
};

}  // namespace quillmere
