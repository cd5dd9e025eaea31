#include "platform/AbbreviatedText.h"

#include <QtCore/QTextBoundaryFinder>

#include <algorithm>

namespace quillmere {
namespace {

/// Where the first `limit` grapheme clusters of `text` end; -1 where `text` has no more of them.
qsizetype endOfClusters(QStringView text, qsizetype limit) {
  QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text.data(), text.size());
  qsizetype end = 0;
  for (qsizetype found = 0; found < limit && end >= 0; ++found) {
    end = finder.toNextBoundary();
  }
  return end < text.size() ? end : -1;
}

}  // namespace

QString abbreviated(const QString& text, qsizetype limit) {
  // The finder reads all that it is given, so a long text is shown to it by growing windows.
  for (qsizetype window = std::max<qsizetype>(4 * limit, 64); text.size() > limit; window *= 2) {
    QStringView view = QStringView(text).first(std::min(window, text.size()));
    if (view.size() < text.size() && view.back().isHighSurrogate()) {
      view.chop(1);
    }
    if (const qsizetype end = endOfClusters(view, limit); end >= 0) {
      return text.first(end) + QStringLiteral("...");
    }
    if (view.size() == text.size()) {
      break;
    }
  }
  return text;
}

}  // namespace quillmere
