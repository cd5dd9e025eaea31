#include "screens/components/Typeface.h"

#include <QtGui/QFontDatabase>
#include <QtGui/QFontInfo>
#include <QtGui/QGuiApplication>

#include <algorithm>

#include "platform/Symbols.h"

namespace quillmere {
namespace {

constexpr int smallestBodyPixelSize = 13;

}  // namespace

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
