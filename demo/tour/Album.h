#pragma once

#include <QtCore/QDir>
#include <QtCore/QString>
#include <QtQuick/QQuickWindow>

#include <stdexcept>
#include <utility>

namespace quillmere::demo {

/// Why a tour cannot go on, for people to read. Thrown, so that every window and every temporary
/// folder on the way is put away; the tour's main function alone catches it.
class TourError : public std::runtime_error {
 public:
  explicit TourError(const QString& message) : std::runtime_error(message.toStdString()) {}
};

/// A folder of numbered pictures, each in light and in dark. One that cannot be taken ends the tour
/// with a message that names it.
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
