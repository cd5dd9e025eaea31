#pragma once

#include <QtCore/QLatin1StringView>
#include <QtCore/QStringView>

#include <algorithm>
#include <optional>
#include <type_traits>

namespace quillmere {

/// One line of an enumeration's table of raw values.
template <typename Enum>
struct RawValue {
  Enum value;
  QLatin1StringView text;
};

/// The texts under which the values of an enumeration are stored and shown. An enumeration that
/// has them specialises this with a constexpr array of `RawValue`, in declaration order; the two
/// functions below then read the one table in both directions. They are pure; any thread.
template <typename Enum>
inline constexpr std::nullptr_t rawValues = nullptr;

template <typename Enum>
concept HasRawValues = !std::is_null_pointer_v<std::remove_cv_t<decltype(rawValues<Enum>)>>;

template <HasRawValues Enum>
[[nodiscard]] constexpr QLatin1StringView rawValue(Enum value) {
  return rawValues<Enum>[static_cast<std::size_t>(value)].text;
}

template <HasRawValues Enum>
[[nodiscard]] constexpr std::optional<Enum> fromRawValue(QStringView text) {
  const auto& table = rawValues<Enum>;
  const auto row =
      std::ranges::find_if(table, [text](const RawValue<Enum>& r) { return text == r.text; });
  return row == std::end(table) ? std::nullopt : std::optional(row->value);
}

/// Whether a table has a row for each value of an enumeration with raw values, in its order, so
/// that a value is the number of its row. For the assertion beside the table.
template <typename Table, typename Row, HasRawValues Enum>
[[nodiscard]] consteval bool hasRowForEach(const Table& table, Enum Row::* value) {
  return std::ranges::equal(table, rawValues<Enum>, {}, value, &RawValue<Enum>::value);
}

}  // namespace quillmere
