// Loaded in front of the C library by some cases, to make the tool's files fail at a chosen
// point. FAULT says how:
//
//     full-disk     the second half of a write finds no space
//     bad-disk      fsync fails
//     no-links      the file system has no hard links
//     no-rename     renaming fails
//     appear        while the output is being written, somebody else creates $FAULT_FILE
//     cut           as soon as $FAULT_FILE is mapped to memory, somebody cuts it to no bytes
//     cut-no-memory the same, and nothing can be mapped afterwards
//     unreadable    no page of $FAULT_FILE can be read once it is mapped
//     change        as soon as $FAULT_FILE is mapped, somebody adds a line to it
//     TERM, INT, HUP, QUIT, KILL   the process gets this signal while the output is not complete
#include <cerrno>
#include <csignal>
#include <cstddef>
#include <cstdlib>
#include <cstring>

#include <dlfcn.h>
#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <sys/types.h>
#include <unistd.h>

namespace {

bool fault_is(const char* name) {
  const char* const fault = std::getenv("FAULT");
  return fault != nullptr && std::strcmp(fault, name) == 0;
}

int fail(int error_number) {
  errno = error_number;
  return -1;
}

template <typename Function>
Function* next(const char* name) {
  return reinterpret_cast<Function*>(::dlsym(RTLD_NEXT, name));
}

void create(const char* path) {
  const int descriptor = ::open(path, O_WRONLY | O_CREAT, 0644);
  next<ssize_t(int, const void*, std::size_t)>("write")(descriptor, "theirs\n", 7);
  ::close(descriptor);
}

bool is_fault_file(int descriptor) {
  const char* const name = std::getenv("FAULT_FILE");
  struct stat mapped {};
  struct stat named {};
  return name != nullptr && descriptor >= 0 && ::fstat(descriptor, &mapped) == 0 &&
         ::stat(name, &named) == 0 && mapped.st_ino == named.st_ino &&
         mapped.st_dev == named.st_dev;
}

void add_line(const char* path) {
  const int descriptor = ::open(path, O_WRONLY | O_APPEND);
  next<ssize_t(int, const void*, std::size_t)>("write")(descriptor, "! more\n", 7);
  ::close(descriptor);
}

}  // namespace

extern "C" void* mmap(void* address, std::size_t size, int protection, int flags, int descriptor,
                      off_t offset) noexcept {
  using Function = void*(void*, std::size_t, int, int, int, off_t);
  static bool is_cut = false;
  if (is_cut && fault_is("cut-no-memory")) {
    errno = ENOMEM;
    return MAP_FAILED;
  }
  if (fault_is("unreadable") && is_fault_file(descriptor)) {
    descriptor = ::memfd_create("empty", 0);
  }
  void* const base = next<Function>("mmap")(address, size, protection, flags, descriptor, offset);
  const bool cuts = fault_is("cut") || fault_is("cut-no-memory");
  if (!cuts && !fault_is("change")) return base;
  if (!is_fault_file(descriptor)) return base;
  if (cuts) is_cut = ::truncate(std::getenv("FAULT_FILE"), 0) == 0;
  if (fault_is("change")) add_line(std::getenv("FAULT_FILE"));
  return base;
}

extern "C" ssize_t write(int descriptor, const void* bytes, std::size_t size) {
  static bool half_written = false;
  if (descriptor > 2 && fault_is("full-disk")) {
    if (half_written) return fail(ENOSPC);
    half_written = true;
    size /= 2;
  }
  return next<ssize_t(int, const void*, std::size_t)>("write")(descriptor, bytes, size);
}

extern "C" int fsync(int descriptor) {
  const struct {
    const char* name;
    int number;
  } signals[] = {
      {"TERM", SIGTERM}, {"INT", SIGINT}, {"HUP", SIGHUP}, {"QUIT", SIGQUIT}, {"KILL", SIGKILL}};
  for (const auto& each : signals) {
    if (fault_is(each.name)) ::raise(each.number);
  }
  if (fault_is("bad-disk")) return fail(EIO);
  if (fault_is("appear")) create(std::getenv("FAULT_FILE"));
  return next<int(int)>("fsync")(descriptor);
}

extern "C" int link(const char* from, const char* to) noexcept {
  if (fault_is("no-links")) return fail(EPERM);
  return next<int(const char*, const char*)>("link")(from, to);
}

extern "C" int rename(const char* from, const char* to) noexcept {
  if (fault_is("no-rename")) return fail(EACCES);
  return next<int(const char*, const char*)>("rename")(from, to);
}
