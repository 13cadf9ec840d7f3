// A thread of its own looks now and then at numbers that the readers write anyhow.

#include "terminal/progress_line.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <system_error>
#include <utility>

#include "terminal/console.h"
#include "terminal/display.h"
#include "text/value_text.h"

namespace tool {

namespace {

using Clock = std::chrono::steady_clock;

constexpr std::chrono::milliseconds kFirst{1000};
constexpr std::chrono::milliseconds kNext{200};

struct Unit {
  double bytes;
  const char* name;
};
constexpr std::array<Unit, 3> kUnits = {{{1e9, "GB"}, {1e6, "MB"}, {1e3, "kB"}}};

Unit unit_for(double bytes) {
  for (const Unit& unit : kUnits) {
    if (bytes >= unit.bytes) return unit;
  }
  return kUnits.back();
}

// Three digits, as "1.23", "12.3" or "123".
std::string short_number(double value) {
  std::array<char, 32> text{};
  const int decimals = value < 9.995 ? 2 : value < 99.95 ? 1 : 0;
  std::snprintf(text.data(), text.size(), "%.*f", decimals, value);  // the locale is the C locale
  return text.data();
}

std::string bytes_text(const ProgressState& state) {
  const Unit unit = unit_for(static_cast<double>(state.bytes));
  return short_number(static_cast<double>(state.bytes_done) / unit.bytes) + " of " +
         short_number(static_cast<double>(state.bytes) / unit.bytes) + " " + unit.name;
}

std::string duration_text(double seconds) {
  const auto whole = static_cast<std::size_t>(std::lround(seconds));
  constexpr std::size_t kMinute = 60;
  if (whole < kMinute) return std::to_string(whole) + " s";
  return std::to_string(whole / kMinute) + " min " + std::to_string(whole % kMinute) + " s";
}

}  // namespace

std::string progress_text(const ProgressState& state, std::size_t columns) {
  std::string text;
  if (state.files > 1) {
    text = grouped(state.files_done) + " of " + grouped(state.files) + " files, ";
  }
  text += bytes_text(state);
  const double rate = static_cast<double>(state.bytes_read) / state.seconds;  // bytes a second
  if (rate > 0.0) {
    const Unit unit = unit_for(rate);
    text += ", " + short_number(rate / unit.bytes) + " " + unit.name + "/s";
    const std::uint64_t left = state.bytes - std::min(state.bytes, state.bytes_done);
    text += ", " + duration_text(static_cast<double>(left) / rate) + " left";
  }
  // The last column stays free: some terminals begin a new line when it is written.
  return text.substr(0, columns - 1);
}

ProgressLine::ProgressLine(std::size_t files, std::function<std::uint64_t(std::size_t)> size_of)
    : files_(files), size_of_(std::move(size_of)) {
  if (!error_display().can_erase) return;
  try {
    thread_ = std::thread([this] { run(); });
  } catch (const std::system_error&) {
    // Without a thread there is no line.
  }
}

ProgressLine::~ProgressLine() {
  if (!thread_.joinable()) return;
  {
    const std::lock_guard lock(mutex_);
    stop_ = true;
  }
  stopped_.notify_all();
  thread_.join();
}

void ProgressLine::begin(const std::atomic<std::uint64_t>& bytes) {
  if (!thread_.joinable()) return;
  const std::lock_guard lock(mutex_);
  open_.insert(&bytes);
}

void ProgressLine::end(std::size_t file, const std::atomic<std::uint64_t>& bytes) {
  if (!thread_.joinable()) return;
  const std::uint64_t size = size_of_(file);
  const std::lock_guard lock(mutex_);
  open_.erase(&bytes);
  ++files_done_;
  bytes_done_ += size;
  bytes_read_ += bytes.load(std::memory_order_relaxed);
}

void ProgressLine::run() {
  const Clock::time_point begin = Clock::now();
  const auto wait = [this](std::chrono::milliseconds time) {
    std::unique_lock lock(mutex_);
    return stopped_.wait_for(lock, time, [this] { return stop_; });
  };
  if (wait(kFirst) || !find_all_bytes()) return;
  do {
    ProgressState now = state();
    now.seconds = std::chrono::duration<double>(Clock::now() - begin).count();
    show_status(progress_text(now, error_display().columns));
  } while (!wait(kNext));
  show_status("");
}

// False when the run was over before all was found.
bool ProgressLine::find_all_bytes() {
  for (std::size_t file = 0; file < files_; ++file) {
    all_bytes_ += size_of_(file);
    const std::lock_guard lock(mutex_);
    if (stop_) return false;
  }
  return true;
}

ProgressState ProgressLine::state() {
  const std::lock_guard lock(mutex_);
  ProgressState now{files_, files_done_, all_bytes_, bytes_done_, bytes_read_, 0.0};
  for (const std::atomic<std::uint64_t>* const bytes : open_) {
    now.bytes_done += bytes->load(std::memory_order_relaxed);
    now.bytes_read += bytes->load(std::memory_order_relaxed);
  }
  return now;
}

}  // namespace tool
