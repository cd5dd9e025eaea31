#include "app/QuillmereApp.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QVariantMap>
#include <QtGui/QGuiApplication>
#include <QtNetwork/QNetworkProxyFactory>
#include <QtQuick/QQuickWindow>
#include <QtQuickControls2/QQuickStyle>

#include <memory>
#include <utility>

#include "execution/DirectCommandRunner.h"

namespace quillmere {

void QuillmereApp::prepare() {
  QCoreApplication::setOrganizationName(QStringLiteral("Quillmere"));
  QCoreApplication::setApplicationName(QStringLiteral("Quillmere"));
  QCoreApplication::setApplicationVersion(QStringLiteral(QUILLMERE_VERSION));
  // By this a Wayland desktop finds our icon and name.
  QGuiApplication::setDesktopFileName(QStringLiteral("example.quillmere.Quillmere"));
  QNetworkProxyFactory::setUseSystemConfiguration(true);
  // The look is ours: a style named in the environment must not mix with it.
  QQuickStyle::setStyle(QStringLiteral("Basic"));
  QQuickWindow::setTextRenderType(QQuickWindow::NativeTextRendering);
}

QuillmereApp::QuillmereApp(AppEnvironment surroundings)
    : settingsReader_([settings = surroundings.settings] { (void)settings()->allKeys(); }),
      localPersistenceStore_(surroundings.settings(), std::move(surroundings.cacheDirectoryURL)),
      windowMemory_(surroundings.settings()),
      content_(localPersistenceStore_, AppCapabilities::all(),
               std::make_shared<DirectCommandRunner>(),
               {.formulae = {.apiURL = std::move(surroundings.formulaeURL), .session = &session_},
                .casks = {.apiURL = std::move(surroundings.casksURL), .session = &session_}},
               std::move(surroundings.resolver)) {
  // Another window of the program may have added records meanwhile.
  QObject::connect(qGuiApp, &QGuiApplication::applicationStateChanged, &localPersistenceStore_,
                   [this](Qt::ApplicationState state) {
                     if (state == Qt::ApplicationActive) {
                       localPersistenceStore_.refreshHistory();
                     }
                   });
}

QuillmereApp::~QuillmereApp() = default;

bool QuillmereApp::open() {
  window_ = windowLoader_.open({{QStringLiteral("content"), QVariant::fromValue(&content_)},
                                {QStringLiteral("geometry"), QVariant::fromValue(&windowMemory_)}});
  return window_ != nullptr;
}

}  // namespace quillmere
