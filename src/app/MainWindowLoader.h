#pragma once

#include <QtCore/QVariantMap>
#include <QtQml/QQmlComponent>
#include <QtQml/QQmlEngine>

#include <memory>

class QQuickWindow;

namespace quillmere {

/// The main window's QML files, loaded when this is made: a good part of a start, in which another
/// thread adds the font of the symbols. UI thread only; outlives the window.
class MainWindowLoader {
 public:
  MainWindowLoader();

  /// Makes the window, with `properties` for its required ones. Null where that fails, which the
  /// log explains.
  [[nodiscard]] std::unique_ptr<QQuickWindow> open(const QVariantMap& properties);

 private:
  QQmlEngine engine_;
  QQmlComponent windowFile_{&engine_};
  QQmlComponent firstScreenFile_{&engine_};
};

}  // namespace quillmere
