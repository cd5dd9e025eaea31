#include <QCoroTask>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QTemporaryDir>

#include <benchmark/benchmark.h>
#include <cstdio>

#include "LongHistory.h"
#include "persistence/LocalPersistenceStore.h"

namespace quillmere {
namespace {

/// On the UI thread, as the store is: what the user waits for after copying a command.
void appendToHistoryOfTenThousand(benchmark::State& state) {
  const QTemporaryDir folder;
  const QString file = folder.filePath(QStringLiteral("Quillmere.conf"));
  LocalPersistenceStore store(std::make_unique<QSettings>(file, QSettings::IniFormat),
                              QUrl::fromLocalFile(folder.filePath(QStringLiteral("cache"))));
  store.setCommandHistory(longHistory());
  const CommandHistoryRecord record = historyRecord(10'000);
  for (auto _ : state) {
    store.appendHistory(record);
    state.PauseTiming();
    QCoro::waitFor(store.flush());
    state.ResumeTiming();
  }
  state.counters["bytes"] = static_cast<double>(QFileInfo(file).size());
}

// Few rounds: each waits, untimed, for the disk.
BENCHMARK(appendToHistoryOfTenThousand)
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime()
    ->Iterations(50);

/// The floor: as many bytes as the settings file has, written beside it and moved over it.
void writeAndRenameAsManyBytes(benchmark::State& state) {
  const QTemporaryDir folder;
  const QByteArray target = folder.filePath(QStringLiteral("Quillmere.conf")).toLocal8Bit();
  const QByteArray fresh = target + ".new";
  const QByteArray bytes(encodeCommandHistory(longHistory()));
  for (auto _ : state) {
    QFile file(QString::fromLocal8Bit(fresh));
    if (!file.open(QFile::WriteOnly | QFile::Unbuffered) || file.write(bytes) != bytes.size()) {
      state.SkipWithError("The disk refuses the bytes");
      break;
    }
    file.close();
    benchmark::DoNotOptimize(std::rename(fresh.constData(), target.constData()));
  }
  state.counters["bytes"] = static_cast<double>(bytes.size());
}

BENCHMARK(writeAndRenameAsManyBytes)->Unit(benchmark::kMillisecond)->UseRealTime();

/// The parts of the cost.
void encodeTenThousandRecords(benchmark::State& state) {
  const CommandHistory records = longHistory();
  for (auto _ : state) {
    benchmark::DoNotOptimize(encodeCommandHistory(records));
  }
}

BENCHMARK(encodeTenThousandRecords)->Unit(benchmark::kMillisecond);

void writeEncodedHistoryThroughTheSettings(benchmark::State& state) {
  const QTemporaryDir folder;
  QSettings settings(folder.filePath(QStringLiteral("Quillmere.conf")), QSettings::IniFormat);
  const QByteArray bytes = encodeCommandHistory(longHistory());
  for (auto _ : state) {
    settings.setValue(QStringLiteral("commandHistory"), bytes);
    settings.sync();
  }
}

BENCHMARK(writeEncodedHistoryThroughTheSettings)->Unit(benchmark::kMillisecond)->UseRealTime();

/// At the start of the program.
void decodeTenThousandRecords(benchmark::State& state) {
  const QByteArray bytes = encodeCommandHistory(longHistory());
  for (auto _ : state) {
    benchmark::DoNotOptimize(decodeCommandHistory(bytes));
  }
}

BENCHMARK(decodeTenThousandRecords)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace quillmere
