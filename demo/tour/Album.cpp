#include "demo/tour/Album.h"

#include <QtGui/QGuiApplication>
#include <QtGui/QImage>
#include <QtGui/QPalette>
#include <QtTest/QTest>

namespace quillmere::demo {
namespace {

using namespace Qt::StringLiterals;

/// Longer than anything on the screen moves.
constexpr int settleMilliseconds = 300;

QPalette palette(bool dark) {
  return dark ? QPalette(QColor(0x22, 0x23, 0x27)) : QPalette(QColor(0xf0, 0xf0, 0xf0));
}

bool isBlank(const QImage& image) {
  if (image.isNull()) {
    return true;
  }
  const QRgb first = image.pixel(0, 0);
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      if (image.pixel(x, y) != first) {
        return false;
      }
    }
  }
  return true;
}

}  // namespace

QString Album::nextName(const QString& name) const {
  return u"%1-%2"_s.arg(place_, 3, 10, QLatin1Char('0')).arg(name);
}

void Album::take(QQuickWindow& window, const QString& name) {
  take(window, name, false);
  take(window, name, true);
  ++place_;
}

void Album::take(QQuickWindow& window, const QString& name, bool dark) const {
  QGuiApplication::setPalette(palette(dark));
  QTest::qWait(settleMilliseconds);
  const QString file = nextName(name) + (dark ? u"-dark.png"_s : u"-light.png"_s);
  const QImage image = window.grabWindow();
  if (isBlank(image)) {
    throw TourError(u"The picture %1 cannot be taken: the window shows nothing"_s.arg(file));
  }
  if (!image.save(folder_.filePath(file))) {
    throw TourError(u"The picture %1 cannot be written"_s.arg(folder_.filePath(file)));
  }
}

}  // namespace quillmere::demo
