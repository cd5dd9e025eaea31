#include <QtGui/QGuiApplication>
#include <QtQml/QQmlApplicationEngine>

// The least program of Qt Quick Controls: what any start costs, whatever the window shows.
int main(int argc, char** argv) {
  const QGuiApplication application(argc, argv);
  const QQmlApplicationEngine engine(
      QUrl(QStringLiteral("qrc:/qt/qml/EmptyWindow/start/EmptyWindow.qml")));
  return engine.rootObjects().isEmpty() ? EXIT_FAILURE : QGuiApplication::exec();
}
