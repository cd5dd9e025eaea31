#include "demo/DemoDocuments.h"

#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>

#include "demo/DemoTables.h"

using namespace Qt::StringLiterals;

namespace quillmere::demo {
namespace {

QJsonValue jsonOf(const std::optional<QString>& text) {
  return text ? QJsonValue(*text) : QJsonValue();
}

QJsonObject jsonOf(const Formula& formula) {
  const QJsonObject versions{{u"stable"_s, jsonOf(formula.version)},
                             {u"head"_s, formula.hasHead ? QJsonValue(u"HEAD"_s) : QJsonValue()},
                             {u"bottle"_s, formula.version.has_value()}};
  return {{u"name"_s, formula.name},
          {u"full_name"_s, formula.name},
          {u"tap"_s, u"homebrew/core"_s},
          {u"oldnames"_s, QJsonArray()},
          {u"aliases"_s, QJsonArray()},
          {u"versioned_formulae"_s, QJsonArray()},
          {u"desc"_s, jsonOf(formula.description)},
          {u"license"_s, formula.license.isEmpty() ? QJsonValue() : QJsonValue(formula.license)},
          {u"homepage"_s, jsonOf(formula.homepage)},
          {u"versions"_s, versions},
          {u"revision"_s, formula.revision},
          {u"version_scheme"_s, 0},
          {u"keg_only"_s, false},
          {u"build_dependencies"_s, QJsonArray()},
          {u"dependencies"_s, QJsonArray::fromStringList(formula.dependencies)},
          {u"test_dependencies"_s, QJsonArray()},
          {u"recommended_dependencies"_s, QJsonArray()},
          {u"optional_dependencies"_s, QJsonArray()},
          {u"uses_from_macos"_s, QJsonArray()},
          {u"caveats"_s, QJsonValue()},
          {u"installed"_s, QJsonArray()},
          {u"deprecated"_s, false},
          {u"disabled"_s, false}};
}

/// What an artifact of this kind looks like in the document.
QJsonObject artifactJson(const QString& kind, const Cask& cask) {
  const QString app = cask.names.constFirst();
  if (kind == "zap"_L1) {
    return {{kind, QJsonArray{QJsonObject{{u"trash"_s, "~/Library/Preferences/"_L1 + app}}}}};
  }
  if (kind == "uninstall"_L1) {
    return {{kind, QJsonArray{QJsonObject{{u"quit"_s, "org.example."_L1 + cask.token}}}}};
  }
  const QString suffix = kind == "app"_L1 || kind == "pkg"_L1 ? u'.' + kind : QString();
  return {{kind, QJsonArray{app + suffix}}};
}

QJsonObject jsonOf(const Cask& cask) {
  QJsonArray artifacts;
  for (const QString& kind : cask.artifacts) {
    artifacts += artifactJson(kind, cask);
  }
  return {{u"token"_s, cask.token},
          {u"full_token"_s, cask.token},
          {u"old_tokens"_s, QJsonArray()},
          {u"tap"_s, u"homebrew/cask"_s},
          {u"name"_s, QJsonArray::fromStringList(cask.names)},
          {u"desc"_s, jsonOf(cask.description)},
          {u"homepage"_s, cask.homepage},
          {u"version"_s, cask.version},
          {u"installed"_s, QJsonValue()},
          {u"outdated"_s, false},
          {u"artifacts"_s, artifacts},
          {u"caveats"_s, QJsonValue()},
          {u"deprecated"_s, false},
          {u"disabled"_s, false}};
}

template <typename Record>
QByteArray documentOf(const std::vector<Record>& records) {
  QJsonArray array;
  for (const Record& record : records) {
    array += jsonOf(record);
  }
  return QJsonDocument(array).toJson(QJsonDocument::Compact);
}

}  // namespace

QByteArray formulaDocument() {
  return documentOf(formulae());
}

QByteArray caskDocument() {
  return documentOf(casks());
}

}  // namespace quillmere::demo
