#include "app/MainWindowLoader.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDebug>
#include <QtCore/QRunnable>
#include <QtQuick/QQuickWindow>

#include "platform/BackgroundThreads.h"
#include "screens/components/Typeface.h"

namespace quillmere {
namespace {

QUrl qmlFile(const QString& name) {
  return QUrl(QStringLiteral("qrc:/qt/qml/Quillmere/") + name);
}

}  // namespace

MainWindowLoader::MainWindowLoader() {
  backgroundThreads()->start(QRunnable::create(&Typeface::addSymbolFont));
  // Queued, since a quit before the event loop runs would be lost.
  QObject::connect(&engine_, &QQmlEngine::quit, qApp, &QCoreApplication::quit,
                   Qt::QueuedConnection);
  engine_.addImportPath(QStringLiteral("qrc:/qt/qml"));
  windowFile_.loadUrl(qmlFile(QStringLiteral("App/MainWindow.qml")));
  // The engine's own thread loads the first screen while this one makes the window.
  firstScreenFile_.loadUrl(qmlFile(QStringLiteral("Dashboard/DashboardView.qml")),
                           QQmlComponent::Asynchronous);
}

std::unique_ptr<QQuickWindow> MainWindowLoader::open(const QVariantMap& properties) {
  auto* const window =
      qobject_cast<QQuickWindow*>(windowFile_.createWithInitialProperties(properties));
  if (window == nullptr) {
    qWarning().noquote() << windowFile_.errorString();
  }
  return std::unique_ptr<QQuickWindow>(window);
}

}  // namespace quillmere
