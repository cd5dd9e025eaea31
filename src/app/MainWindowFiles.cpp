#include "app/MainWindowFiles.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDebug>
#include <QtQuick/QQuickWindow>

#include "platform/BackgroundThreads.h"
#include "screens/components/Typeface.h"

namespace quillmere {
namespace {

QUrl qmlFile(const QString& name) {
  return QUrl(QStringLiteral("qrc:/qt/qml/Quillmere/") + name);
}

}  // namespace

MainWindowFiles::MainWindowFiles() {
  backgroundThreads()->start(&Typeface::addSymbolFont);
  QObject::connect(&engine_, &QQmlEngine::quit, qApp, &QCoreApplication::quit,
                   Qt::QueuedConnection);
  engine_.addImportPath(QStringLiteral("qrc:/qt/qml"));
  window_.loadUrl(qmlFile(QStringLiteral("App/MainWindow.qml")));
  // The engine's thread goes on with the first screen while the window around it is made.
  firstScreen_.loadUrl(qmlFile(QStringLiteral("Screens/DashboardView.qml")),
                       QQmlComponent::Asynchronous);
}

std::unique_ptr<QQuickWindow> MainWindowFiles::open(const QVariantMap& properties) {
  std::unique_ptr<QObject> window(window_.createWithInitialProperties(properties));
  if (!window) {
    qWarning().noquote() << window_.errorString();
  }
  return std::unique_ptr<QQuickWindow>(qobject_cast<QQuickWindow*>(window.release()));
}

}  // namespace quillmere
