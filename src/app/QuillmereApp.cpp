#include "app/QuillmereApp.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QVariantMap>
#include <QtNetwork/QNetworkProxyFactory>
#include <QtQuick/QQuickWindow>
#include <QtQuickControls2/QQuickStyle>

#include <memory>

#include "execution/DirectCommandRunner.h"

namespace quillmere {

void QuillmereApp::prepare() {
  QCoreApplication::setOrganizationName(QStringLiteral("Quillmere"));
  QCoreApplication::setApplicationName(QStringLiteral("Quillmere"));
  QNetworkProxyFactory::setUseSystemConfiguration(true);
  // The look is ours: a style named in the environment must not mix with it.
  QQuickStyle::setStyle(QStringLiteral("Basic"));
  QQuickWindow::setTextRenderType(QQuickWindow::NativeTextRendering);
}

QuillmereApp::QuillmereApp()
    : localPersistenceStore_(std::make_unique<QSettings>()),
      windowMemory_(std::make_unique<QSettings>()),
      content_(localPersistenceStore_, AppCapabilities::all(),
               std::make_shared<DirectCommandRunner>(),
               {.formulae = {.session = &session_}, .casks = {.session = &session_}}) {
  engine_.addImportPath(QStringLiteral("qrc:/qt/qml"));
}

bool QuillmereApp::open() {
  engine_.setInitialProperties({{QStringLiteral("content"), QVariant::fromValue(&content_)},
                                {QStringLiteral("memory"), QVariant::fromValue(&windowMemory_)}});
  engine_.load(QUrl(QStringLiteral("qrc:/qt/qml/Quillmere/App/MainWindow.qml")));
  return !engine_.rootObjects().isEmpty();
}

}  // namespace quillmere
