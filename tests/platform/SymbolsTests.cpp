#include <QtCore/QFile>
#include <QtCore/QMap>
#include <QtCore/QSet>
#include <QtCore/QStandardPaths>
#include <QtCore/QStringConverter>
#include <QtCore/QtEndian>

#include <gtest/gtest.h>

#include "platform/Symbols.h"

namespace quillmere {
namespace {

using namespace Qt::StringLiterals;

const QStringList symbolNames{u"arrow.triangle.2.circlepath"_s,
                              u"arrow.triangle.branch"_s,
                              u"arrow.up.circle"_s,
                              u"arrow.up.right.square"_s,
                              u"books.vertical"_s,
                              u"checkmark.circle"_s,
                              u"checkmark.circle.fill"_s,
                              u"checkmark.seal"_s,
                              u"checkmark.shield"_s,
                              u"chevron.down"_s,
                              u"circle"_s,
                              u"circle.dotted"_s,
                              u"circle.fill"_s,
                              u"clock"_s,
                              u"clock.arrow.circlepath"_s,
                              u"doc.on.doc"_s,
                              u"doc.text"_s,
                              u"doc.text.magnifyingglass"_s,
                              u"exclamationmark.shield"_s,
                              u"exclamationmark.triangle"_s,
                              u"externaldrive"_s,
                              u"externaldrive.badge.exclamationmark"_s,
                              u"gearshape"_s,
                              u"gearshape.2"_s,
                              u"info.circle"_s,
                              u"lightbulb"_s,
                              u"list.bullet"_s,
                              u"list.bullet.circle"_s,
                              u"list.bullet.rectangle"_s,
                              u"lock.shield"_s,
                              u"magnifyingglass"_s,
                              u"point.3.connected.trianglepath.dotted"_s,
                              u"questionmark.circle"_s,
                              u"shippingbox"_s,
                              u"sparkles"_s,
                              u"square.and.arrow.down"_s,
                              u"stethoscope"_s,
                              u"stop.circle"_s,
                              u"switch.2"_s,
                              u"terminal"_s,
                              u"timer"_s,
                              u"trash"_s,
                              u"wifi.exclamationmark"_s,
                              u"wrench.adjustable"_s,
                              u"xmark.circle.fill"_s,
                              u"xmark.octagon"_s};

/// The font file, as far as a test needs to read it.
class FontFile {
 public:
  explicit FontFile(QByteArray bytes) : bytes_(std::move(bytes)) {}

  /// Whether the font draws something for `code`: its map from characters to glyphs, in the form
  /// that holds runs of 16-bit codes, leads to a glyph other than the one for missing characters.
  [[nodiscard]] bool hasGlyph(char16_t code) const {
    const qsizetype map = runsOfCodes();
    const qsizetype size = word(map + 6);
    const qsizetype ends = map + 14;
    const qsizetype starts = ends + size + 2;
    const qsizetype deltas = starts + size;
    const qsizetype offsets = deltas + size;
    for (qsizetype run = 0; run < size; run += 2) {
      if (code <= word(ends + run)) {
        const qsizetype start = word(starts + run);
        const qsizetype offset = word(offsets + run);
        const int glyph = offset == 0 ? code : word(offsets + run + offset + 2 * (code - start));
        return code >= start && glyph != 0 && quint16(glyph + word(deltas + run)) != 0;
      }
    }
    return false;
  }

  [[nodiscard]] bool namesItself(const QString& family) const {
    QStringEncoder encoder(QStringEncoder::Utf16BE);
    const QByteArray encoded = encoder(family);
    return bytes_.contains(encoded);
  }

 private:
  [[nodiscard]] quint16 word(qsizetype at) const {
    return qFromBigEndian<quint16>(bytes_.constData() + at);
  }

  [[nodiscard]] quint32 doubleWord(qsizetype at) const {
    return qFromBigEndian<quint32>(bytes_.constData() + at);
  }

  [[nodiscard]] qsizetype runsOfCodes() const {
    qsizetype table = 12;
    while (QByteArrayView(bytes_).sliced(table, 4) != "cmap") {
      table += 16;
    }
    const qsizetype cmap = doubleWord(table + 8);
    qsizetype record = cmap + 4;
    while (word(cmap + doubleWord(record + 4)) != 4) {
      record += 8;
    }
    return cmap + doubleWord(record + 4);
  }

  QByteArray bytes_;
};

TEST(Symbols, HaveAGlyphEach) {
  for (const QString& name : symbolNames) {
    EXPECT_EQ(symbolGlyph(name).size(), 1) << name.toStdString();
  }
}

TEST(Symbols, ShareNoGlyph) {
  QMap<QString, QString> owners;
  for (const QString& name : symbolNames) {
    const QString owner = owners.value(symbolGlyph(name));
    EXPECT_TRUE(owner.isEmpty()) << name.toStdString() << " and " << owner.toStdString();
    owners.insert(symbolGlyph(name), name);
  }
}

TEST(Symbols, LeaveAGapForANameThatNobodyKnows) {
  EXPECT_EQ(symbolGlyph(u"shippingbo"_s), QString());
  EXPECT_EQ(symbolGlyph(u"shippingbox.fill"_s), QString());
  EXPECT_EQ(symbolGlyph({}), QString());
}

TEST(Symbols, AreInTheFontThatTheFamilyNames) {
  const QString path = QStandardPaths::locate(
      QStandardPaths::GenericDataLocation,
      u"fonts/truetype/material-design-icons-iconfont/MaterialIcons-Regular.ttf"_s);
  QFile file(path);
  if (path.isEmpty() || !file.open(QFile::ReadOnly)) {
    GTEST_SKIP() << "fonts-material-design-icons-iconfont is not installed";
  }
  const FontFile font(file.readAll());
  EXPECT_TRUE(font.namesItself(symbolFontFamily()));
  EXPECT_FALSE(font.hasGlyph(u'\ue005'));
  for (const QString& name : symbolNames) {
    EXPECT_TRUE(font.hasGlyph(symbolGlyph(name).front().unicode())) << name.toStdString();
  }
}

}  // namespace
}  // namespace quillmere
