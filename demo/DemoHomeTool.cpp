// Writes a demo home into a folder, for ./run demo and for stories that are not told in C++.
//   demo_home [--used] FOLDER     --used: the home of somebody who knows the program

#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QTextStream>

#include "demo/DemoHome.h"

int main(int argc, char** argv) {
  using namespace quillmere::demo;
  const QCoreApplication application(argc, argv);
  QStringList arguments = QCoreApplication::arguments().sliced(1);
  const bool isUsed = arguments.removeAll(QStringLiteral("--used")) > 0;
  if (arguments.size() != 1 || arguments.constFirst().startsWith(u'-')) {
    QTextStream(stderr) << "usage: demo_home [--used] FOLDER\n";
    return 2;
  }
  const DemoHome home{QDir(arguments.constFirst()).absolutePath()};
  if (const auto written = home.write(isUsed ? DemoUser::regular : DemoUser::newcomer); !written) {
    QTextStream(stderr) << "demo_home: " << written.error() << '\n';
    return EXIT_FAILURE;
  }
  return EXIT_SUCCESS;
}
