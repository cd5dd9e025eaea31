#include "demo/DemoPackages.h"

#include <memory>
#include <utility>

using namespace Qt::StringLiterals;

namespace quillmere::demo {
namespace {

using Kind = HomebrewPackageSummary::Kind;
using State = InstalledPackagesState;

SharedText text(const QString& from) {
  return SharedText(QStringView(from));
}

std::vector<SharedText> texts(const QStringList& from) {
  std::vector<SharedText> result;
  for (const QString& each : from) {
    result.push_back(text(each));
  }
  return result;
}

QStringList numbered(const QString& name, int count) {
  QStringList names;
  for (int number = 1; number <= count; ++number) {
    names += name.arg(number);
  }
  return names;
}

InstalledPackageSummary installed(Kind kind, const QString& name, const QStringList& versions,
                                  const QString& latest = {}) {
  InstalledPackageSummary package;
  package.kind = kind;
  package.id = text((kind == Kind::formula ? u"formula:"_s : u"cask:"_s) +
                    name.toLower().replace(u' ', u'-'));
  package.name = text(name);
  package.installedVersions = texts(versions);
  if (!versions.isEmpty()) {
    package.installedVersion = text(versions.last());
  }
  if (!latest.isEmpty()) {
    package.latestKnownVersion = text(latest);
  }
  package.tap = text(kind == Kind::formula ? u"homebrew/core"_s : u"homebrew/cask"_s);
  package.detail =
      text(kind == Kind::formula ? u"Installed on request"_s : "Cask token: "_L1 + name.toLower());
  return package;
}

std::vector<InstalledPackageSummary> updates() {
  return {
      installed(Kind::formula, u"curl"_s, {u"8.4.0"_s, u"8.9.1"_s}, u"8.9.1"_s),
      installed(Kind::cask, u"Firefox"_s, {u"131.0"_s}, u"132.0.2"_s),
      installed(Kind::cask, u"Google Chrome"_s, {u"latest"_s}, u"latest"_s),
      installed(Kind::formula, u"hello"_s, {u"2.12.1"_s}, u"2.12.1"_s),
      installed(Kind::formula, u"llvm"_s, {u"17.0.6"_s, u"18.1.8"_s, u"19.1.0"_s}, u"18.1.8"_s),
      installed(Kind::formula, u"openssl@3"_s, {u"3.2.0"_s, u"3.3.1"_s}, u"3.4.0"_s),
      installed(Kind::formula, u"own-tool"_s, {u"0.3"_s}),
      installed(Kind::formula, u"wget"_s, {u"1.24.5"_s}, u"1.25.0"_s),
  };
}

std::vector<InstalledPackageSummary> many() {
  std::vector<InstalledPackageSummary> packages;
  for (int number = 10'000; number < 15'000; ++number) {
    packages.push_back(installed(Kind::formula, u"package-%1"_s.arg(number),
                                 {u"1.%1"_s.arg(number), u"1.%1_1"_s.arg(number)},
                                 number % 2 == 0 ? u"2.0"_s : QString()));
  }
  return packages;
}

std::vector<InstalledPackageSummary> longTexts() {
  return {installed(Kind::formula, QString(160, u'm'),
                    numbered(u"20260101.%1-alpha-with-a-long-tail"_s, 12), u"20270101.1"_s),
          installed(Kind::cask, u"\u05e9\u05dc\u05d5\u05dd \u05e2\u05d5\u05dc\u05dd"_s,
                    {u"1.0,2024:abc+def"_s, QString(120, u'9')}, u"2.0"_s),
          installed(Kind::cask, u"\u4f60\u597d\u4e16\u754c"_s, {u"1.0"_s}, u"2.0"_s)};
}

std::vector<InstalledPackageSummary> packagesOf(const QString& scene) {
  if (scene == "updates"_L1) {
    return updates();
  }
  if (scene == "many"_L1) {
    return many();
  }
  if (scene == "long"_L1) {
    return longTexts();
  }
  if (scene == "current"_L1) {
    return {installed(Kind::formula, u"curl"_s, {u"8.9.1"_s}, u"8.9.1"_s)};
  }
  if (scene == "review"_L1) {
    return {installed(Kind::formula, u"own-tool"_s, {u"0.2"_s, u"0.3"_s})};
  }
  return {};
}

State stateOf(const QString& scene) {
  if (scene.startsWith("idle"_L1)) {
    return {State::Idle{}};
  }
  if (scene == "access"_L1 || scene == "away"_L1) {
    return {State::AccessNeeded{}};
  }
  if (scene == "looking"_L1 || scene == "scanning"_L1) {
    return {State::Loading{}};
  }
  if (scene == "failed"_L1) {
    return {State::Failed{
        u"Local inventory could not be scanned: The folder cannot be listed: Permission denied"_s}};
  }
  return {State::Loaded{
      std::make_shared<const std::vector<InstalledPackageSummary>>(packagesOf(scene))}};
}

HomebrewPackageSummary wget() {
  return {.id = text(u"formula:wget"_s),
          .kind = Kind::formula,
          .name = text(u"wget"_s),
          .description = text(u"Internet file retriever"_s),
          .version = text(u"1.25.0"_s),
          .alternateVersion = text(u"HEAD"_s),
          .homepage = UrlText::fromText(text(u"https://www.gnu.org/software/wget/"_s)),
          .license = text(u"GPL-3.0-or-later"_s),
          .tap = text(u"homebrew/core"_s),
          .detailItems = texts({u"gettext"_s, u"libidn2"_s, u"libunistring"_s, u"openssl@3"_s})};
}

HomebrewPackageSummary firefox() {
  return {.id = text(u"cask:firefox"_s),
          .kind = Kind::cask,
          .name = text(u"Mozilla Firefox"_s),
          .description = text(u"Web browser"_s),
          .version = text(u"132.0.2"_s),
          .alternateVersion = std::nullopt,
          .homepage = UrlText::fromText(text(u"ftp://ftp.mozilla.org/pub/firefox"_s)),
          .license = std::nullopt,
          .tap = text(u"homebrew/cask"_s),
          .detailItems = texts({u"app"_s, u"zap"_s})};
}

HomebrewPackageSummary longPackage() {
  HomebrewPackageSummary package = wget();
  package.id = text("formula:"_L1 + QString(120, u'm'));
  package.name = text(QString(120, u'm'));
  package.description = text(u"A description that does not come to an end. "_s.repeated(20));
  package.version = text(QString(90, u'9'));
  package.homepage =
      UrlText::fromText(text("https://example.org/"_L1 + u"a-long-path/"_s.repeated(30)));
  package.license = text(u"(MIT OR Apache-2.0) AND "_s.repeated(15) + u"Zlib"_s);
  package.detailItems = texts({QString(200, u'd'), u"a name with blanks that goes on and on"_s});
  return package;
}

HomebrewPackageSummary rightToLeft() {
  HomebrewPackageSummary package = firefox();
  package.name = text(u"\u05e9\u05dc\u05d5\u05dd \u05e2\u05d5\u05dc\u05dd"_s);
  package.description = text(
      u"\u05d3\u05e4\u05d3\u05e4\u05df \u05d0\u05d9\u05e0\u05d8\u05e8\u05e0\u05d8 (Web) \u05de\u05d4\u05d9\u05e8"_s);
  return package;
}

}  // namespace

LocalInventoryInputs demoInventory(const QString& scene, const QUrl& prefix) {
  LocalInventoryInputs inputs;
  inputs.state = stateOf(scene);
  if (scene == "scanning"_L1) {
    inputs.scannedPackages = 130;
    inputs.totalPackages = 412;
  }
  if (scene == "away"_L1) {
    inputs.accessProblem = u"There is no such folder at the moment."_s;
  }
  if (scene != "idle"_L1 && scene != "access"_L1) {
    inputs.selectedPrefixPath = prefix.toLocalFile();
    inputs.selectedPrefixURL = prefix;
    inputs.lastScanDate = QDateTime::currentDateTimeUtc().addSecs(-120);
    inputs.catalogLastRefreshDate = QDateTime::currentDateTimeUtc().addDays(-9);
  }
  return inputs;
}

PackageDetailViewModel::Inputs demoPackage(const QString& scene) {
  PackageDetailViewModel::Inputs inputs{
      .package = scene.endsWith("cask"_L1) ? firefox() : wget(),
      .installedPackage = std::nullopt,
      .reverseDependencyNames = std::nullopt,
      .reverseDependencyUnavailableText =
          u"Reverse dependency information is not available from the current data."_s,
      .catalogLastRefreshDate = QDateTime::currentDateTimeUtc().addDays(-1),
      .localInventoryLastScanDate = std::nullopt,
      .hasCatalog = true,
      .sourceScreen = u"Browse"_s};
  if (scene == "formula"_L1) {
    inputs.reverseDependencyNames.emplace();
  } else if (scene == "installed"_L1) {
    inputs.installedPackage = installed(Kind::formula, u"wget"_s, {u"1.24.5"_s, u"1.25.0"_s});
    inputs.reverseDependencyNames = texts({u"gotests"_s, u"wgetpaste"_s});
    inputs.localInventoryLastScanDate = QDateTime::currentDateTimeUtc();
  } else if (scene == "installed-cask"_L1) {
    inputs.installedPackage = installed(Kind::cask, u"Firefox"_s, {u"131.0"_s});
    inputs.localInventoryLastScanDate = QDateTime::currentDateTimeUtc().addDays(-3);
  } else if (scene == "many"_L1) {
    inputs.package.detailItems = texts(numbered(u"dependency-%1"_s, 61));
    inputs.reverseDependencyNames = texts(numbered(u"python-dependant-%1"_s, 745));
  } else if (scene == "long"_L1) {
    inputs.package = longPackage();
    inputs.reverseDependencyNames = texts({QString(200, u'r')});
  } else if (scene == "right-to-left"_L1) {
    inputs.package = rightToLeft();
  } else if (scene == "refused"_L1) {
    inputs.package.id = text(u"formula:wget; rm"_s);
  } else if (scene == "bare"_L1) {
    inputs.package = {.id = text(u"formula:bare"_s), .name = text(u"bare"_s)};
  }
  return inputs;
}

}  // namespace quillmere::demo
