#include "StoryProbe.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QEvent>
#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtCore/QMetaEnum>
#include <QtQuick/QQuickWindow>

#include <algorithm>
#include <array>
#include <ctime>
#include <poll.h>
#include <unistd.h>

namespace quillmere::test {
namespace {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

/// What a frame may take at sixty a second.
constexpr auto frame = 16ms;
/// Shorter work is not worth a name.
constexpr auto noteworthy = 1ms;
constexpr std::size_t worstGaps = 20;
constexpr std::size_t worstWorks = 3;

const QEvent::Type question = static_cast<QEvent::Type>(QEvent::registerEventType());

/// The time that this thread has had a processor for itself.
std::chrono::nanoseconds computed() {
  timespec time{};
  clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
  return std::chrono::seconds(time.tv_sec) + std::chrono::nanoseconds(time.tv_nsec);
}

double milliseconds(std::chrono::nanoseconds duration) {
  return std::chrono::duration<double, std::milli>(duration).count();
}

QByteArray nameOf(const QObject* receiver, const QEvent& event) {
  QByteArray name = receiver->metaObject()->className();
  name.replace("quillmere::", "");
  if (const auto number = name.indexOf("_QMLTYPE"); number >= 0) {
    name.truncate(number);
  }
  const char* const type = QMetaEnum::fromType<QEvent::Type>().valueToKey(event.type());
  return name + ' ' + (type != nullptr ? QByteArray(type) : QByteArray::number(event.type()));
}

}  // namespace

StoryProbe::StoryProbe() : schedule_(QStringLiteral("/proc/thread-self/schedstat")) {
  // Where the system does not count it, all is zero. Not buffered: each look is a new one.
  (void)schedule_.open(QFile::ReadOnly | QFile::Unbuffered);
  asking_ = std::jthread([this](const std::stop_token& stop) {
    while (!stop.stop_requested()) {
      askAgain();
      std::this_thread::sleep_for(1ms);
    }
  });
  listening_ = std::jthread([this](const std::stop_token& stop) { listen(stop); });
}

StoryProbe::~StoryProbe() = default;

auto StoryProbe::queued() const -> Clock::duration {
  std::array<char, 100> text{};
  const auto size = pread(schedule_.handle(), text.data(), text.size(), 0);
  const QList<QByteArray> numbers =
      QByteArray(text.data(), std::max<qsizetype>(0, size)).split(' ');
  return std::chrono::nanoseconds(numbers.size() > 1 ? numbers[1].toLongLong() : 0);
}

void StoryProbe::askAgain() {
  if (!isAnswered_.exchange(false)) {
    return;
  }
  {
    const std::scoped_lock lock(mutex_);
    postedAt_ = Clock::now();
  }
  QCoreApplication::postEvent(this, new QEvent(question));
}

void StoryProbe::listen(const std::stop_token& stop) {
  QByteArray line;
  while (!stop.stop_requested()) {
    pollfd input{.fd = STDIN_FILENO, .events = POLLIN, .revents = 0};
    if (poll(&input, 1, 20) <= 0) {
      continue;
    }
    char letter = 0;
    if (read(STDIN_FILENO, &letter, 1) != 1) {
      return;
    }
    if (letter != '\n') {
      line += letter;
      continue;
    }
    const std::scoped_lock lock(mutex_);
    step_ = std::exchange(line, {});
  }
}

void StoryProbe::begin(const QObject* receiver, const QEvent& event) {
  // The receiver may be gone when the work is done.
  nested_.push_back({.what = nameOf(receiver, event), .begun = Clock::now()});
}

void StoryProbe::end() {
  Work work = std::move(nested_.back());
  nested_.pop_back();
  work.took = Clock::now() - work.begun;
  if (nested_.empty()) {
    if (work.took >= noteworthy) {
      handled_.push_back(std::move(work));
    }
    return;
  }
  Work& around = nested_.back();
  if (work.took >= noteworthy && work.took > around.worstWithinTook) {
    around.worstWithinTook = work.took;
    around.worstWithin = work.what;
    if (!work.worstWithin.isEmpty()) {
      around.worstWithin += " > " + work.worstWithin;
    }
  }
}

void StoryProbe::watch(QQuickWindow* window) {
  connect(
      window, &QQuickWindow::frameSwapped, this,
      [this] {
        if (!firstFrame_) {
          firstFrame_ = Clock::now();
        }
      },
      Qt::QueuedConnection);
}

void StoryProbe::customEvent(QEvent* event) {
  if (event->type() != question) {
    return;
  }
  const auto computedNow = computed();
  const auto queuedNow = queued();
  Clock::time_point postedAt;
  {
    const std::scoped_lock lock(mutex_);
    postedAt = postedAt_;
  }
  if (firstFrame_ && postedAt > *firstFrame_) {
    note(Clock::now() - postedAt, computedNow - computedBefore_, queuedNow - queuedBefore_);
  }
  computedBefore_ = computedNow;
  queuedBefore_ = queuedNow;
  handled_.clear();
  isAnswered_ = true;
}

void StoryProbe::note(Clock::duration waited, Clock::duration computed, Clock::duration queued) {
  ++asked_;
  longest_ = std::max(longest_, waited);
  if (waited <= frame) {
    return;
  }
  std::ranges::sort(handled_, std::ranges::greater(), &Work::took);
  handled_.resize(std::min(handled_.size(), worstWorks));
  const std::scoped_lock lock(mutex_);
  gaps_.push_back({.waited = waited,
                   .computed = computed,
                   .queued = queued,
                   .at = Clock::now() - waited,
                   .step = step_,
                   .works = std::move(handled_)});
}

QByteArray StoryProbe::report() const {
  std::vector<Gap> gaps = gaps_;
  std::ranges::sort(gaps, std::ranges::greater(), &Gap::waited);
  gaps.resize(std::min(gaps.size(), worstGaps));

  QJsonArray worst;
  for (const Gap& gap : gaps) {
    QJsonArray works;
    for (const Work& work : gap.works) {
      works.append(QJsonObject{{u"what"_s, QString::fromUtf8(work.what)},
                               {u"ms"_s, milliseconds(work.took)},
                               {u"within"_s, QString::fromUtf8(work.worstWithin)},
                               {u"withinMs"_s, milliseconds(work.worstWithinTook)}});
    }
    worst.append(QJsonObject{{u"ms"_s, milliseconds(gap.waited)},
                             {u"computedMs"_s, milliseconds(gap.computed)},
                             {u"queuedMs"_s, milliseconds(gap.queued)},
                             {u"at"_s, milliseconds(gap.at.time_since_epoch())},
                             {u"step"_s, QString::fromUtf8(gap.step)},
                             {u"works"_s, works}});
  }
  // Both ends of the start are times of the same clock: the one that the whole machine shares.
  return QJsonDocument(
             QJsonObject{
                 {"firstFrameAt",
                  milliseconds(firstFrame_.value_or(Clock::time_point()).time_since_epoch())},
                 {u"longestMs"_s, milliseconds(longest_)},
                 {u"asked"_s, asked_},
                 {u"overAFrame"_s, static_cast<qint64>(gaps_.size())},
                 {u"worst"_s, worst}})
      .toJson();
}

}  // namespace quillmere::test
