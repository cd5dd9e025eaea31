#include <QtCore/QCoreApplication>

#include <benchmark/benchmark.h>

// Of every program that needs no window.
int main(int argc, char** argv) {
  const QCoreApplication application(argc, argv);
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
}
