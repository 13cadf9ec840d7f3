// Times every way to read and to write every input, as Google Benchmark does.
//
//   touchstone2_bench --once read|write INPUT WAY
//       one way in a process of its own: then the pages that a fresh process has to fetch
//       count, as they do for a user
//   touchstone2_bench --count read|write INPUT
//       the library reads or writes a fiftieth of an input, for a tool that counts instructions
#include <benchmark/benchmark.h>

#include "tasks.h"

namespace touchstone2::bench {
namespace {

std::filesystem::path input_folder() { return std::filesystem::path("bench-inputs"); }

void measure(benchmark::State& state, const Task& task) {
  for (auto _ : state) task.run();
  state.SetBytesProcessed(static_cast<std::int64_t>(task.bytes) * state.iterations());
}

void add_benchmarks() {
  for (const Input& input : inputs()) {
    const auto files = make_files(input, input_folder());
    for (const std::string& way : kReadWays) {
      const std::string name = std::string("read/") + input.name + "/" + way;
      benchmark::RegisterBenchmark(name.c_str(), [=](benchmark::State& state) {
        measure(state, make_read_task(input, files, way));
      })->Unit(benchmark::kMillisecond);
    }
    if (input.files > 1) continue;
    for (const std::string& way : kWriteWays) {
      const std::string name = std::string("write/") + input.name + "/" + way;
      benchmark::RegisterBenchmark(name.c_str(), [=](benchmark::State& state) {
        measure(state, make_write_task(input, files, way));
      })->Unit(benchmark::kMillisecond);
    }
  }
}

// On its own so that a profiler can be told to look at nothing else.
[[gnu::noinline]] void run_counted(const Task& task) { task.run(); }

Task make_task(const std::string& direction, const Input& input,
               const std::vector<std::string>& files, const std::string& way) {
  return direction == "read" ? make_read_task(input, files, way)
                             : make_write_task(input, files, way);
}

// Prints the bytes that one run reads or writes.
int run_for_counting(const std::string& direction, const std::string& name) {
  const Input input = *find_input(name);
  Input small = input;
  small.points = input.points / 50;
  const auto files = make_files(small, input_folder() / "small");
  const Task task = make_task(direction, small, files, "library");
  run_counted(task);
  std::printf("%zu\n", task.bytes);
  return 0;
}

// Prints the seconds that one run takes.
int run_once(const std::string& direction, const std::string& name, const std::string& way) {
  const Input* const input = find_input(name);
  if (input == nullptr) {
    std::fprintf(stderr, "no such input: %s\n", name.c_str());
    return 2;
  }
  const auto files = make_files(*input, input_folder());
  const Task task = make_task(direction, *input, files, way);
  const auto begin = std::chrono::steady_clock::now();
  task.run();
  const std::chrono::duration<double> seconds = std::chrono::steady_clock::now() - begin;
  std::printf("%.9f\n", seconds.count());
  return 0;
}

}  // namespace
}  // namespace touchstone2::bench

int main(int argc, char** argv) {
  try {
    if (argc == 5 && std::string(argv[1]) == "--once") {
      return touchstone2::bench::run_once(argv[2], argv[3], argv[4]);
    }
    if (argc == 4 && std::string(argv[1]) == "--count") {
      return touchstone2::bench::run_for_counting(argv[2], argv[3]);
    }
    touchstone2::bench::add_benchmarks();
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 2;
    benchmark::RunSpecifiedBenchmarks();
  } catch (const std::exception& error) {
    std::fprintf(stderr, "bench: %s\n", error.what());
    return 1;
  }
  return 0;
}
