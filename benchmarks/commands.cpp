#include <benchmark/benchmark.h>

#include "commands/BrewCommandBuilder.h"
#include "commands/DirectExecutionPolicy.h"

namespace quillmere {
namespace {

const BrewCommandBuilder builder;
const BrewCommandTarget firefox{BrewCommandTargetKind::cask, QStringLiteral("firefox")};

/// What a screen asks for when a package is chosen: the command, and how far it may go.
void buildAndJudgeOneCommand(benchmark::State& state) {
  for (auto _ : state) {
    const auto command = builder.upgrade(firefox);
    benchmark::DoNotOptimize(executionPolicyDecision(*command, AppCapabilities::all()));
  }
}

BENCHMARK(buildAndJudgeOneCommand);

QString deepCopy(const QString& text) {
  return QString(text.constData(), text.size());
}

/// The floor: the same values, field by field, with nothing worked out.
void copyOneCommandAndItsDecision(benchmark::State& state) {
  const BrewCommand command = *builder.upgrade(firefox);
  const auto decision = executionPolicyDecision(command, AppCapabilities::all());
  for (auto _ : state) {
    benchmark::DoNotOptimize(BrewCommand{
        command.id,
        deepCopy(command.commandText),
        command.operation,
        {command.target.kind, deepCopy(*command.target.name)},
        command.riskLevel,
        deepCopy(command.explanation),
        {deepCopy(command.possibleEffects[0]), deepCopy(command.possibleEffects[1])},
    });
    benchmark::DoNotOptimize(DirectExecutionPolicyDecision{decision.mode, deepCopy(decision.title),
                                                           deepCopy(decision.message)});
  }
}

BENCHMARK(copyOneCommandAndItsDecision);

/// The part of the cost that is a fresh identifier.
void drawOneIdentifier(benchmark::State& state) {
  for (auto _ : state) {
    benchmark::DoNotOptimize(QUuid::createUuid());
  }
}

BENCHMARK(drawOneIdentifier);

}  // namespace
}  // namespace quillmere
