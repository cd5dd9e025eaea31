#pragma once

#include <QtCore/QDateTime>
#include <QtCore/QLatin1StringView>
#include <QtCore/QLocale>
#include <QtCore/QString>

#include <optional>
#include <variant>

namespace quillmere {

/// How old data is, and what the user may do about it.
struct FreshnessIndicator {
  /// There is no data.
  struct Missing {
    /// What to do, as the beginning of a sentence: "Scan local inventory".
    QString action;

    bool operator==(const Missing&) const = default;
  };

  struct Fresh {
    QDateTime date;

    bool operator==(const Fresh&) const = default;
  };

  struct Stale {
    QDateTime date;
    /// As in `Missing`.
    QString action;

    bool operator==(const Stale&) const = default;
  };

  std::variant<Missing, Fresh, Stale> value;

  bool operator==(const FreshnessIndicator&) const = default;

  /// "Not available", "Fresh" or "Stale".
  [[nodiscard]] QLatin1StringView statusWord() const;
  /// A few words that begin with `label`, what the data is called on the screen. Dates are shown in
  /// the local time zone, with the clock of `region`.
  [[nodiscard]] QString shortText(const QString& label,
                                  const QLocale& region = QLocale::system()) const;
  /// The same in sentences, with what to do.
  [[nodiscard]] QString longText(const QString& label,
                                 const QLocale& region = QLocale::system()) const;
};

/// After how many days catalog metadata is stale.
inline constexpr int catalogFreshDays = 7;

/// Of catalog metadata that was refreshed at `date`.
[[nodiscard]] FreshnessIndicator catalogFreshness(const std::optional<QDateTime>& date,
                                                  const QDateTime& now);
/// Of an inventory that was scanned at `date`: stale after one day. A day ends at the same time of
/// the local clock at which it began, also where the clock is changed meanwhile.
[[nodiscard]] FreshnessIndicator inventoryFreshness(const std::optional<QDateTime>& date,
                                                    const QDateTime& now);

/// When catalog metadata of `date` becomes stale; `date` itself where the calendar ends.
[[nodiscard]] QDateTime catalogStaleDate(const QDateTime& date);
[[nodiscard]] QDateTime inventoryStaleDate(const QDateTime& date);

}  // namespace quillmere
