#include "platform/Symbols.h"

#include <QtCore/QLatin1StringView>

#include <algorithm>
#include <array>

namespace quillmere {
namespace {

struct Symbol {
  QLatin1StringView name;
  /// The glyph's place in the font's private use area.
  char16_t glyph;
};

constexpr auto symbols = std::to_array<Symbol>({
    {QLatin1StringView("arrow.triangle.2.circlepath"), u'\ue627'},
    {QLatin1StringView("arrow.triangle.branch"), u'\ue0b6'},
    {QLatin1StringView("arrow.up.circle"), u'\uf182'},
    {QLatin1StringView("arrow.up.right.square"), u'\ue89e'},
    {QLatin1StringView("books.vertical"), u'\ue02f'},
    {QLatin1StringView("checkmark.circle"), u'\ue92d'},
    {QLatin1StringView("checkmark.circle.fill"), u'\ue86c'},
    {QLatin1StringView("checkmark.seal"), u'\uef76'},
    {QLatin1StringView("checkmark.shield"), u'\ue8e8'},
    {QLatin1StringView("chevron.backward"), u'\ue5c4'},
    {QLatin1StringView("chevron.down"), u'\ue5cf'},
    {QLatin1StringView("circle"), u'\ue836'},
    {QLatin1StringView("circle.dotted"), u'\uef64'},
    {QLatin1StringView("circle.fill"), u'\uef4a'},
    {QLatin1StringView("clock"), u'\ue8b5'},
    {QLatin1StringView("clock.arrow.circlepath"), u'\ue889'},
    {QLatin1StringView("doc.on.doc"), u'\ue14d'},
    {QLatin1StringView("doc.text"), u'\ue873'},
    {QLatin1StringView("doc.text.magnifyingglass"), u'\ue880'},
    {QLatin1StringView("exclamationmark.shield"), u'\uf014'},
    {QLatin1StringView("exclamationmark.triangle"), u'\ue002'},
    {QLatin1StringView("externaldrive"), u'\ue1db'},
    {QLatin1StringView("externaldrive.badge.exclamationmark"), u'\ue610'},
    {QLatin1StringView("gearshape"), u'\ue8b8'},
    {QLatin1StringView("gearshape.2"), u'\uf10c'},
    {QLatin1StringView("info.circle"), u'\ue88e'},
    {QLatin1StringView("lightbulb"), u'\ue0f0'},
    {QLatin1StringView("list.bullet"), u'\ue241'},
    {QLatin1StringView("list.bullet.circle"), u'\ue896'},
    {QLatin1StringView("list.bullet.rectangle"), u'\ue0ee'},
    {QLatin1StringView("lock.shield"), u'\uf0dc'},
    {QLatin1StringView("magnifyingglass"), u'\ue8b6'},
    {QLatin1StringView("point.3.connected.trianglepath.dotted"), u'\ue335'},
    {QLatin1StringView("questionmark.circle"), u'\ue8fd'},
    {QLatin1StringView("shippingbox"), u'\ue1a1'},
    {QLatin1StringView("sparkles"), u'\ue65f'},
    {QLatin1StringView("square.and.arrow.down"), u'\ue171'},
    {QLatin1StringView("stethoscope"), u'\uf109'},
    {QLatin1StringView("stop.circle"), u'\uef71'},
    {QLatin1StringView("switch.2"), u'\ue9f6'},
    {QLatin1StringView("terminal"), u'\ueb8e'},
    {QLatin1StringView("timer"), u'\ue425'},
    {QLatin1StringView("trash"), u'\ue872'},
    {QLatin1StringView("wifi.exclamationmark"), u'\ue648'},
    {QLatin1StringView("wrench.adjustable"), u'\ue869'},
    {QLatin1StringView("xmark.circle.fill"), u'\ue5c9'},
    {QLatin1StringView("xmark.octagon"), u'\ue99a'},
});

}  // namespace

QString symbolFontFamily() {
  return QStringLiteral("Material Icons");
}

QString symbolGlyph(QStringView symbolName) {
  const auto* const found = std::ranges::find_if(
      symbols, [symbolName](const Symbol& symbol) { return symbolName == symbol.name; });
  return found == symbols.end() ? QString() : QString(QChar(found->glyph));
}

}  // namespace quillmere
