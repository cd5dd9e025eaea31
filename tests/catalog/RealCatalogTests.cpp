#include <QtCore/QFile>
#include <QtCore/QList>

#include <algorithm>
#include <gtest/gtest.h>

#include "catalog/CatalogDecoding.h"
#include "catalog/HomebrewPackageSummary.h"

namespace quillmere {
namespace {

/// The documents as Homebrew writes them, beside the lines that list_records.py makes of them.
class RealCatalog : public testing::Test {
 protected:
  void SetUp() override {
    if (!QFile::exists(folder() + QStringLiteral("/cask.txt"))) {
      GTEST_SKIP() << "no real documents in " << folder().toStdString()
                   << "; ctest puts them there where it finds them";
    }
  }

  static QString folder() { return QStringLiteral(QUILLMERE_UNPACKED_DATA); }

  static QByteArray contents(const char* name) {
    QFile file(folder() + u'/' + QString::fromLatin1(name));
    EXPECT_TRUE(file.open(QFile::ReadOnly));
    return file.readAll();
  }

  static QList<QByteArray> lines(const char* name) {
    QByteArray text = contents(name);
    EXPECT_TRUE(text.endsWith('\n'));
    text.chop(1);
    return text.split('\n');
  }
};

QByteArray bytes(const SharedText& text) {
  return QByteArrayView(text.view()).toByteArray();
}

QByteArray optional(const std::optional<SharedText>& text) {
  return text ? "=" + bytes(*text) : "-";
}

QByteArray optional(const std::optional<UrlText>& url) {
  return url ? "=" + bytes(url->text()) : "-";
}

QByteArray list(const std::vector<SharedText>& texts) {
  QByteArrayList items;
  std::ranges::transform(texts, std::back_inserter(items), bytes);
  return "[" + items.join('|') + "]";
}

QByteArray line(const HomebrewFormula& formula) {
  const QByteArrayList columns = {
      bytes(formula.name),
      optional(formula.description),
      optional(formula.versions.stable),
      optional(formula.versions.head),
      optional(formula.homepage),
      optional(formula.license),
      optional(formula.tap),
      list(formula.dependencies),
  };
  return columns.join('\t');
}

QByteArray line(const HomebrewCask& cask) {
  const QByteArrayList columns = {
      bytes(cask.token),      list(cask.names),        optional(cask.description),
      optional(cask.version), optional(cask.homepage), optional(cask.tap),
      list(cask.artifacts),
  };
  return columns.join('\t');
}

template <typename Record>
void expectLines(const std::vector<Record>& records, const QList<QByteArray>& lines) {
  ASSERT_EQ(records.size(), static_cast<std::size_t>(lines.size()));
  for (std::size_t i = 0; i < records.size(); ++i) {
    ASSERT_EQ(line(records[i]), lines[static_cast<qsizetype>(i)]) << "record " << i;
  }
}

TEST_F(RealCatalog, HoldsTheFormulaeThatAnotherReaderFinds) {
  const auto formulae = decodeFormulae(contents("formula.json"));
  ASSERT_TRUE(formulae) << formulae.error().description().toStdString();
  expectLines(*formulae, lines("formula.txt"));
}

TEST_F(RealCatalog, HoldsTheCasksThatAnotherReaderFinds) {
  const auto casks = decodeCasks(contents("cask.json"));
  ASSERT_TRUE(casks) << casks.error().description().toStdString();
  expectLines(*casks, lines("cask.txt"));
}

TEST_F(RealCatalog, IsMadeIntoSummariesWithoutALoss) {
  const auto formulae = decodeFormulae(contents("formula.json")).value();
  const auto casks = decodeCasks(contents("cask.json")).value();
  EXPECT_EQ(withoutDuplicates(formulae), formulae);
  EXPECT_EQ(withoutDuplicates(casks), casks);
  const auto formulaRows = packageSummaries(formulae);
  const auto caskRows = packageSummaries(casks);
  ASSERT_EQ(formulaRows.size(), formulae.size());
  ASSERT_EQ(caskRows.size(), casks.size());
  for (std::size_t i = 0; i < casks.size(); ++i) {
    ASSERT_EQ(bytes(caskRows[i].id), "cask:" + bytes(casks[i].token));
    ASSERT_EQ(caskRows[i].detailItems, casks[i].artifacts);
  }
}

/// The documents of 22 August 2026, known by their sizes.
TEST_F(RealCatalog, HasTheKnownRecordsOfTheDocumentsAtHand) {
  const QByteArray formulaDocument = contents("formula.json");
  const QByteArray caskDocument = contents("cask.json");
  if (formulaDocument.size() != 30'617'463 || caskDocument.size() != 19'180'276) {
    GTEST_SKIP() << "other documents than the ones whose records are known";
  }
  const auto formulae = decodeFormulae(formulaDocument).value();
  const auto casks = decodeCasks(caskDocument).value();
  EXPECT_EQ(formulae.size(), 8554U);
  EXPECT_EQ(casks.size(), 7701U);
  EXPECT_EQ(line(formulae[0]),
            "a2ps\t=Any-to-PostScript "
            "filter\t=4.15.8\t-\t=https://www.gnu.org/software/a2ps/\t=GPL-3.0-or-later\t=homebrew/"
            "core\t[bdw-gc|libpaper]");
  EXPECT_EQ(line(formulae[1000]),
            "check_postgres\t=Monitor Postgres "
            "databases\t=2.26.0\t=HEAD\t=https://bucardo.org/wiki/"
            "Check_postgres\t=BSD-2-Clause\t=homebrew/core\t[libpq]");
  EXPECT_EQ(
      line(formulae[5766]),
      "pg_top\t=Monitor PostgreSQL "
      "processes\t=3.7.0\t-\t=https://pg_top.gitlab.io\t=BSD-3-Clause\t=homebrew/core\t[libpq]");
  EXPECT_EQ(line(formulae[6193]),
            "python@3.13\t=Interpreted, interactive, object-oriented programming "
            "language\t=3.13.15\t-\t=https://www.python.org/\t=Python-2.0\t=homebrew/"
            "core\t[mpdecimal|openssl@3|sqlite|xz]");
  EXPECT_EQ(line(formulae[8161]),
            "wget\t=Internet file "
            "retriever\t=1.25.0\t=HEAD\t=https://www.gnu.org/software/wget/"
            "\t=GPL-3.0-or-later\t=homebrew/core\t[libidn2|libpsl|openssl@3|gettext|libunistring]");
  EXPECT_EQ(line(formulae[450]),
            "backlog-md\t=Markdown‑native Task Manager & Kanban visualizer for any Git "
            "repository\t=1.50.1\t-\t=https://github.com/MrLesk/Backlog.md\t=MIT\t=homebrew/"
            "core\t[node]");
  EXPECT_EQ(line(formulae[8553]),
            "zzz\t=Command-line tool to put Macs to "
            "sleep\t=1\t=HEAD\t=https://github.com/Orc/"
            "Zzz\t=LicenseRef-Homebrew-public-domain\t=homebrew/core\t[]");
  EXPECT_EQ(line(casks[1430]),
            "firefox\t[Mozilla Firefox]\t=Web "
            "browser\t=154.0\t=https://www.mozilla.org/firefox/\t=homebrew/"
            "cask\t[uninstall|app|command_wrapper|zap]");
  EXPECT_EQ(line(casks[7359]),
            "visual-studio-code\t[Microsoft Visual Studio Code|VS Code]\t=Open-source code "
            "editor\t=1.134.0\t=https://code.visualstudio.com/\t=homebrew/"
            "cask\t[uninstall|app|binary|binary|zap]");
  EXPECT_EQ(line(casks[2]),
            "115browser\t[115Browser|115浏览器]\t=Web "
            "browser\t=36.0.1\t=https://pc.115.com/browser.html#mac\t=homebrew/cask\t[app|zap]");
  EXPECT_EQ(line(casks[1371]),
            "fantasy-grounds\t[Fantasy "
            "Grounds]\t-\t=latest\t=https://www.fantasygrounds.com/home/home.php\t=homebrew/"
            "cask\t[app|zap]");
  EXPECT_EQ(line(casks[0]),
            "0-ad\t[0 A.D.]\t=Real-time strategy "
            "game\t=0.28.0\t=https://play0ad.com/\t=homebrew/cask\t[app|zap]");
  EXPECT_EQ(line(casks[7700]),
            "zy-player\t[ZY Player]\t=Video resource "
            "player\t=2.8.8\t=https://github.com/Hunlongyu/ZY-Player\t=homebrew/cask\t[app|zap]");
}

}  // namespace
}  // namespace quillmere
