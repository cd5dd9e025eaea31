#pragma once

#include <QtCore/QObject>
#include <QtCore/QString>
#include <QtQml/qqmlregistration.h>

namespace quillmere {

/// What QML cannot ask the desktop itself: the size and the families that all type is made from,
/// and the glyph behind a symbol's name. One per QML engine, owned by it. UI thread only.
class Typeface : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_SINGLETON
  Q_PROPERTY(int bodyPixelSize READ bodyPixelSize CONSTANT)
  Q_PROPERTY(QString family READ family CONSTANT)
  Q_PROPERTY(QString monospacedFamily READ monospacedFamily CONSTANT)
  Q_PROPERTY(QString symbolFamily READ symbolFamily CONSTANT)

 public:
  explicit Typeface(QObject* parent = nullptr);

  /// Adds the font of the symbols, once. The first `Typeface` does it at the latest, and waits
  /// while another thread does. Added before there is a window, the font does not make Qt lay out
  /// all texts a second time. Any thread.
  static void addSymbolFont();

  /// The system font's size, but never so small that it strains the eye.
  [[nodiscard]] int bodyPixelSize() const;
  [[nodiscard]] QString family() const;
  [[nodiscard]] QString monospacedFamily() const;
  [[nodiscard]] QString symbolFamily() const;

  [[nodiscard]] Q_INVOKABLE QString glyph(const QString& symbolName) const;
};

}  // namespace quillmere
