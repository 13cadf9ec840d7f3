// Every thread takes the next file, reads it with a parser of its own and writes through the
// ordered output. The first failure that is not one file's own ends the run: files that are being
// read are read to their end, and nothing is written any more.

#include "commands/check_run.h"

#include <algorithm>
#include <filesystem>
#include <system_error>
#include <thread>
#include <utility>

#include "inputs/path_text.h"
#include "terminal/console.h"

namespace tool {

namespace {

// Files that are read and told of wait for slower ones before them; a few for each thread are
// enough to keep all of them busy.
constexpr std::size_t kAheadPerJob = 4;

std::uint64_t size_of(const std::string& path) {
  std::error_code failure;
  const std::uintmax_t size = std::filesystem::file_size(to_path(path), failure);
  return failure ? 0 : size;
}

// Tells the progress line of a file for as long as it lives.
class ProgressEntry {
 public:
  ProgressEntry(ProgressLine& line, std::size_t file, const SourceFile& source)
      : line_(line), file_(file), bytes_(source.progress().bytes) {
    line_.begin(bytes_);
  }
  ProgressEntry(const ProgressEntry&) = delete;
  ProgressEntry& operator=(const ProgressEntry&) = delete;
  ~ProgressEntry() { line_.end(file_, bytes_); }

 private:
  ProgressLine& line_;
  std::size_t file_;
  const std::atomic<std::uint64_t>& bytes_;
};

}  // namespace

CheckRun::CheckRun(const std::vector<std::string>& paths, const CheckReport& report,
                   const CheckRunOptions& options)
    : paths_(paths),
      report_(report),
      options_(options),
      output_([this](Stream stream, const std::string& text) { write(stream, text); },
              kAheadPerJob * options.jobs),
      progress_(paths.size(), [this](std::size_t file) { return size_of(paths_[file]); }) {}

Total CheckRun::run() {
  std::vector<std::thread> threads;
  try {
    const std::size_t jobs = std::min(options_.jobs, paths_.size());
    while (threads.size() + 1 < jobs) threads.emplace_back([this] { work(); });
  } catch (const std::exception&) {
    // As many threads as the system allows.
  }
  work();
  for (std::thread& thread : threads) thread.join();
  if (failure_) std::rethrow_exception(failure_);
  for (const auto& [job, problem] : problems_) total_.problems.push_back(problem);
  if (!error_codes_.empty()) total_.error_code = error_codes_.begin()->second;
  return std::move(total_);
}

void CheckRun::work() {
  try {
    for (std::size_t job = next_job_++; job < paths_.size(); job = next_job_++) {
      output_.begin(job);
      check(job);
      output_.finish(job);
    }
  } catch (const OrderedOutput::GivenUp&) {
    // Whoever has given up has said why.
  } catch (...) {
    fail(std::current_exception());
  }
}

// A failure to write must not pass for a failure to read, which is the file's own.
void CheckRun::check(std::size_t job) {
  const CheckReport::Write write = [this, job](Stream stream, std::string text) {
    try {
      output_.write(job, stream, std::move(text));
    } catch (const std::exception&) {
      fail(std::current_exception());
      throw OrderedOutput::GivenUp{};
    }
  };
  SourceFile source(paths_[job]);
  // Who reads standard input first is seen in the output.
  if (paths_[job] == "-") output_.wait_for_turn(job);
  const ProgressEntry entry(progress_, job, source);
  const auto read_source = [&](CountingHandler& handler) {
    return read(source, handler, write, job);
  };
  add(report_.tell(source, read_source, write), job);
}

// An attempt that fails is complained about here.
Verdict CheckRun::read(SourceFile& source, CountingHandler& handler,
                       const CheckReport::Write& write, std::size_t job) {
  const Attempt attempt = source.try_read(handler, options_.extent);
  if (!attempt.failure.empty()) {
    const std::string problem = source.name() + ": " + attempt.failure;
    write(Stream::error, complaint(problem));
    add_problem(job, problem);
  }
  Verdict verdict;
  verdict.valid = attempt.outcome == Outcome::valid;
  verdict.done = attempt.outcome != Outcome::failed;
  verdict.failure = attempt.failure;
  verdict.counts = handler.counts();
  verdict.error_code = handler.error_code();
  if (options_.warnings_refuse && verdict.counts.warnings > 0) verdict.valid = false;
  return verdict;
}

void CheckRun::add(const Verdict& verdict, std::size_t job) {
  const std::lock_guard lock(mutex_);
  if (!verdict.error_code.empty()) {
    error_codes_.emplace(job, verdict.error_code);
    error_codes_.erase(std::next(error_codes_.begin()), error_codes_.end());
  }
  total_.rules.insert(verdict.rules.begin(), verdict.rules.end());
  if (!verdict.done) {
    total_.done = false;
    return;
  }
  ++total_.files;
  total_.warnings += verdict.counts.warnings;
  if (!verdict.valid) ++total_.refused;
}

void CheckRun::add_problem(std::size_t job, const std::string& text) {
  const std::lock_guard lock(mutex_);
  problems_.emplace(job, text);
}

void CheckRun::write(Stream stream, const std::string& text) {
  if (stream == Stream::error) return write_error(text);
  write_output(has_written_ ? report_.separator() + text : text);
  has_written_ = true;
}

void CheckRun::fail(std::exception_ptr failure) {
  {
    const std::lock_guard lock(mutex_);
    if (!failure_) failure_ = std::move(failure);
  }
  output_.give_up();
}

}  // namespace tool
