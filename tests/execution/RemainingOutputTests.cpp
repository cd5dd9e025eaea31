#include <gtest/gtest.h>
#include <unistd.h>

#include "execution/ChildProcess.h"
#include "execution/RemainingOutput.h"

namespace quillmere {
namespace {

using namespace std::chrono_literals;

/// The two pipes of a child that has exited. Somebody else still holds their writing ends.
class RemainingOutput : public testing::Test {
 protected:
  static void write(const ChildProcess::Pipe& pipe, const QByteArray& text) {
    ASSERT_EQ(::write(pipe.writing.get(), text.constData(), static_cast<std::size_t>(text.size())),
              text.size());
  }

  /// A clock that jumps by an hour each time that it is asked: the thread was not scheduled.
  [[nodiscard]] auto lateClock() {
    return [this] { return time_ += 1h; };
  }

  ChildProcess::Pipe output_ = ChildProcess::openPipe().value();
  ChildProcess::Pipe error_ = ChildProcess::openPipe().value();
  FileHandleDataReader outputReader_{std::move(output_.reading)};
  FileHandleDataReader errorReader_{std::move(error_.reading)};

 private:
  std::chrono::steady_clock::time_point time_;
};

TEST_F(RemainingOutput, IsReadHoweverLateItIs) {
  const QByteArray text(60'000, 'x');
  write(output_, text);
  write(error_, "Error: no such thing\n");
  readRemainingOutput(outputReader_, errorReader_, lateClock());
  EXPECT_TRUE(outputReader_.text() == text) << outputReader_.text().size();
  EXPECT_EQ(errorReader_.text(), "Error: no such thing\n");
  EXPECT_FALSE(outputReader_.fileHandle().isOpen());
  EXPECT_FALSE(errorReader_.fileHandle().isOpen());
}

TEST_F(RemainingOutput, IsNotWaitedForWhereTheTimeIsOver) {
  readRemainingOutput(outputReader_, errorReader_, lateClock());
  EXPECT_EQ(outputReader_.text(), "");
  EXPECT_FALSE(outputReader_.fileHandle().isOpen());
}

TEST_F(RemainingOutput, EndsThoughSomebodyWritesOn) {
  int asked = 0;
  readRemainingOutput(outputReader_, errorReader_, [&] {
    write(output_, "more\n");
    return std::chrono::steady_clock::time_point(++asked * 100ms);
  });
  EXPECT_LT(asked, 10);
  EXPECT_TRUE(outputReader_.text().startsWith("more\nmore\n"));
}

}  // namespace
}  // namespace quillmere
