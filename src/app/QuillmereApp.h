#pragma once

#include <QtCore/QUrl>
#include <QtNetwork/QNetworkAccessManager>

#include <functional>
#include <memory>
#include <thread>

#include "app/ContentViewModel.h"
#include "app/MainWindowLoader.h"
#include "app/WindowGeometry.h"
#include "persistence/LocalPersistenceStore.h"

class QQuickWindow;

namespace quillmere {

/// What the program works with; by default what it finds on the machine.
struct AppEnvironment {
  /// Opens the settings: on the UI thread once for each that remembers something, and once on
  /// another thread, which reads them ahead.
  std::function<std::unique_ptr<QSettings>()> settings = [] {
    return std::make_unique<QSettings>();
  };
  QUrl cacheDirectoryURL = LocalPersistenceStore::defaultCacheDirectoryURL();
  QUrl formulaeURL = HomebrewFormulaMetadataClient::defaultApiURL();
  QUrl casksURL = HomebrewCaskMetadataClient::defaultApiURL();
  BrewExecutableResolver resolver{platformFileSystem()};
};

/// The program: the one store that all windows share, what this build may do, and the windows.
/// Lives on the stack of `main`; UI thread only.
class QuillmereApp {
 public:
  /// Names the program and fixes its look; before the application object is made.
  static void prepare();

  explicit QuillmereApp(AppEnvironment surroundings = AppEnvironment());
  ~QuillmereApp();

  Q_DISABLE_COPY_MOVE(QuillmereApp)

  /// Opens the main window. Returns whether there is one.
  [[nodiscard]] bool open();

  [[nodiscard]] LocalPersistenceStore& store() { return localPersistenceStore_; }

  [[nodiscard]] ContentViewModel& content() { return content_; }

  /// The main window; null until it is open.
  [[nodiscard]] QQuickWindow* window() const { return window_.get(); }

 private:
  /// Reads the settings ahead, in which there may be a long history, while the window's files load.
  /// Whoever opens them next shares what was read, or waits until it is.
  std::jthread settingsReader_;
  MainWindowLoader windowLoader_;
  LocalPersistenceStore localPersistenceStore_;
  WindowGeometry windowMemory_;
  QNetworkAccessManager session_;
  ContentViewModel content_;
  std::unique_ptr<QQuickWindow> window_;
};

}  // namespace quillmere
