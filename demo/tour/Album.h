#pragma once

#include <QtCore/QDir>
#include <QtCore/QString>
#include <QtQuick/QQuickWindow>

namespace quillmere::demo {

/// A folder of numbered pictures, each in light and in dark. One that cannot be taken ends the
/// program with a message that names it.
class Album {
 public:
  /// `place` is the number of the first picture.
  Album(QDir folder, int place) : folder_(std::move(folder)), place_(place) {}

  void take(QQuickWindow& window, const QString& name);

  /// What the next picture is called in messages, for whoever prepares it.
  [[nodiscard]] QString nextName(const QString& name) const;

 private:
  void take(QQuickWindow& window, const QString& name, bool dark) const;

  QDir folder_;
  int place_;
};

}  // namespace quillmere::demo
