#include "PackageScreenshots.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtGui/QWindow>
#include <QtTest/QTest>

#include <utility>

#include "DemoCatalog.h"
#include "app/ContentViewModel.h"
#include "support/GeneratedCatalog.h"

namespace quillmere::test {
namespace {

using namespace Qt::StringLiterals;

using Draw = std::function<void(const QString& what)>;

QByteArray contentOf(const QString& path) {
  QFile file(path);
  if (!file.open(QFile::ReadOnly)) {
    qFatal("Cannot read %s", qUtf8Printable(path));
  }
  return file.readAll();
}

CatalogDocuments documentsFrom(const QString& data) {
  if (data.isEmpty()) {
    return {.formulae = generatedFormulaDocument(2000), .casks = generatedCaskDocument(1000)};
  }
  return {.formulae = contentOf(QDir(data).filePath(u"formula.json"_s)),
          .casks = contentOf(QDir(data).filePath(u"cask.json"_s))};
}

void drawWaiting(FormulaCatalogViewModel& browse, const Draw& draw) {
  CatalogInputs inputs;
  browse.setInputs(inputs);
  draw(u"browse-empty"_s);
  inputs.state.value = PackageCatalogState::Loading{u"Fetching Homebrew package metadata..."_s};
  browse.setInputs(inputs);
  draw(u"browse-loading-unknown"_s);
  inputs.receivedBytes = 12'400'000;
  inputs.expectedBytes = 31'200'000;
  inputs.hasCachedFormulae = true;
  browse.setInputs(inputs);
  draw(u"browse-loading"_s);
  inputs.state.value = PackageCatalogState::Failed{
      u"Cached package metadata could not be read: The file does not exist."_s};
  browse.setInputs(inputs);
  draw(u"browse-failed"_s);
}

void drawSearches(FormulaCatalogViewModel& browse, const Draw& draw) {
  const auto search = [&browse](const QString& text) {
    browse.setSearchText(text);
    if (!QTest::qWaitFor([&browse] { return !browse.isFiltering(); })) {
      qFatal("The search does not end");
    }
  };
  search(u"wget"_s);
  draw(u"browse-filtered"_s);
  search(u"nothing is called so"_s);
  draw(u"browse-no-match"_s);
  search(QString());
  browse.setPackageFilter(PackageCatalogFilter::casks);
  draw(u"browse-casks"_s);
  browse.setPackageFilter(PackageCatalogFilter::all);
}

/// As a person sees it who uses the keyboard alone.
void drawKeyboard(QWindow& window, const Draw& draw) {
  QTest::keyClick(&window, Qt::Key_F, Qt::ControlModifier);
  draw(u"browse-search-focused"_s);
  for (const Qt::Key key : {Qt::Key_Tab, Qt::Key_Tab}) {
    QTest::keyClick(&window, key);
  }
  draw(u"browse-type-focused"_s);
  for (const Qt::Key key : {Qt::Key_Tab, Qt::Key_Down, Qt::Key_Down}) {
    QTest::keyClick(&window, key);
  }
  draw(u"browse-row-focused"_s);
  QTest::keyClick(&window, Qt::Key_F, Qt::ControlModifier);
  QTest::keyClick(&window, Qt::Key_Backtab, Qt::ShiftModifier);
  draw(u"browse-actions-focused"_s);
  // In a large window this is a button that asks for the cache, of which there is none.
  QTest::keyClick(&window, Qt::Key_Return);
  draw(u"browse-actions-pressed"_s);
  QTest::keyClick(&window, Qt::Key_Escape);
}

void drawInstalled(InstalledPackagesViewModel& installed, const Draw& draw) {
  const LocalInventoryInputs scanned = scannedInventory();
  LocalInventoryInputs inputs;
  installed.setInputs(inputs);
  draw(u"installed-access"_s);
  inputs.selectedPrefixPath = scanned.selectedPrefixPath;
  installed.setInputs(inputs);
  draw(u"installed-not-scanned"_s);
  inputs.state.value = InstalledPackagesState::Loading();
  inputs.scannedPackages = 120;
  inputs.knownPackages = 340;
  installed.setInputs(inputs);
  draw(u"installed-scanning"_s);
  inputs.state.value =
      InstalledPackagesState::Failed{u"Local inventory could not be scanned: Permission denied"_s};
  installed.setInputs(inputs);
  draw(u"installed-failed"_s);
  inputs.state.value = InstalledPackagesState::Loaded{
      std::make_shared<const std::vector<InstalledPackageSummary>>()};
  installed.setInputs(inputs);
  draw(u"installed-nothing"_s);
  installed.setInputs(scanned);
  draw(u"installed"_s);
  installed.setSearchText(u"nothing is called so"_s);
  draw(u"installed-no-match"_s);
  installed.setSearchText(QString());
}

}  // namespace

void drawPackageScreens(QWindow& window, ContentViewModel& content, const QString& data,
                        const Draw& draw) {
  content.select(AppSection::browse);
  FormulaCatalogViewModel& browse = *content.browse();
  drawWaiting(browse, draw);
  browse.setInputs(loadedCatalog(documentsFrom(data)));
  draw(u"browse"_s);
  drawSearches(browse, draw);
  browse.setInputs(loadedCatalog({.formulae = demoFormulaDocument(), .casks = demoCaskDocument()}));
  draw(u"browse-awkward"_s);
  drawKeyboard(window, draw);
  content.select(AppSection::installed);
  drawInstalled(*content.installed(), draw);
}

}  // namespace quillmere::test
