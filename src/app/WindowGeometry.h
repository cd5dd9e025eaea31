#pragma once

#include <QtCore/QObject>
#include <QtCore/QSettings>
#include <QtCore/QSize>
#include <QtQml/qqmlregistration.h>

#include <memory>

namespace quillmere {

/// How large the main window was when it was last closed while it was shown: of a minimized one
/// nobody knows how it comes back. Owned by `QuillmereApp`; UI thread only.
class WindowGeometry : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("Made by the application")
  Q_PROPERTY(QSize size READ size CONSTANT)
  Q_PROPERTY(QSize minimumSize MEMBER minimumSize CONSTANT)
  Q_PROPERTY(bool maximized READ maximized CONSTANT)

 public:
  /// What the screens can still be read in.
  static constexpr QSize minimumSize{900, 600};

  /// Keeps its values in the group "window" of `settings`.
  explicit WindowGeometry(std::unique_ptr<QSettings> settings, QObject* parent = nullptr);

  /// As it was when this start began; a comfortable size on the first.
  [[nodiscard]] QSize size() const { return size_; }

  [[nodiscard]] bool maximized() const { return maximized_; }

  /// For the next start. A maximized window keeps the size that it had before.
  Q_INVOKABLE void save(const QSize& size, bool maximized);

 private:
  std::unique_ptr<QSettings> settings_;
  QSize size_;
  bool maximized_ = false;
};

}  // namespace quillmere
