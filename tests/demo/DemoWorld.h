#pragma once

#include <QtCore/QFile>
#include <QtCore/QProcess>
#include <QtCore/QTemporaryDir>
#include <QtCore/QUrl>

#include <gtest/gtest.h>

#include "catalog/CatalogDecoding.h"
#include "commands/BrewCommand.h"
#include "demo/DemoDocuments.h"
#include "demo/DemoHome.h"
#include "execution/BrewArguments.h"
#include "guidance/InstalledPackageSummary.h"
#include "inventory/HomebrewCaskInventoryScanner.h"
#include "inventory/HomebrewFormulaInventoryScanner.h"

namespace quillmere::test {

/// How a run of the demo's `brew` ended.
struct BrewRun {
  int exitCode = -1;
  QByteArray standardOutput;
  QByteArray standardError;
};

/// A demo home of a test's own, in which `brew` takes no time unless it is told to.
class DemoWorld : public testing::Test {
 protected:
  void SetUp() override {
    ASSERT_TRUE(folder_.isValid());
    const auto written = home().write(demo::DemoUser::newcomer);
    ASSERT_TRUE(written) << written.error().toStdString();
    setPace(0);
  }

  [[nodiscard]] demo::DemoHome home() const {
    return {folder_.filePath(QStringLiteral("the demo's home"))};
  }

  [[nodiscard]] QUrl prefix() const { return QUrl::fromLocalFile(home().prefix()); }

  [[nodiscard]] QString inPrefix(const QString& path) const {
    return home().prefix() + u'/' + path;
  }

  void setPace(int percent) const {
    QFile pace(inPrefix(QStringLiteral("var/pace")));
    ASSERT_TRUE(pace.open(QFile::WriteOnly));
    pace.write(QByteArray::number(percent) + '\n');
  }

  [[nodiscard]] BrewRun brew(const QStringList& arguments) const {
    QProcess process;
    process.start(inPrefix(QStringLiteral("bin/brew")), arguments, QIODevice::ReadOnly);
    EXPECT_TRUE(process.waitForFinished()) << process.errorString().toStdString();
    return {process.exitCode(), process.readAllStandardOutput(), process.readAllStandardError()};
  }

  [[nodiscard]] BrewRun brew(const BrewCommand& command) const {
    return brew(brewArguments(command).value());
  }

  /// What the program would find in the prefix now.
  [[nodiscard]] std::vector<InstalledPackageSummary> inventory() const {
    const auto formulae = decodeFormulae(demo::formulaDocument()).value();
    const auto casks = decodeCasks(demo::caskDocument()).value();
    return installedPackageSummaries(
        HomebrewFormulaInventoryScanner(prefix()).scan(formulae).formulae,
        HomebrewCaskInventoryScanner(prefix()).scan(casks).casks);
  }

  [[nodiscard]] QStringList versionsOf(std::string_view id) const {
    QStringList versions;
    for (const InstalledPackageSummary& package : inventory()) {
      if (package.id.view() == id) {
        for (const SharedText& version : package.installedVersions) {
          versions += version.toString();
        }
      }
    }
    return versions;
  }

 private:
  QTemporaryDir folder_;
};

}  // namespace quillmere::test
