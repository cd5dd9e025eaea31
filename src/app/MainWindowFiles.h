#pragma once

#include <QtCore/QVariantMap>
#include <QtQml/QQmlComponent>
#include <QtQml/QQmlEngine>

#include <memory>

class QQuickWindow;

namespace quillmere {

/// The main window's QML files. They are loaded when this is made, which takes a good part of a
/// start; what is read from the disk meanwhile is read by other threads. UI thread only; outlives
/// the window.
class MainWindowFiles {
 public:
  MainWindowFiles();

  /// Makes the window, with `properties` for its required ones. Null where that fails, which the
  /// log explains.
  [[nodiscard]] std::unique_ptr<QQuickWindow> open(const QVariantMap& properties);

 private:
  QQmlEngine engine_;
  QQmlComponent window_{&engine_};
  QQmlComponent firstScreen_{&engine_};
};

}  // namespace quillmere
