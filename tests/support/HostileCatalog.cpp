#include "support/HostileCatalog.h"

#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>

using namespace Qt::StringLiterals;

namespace quillmere {
namespace {

/// Addresses of every sort; they take turns.
QString homepage(const QUrl& bait, qsizetype number) {
  const QStringList homepages{bait.toString(),
                              u"javascript:alert(1)"_s,
                              u"file:///etc/passwd"_s,
                              u"data:text/html,x"_s,
                              u"https://brew.sh@example.org/"_s,
                              u"ssh://example.org"_s,
                              u"https://example.org/%0a%20\u202egpj"_s};
  return homepages[number % homepages.size()];
}

QByteArray documentOf(const QJsonArray& records) {
  return QJsonDocument(records).toJson(QJsonDocument::Compact);
}

}  // namespace

QStringList hostileTexts(const QUrl& bait) {
  const QString address = bait.toString();
  constexpr int megabyte = 1024 * 1024;
  return {u"<b>bold</b>"_s,
          "<img src=\""_L1 + address + "\">"_L1,
          "<a href=\""_L1 + address + "\">page</a>"_L1,
          "<img src='"_L1 + address + "' width=\"1\" height=\"1\"/><br/>wget"_L1,
          "![picture]("_L1 + address + u')',
          u"one\ntwo\r\nthree\tfour"_s,
          u"\x1b[2J\x1b]52;c;eA==\x07\x08"_s,
          QString(u"zero\0byte"_s),
          u"wget\u202egpj.exe"_s,
          u"\u2067wget\u2066 \u202a1.0\u202c"_s,
          u"line\u2028separator\u2029"_s,
          QString(megabyte, u'w'),
          u"word "_s.repeated(megabyte / 5),
          u"line\n"_s.repeated(megabyte / 5),
          u"e\u0301\u0302\u0303\u0304"_s.repeated(1000),
          u"--force"_s,
          u"--greedy"_s,
          u"-rf"_s,
          u"-h"_s,
          u"a b"_s,
          u"$(touch x)"_s,
          u"`touch x`"_s,
          u"../../x"_s,
          u"/etc/passwd"_s,
          u""_s,
          u"wget\ntouch x"_s,
          u"'wget'"_s,
          u"\"wget\""_s,
          u"wget; touch x"_s,
          u"wget#"_s,
          u"\uff57get"_s};
}

QStringList hostileFolderNames() {
  return {u"one\ntwo"_s,
          u"tab\there"_s,
          u"\x1b[2Jbell\x07"_s,
          u"--force"_s,
          u"a b"_s,
          u"<b>bold<\u0338b>"_s,
          u"line\u2028separator"_s,
          QString(255, u'n'),
          u"wget\u202egpj.exe"_s};
}

QByteArray hostileFormulaDocument(const QUrl& bait) {
  QJsonArray records;
  for (const QString& text : hostileTexts(bait)) {
    records += QJsonObject{{u"name"_s, text},
                           {u"desc"_s, text},
                           {u"versions"_s, QJsonObject{{u"stable"_s, text}, {u"head"_s, text}}},
                           {u"homepage"_s, homepage(bait, records.size())},
                           {u"license"_s, text},
                           {u"tap"_s, text},
                           {u"dependencies"_s, QJsonArray{text, text}}};
  }
  constexpr int many = 100'000;
  QJsonArray dependencies;
  for (int i = 0; i < many; ++i) {
    dependencies += u"dependency-"_s + QString::number(i);
  }
  records += QJsonObject{
      {u"name"_s, u"needy"_s}, {u"versions"_s, QJsonObject()}, {u"dependencies"_s, dependencies}};
  return documentOf(records);
}

QByteArray hostileCaskDocument(const QUrl& bait) {
  QJsonArray records;
  for (const QString& text : hostileTexts(bait)) {
    records += QJsonObject{{u"token"_s, u"cask-"_s + QString::number(records.size())},
                           {u"name"_s, QJsonArray{text}},
                           {u"desc"_s, text},
                           {u"version"_s, text},
                           {u"homepage"_s, homepage(bait, records.size())},
                           {u"tap"_s, text},
                           {u"artifacts"_s, QJsonArray{QJsonObject{{text, QJsonArray()}}}}};
  }
  return documentOf(records);
}

}  // namespace quillmere
