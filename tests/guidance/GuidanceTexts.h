#pragma once

#include <QtCore/QStringList>

#include <optional>
#include <vector>

#include "guidance/InstalledPackageSummary.h"

namespace quillmere::test {

inline SharedText text(const char* utf8) {
  return SharedText(std::string_view(utf8));
}

inline std::vector<SharedText> texts(std::initializer_list<const char*> list) {
  std::vector<SharedText> result;
  for (const char* utf8 : list) {
    result.push_back(text(utf8));
  }
  return result;
}

/// An installed formula of which only what orders and compares it is of interest.
inline InstalledPackageSummary package(const char* name,
                                       std::initializer_list<const char*> versions = {},
                                       const char* latest = nullptr) {
  InstalledPackageSummary summary;
  summary.id = SharedText("formula:" + std::string(name));
  summary.name = text(name);
  summary.installedVersions = texts(versions);
  if (!summary.installedVersions.empty()) {
    summary.installedVersion = summary.installedVersions.back();
  }
  if (latest != nullptr) {
    summary.latestKnownVersion = text(latest);
  }
  return summary;
}

template <typename Items>
QStringList namesOf(const Items& items) {
  QStringList names;
  for (const auto& item : items) {
    names += item.name.toString();
  }
  return names;
}

}  // namespace quillmere::test

namespace quillmere {

inline void PrintTo(const SharedText& text, std::ostream* stream) {
  *stream << '"' << text.view() << '"';
}

}  // namespace quillmere
