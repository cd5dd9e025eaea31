#include "app/AppSection.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace quillmere {
namespace {

struct Row {
  AppSection section = AppSection::dashboard;
  QLatin1StringView rawValue;
  QLatin1StringView title;
  QLatin1StringView symbolName;
};

constexpr std::array rows = {
    Row{AppSection::dashboard, "dashboard"_L1, "Dashboard"_L1, "lightbulb"_L1},
    Row{AppSection::installed, "installed"_L1, "Installed"_L1, "shippingbox"_L1},
    Row{AppSection::browse, "browse"_L1, "Browse"_L1, "magnifyingglass"_L1},
    Row{AppSection::updates, "updates"_L1, "Updates"_L1, "arrow.triangle.2.circlepath"_L1},
    Row{AppSection::cleanup, "cleanup"_L1, "Cleanup"_L1, "sparkles"_L1},
    Row{AppSection::services, "services"_L1, "Services"_L1, "switch.2"_L1},
    Row{AppSection::history, "history"_L1, "History"_L1, "clock.arrow.circlepath"_L1},
    Row{AppSection::settings, "settings"_L1, "Settings"_L1, "gearshape"_L1},
    Row{AppSection::aboutLegal, "aboutLegal"_L1, "About & Legal"_L1, "info.circle"_L1},
};
static_assert(std::ranges::equal(rows, allAppSections, {}, &Row::section));

const Row& rowOf(AppSection section) {
  return rows[static_cast<std::size_t>(section)];
}

}  // namespace

QLatin1StringView rawValue(AppSection section) {
  return rowOf(section).rawValue;
}

std::optional<AppSection> appSectionFromRawValue(QStringView text) {
  const auto row = std::ranges::find_if(rows, [text](const Row& r) { return text == r.rawValue; });
  return row == rows.end() ? std::nullopt : std::optional(row->section);
}

QLatin1StringView title(AppSection section) {
  return rowOf(section).title;
}

QLatin1StringView symbolName(AppSection section) {
  return rowOf(section).symbolName;
}

}  // namespace quillmere
