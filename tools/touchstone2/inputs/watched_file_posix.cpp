// POSIX implementations of WatchedFile and PageFaultGuard.

#include <array>
#include <csignal>
#include <cstring>

#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

#include "inputs/watched_file.h"
#include "terminal/console.h"

namespace tool {

struct WatchedFile::System {
  int descriptor = -1;
  struct stat before {};
};

namespace {

// What the signal handler needs, of the thread that it runs on.
struct Guarded {
  const char* last_words;  // null outside a guard
  std::size_t size;
  volatile std::sig_atomic_t has_faulted;
};
constinit thread_local Guarded guarded = {};

std::uintptr_t page_size = 0;

// A page of zeros takes the place of the one that is not there. It goes away with the mapping.
bool put_zeros(void* address) {
  const auto page = reinterpret_cast<std::uintptr_t>(address) & ~(page_size - 1);
  return ::mmap(reinterpret_cast<void*>(page), page_size, PROT_READ,
                MAP_PRIVATE | MAP_ANONYMOUS | MAP_FIXED, -1, 0) != MAP_FAILED;
}

// Nothing but system calls. No output is incomplete while a file is being read, so there is
// nothing to clean up either.
extern "C" void survive_page_fault(int signal_number, siginfo_t* info, void* /*context*/) {
  if (guarded.last_words == nullptr || info->si_code != BUS_ADRERR) {
    ::signal(signal_number, SIG_DFL);  // ends the process when the access is tried again
    return;
  }
  guarded.has_faulted = 1;
  if (put_zeros(info->si_addr)) return;
  [[maybe_unused]] const ssize_t written = ::write(STDERR_FILENO, guarded.last_words, guarded.size);
  ::_exit(kRefused);
}

void catch_page_faults() {
  page_size = static_cast<std::uintptr_t>(::sysconf(_SC_PAGESIZE));
  struct sigaction catching = {};
  catching.sa_sigaction = survive_page_fault;
  catching.sa_flags = SA_SIGINFO;
  ::sigaction(SIGBUS, &catching, nullptr);
}

bool same_time(const struct timespec& a, const struct timespec& b) {
  return a.tv_sec == b.tv_sec && a.tv_nsec == b.tv_nsec;
}

#ifdef __APPLE__
const struct timespec& change_time(const struct stat& status) { return status.st_mtimespec; }
#else
const struct timespec& change_time(const struct stat& status) { return status.st_mtim; }
#endif

}  // namespace

// O_NONBLOCK: opening a FIFO must not wait for its writer.
WatchedFile::WatchedFile(const std::string& name) : system_(std::make_unique<System>()) {
  const int descriptor = ::open(name.c_str(), O_RDONLY | O_CLOEXEC | O_NOCTTY | O_NONBLOCK);
  if (descriptor < 0) return;
  if (::fstat(descriptor, &system_->before) == 0 && S_ISREG(system_->before.st_mode)) {
    system_->descriptor = descriptor;
  } else {
    ::close(descriptor);
  }
}

WatchedFile::~WatchedFile() {
  if (system_->descriptor >= 0) ::close(system_->descriptor);
}

bool WatchedFile::has_changed() const {
  if (system_->descriptor < 0) return false;
  struct stat now {};
  return ::fstat(system_->descriptor, &now) != 0 || now.st_size != system_->before.st_size ||
         !same_time(change_time(now), change_time(system_->before));
}

std::string WatchedFile::read_at(std::uint64_t offset, std::size_t count) const {
  if (system_->descriptor < 0) return {};
  std::string bytes(count, '\0');
  const ssize_t size =
      ::pread(system_->descriptor, bytes.data(), count, static_cast<off_t>(offset));
  bytes.resize(size < 0 ? 0 : static_cast<std::size_t>(size));
  return bytes;
}

PageFaultGuard::PageFaultGuard(const std::string& name)
    : last_words_(complaint(name + ": the file was changed while it was read")) {
  [[maybe_unused]] static const bool is_caught = (catch_page_faults(), true);
  guarded = {last_words_.data(), last_words_.size(), 0};
}

PageFaultGuard::~PageFaultGuard() { guarded = {}; }

bool PageFaultGuard::has_faulted() const { return guarded.has_faulted != 0; }

}  // namespace tool
