// The sink is called under the lock. Jobs that would write meanwhile have to wait for the reader
// of the output anyhow.

#include "terminal/ordered_output.h"

#include <utility>

namespace tool {

namespace {

constexpr std::size_t kMostKept = std::size_t{1} << 18;  // bytes of a job

}  // namespace

OrderedOutput::OrderedOutput(Sink sink, std::size_t ahead)
    : sink_(std::move(sink)), ahead_(ahead), waiting_(ahead) {}

template <typename Condition>
void OrderedOutput::wait(std::unique_lock<std::mutex>& lock, Condition condition) {
  changed_.wait(lock, [&] { return is_given_up_ || condition(); });
  if (is_given_up_) throw GivenUp{};
}

void OrderedOutput::begin(std::size_t job) {
  std::unique_lock lock(mutex_);
  wait(lock, [&] { return job <= turn_ + ahead_; });
}

void OrderedOutput::wait_for_turn(std::size_t job) {
  std::unique_lock lock(mutex_);
  wait(lock, [&] { return job == turn_; });
}

void OrderedOutput::write(std::size_t job, Stream stream, std::string text) {
  std::unique_lock lock(mutex_);
  wait(lock,
       [&] { return job == turn_ || waiting_[job - turn_ - 1].size + text.size() <= kMostKept; });
  if (job == turn_) return sink_(stream, text);
  Waiting& waiting = waiting_[job - turn_ - 1];
  waiting.size += text.size();
  waiting.kept.push_back({stream, std::move(text)});
}

void OrderedOutput::finish(std::size_t job) {
  const std::lock_guard lock(mutex_);
  if (job != turn_) {
    waiting_[job - turn_ - 1].is_finished = true;
    return;
  }
  pass_turn_on();
  changed_.notify_all();
}

// To the next job that still runs. What the jobs up to it have written goes out.
void OrderedOutput::pass_turn_on() {
  for (bool next_is_finished = true; next_is_finished;) {
    ++turn_;
    waiting_.emplace_back();
    const Waiting next = std::move(waiting_.front());
    waiting_.pop_front();
    for (const Kept& kept : next.kept) sink_(kept.stream, kept.text);
    next_is_finished = next.is_finished;
  }
}

void OrderedOutput::give_up() {
  const std::lock_guard lock(mutex_);
  is_given_up_ = true;
  changed_.notify_all();
}

}  // namespace tool
