#pragma once

#include <QtCore/QUrl>
#include <QtNetwork/QNetworkAccessManager>
#include <QtQml/QQmlApplicationEngine>

#include "app/ContentViewModel.h"
#include "app/WindowMemory.h"
#include "persistence/LocalPersistenceStore.h"

namespace quillmere {

/// The program: the one store that all windows share, what this build may do, and the windows.
/// Lives on the stack of `main`; UI thread only.
class QuillmereApp {
 public:
  /// Names the program and fixes its look; before the application object is made.
  static void prepare();

  QuillmereApp();

  /// Opens the main window. Returns whether there is one.
  [[nodiscard]] bool open();

 private:
  LocalPersistenceStore localPersistenceStore_;
  WindowMemory windowMemory_;
  QNetworkAccessManager session_;
  ContentViewModel content_;
  QQmlApplicationEngine engine_;
};

}  // namespace quillmere
