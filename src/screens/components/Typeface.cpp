#include "screens/components/Typeface.h"

#include <QtCore/QStandardPaths>
#include <QtGui/QFontDatabase>
#include <QtGui/QFontInfo>
#include <QtGui/QGuiApplication>

#include <algorithm>

#include "platform/Symbols.h"

namespace quillmere {
namespace {

constexpr int smallestBodyPixelSize = 13;

/// Where the font is also there packed for the web, Qt takes that file and unpacks it, which can be
/// seen in the time of a start. Of files with one family the one that is added last is taken, so
/// that the system's must be known before.
bool addUnpackedSymbolFont() {
  const QString file = QStandardPaths::locate(
      QStandardPaths::GenericDataLocation,
      QStringLiteral("fonts/truetype/material-design-icons-iconfont/MaterialIcons-Regular.ttf"));
  return QFontDatabase::hasFamily(symbolFontFamily()) && !file.isEmpty() &&
         QFontDatabase::addApplicationFont(file) >= 0;
}

}  // namespace

Typeface::Typeface(QObject* parent) : QObject(parent) {
  addSymbolFont();
}

void Typeface::addSymbolFont() {
  [[maybe_unused]] static const bool isAdded = addUnpackedSymbolFont();
}

int Typeface::bodyPixelSize() const {
  return std::max(smallestBodyPixelSize, QFontInfo(QGuiApplication::font()).pixelSize());
}

QString Typeface::family() const {
  return QGuiApplication::font().family();
}

QString Typeface::monospacedFamily() const {
  return QFontDatabase::systemFont(QFontDatabase::FixedFont).family();
}

QString Typeface::symbolFamily() const {
  return symbolFontFamily();
}

QString Typeface::glyph(const QString& symbolName) const {
  return symbolGlyph(symbolName);
}

}  // namespace quillmere
