#include "window/SeenWindow.h"

#include <QtCore/QElapsedTimer>
#include <QtCore/QEventLoop>
#include <QtCore/QTimer>
#include <QtGui/QWheelEvent>
#include <QtQuick/QQuickItem>
#include <QtQuick/QQuickWindow>
#include <QtTest/QTest>

#include <chrono>
#include <utility>

namespace quillmere {
namespace {

using namespace std::chrono_literals;

constexpr auto patience = 60s;
/// Longer than any timer of the window that would draw once more.
constexpr auto rest = 80ms;

QQuickItem* findBelow(QQuickItem& item, QByteArrayView type) {
  if (item.isVisible() && QByteArrayView(item.metaObject()->className()).startsWith(type)) {
    return &item;
  }
  const auto children = item.childItems();
  for (QQuickItem* const child : children) {
    if (QQuickItem* const found = findBelow(*child, type)) {
      return found;
    }
  }
  return nullptr;
}

}  // namespace

SeenWindow::SeenWindow(AppEnvironment surroundings) : app_(std::move(surroundings)) {
  if (!app_.open()) {
    qFatal("the window does not open");
  }
  window().resize(1280, 800);
  window().requestActivate();
  if (!QTest::qWaitForWindowActive(&window())) {
    qFatal("the window does not get the keyboard");
  }
  settle();
}

double SeenWindow::secondsUntilSeen(benchmark::State& state, const char* what,
                                    const std::function<void()>& act,
                                    const std::function<bool()>& isSo) {
  QEventLoop loop;
  QElapsedTimer clock;
  qint64 seenAt = 0;
  QObject::connect(&window(), &QQuickWindow::frameSwapped, &loop, [&] {
    if (seenAt == 0 && isSo()) {
      seenAt = clock.nsecsElapsed();
      loop.quit();
    }
  });
  QTimer::singleShot(patience, &loop, &QEventLoop::quit);
  clock.start();
  act();
  if (seenAt == 0) {
    loop.exec();
  }
  if (seenAt == 0) {
    state.SkipWithError((std::string("not seen: ") + what).c_str());
  }
  return static_cast<double>(seenAt) / 1e9;
}

void SeenWindow::settle() const {
  QEventLoop loop;
  QTimer quiet;
  quiet.setSingleShot(true);
  quiet.setInterval(rest);
  QObject::connect(&quiet, &QTimer::timeout, &loop, &QEventLoop::quit);
  QObject::connect(&window(), &QQuickWindow::frameSwapped, &quiet, qOverload<>(&QTimer::start));
  quiet.start();
  loop.exec();
}

void SeenWindow::press(Qt::Key key, Qt::KeyboardModifiers modifiers) const {
  QTest::keyClick(&window(), key, modifiers);
}

void SeenWindow::type(QStringView text) const {
  for (const QChar letter : text) {
    QTest::keyClick(&window(), letter.toLatin1());
  }
}

void SeenWindow::turnWheel(const QQuickItem& over) const {
  const QPointF place = over.mapToScene(QPointF(over.width() / 2, over.height() / 2));
  QWheelEvent event(place, window().mapToGlobal(place), QPoint(), QPoint(0, -120), Qt::NoButton,
                    Qt::NoModifier, Qt::NoScrollPhase, false);
  QCoreApplication::sendEvent(&window(), &event);
}

QQuickItem* SeenWindow::find(const char* type) const {
  return findBelow(*window().contentItem(), type);
}

}  // namespace quillmere
