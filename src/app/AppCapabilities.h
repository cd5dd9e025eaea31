#pragma once

namespace quillmere {

/// What this build is allowed to do. Made once by the application's entry and handed down to
/// every screen; a screen that was given none sees the default, which allows nothing.
struct AppCapabilities {
  /// Approved commands may be run from the selected prefix; otherwise preview and copy only.
  bool canExecuteCommands = false;
  /// The services screen may read live service state.
  bool canReadLiveServices = false;
  /// Cleanup may be run.
  bool canPerformCleanup = false;
  /// Output may be shown while a command runs.
  bool canStreamCommandOutput = false;
  /// Diagnostic commands may be run.
  bool canRunDiagnostics = false;

  bool operator==(const AppCapabilities&) const = default;

  /// This build: everything.
  [[nodiscard]] static constexpr AppCapabilities all() { return {true, true, true, true, true}; }
};

}  // namespace quillmere
