#include <QCoroTask>
#include <QtNetwork/QNetworkAccessManager>

#include <gtest/gtest.h>

#include "catalog/HomebrewFormulaMetadataClient.h"
#include "support/CatalogServer.h"
#include "support/GeneratedCatalog.h"
#include "support/Printers.h"

namespace quillmere::test {
namespace {
void show(const char* what, const CatalogServer& server, const QUrl& url,
          MetadataFetchOptions o = {}) {
  QNetworkAccessManager session;
  HomebrewFormulaMetadataClient client{url, &session};
  const auto n = server.requests().size();
  const auto r = QCoro::waitFor(client.fetch(o));
  printf("%-28s requests %d: %s\n", what, int(server.requests().size() - n),
         r ? ("body " + r->left(30) + " " + QByteArray::number(r->size())).constData()
           : qPrintable(description(r.error())));
}

void show(const char* what, CatalogServer& server, Answer a, MetadataFetchOptions o = {}) {
  server.answer("/a", a);
  show(what, server, server.url("/a"), o);
}

TEST(Explore, All) {
  CatalogServer s;
  using E = Answer::Ending;
  using F = Answer::Framing;
  const QByteArray doc = generatedFormulaDocument(300);
  printf("doc %d\n", int(doc.size()));
  show("200", s, Answer{.body = "[1]"});
  for (auto& [n, v] : s.requests().back().headers)
    printf("   %s: %s\n", n.constData(), v.constData());
  show("200 gzip", s, Answer{.body = doc, .gzip = true});
  show("200 gzip chunked", s, Answer{.body = doc, .gzip = true, .framing = F::chunked});
  show("200 connectionEnd", s, Answer{.body = doc, .framing = F::connectionEnd});
  for (int c : {204, 300, 304, 401, 404, 407, 503})
    show(QByteArray::number(c), s, Answer{.status = c});
  show("300 body", s, Answer{.status = 300, .body = "hello"});
  show("404 gzip", s, Answer{.status = 404, .body = doc, .gzip = true});
  for (E e : {E::close, E::cut, E::reset}) {
    printf("--- ending %d\n", int(e));
    show("cut length", s, Answer{.body = doc, .bodyBytes = 100000, .ending = e});
    show("cut chunked", s,
         Answer{.body = doc, .framing = F::chunked, .bodyBytes = 100000, .ending = e});
    show("cut end", s,
         Answer{.body = doc, .framing = F::connectionEnd, .bodyBytes = 100000, .ending = e});
    show("cut gzip", s, Answer{.body = doc, .gzip = true, .bodyBytes = 5000, .ending = e});
    show("cut gzip chunked", s,
         Answer{.body = doc, .gzip = true, .framing = F::chunked, .bodyBytes = 5000, .ending = e});
    show("cut head 0", s, Answer{.body = doc, .headBytes = 0, .ending = e});
    show("cut head 10", s, Answer{.body = doc, .headBytes = 10, .ending = e});
    show("cut head 30", s, Answer{.body = doc, .headBytes = 30, .ending = e});
  }
  s.answer("/to", Answer{.body = "[2]"});
  for (int c : {301, 302, 303, 307, 308}) {
    Answer a = redirect(s.url("/to"), c);
    a.body = doc;
    show("redirect", s, a);
  }
  {
    Answer a = redirect(s.url("/to"));
    a.body = doc;
    a.gzip = true;
    show("redirect gzip", s, a);
  }
  show("redirect http", s, redirect(QUrl(QStringLiteral("http://127.0.0.1:1/x"))));
  show("redirect loop", s, redirect(s.url("/a")));
  show("redirect no loc", s, Answer{.status = 302});
  show("bomb", s, Answer{.body = QByteArray(60'000'000, '0'), .gzip = true});
  show("cap", s, Answer{.body = doc}, {.maximumBytes = 100000});
  show("cap gz", s, Answer{.body = doc, .gzip = true}, {.maximumBytes = 100000});
  show("no gzip in truth", s, Answer{.body = doc, .headers = {{"Content-Encoding", "gzip"}}});
  show("cookie", s, Answer{.body = doc, .headers = {{"Set-Cookie", "a=b"}}});
  show("data", s, QUrl(QStringLiteral("data:,hello")));
  show("file", s, QUrl(QStringLiteral("file:///etc/passwd")));
  show("nofile", s, QUrl(QStringLiteral("file:///nonsense")));
  show("scheme", s, QUrl(QStringLiteral("foo://x/y")));
  show("nothing", s, QUrl(QStringLiteral("https://127.0.0.1:1/")));
  show("silent", s, Answer{.headBytes = 0, .ending = E::silence},
       {.patience = {std::chrono::milliseconds(200), 1000}});
  show("silent in body", s, Answer{.body = doc, .bodyBytes = 70000, .ending = E::silence},
       {.patience = {std::chrono::milliseconds(200), 1000}});
  {
    CatalogServer o(ServerIdentity::selfSigned);
    show("selfsigned", o, Answer{});
  }
  {
    CatalogServer o(ServerIdentity::otherHost);
    show("other", o, Answer{});
  }
}
}  // namespace
}  // namespace quillmere::test
