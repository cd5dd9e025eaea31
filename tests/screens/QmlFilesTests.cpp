#include <QtCore/QDirIterator>
#include <QtQml/QQmlComponent>
#include <QtQml/QQmlEngine>

#include <gtest/gtest.h>

/// The QML module of the screen that is tested; set by its program.
extern const char* const testedModule;

namespace {

/// Loads, but does not make, each file of the module. This program is linked with nothing that the
/// screen may not use, so an import of another screen fails here, as an include of it fails to
/// link.
TEST(QmlFiles, NeedNothingThatTheScreenMayNotUse) {
  QQmlEngine engine;
  engine.addImportPath(QStringLiteral("qrc:/qt/qml"));
  const QString folder =
      QStringLiteral(":/qt/qml/") + QString::fromLatin1(testedModule).replace(u'.', u'/');
  QDirIterator files(folder, {QStringLiteral("*.qml")});
  ASSERT_TRUE(files.hasNext()) << testedModule << " has no file";
  while (files.hasNext()) {
    const QQmlComponent file(&engine, QUrl(QStringLiteral("qrc") + files.next()));
    EXPECT_TRUE(file.isReady()) << file.errorString().toStdString();
  }
}

}  // namespace
