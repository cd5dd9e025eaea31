#pragma once

#include <QtCore/QLatin1StringView>
#include <QtCore/QStringView>

#include <array>
#include <optional>

namespace quillmere {

/// The sections of the main window, in the order of its sidebar.
enum class AppSection {
  dashboard,
  installed,
  browse,
  updates,
  cleanup,
  services,
  history,
  settings,
  aboutLegal,
};

/// Every section, in sidebar order.
inline constexpr std::array allAppSections = {
    AppSection::dashboard, AppSection::installed, AppSection::browse,
    AppSection::updates,   AppSection::cleanup,   AppSection::services,
    AppSection::history,   AppSection::settings,  AppSection::aboutLegal,
};

[[nodiscard]] QLatin1StringView rawValue(AppSection section);
/// The section with this raw value; none for a text that names no section.
[[nodiscard]] std::optional<AppSection> appSectionFromRawValue(QStringView text);

/// The title in the sidebar and in the section's header.
[[nodiscard]] QLatin1StringView title(AppSection section);
/// The symbol beside the title, one of the names that `platform/Symbols.h` maps to a glyph.
[[nodiscard]] QLatin1StringView symbolName(AppSection section);

}  // namespace quillmere
