#pragma once

#include <benchmark/benchmark.h>

#include <QApplication>

namespace loquitor::bench {

/// The main function of a benchmark program that opens windows.
inline int RunWithWindows(int zCount, char** zArguments) {
  QApplication application(zCount, zArguments);
  QApplication::setQuitOnLastWindowClosed(false);
  benchmark::Initialize(&zCount, zArguments);
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}

}  // namespace loquitor::bench
