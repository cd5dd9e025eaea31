#include <algorithm>
#include <cstdint>

#include "commands/BrewCommandBuilder.h"
#include "execution/BrewArguments.h"
#include "require.h"

namespace quillmere {
namespace {

using Build = BrewCommandBuilder::Result (*)(const BrewCommandTarget& target);

constexpr auto builds = std::to_array<Build>({
    [](const BrewCommandTarget& target) { return BrewCommandBuilder().info(target); },
    [](const BrewCommandTarget& target) { return BrewCommandBuilder().install(target); },
    [](const BrewCommandTarget& target) { return BrewCommandBuilder().uninstall(target); },
    [](const BrewCommandTarget& target) { return BrewCommandBuilder().upgrade(target); },
    [](const BrewCommandTarget& target) {
      return BrewCommandBuilder().dependencies(target.name.value_or(QString()));
    },
    [](const BrewCommandTarget& target) {
      return BrewCommandBuilder().reverseDependencies(target.name.value_or(QString()));
    },
});

/// A shell takes each word for itself and nothing else.
bool isHarmless(QChar character) {
  return (character.unicode() < 0x80 && character.isLetterOrNumber()) ||
         QStringLiteral("@._+-/ ").contains(character);
}

/// Whatever a package is called, it becomes one argument of the command that is shown, or none.
void check(std::uint8_t choice, const QString& name) {
  const auto kind = choice % 2 == 0 ? BrewCommandTargetKind::formula : BrewCommandTargetKind::cask;
  const auto command = builds[choice / 2 % builds.size()]({kind, name});
  if (!command) {
    require(command.error().invalidPackageIdentifier == name);
    return;
  }
  require(std::ranges::all_of(command->commandText, isHarmless));
  require(command->target.name == name && !name.contains(u' '));
  require(!isPlausiblePackageName(name) || !name.startsWith(u'-'));
  const auto arguments = brewArguments(*command);
  require(arguments && arguments->last() == name);
  require(command->commandText == QStringLiteral("brew ") + arguments->join(u' '));
  require(arguments->size() == (kind == BrewCommandTargetKind::cask ? 3 : 2) ||
          command->target.kind == BrewCommandTargetKind::formula);
}

}  // namespace
}  // namespace quillmere

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size > 0) {
    const QByteArrayView name(data + 1, static_cast<qsizetype>(size - 1));
    quillmere::check(*data, QString::fromUtf8(name));
  }
  return 0;
}
