#include "demo/DemoTables.h"

#include <QtCore/QByteArray>
#include <QtCore/QFile>

using namespace Qt::StringLiterals;

namespace quillmere::demo {
namespace {

/// The rows below the headings, each with its fields.
QList<QStringList> rowsOf(QLatin1StringView fileName) {
  QList<QStringList> rows;
  const QString text = QString::fromUtf8(tableText(fileName));
  for (const QString& line : text.split(u'\n', Qt::SkipEmptyParts)) {
    if (!line.startsWith(u'#')) {
      rows += line.split(u'\t');
    }
  }
  return rows;
}

std::optional<QString> optional(const QString& field) {
  return field.isEmpty() ? std::nullopt : std::optional(field);
}

QStringList words(const QString& field) {
  return field.split(u' ', Qt::SkipEmptyParts);
}

InstalledPackage::Reason reasonOf(const QString& word) {
  using enum InstalledPackage::Reason;
  if (word == "request"_L1) {
    return request;
  }
  return word == "dependency"_L1 ? dependency : unknown;
}

}  // namespace

QByteArray tableText(QLatin1StringView fileName) {
  QFile file(u":/demo/"_s + fileName);
  if (!file.open(QFile::ReadOnly)) {
    qFatal("The demo has no file %s", fileName.data());
  }
  return file.readAll();
}

std::vector<Formula> formulae() {
  std::vector<Formula> formulae;
  for (const QStringList& row : rowsOf("formulae.tsv"_L1)) {
    formulae.push_back({.name = row.at(0),
                        .version = optional(row.at(1)),
                        .revision = row.at(2).toInt(),
                        .hasHead = !row.at(3).isEmpty(),
                        .description = optional(row.at(4)),
                        .homepage = optional(row.at(5)),
                        .license = row.at(6),
                        .dependencies = words(row.at(7)),
                        .kilobytes = row.at(8).toLongLong()});
  }
  return formulae;
}

std::vector<Cask> casks() {
  std::vector<Cask> casks;
  for (const QStringList& row : rowsOf("casks.tsv"_L1)) {
    casks.push_back({.token = row.at(0),
                     .version = row.at(1),
                     .names = row.at(2).split(u','),
                     .description = optional(row.at(3)),
                     .homepage = row.at(4),
                     .artifacts = words(row.at(5)),
                     .kilobytes = row.at(6).toLongLong()});
  }
  return casks;
}

std::vector<InstalledPackage> installedPackages() {
  std::vector<InstalledPackage> packages;
  for (const QStringList& row : rowsOf("installed.tsv"_L1)) {
    packages.push_back({.isCask = row.at(0) == "cask"_L1,
                        .name = row.at(1),
                        .versions = words(row.at(2)),
                        .reason = reasonOf(row.at(3)),
                        .tap = row.at(4),
                        .downloads = words(row.at(5))});
  }
  return packages;
}

}  // namespace quillmere::demo
