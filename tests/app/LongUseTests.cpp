// Does the same over and over in the real window: nothing may grow with it.

#include <QtCore/QDir>
#include <QtGui/QGuiApplication>
#include <QtQml/QQmlEngine>
#include <QtQuick/QQuickItem>
#include <QtQuick/QQuickWindow>
#include <QtTest/QSignalSpy>
#include <QtTest/QTest>

#include <algorithm>
#include <atomic>
#include <gtest/gtest.h>
#include <iostream>

#include "app/QuillmereApp.h"
#include "commands/BrewCommandBuilder.h"
#include "support/FakeBrew.h"
#include "support/Rounds.h"
#include "support/TemporarySettings.h"
#include "support/TestPrefix.h"

// What Qt offers to tools that look at a program from outside; no header of it is installed.
extern Q_DECL_IMPORT quintptr qtHookData[];

namespace quillmere::test {
namespace {

using namespace Qt::StringLiterals;

std::atomic<int> livingObjects = 0;

void noteNewObject(QObject*) {
  ++livingObjects;
}

void noteGoneObject(QObject*) {
  --livingObjects;
}

void countObjects() {
  constexpr std::size_t whenAdded = 3;
  constexpr std::size_t whenRemoved = 4;
  qtHookData[whenAdded] = reinterpret_cast<quintptr>(&noteNewObject);
  qtHookData[whenRemoved] = reinterpret_cast<quintptr>(&noteGoneObject);
}

int entriesOf(const QString& folder) {
  return static_cast<int>(QDir(folder).entryList(QDir::NoFilter).size());
}

int itemsIn(const QQuickItem* item) {
  int count = 1;
  const QList<QQuickItem*> children = item->childItems();
  for (const QQuickItem* child : children) {
    count += itemsIn(child);
  }
  return count;
}

/// What a program may have too much of.
struct Holdings {
  int objects = 0;
  int items = 0;
  int descriptors = 0;
  int threads = 0;
  qint64 residentBytes = 0;
};

std::ostream& operator<<(std::ostream& out, const Holdings& holdings) {
  return out << holdings.objects << " objects, " << holdings.items << " items, "
             << holdings.descriptors << " descriptors, " << holdings.threads << " threads, "
             << holdings.residentBytes / 1024 << " kB";
}

class LongUse : public testing::Test {
 protected:
  LongUse() {
    prefix_.withBrew(fakeBrewScript()).withAllLocations();
    app_.store().setHasCompletedOnboarding(true);
    app_.store().selectPrefix(prefix_.url());
  }

  void SetUp() override {
    ASSERT_TRUE(app_.open());
    ASSERT_TRUE(QTest::qWaitForWindowExposed(app_.window()));
  }

  [[nodiscard]] ContentViewModel& content() { return app_.content(); }

  [[nodiscard]] QQuickWindow& window() const { return *app_.window(); }

