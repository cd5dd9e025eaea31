#include <QtTest/QSignalSpy>
#include <QtTest/QTest>

#include <gtest/gtest.h>

#include "StoreFixture.h"
#include "support/BackgroundThreadBlocker.h"

// A history of years is read on another thread, so that the first frame does not wait for it.

namespace quillmere {
namespace {

using namespace Qt::StringLiterals;
using test::copyOf;

class LongHistoryTest : public test::StoreFixture {
 protected:
  LongHistoryTest() {
    for (int i = 0; i < 2000; ++i) {
      history_ += copyOf(u"brew info package-"_s + QString::number(i));
    }
    given(u"commandHistory"_s, encodeCommandHistory(history_));
  }

  CommandHistory history_;
};

TEST_F(LongHistoryTest, IsThereALittleLaterAndSaysSo) {
  std::unique_ptr<LocalPersistenceStore> store;
  {
    const test::BackgroundThreadBlocker held;
    store = start();
    EXPECT_FALSE(store->isHistoryLoaded());
  }
  QSignalSpy changed(store.get(), &LocalPersistenceStore::commandHistoryChanged);
  ASSERT_TRUE(changed.wait());
  EXPECT_TRUE(store->isHistoryLoaded());
  EXPECT_EQ(store->commandHistory(), history_);
}

TEST_F(LongHistoryTest, IsWaitedForByWhoeverAsks) {
  const auto store = start();
  EXPECT_EQ(store->commandHistory(), history_);
  EXPECT_TRUE(store->isHistoryLoaded());
}

TEST_F(LongHistoryTest, LosesNothingToARecordThatComesEarly) {
  const auto store = start();
  const CommandHistoryRecord early = copyOf(u"brew update"_s);
  store->appendHistory(early);
  history_.prepend(early);
  QTest::qWait(1);
  EXPECT_EQ(store->commandHistory(), history_);
  EXPECT_EQ(start()->commandHistory(), history_);
}

TEST_F(LongHistoryTest, StaysForgottenWhenItIsClearedEarly) {
  const auto store = start();
  store->clearHistory();
  QTest::qWait(20);
  EXPECT_TRUE(store->commandHistory().isEmpty());
  EXPECT_TRUE(start()->commandHistory().isEmpty());
}

TEST_F(LongHistoryTest, MayBeLeftUnread) {
  const test::BackgroundThreadBlocker held;
  start().reset();
}

TEST_F(LongHistoryTest, KeepsNobodyWaitingWhereItIsShort) {
  given(u"commandHistory"_s, encodeCommandHistory({copyOf(u"brew update"_s)}));
  const test::BackgroundThreadBlocker held;
  const auto store = start();
  EXPECT_TRUE(store->isHistoryLoaded());
  EXPECT_EQ(store->commandHistory().size(), 1);
}

}  // namespace
}  // namespace quillmere
