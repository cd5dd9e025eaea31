#include "demo/DemoHistory.h"

#include <cstdint>

#include "commands/BrewCommandBuilder.h"

using namespace Qt::StringLiterals;

namespace quillmere::demo {
namespace {

constexpr qint64 minute = 60;
constexpr qint64 hour = 60 * minute;
constexpr qint64 day = 24 * hour;

/// How a run went.
struct Ending {
  qint64 seconds = 0;
  std::int32_t exitCode = 0;
  bool wasCancelled = false;
  QByteArray standardOutput;
  QByteArray standardError;
};

CommandHistoryRecord ran(const BrewCommand& command, const QString& screen, const QDateTime& start,
                         const Ending& ending) {
  return makeExecutionRecord(
      {.command = command,
       .standardOutput = ending.standardOutput,
       .standardError = ending.standardError,
       .exitCode = ending.exitCode,
       .startedAt = start,
       .endedAt = start.addSecs(ending.seconds),
       .wasCancelled = ending.wasCancelled,
       .outcome = makeRunOutcome({.operation = command.operation,
                                  .target = command.target.name.value_or(QString()),
                                  .exitCode = ending.exitCode,
                                  .wasCancelled = ending.wasCancelled,
                                  .standardOutput = ending.standardOutput,
                                  .standardError = ending.standardError})},
      screen);
}

BrewCommandTarget formula(const QString& name) {
  return {BrewCommandTargetKind::formula, name};
}

BrewCommandTarget cask(const QString& token) {
  return {BrewCommandTargetKind::cask, token};
}

}  // namespace

CommandHistory historyUntil(const QDateTime& now) {
  const BrewCommandBuilder builder;
  const auto ago = [&now](qint64 seconds) { return now.addSecs(-seconds); };
  return {
      ran(builder.servicesList(), u"Services"_s, ago(25 * minute),
          {.seconds = 1,
           .standardOutput = "Name          Status  User     File\npostgresql@17 started anna\n"}),
      makeCopyRecord(builder.upgrade(formula(u"node"_s)).value(), u"Updates"_s, ago(3 * hour)),
      ran(builder.upgrade(formula(u"ripgrep"_s)).value(), u"Updates"_s, ago(day + 2 * hour),
          {.seconds = 8,
           .standardOutput = "==> Upgrading 1 outdated package:\nripgrep 14.1.1 -> 15.1.0\n"
                             "==> Pouring ripgrep--15.1.0.bottle.tar.gz\n"
                             "/home/anna/homebrew/Cellar/ripgrep/15.1.0: 6 files, 6.1MB\n"
                             "==> Upgraded 1 outdated package\n",
           .standardError = "==> Fetching downloads for: ripgrep\n"}),
      ran(builder.install(cask(u"blender"_s)).value(), u"Browse"_s, ago(day + 3 * hour),
          {.seconds = 4,
           .exitCode = 1,
           .wasCancelled = true,
           .standardError = "==> Fetching downloads for: blender\nError: SIGTERM\n"}),
      ran(builder.upgrade(formula(u"ffmpeg"_s)).value(), u"Browse"_s, ago(2 * day),
          {.seconds = 1, .exitCode = 1, .standardError = "Error: ffmpeg not installed\n"}),
      makeCopyRecord(builder.uninstall(formula(u"tree"_s)).value(), u"Installed"_s,
                     ago(2 * day + hour)),
      ran(builder.cleanup(), u"Cleanup"_s, ago(6 * day),
          {.seconds = 5,
           .standardOutput =
               "==> This operation has freed approximately 412.6MB of disk space.\n"}),
      ran(builder.dependencies(u"curl"_s).value(), u"Browse"_s, ago(9 * day),
          {.seconds = 1, .standardOutput = "brotli\nca-certificates\nlibnghttp2\n"}),
      makeCopyRecord(builder.install(formula(u"ffmpeg"_s)).value(), u"Browse"_s, ago(12 * day)),
  };
}

}  // namespace quillmere::demo
