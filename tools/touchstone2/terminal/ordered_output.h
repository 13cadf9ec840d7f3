/// Lets jobs that run at the same time write as if each had waited for the one before it.
#ifndef TOUCHSTONE2_TOOL_ORDERED_OUTPUT_H
#define TOUCHSTONE2_TOOL_ORDERED_OUTPUT_H

#include <condition_variable>
#include <cstddef>
#include <deque>
#include <functional>
#include <mutex>
#include <string>
#include <vector>

namespace tool {

enum class Stream { output, error };

/// Jobs are numbered from 0, and one of them, at first job 0, has the turn. What it writes goes
/// out at once; what others write is kept until it is their turn. Both the jobs that may have
/// begun and what is kept of each are bounded: whoever goes too far ahead waits. The job that has
/// the turn never does.
class OrderedOutput {
 public:
  /// Where everything ends up, in order; never called by two threads at once. What it throws
  /// passes through to the thread whose call has made it write.
  using Sink = std::function<void(Stream, const std::string&)>;

  /// Thrown out of every wait and write when the run was given up.
  struct GivenUp {};

  /// @param ahead  how many jobs behind the one that has the turn may have begun
  OrderedOutput(Sink sink, std::size_t ahead);

  /// Waits until the job may begin.
  void begin(std::size_t job);

  /// Waits until it is the job's turn.
  void wait_for_turn(std::size_t job);

  void write(std::size_t job, Stream stream, std::string text);

  /// Passes the turn on, at once or when it comes.
  void finish(std::size_t job);

  void give_up();

 private:
  struct Kept {
    Stream stream;
    std::string text;
  };
  // What is known of a job that does not have the turn yet.
  struct Waiting {
    std::vector<Kept> kept;
    std::size_t size = 0;
    bool is_finished = false;
  };

  template <typename Condition>
  void wait(std::unique_lock<std::mutex>& lock, Condition condition);
  void pass_turn_on();

  const Sink sink_;
  const std::size_t ahead_;
  std::mutex mutex_;
  std::condition_variable changed_;
  std::size_t turn_ = 0;
  std::deque<Waiting> waiting_;  // from job turn_ + 1 on
  bool is_given_up_ = false;
};

}  // namespace tool

#endif
