#include <QtGui/QGuiApplication>

#include <gtest/gtest.h>

// The screens' models reach the clipboard, which a core application has not. Nothing is drawn, so
// that no display is needed, be it to run the tests or to list them.
int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QGuiApplication application(argc, argv);
  return RUN_ALL_TESTS();
}
