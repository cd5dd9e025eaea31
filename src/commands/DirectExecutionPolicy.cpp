#include "commands/DirectExecutionPolicy.h"

using namespace Qt::StringLiterals;

namespace quillmere {
namespace {

using Decision = DirectExecutionPolicyDecision;
using Mode = DirectExecutionPolicyMode;

Decision runDirectly(const BrewCommand& command, const QString& message) {
  return {Mode::runDirectly, "Run "_L1 + command.commandText, message};
}

Decision confirm(const BrewCommand& command, const QString& message) {
  return {Mode::requiresConfirmation, confirmTitle(command), message};
}

Decision confirmStrongly(const QString& message) {
  return {Mode::requiresStrongConfirmation, u"Review carefully before running"_s, message};
}

Decision previewOnly(const BrewCommand& command, const QString& message) {
  return {Mode::previewOnly, "Preview "_L1 + command.commandText, message};
}

Decision decideUpgrade(const BrewCommand& command) {
  return command.target.kind == BrewCommandTargetKind::global
             ? confirmStrongly(u"This may upgrade multiple installed formulae or casks."_s)
             : confirm(command, u"This may replace the installed package version."_s);
}

Decision decideCleanup(const BrewCommand& command, const AppCapabilities& capabilities) {
  return capabilities.canPerformCleanup
             ? confirmStrongly(
                   u"This may delete Homebrew cache files and older package versions."_s)
             : previewOnly(command, u"Cleanup execution is disabled in this build."_s);
}

Decision decideServicesList(const BrewCommand& command, const AppCapabilities& capabilities) {
  return capabilities.canReadLiveServices
             ? runDirectly(command,
                           u"This command lists Homebrew service state without starting or "
                           u"stopping services."_s)
             : previewOnly(command, u"Live service reads are disabled in this build."_s);
}

Decision decideDoctor(const BrewCommand& command, const AppCapabilities& capabilities) {
  return capabilities.canRunDiagnostics
             ? runDirectly(command, u"This command prints Homebrew diagnostic guidance."_s)
             : previewOnly(command, u"Diagnostics are disabled in this build."_s);
}

}  // namespace

DirectExecutionPolicyDecision executionPolicyDecision(const BrewCommand& command,
                                                      const AppCapabilities& capabilities) {
  using enum BrewCommandOperation;
  if (!capabilities.canExecuteCommands) {
    return previewOnly(command, u"This build keeps Homebrew commands as preview and copy only."_s);
  }
  switch (command.operation) {
    case info:
    case outdated:
    case dependencies:
    case reverseDependencies:
      return runDirectly(command, u"This command only prints Homebrew information."_s);
    case install:
      return confirm(command,
                     u"This may download and install a package in the selected Homebrew prefix."_s);
    case uninstall:
      return previewOnly(command,
                         u"Uninstall remains preview and copy only for Quillmere Direct v1."_s);
    case update:
      return confirmStrongly(
          u"This may update Homebrew and tap metadata in the selected prefix."_s);
    case upgrade:
      return decideUpgrade(command);
    case cleanup:
      return decideCleanup(command, capabilities);
    case servicesList:
      return decideServicesList(command, capabilities);
    case doctor:
      return decideDoctor(command, capabilities);
  }
  Q_UNREACHABLE();
}

QString confirmTitle(const BrewCommand& command) {
  return "Confirm "_L1 + command.commandText;
}

}  // namespace quillmere
