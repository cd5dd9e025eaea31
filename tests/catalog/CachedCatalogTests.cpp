#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>

#include <gtest/gtest.h>

#include "catalog/CachedCatalog.h"
#include "support/Printers.h"

using namespace Qt::StringLiterals;

namespace quillmere {
namespace {

TEST(CachedCatalog, IsNoLargerThanADownload) {
  const QTemporaryDir folder;
  const auto url = [&folder](const QString& name) {
    return QUrl::fromLocalFile(folder.filePath(name));
  };
  const CachedCatalogFiles files{.formulae = url(u"formula.json"_s), .casks = url(u"cask.json"_s)};
  QFile sparse(folder.filePath(u"formula.json"_s));
  constexpr qint64 limit = qint64{512} * 1024 * 1024;
  if (!sparse.open(QFile::WriteOnly) || !sparse.resize(limit + 1)) {
    GTEST_SKIP() << "no disk here takes files of such a size";
  }
  EXPECT_EQ(readCachedDocuments(files, CatalogScope::formulae).error(),
            u"formula.json: File too large"_s);
  EXPECT_EQ(readCachedRecords(files).error(), u"formula.json: File too large"_s);
}

}  // namespace
}  // namespace quillmere
