#pragma once

/// The JSON library's types by name alone, for headers that are included far and wide: its own
/// header takes a second to compile.
namespace simdjson::dom {

// NOLINTBEGIN(readability-identifier-naming): the library's names, not ours
class element;
class object;
// NOLINTEND(readability-identifier-naming)

}  // namespace simdjson::dom
