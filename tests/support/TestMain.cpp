#include <QtCore/QCoreApplication>

#include <gtest/gtest.h>

// One application object for all tests of a program: processes, timers and queued calls need its
// event loop.
int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  const QCoreApplication application(argc, argv);
  return RUN_ALL_TESTS();
}
