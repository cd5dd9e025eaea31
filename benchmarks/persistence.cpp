#include <QCoroTask>
#include <QtCore/QCoreApplication>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QTemporaryDir>

#include <benchmark/benchmark.h>
#include <cstdio>

#include "persistence/LocalPersistenceStore.h"

namespace quillmere {
namespace {

constexpr int recordCount = 10'000;

/// Every second record a run with a summary of 120 characters, the others copies.
CommandHistoryRecord recordOf(int number) {
  const QDateTime now = QDateTime::fromMSecsSinceEpoch(1'795'207'320'125 + number, Qt::UTC);
  CommandHistoryRecord record = {
      .id = QUuid::createUuid(),
      .command = QStringLiteral("brew upgrade --cask package-%1").arg(number),
      .copiedAt = now,
      .operationType = QStringLiteral("upgrade"),
      .packageTarget = QStringLiteral("package-%1").arg(number),
      .sourceScreen = QStringLiteral("Updates"),
      .copied = number % 2 == 0,
      .executed = number % 2 != 0,
      .executionStartedAt = std::nullopt,
      .executionEndedAt = std::nullopt,
      .executionExitCode = std::nullopt,
      .executionCancelled = std::nullopt,
      .executionOutputSummary = std::nullopt,
  };
  if (record.executed) {
    record.executionStartedAt = now.addMSecs(-4321);
    record.executionEndedAt = now;
    record.executionExitCode = 0;
    record.executionCancelled = false;
    record.executionOutputSummary = QStringLiteral("==> Upgrading 1 package \u2714\n").repeated(5);
  }
  return record;
}

CommandHistory history() {
  CommandHistory records;
  for (int i = 0; i < recordCount; ++i) {
    records += recordOf(i);
  }
  return records;
}

/// On the UI thread, as the store is: what the user waits for after copying a command.
void appendToHistoryOfTenThousand(benchmark::State& state) {
  const QTemporaryDir folder;
  const QString file = folder.filePath(QStringLiteral("Quillmere.conf"));
  LocalPersistenceStore store(std::make_unique<QSettings>(file, QSettings::IniFormat),
                              QUrl::fromLocalFile(folder.filePath(QStringLiteral("cache"))));
  store.setCommandHistory(history());
  const CommandHistoryRecord record = recordOf(recordCount);
  for (auto _ : state) {
    store.appendHistory(record);
    state.PauseTiming();
    QCoro::waitFor(store.settled());
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
  const QByteArray bytes(encodeCommandHistory(history()));
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
  const CommandHistory records = history();
  for (auto _ : state) {
    benchmark::DoNotOptimize(encodeCommandHistory(records));
  }
}

BENCHMARK(encodeTenThousandRecords)->Unit(benchmark::kMillisecond);

void writeEncodedHistoryThroughTheSettings(benchmark::State& state) {
  const QTemporaryDir folder;
  QSettings settings(folder.filePath(QStringLiteral("Quillmere.conf")), QSettings::IniFormat);
  const QByteArray bytes = encodeCommandHistory(history());
  for (auto _ : state) {
    settings.setValue(QStringLiteral("commandHistory"), bytes);
    settings.sync();
  }
}

BENCHMARK(writeEncodedHistoryThroughTheSettings)->Unit(benchmark::kMillisecond)->UseRealTime();

/// At the start of the program.
void decodeTenThousandRecords(benchmark::State& state) {
  const QByteArray bytes = encodeCommandHistory(history());
  for (auto _ : state) {
    benchmark::DoNotOptimize(decodeCommandHistory(bytes));
  }
}

BENCHMARK(decodeTenThousandRecords)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace quillmere

int main(int argc, char** argv) {
  const QCoreApplication application(argc, argv);
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
}
