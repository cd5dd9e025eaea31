#include <QtCore/QList>

#include <algorithm>
#include <cstdint>

#include "catalog/PackageCatalogFilter.h"
#include "platform/TextMatching.h"
#include "require.h"

namespace quillmere {
namespace {

using Kind = HomebrewPackageSummary::Kind;

/// Whole characters, as a document that was decoded has them.
SharedText textOf(const QByteArray& bytes) {
  return SharedText(QString::fromUtf8(bytes));
}

/// One package of a line: the kind's letter and the fields, with tabs between them.
HomebrewPackageSummary packageOf(const QByteArray& line) {
  QByteArrayList fields = line.split('\t');
  const bool isCask = fields.front().startsWith('c');
  HomebrewPackageSummary package{.id = textOf(line), .kind = isCask ? Kind::cask : Kind::formula};
  const auto next = [&fields]() -> std::optional<SharedText> {
    fields.removeFirst();
    return fields.isEmpty() ? std::nullopt : std::optional(textOf(fields.front()));
  };
  package.name = textOf(fields.front());
  for (auto* const field : {&package.description, &package.version, &package.tap}) {
    if (fields.size() > 1) {
      *field = next();
    }
  }
  while (fields.size() > 1) {
    package.detailItems.push_back(*next());
  }
  return package;
}

bool has(const SharedText& field, std::string_view query) {
  return containsSearchable(searchableForm(field.view()), query);
}

/// Looks into one field after the other.
bool matches(const HomebrewPackageSummary& package, const FilterRequest& request) {
  const bool isFormula = package.kind == Kind::formula;
  if (request.packageFilter != PackageCatalogFilter::all &&
      (request.packageFilter == PackageCatalogFilter::formulae) != isFormula) {
    return false;
  }
  const std::string query = searchableForm(request.searchQuery);
  const auto hasOptional = [&query](const std::optional<SharedText>& field) {
    return field && has(*field, query);
  };
  return query.empty() || has(package.name, query) || hasOptional(package.description) ||
         hasOptional(package.version) || hasOptional(package.tap) ||
         has(SharedText(std::string_view(displayLabel(package.kind))), query) ||
         std::ranges::any_of(package.detailItems,
                             [&query](const SharedText& item) { return has(item, query); });
}

FilteredPackageResults naiveAnswer(const PackageCatalog& catalog, const FilterRequest& request) {
  FilteredPackageResults results = FilteredPackageResults::provisional(request);
  std::size_t count = 0;
  for (std::size_t i = 0; i < catalog.packages().size(); ++i) {
    if (!matches(catalog.packages()[i], request)) {
      continue;
    }
    ++count;
    if (results.visiblePackages.size() < FilteredPackageResults::maximumVisible) {
      results.visiblePackages.push_back(i);
    } else if (!request.searchQuery.isEmpty()) {
      return results;
    }
  }
  results.exactMatchCount = count;
  return results;
}

/// The first line is a letter for the filter and the query; each further line is a package.
void check(const QByteArray& text) {
  QByteArrayList lines = text.split('\n');
  const QByteArray query = lines.takeFirst();
  const auto letter = static_cast<std::uint8_t>(query.isEmpty() ? 0 : query.front());
  std::vector<HomebrewPackageSummary> packages;
  std::ranges::transform(lines, std::back_inserter(packages), packageOf);
  const PackageCatalog catalog(std::move(packages));
  const auto filter = rawValues<PackageCatalogFilter>[letter % 3].value;
  const auto request = FilterRequest::make(QString::fromUtf8(query.mid(1)), filter, catalog);
  require(filteredPackages(catalog, request) == naiveAnswer(catalog, request));
}

}  // namespace
}  // namespace quillmere

/// A search through the index finds what a look into every field finds, in the same order.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  quillmere::check({reinterpret_cast<const char*>(data), static_cast<qsizetype>(size)});
  return 0;
}
