#include <QtGui/QGuiApplication>

#include "app/QuillmereApp.h"

int main(int argc, char** argv) {
  quillmere::QuillmereApp::prepare();
  const QGuiApplication application(argc, argv);
  quillmere::QuillmereApp app;
  return app.open() ? QGuiApplication::exec() : EXIT_FAILURE;
}
