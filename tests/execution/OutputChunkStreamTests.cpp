#include <QtCore/QObject>
#include <QtTest/QTest>

#include <gtest/gtest.h>
#include <thread>

#include "execution/OutputChunkStream.h"

namespace quillmere {
namespace {

DirectExecutionOutputChunk chunk(const QByteArray& text) {
  return {.text = text};
}

QByteArray textOf(const OutputChunkStream::Chunks& chunks) {
  QByteArray text;
  for (const auto& each : chunks) {
    text += each.text;
  }
  return text;
}

TEST(OutputChunkStream, KeepsTheOrderOfItsYieldsUntilTheyAreTaken) {
  const auto stream = std::make_shared<OutputChunkStream>();
  stream->yield(chunk("a"));
  stream->yield(chunk("b"));
  EXPECT_EQ(textOf(stream->take()), "ab");
  EXPECT_TRUE(stream->take().empty());
}

TEST(OutputChunkStream, IgnoresWhatComesAfterItsEnd) {
  const auto stream = std::make_shared<OutputChunkStream>();
  stream->finish();
  stream->yield(chunk("late"));
  EXPECT_TRUE(stream->take().empty());
}

TEST(OutputChunkStream, CallsTheConsumerOnceForManyChunks) {
  const auto stream = std::make_shared<OutputChunkStream>();
  QObject consumer;
  int calls = 0;
  stream->consume(&consumer, [&calls] { ++calls; });
  for (int i = 0; i < 1000; ++i) {
    stream->yield(chunk("x"));
  }
  ASSERT_TRUE(QTest::qWaitFor([&calls] { return calls > 0; }));
  QTest::qWait(20);
  EXPECT_EQ(calls, 1);
  EXPECT_EQ(stream->take().size(), 1000U);
}

TEST(OutputChunkStream, CallsTheConsumerForWhatCameBeforeIt) {
  const auto stream = std::make_shared<OutputChunkStream>();
  stream->yield(chunk("early"));
  stream->finish();
  QObject consumer;
  QByteArray received;
  stream->consume(&consumer, [&] { received += textOf(stream->take()); });
  EXPECT_TRUE(QTest::qWaitFor([&received] { return received == "early"; }));
}

TEST(OutputChunkStream, CallsTheConsumerAtItsEnd) {
  const auto stream = std::make_shared<OutputChunkStream>();
  QObject consumer;
  bool called = false;
  stream->consume(&consumer, [&called] { called = true; });
  stream->finish();
  EXPECT_TRUE(QTest::qWaitFor([&called] { return called; }));
}

TEST(OutputChunkStream, NeverCallsAConsumerThatIsGone) {
  const auto stream = std::make_shared<OutputChunkStream>();
  bool called = false;
  {
    QObject consumer;
    stream->consume(&consumer, [&called] { called = true; });
    stream->yield(chunk("x"));
  }
  QTest::qWait(20);
  EXPECT_FALSE(called);
}

TEST(OutputChunkStream, IsNotKeptByACallUnderWay) {
  auto stream = std::make_shared<OutputChunkStream>();
  const std::weak_ptr<OutputChunkStream> watched = stream;
  QObject consumer;
  bool called = false;
  stream->consume(&consumer, [&called] { called = true; });
  stream->yield(chunk("x"));
  stream.reset();
  EXPECT_TRUE(watched.expired());
  QTest::qWait(20);
  EXPECT_FALSE(called);
}

TEST(OutputChunkStream, DeliversEverythingFromAnotherThread) {
  constexpr int count = 20'000;
  const auto stream = std::make_shared<OutputChunkStream>();
  QObject consumer;
  QByteArray received;
  stream->consume(&consumer, [&] { received += textOf(stream->take()); });
  std::jthread producer([stream] {
    for (int i = 0; i < count; ++i) {
      stream->yield(chunk(QByteArray::number(i) + ' '));
    }
    stream->finish();
  });
  ASSERT_TRUE(QTest::qWaitFor([&received] { return received.endsWith(" 19999 "); }, 20'000));
  const QList<QByteArray> numbers = received.trimmed().split(' ');
  ASSERT_EQ(numbers.size(), count);
  for (int i = 0; i < count; ++i) {
    ASSERT_EQ(numbers[i].toInt(), i);
  }
}

}  // namespace
}  // namespace quillmere
