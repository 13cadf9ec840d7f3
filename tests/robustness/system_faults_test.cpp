// Every system call by which a file is opened and mapped fails once: the right code is reported
// and nothing stays open. The linker calls the functions below in the place of the system's.
#include <touchstone2/touchstone2.h>

#include <cerrno>
#include <cstdarg>
#include <filesystem>
#include <iterator>
#include <string>
#include <vector>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/file.h>
#include <sys/mman.h>
#include <sys/stat.h>

#include "support/recording_handler.h"
#include "support/temp_file.h"

namespace {

enum class Call { none, open, fstat, fcntl, flock, mmap };

struct {
  Call failing = Call::none;
  int error = 0;
  int failures = 0;
  bool armed = false;  // only while the library reads
} plan;

bool fails(Call call) {
  if (!plan.armed || plan.failing != call) return false;
  ++plan.failures;
  errno = plan.error;
  return true;
}

}  // namespace

// The names are the linker's.
extern "C" {
int __real_open(const char* name, int flags, ...);
int __real_fstat(int fd, struct stat* status);
int __real_fcntl(int fd, int command, ...);
int __real_flock(int fd, int operation);
void* __real_mmap(void* address, size_t length, int protection, int flags, int fd, off_t offset);

int __wrap_open(const char* name, int flags, ...) {
  va_list arguments;
  va_start(arguments, flags);
  const unsigned mode = (flags & O_CREAT) != 0 ? va_arg(arguments, unsigned) : 0;
  va_end(arguments);
  return fails(Call::open) ? -1 : __real_open(name, flags, mode);
}

int __wrap_fstat(int fd, struct stat* status) {
  return fails(Call::fstat) ? -1 : __real_fstat(fd, status);
}

int __wrap_fcntl(int fd, int command, ...) {
  va_list arguments;
  va_start(arguments, command);
  void* const argument = va_arg(arguments, void*);
  va_end(arguments);
  return fails(Call::fcntl) ? -1 : __real_fcntl(fd, command, argument);
}

int __wrap_flock(int fd, int operation) {
  return fails(Call::flock) ? -1 : __real_flock(fd, operation);
}

void* __wrap_mmap(void* address, size_t length, int protection, int flags, int fd, off_t offset) {
  return fails(Call::mmap) ? MAP_FAILED
                           : __real_mmap(address, length, protection, flags, fd, offset);
}
}

namespace touchstone2::test {
namespace {

std::size_t open_descriptors() {
  const std::filesystem::directory_iterator all("/proc/self/fd");
  return static_cast<std::size_t>(std::distance(begin(all), end(all)));
}

struct FaultCase {
  const char* name;
  Call call;
  int error;
  int code;  // 0: the file is read all the same
};

TEST(SystemFaults, AreReportedByTheirCode) {
  const FaultCase cases[] = {
      {"no fault", Call::none, 0, 0},
      {"no such file", Call::open, ENOENT, 1001},
      {"no permission", Call::open, EACCES, 1001},
      {"no descriptors left", Call::open, EMFILE, 1001},
      {"no status", Call::fstat, EIO, 1002},
      {"no record locks here", Call::fcntl, ENOLCK, 0},
      {"no file locks here", Call::flock, ENOTSUP, 0},
      {"locked by another", Call::flock, EWOULDBLOCK, 1001},
      {"no address space", Call::mmap, ENOMEM, 1002},
      {"not a device to map", Call::mmap, ENODEV, 1002},
  };
  const TempFile sample("# RI\n1 2 3\n");
  const std::size_t before = open_descriptors();
  for (const FaultCase& fault : cases) {
    SCOPED_TRACE(fault.name);
    File file(sample.name());
    RecordingHandler handler;
    Parser parser(file, handler);
    plan = {fault.call, fault.error, 0, true};
    const bool ok = parser.read_file();
    plan.armed = false;
    EXPECT_EQ(plan.failures, fault.call == Call::none ? 0 : 1);
    EXPECT_EQ(ok, fault.code == 0);
    ASSERT_EQ(handler.diagnostics.size(), fault.code == 0 ? 0U : 1U);
    if (!ok) {
      EXPECT_EQ(handler.diagnostics[0].code, fault.code);
      EXPECT_EQ(handler.diagnostics[0].line, 0U);
    }
    EXPECT_EQ(open_descriptors(), before);
    if (!ok) {
      EXPECT_TRUE(parser.read_file());  // the fault has passed
      EXPECT_EQ(open_descriptors(), before);
    }
  }
}

}  // namespace
}  // namespace touchstone2::test
