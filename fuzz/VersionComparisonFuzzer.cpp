#include <QtCore/QList>

#include <array>
#include <cstdint>

#include "guidance/PackageVersionState.h"
#include "platform/NameOrdering.h"
#include "require.h"

namespace quillmere {
namespace {

using Status = PackageVersionState::Status;

Status mirrored(Status status) {
  switch (status) {
    case Status::outdated:
      return Status::newerThanCatalog;
    case Status::newerThanCatalog:
      return Status::outdated;
    default:
      return status;
  }
}

bool isOrder(Status status) {
  return status == Status::outdated || status == Status::upToDate ||
         status == Status::newerThanCatalog;
}

int sign(int order) {
  return (order > 0) - (order < 0);
}

/// The order of any three names is one: it has no circle, and the keys have the same.
void checkOrder(const NameOrdering& ordering, const std::array<QString, 3>& names) {
  for (const QString& left : names) {
    require(ordering.compare(left, left) == 0);
    for (const QString& right : names) {
      const int order = sign(ordering.compare(left, right));
      require(order == -sign(ordering.compare(right, left)));
      require(order == sign(ordering.sortKey(left).compare(ordering.sortKey(right))));
      for (const QString& third : names) {
        if (order <= 0 && ordering.compare(right, third) <= 0) {
          const int whole = sign(ordering.compare(left, third));
          require(whole <= 0);
          require(whole < 0 || (order == 0 && ordering.compare(right, third) == 0));
        }
      }
    }
  }
}

/// What is said of two versions is said the other way round of them turned round.
void checkStatus(const std::array<QString, 3>& versions) {
  for (const QString& current : versions) {
    const SharedText text{QStringView(current)};
    require(packageVersionStatus(text, std::nullopt) == Status::unknown);
    require(packageVersionStatus(std::nullopt, text) == Status::unknown);
    const Status own = packageVersionStatus(text, text);
    require(own == Status::upToDate || !isOrder(own));
    for (const QString& latest : versions) {
      const SharedText other{QStringView(latest)};
      const Status status = packageVersionStatus(text, other);
      require(packageVersionStatus(other, text) == mirrored(status));
      require(!isOrder(status) || isOrder(own));
    }
  }
}

}  // namespace
}  // namespace quillmere

/// Three versions, one on each line.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using quillmere::NameOrdering;
  static const std::array orderings{NameOrdering(QLocale(QStringLiteral("en_US"))),
                                    NameOrdering(QLocale::c()),
                                    NameOrdering(QLocale(QStringLiteral("tr_TR")))};
  const QByteArrayView text(data, static_cast<qsizetype>(size));
  const QStringList lines = QString::fromUtf8(text).split(u'\n');
  const std::array names{lines.value(0), lines.value(1), lines.value(2)};
  for (const NameOrdering& ordering : orderings) {
    quillmere::checkOrder(ordering, names);
  }
  quillmere::checkStatus(names);
  return 0;
}