  template <typename Question>
  static void waitUntil(const Question& question) {
    ASSERT_TRUE(QTest::qWaitFor(question, 60'000));
  }

  void drawFrame() const {
    QSignalSpy drawn(&window(), &QQuickWindow::frameSwapped);
    window().update();
    ASSERT_TRUE(drawn.wait(60'000));
  }

  void openPreview(const BrewCommand& command) {
    content().commands()->openPreview(command, u"Services"_s);
    ASSERT_NE(content().commands()->preview(), nullptr);
    drawFrame();
  }

  void closePreview() {
    content().commands()->preview()->close();
    waitUntil([this] { return content().commands()->preview() == nullptr; });
    drawFrame();
  }

  [[nodiscard]] Holdings holdings() const {
    qmlEngine(&window())->collectGarbage();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QTest::qWait(50);
    QFile memory(u"/proc/self/statm"_s);
    const QByteArray pages = memory.open(QFile::ReadOnly) ? memory.readAll() : QByteArray();
    return {.objects = livingObjects,
            .items = itemsIn(window().contentItem()),
            .descriptors = entriesOf(u"/proc/self/fd"_s),
            .threads = entriesOf(u"/proc/self/task"_s),
            .residentBytes = pages.split(' ').value(1).toLongLong() * 4096};
  }

  /// Carries out `round` often and expects to hold no more for it than after a few times.
  template <typename Round>
  void repeat(int times, const Round& round) {
    // Caches fill, and threads that wait for work come and go.
    const int warmUp = std::min(times, 50);
    for (int i = 0; i < warmUp; ++i) {
      round();
      ASSERT_FALSE(HasFatalFailure());
    }
    const Holdings before = holdings();
    for (int i = 0; i < times; ++i) {
      round();
      ASSERT_FALSE(HasFatalFailure());
    }
    // A thread of a run may still be on its way out, with its descriptors.
    const auto isBack = [this, &before] {
      const Holdings now = holdings();
      return now.descriptors <= before.descriptors + tolerated &&
             now.threads <= before.threads + tolerated;
    };
    EXPECT_TRUE(QTest::qWaitFor(isBack, 20'000));
    const Holdings after = holdings();
    // One object a round would be too many.
    EXPECT_LT(after.objects, before.objects + times / 2) << before << "\n" << after;
    EXPECT_LE(after.items, before.items + tolerated) << before << "\n" << after;
    // So generous because a sanitizer keeps what was freed.
    EXPECT_LT(after.residentBytes, before.residentBytes + 400'000'000) << before << "\n" << after;
    // Said in any case, for people who want to know how far from the bounds it is.
    std::cout << before << "\n" << after << "\n";
  }

 private:
  /// What comes and goes by itself, such as a tool tip or a thread of a pool.
  static constexpr int tolerated = 3;

  TemporarySettings settings_;
  TestPrefix prefix_;
  QuillmereApp app_{{.settings = [this] { return settings_.open(); },
                     .cacheDirectoryURL = settings_.cacheDirectoryURL()}};
};

TEST_F(LongUse, OpensAndClosesPreviews) {
  repeat(rounds(20, 1000), [this] {
    openPreview(BrewCommandBuilder().servicesList());
    closePreview();
  });
}

TEST_F(LongUse, OpensAndLeavesQuestionsAboutARun) {
  repeat(rounds(10, 500), [this] {
    openPreview(BrewCommandBuilder().upgrade(std::nullopt).value());
    content().commands()->preview()->run();
    drawFrame();
    content().commands()->preview()->cancelConfirmation();
    closePreview();
  });
}

TEST_F(LongUse, RunsCommands) {
  repeat(rounds(6, 100), [this] {
    openPreview(BrewCommandBuilder().servicesList());
    content().commands()->preview()->run();
    waitUntil([this] { return content().commands()->session() != nullptr; });
    DirectExecutionSessionViewModel* const session = content().commands()->session();
    session->setShowsRawOutput(true);
    waitUntil([session] { return !session->isRunning(); });
    drawFrame();
    closePreview();
  });
}

TEST_F(LongUse, GoesThroughTheSections) {
  repeat(rounds(6, 200), [this] {
    for (int section = 0; section < content().sections()->rowCount(); ++section) {
      content().selectIndex(section);
      drawFrame();
    }
  });
}

TEST_F(LongUse, OpensAndClosesTheSettings) {
  repeat(rounds(10, 500), [this] {
    window().requestActivate();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window()));
    QTest::keyClick(&window(), Qt::Key_Comma, Qt::ControlModifier);
    const auto settings = [this]() -> QWindow* {
      const QWindowList windows = QGuiApplication::topLevelWindows();
      const auto found = std::ranges::find_if(
          windows, [this](const QWindow* each) { return each != &window() && each->isVisible(); });
      return found == windows.end() ? nullptr : *found;
    };
    waitUntil([&settings] { return settings() != nullptr; });
    ASSERT_TRUE(QTest::qWaitForWindowActive(settings()));
    QTest::keyClick(settings(), Qt::Key_Escape);
    waitUntil([&settings] { return settings() == nullptr; });
  });
}

}  // namespace
}  // namespace quillmere::test

int main(int argc, char** argv) {
  quillmere::test::countObjects();
  quillmere::QuillmereApp::prepare();
  testing::InitGoogleTest(&argc, argv);
  const QGuiApplication application(argc, argv);
  return RUN_ALL_TESTS();
}
