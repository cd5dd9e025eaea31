#include "prefix/HomebrewPrefixLocation.h"

#include <algorithm>

namespace quillmere {

const HomebrewPrefixLocation* HomebrewPrefixReadResult::location(
    HomebrewPrefixLocation::Kind kind) const {
  const auto found = std::ranges::find(locations, kind, &HomebrewPrefixLocation::kind);
  return found == locations.end() ? nullptr : &*found;
}

}  // namespace quillmere
