#include <QtCore/QCoreApplication>
#include <QtCore/QDir>

#include "support/FakeBrew.h"
#include "support/TestPrefix.h"

// Makes a demo prefix in the folder that is named, for stories that are not told in C++.
int main(int argc, char** argv) {
  const QCoreApplication application(argc, argv);
  const QStringList arguments = QCoreApplication::arguments();
  if (arguments.size() != 2 || !QDir().mkpath(arguments[1])) {
    return 2;
  }
  quillmere::test::TestPrefix(arguments[1])
      .withAllLocations()
      .withBrew(quillmere::test::fakeBrewScript());
}
