#include "demo/DemoPrefixFolder.h"

#include <QtCore/QDateTime>
#include <QtCore/QHash>

#include "demo/DemoTables.h"

using namespace Qt::StringLiterals;

namespace quillmere::demo {
namespace {

using Reason = InstalledPackage::Reason;

/// How large the packages are, by name. One that is in no table is small.
class Sizes {
 public:
  Sizes() {
    for (const Formula& formula : formulae()) {
      formulae_.insert(formula.name, formula.kilobytes * 1024);
    }
    for (const Cask& cask : casks()) {
      casks_.insert(cask.token, cask.kilobytes * 1024);
    }
  }

  [[nodiscard]] qint64 of(const InstalledPackage& package) const {
    constexpr qint64 small = 65'536;
    return (package.isCask ? casks_ : formulae_).value(package.name, small);
  }

 private:
  QHash<QString, qint64> formulae_;
  QHash<QString, qint64> casks_;
};

QByteArray receiptOf(const InstalledPackage& package, const QString& version, qint64 time) {
  if (package.reason == Reason::unknown) {
    // Receipts of long ago do not say why.
    return "{\"homebrew_version\": \"1.0.0\", \"time\": null}\n";
  }
  const auto truth = [](bool isSo) { return isSo ? QByteArray("true") : QByteArray("false"); };
  return tableText("receipt.json"_L1)
      .replace("@DEPENDENCY@", truth(package.reason == Reason::dependency))
      .replace("@REQUEST@", truth(package.reason == Reason::request))
      .replace("@TIME@", QByteArray::number(time))
      .replace("@VERSION@", version.toUtf8())
      .replace("@TAP@", package.tap.toUtf8());
}

void writeFormula(FolderWriter& writer, const InstalledPackage& package, qint64 size) {
  constexpr qint64 secondsBetweenVersions = qint64{40} * 86'400;
  qint64 time = QDateTime::currentSecsSinceEpoch();
  time -= secondsBetweenVersions * package.versions.size();
  const QString rack = u"Cellar/"_s + package.name;
  for (const QString& version : package.versions) {
    const QString keg = rack + u'/' + version;
    writer.file(keg + "/INSTALL_RECEIPT.json"_L1, receiptOf(package, version, time));
    writer.executable(
        keg + "/bin/"_L1 + package.name,
        "#!/bin/sh\necho '" + package.name.toUtf8() + ' ' + version.toUtf8() + ", of the demo'\n");
    writer.sparseFile(keg + "/lib/"_L1 + package.name + ".data"_L1, size);
    time += secondsBetweenVersions;
  }
  if (package.reason == Reason::unknown) {
    return;  // and nobody has linked it since
  }
  const QString keg = rack + u'/' + package.versions.constLast();
  writer.link(u"opt/"_s + package.name, keg);
  writer.link(u"var/homebrew/linked/"_s + package.name, keg);
  writer.link(u"bin/"_s + package.name, keg + "/bin/"_L1 + package.name);
}

void writeCask(FolderWriter& writer, const InstalledPackage& package, qint64 size) {
  const QString folder = u"Caskroom/"_s + package.name;
  for (const QString& version : package.versions) {
    writer.sparseFile(folder + u'/' + version + u'/' + package.name + ".data"_L1, size);
  }
  writer.file(folder + "/.metadata/INSTALL_RECEIPT.json"_L1,
              receiptOf(package, package.versions.constLast(), QDateTime::currentSecsSinceEpoch()));
}

void writeDownloads(FolderWriter& writer, const InstalledPackage& package, qint64 size) {
  // A bottle is compressed, a disk image is what is installed.
  const QString form = package.isCask ? u"Cask/%1--%2.dmg"_s : u"downloads/%1--%2.bottle.tar.gz"_s;
  for (const QString& version : package.downloads) {
    writer.sparseFile("var/homebrew/cache/"_L1 + form.arg(package.name, version),
                      package.isCask ? size : size / 3);
  }
}

void writeHomebrewItself(FolderWriter& writer) {
  writer.executable(u"bin/brew"_s, tableText("brew"_L1));
  for (const QLatin1StringView part : {"queries.sh"_L1, "changes.sh"_L1, "receipt.json"_L1}) {
    writer.file(u"Library/Homebrew/"_s + part, tableText(part));
  }
  const QString taps = u"Library/Taps/"_s;
  writer.file(taps + "homebrew/homebrew-core/formulae.tsv"_L1, tableText("formulae.tsv"_L1));
  writer.file(taps + "homebrew/homebrew-cask/casks.tsv"_L1, tableText("casks.tsv"_L1));
  writer.file(taps + "quillmere/homebrew-tools/formulae.tsv"_L1, tableText("tools.tsv"_L1));
  // By these two `brew` knows that the prefix is its own, and how fast to be.
  writer.file(u"var/quillmere-demo"_s, "This folder is a demo: bin/brew may change it.\n");
  writer.file(u"var/pace"_s, "100\n");
}

}  // namespace

void writePrefix(FolderWriter& writer) {
  writeHomebrewItself(writer);
  const Sizes sizes;
  for (const InstalledPackage& package : installedPackages()) {
    const qint64 size = sizes.of(package);
    if (package.isCask) {
      writeCask(writer, package, size);
    } else {
      writeFormula(writer, package, size);
    }
    writeDownloads(writer, package, size);
  }
}

}  // namespace quillmere::demo
