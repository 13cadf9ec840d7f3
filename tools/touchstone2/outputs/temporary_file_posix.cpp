// POSIX implementation of TemporaryFile. The handler of the signals may only use what is safe in
// one: it reads a pointer and unlinks. Signals wait while file and pointer change together, so
// that no moment is left in which a signal would leave the file behind.

#include <array>
#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <stdexcept>
#include <system_error>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "outputs/temporary_file.h"

namespace tool {

namespace {

constexpr int kAttempts = 100;
constexpr std::array kFatalSignals = {SIGINT, SIGTERM, SIGHUP, SIGQUIT};

// What a signal has to remove; null for nothing.
std::atomic<const char*> doomed_name = nullptr;
static_assert(std::atomic<const char*>::is_always_lock_free);

[[noreturn]] void fail(const std::string& target, int error_number) {
  throw std::runtime_error("cannot write '" + target +
                           "': " + std::generic_category().message(error_number));
}

// The disposition is the default one by now, so the raised signal ends the process as if there
// had been no handler.
extern "C" void remove_and_end(int signal_number) {
  if (const char* const name = doomed_name.load()) ::unlink(name);
  ::raise(signal_number);
}

// A signal that was ignored stays ignored, as nohup wants it.
void catch_fatal_signals() {
  struct sigaction catching = {};
  catching.sa_handler = remove_and_end;
  catching.sa_flags = static_cast<int>(SA_RESETHAND);
  for (const int signal_number : kFatalSignals) {
    struct sigaction current = {};
    ::sigaction(signal_number, nullptr, &current);
    if (current.sa_handler != SIG_IGN) ::sigaction(signal_number, &catching, nullptr);
  }
}

// Fatal signals wait while one of these lives.
class SignalPause {
 public:
  SignalPause() {
    sigset_t fatal;
    ::sigemptyset(&fatal);
    for (const int signal_number : kFatalSignals) ::sigaddset(&fatal, signal_number);
    ::sigprocmask(SIG_BLOCK, &fatal, &before_);
  }
  SignalPause(const SignalPause&) = delete;
  SignalPause& operator=(const SignalPause&) = delete;
  ~SignalPause() { ::sigprocmask(SIG_SETMASK, &before_, nullptr); }

 private:
  sigset_t before_ = {};
};

std::string folder_of(const std::string& path) {
  const std::size_t slash = path.rfind('/');
  return slash == std::string::npos ? "" : path.substr(0, slash + 1);
}

// Not all systems let an ordinary user give a file away; the permissions then count for the
// new owner. False when they cannot be set, and errno says why.
bool copy_permissions(int descriptor, const struct stat& from) {
  struct stat own = {};
  const bool other_owner =
      ::fstat(descriptor, &own) == 0 && (own.st_uid != from.st_uid || own.st_gid != from.st_gid);
  if (other_owner && ::fchown(descriptor, from.st_uid, from.st_gid) != 0) errno = 0;
  return ::fchmod(descriptor, from.st_mode & 0777U) == 0;
}

// Makes the new name durable. Some file systems cannot do that with a folder; the file is in
// place all the same.
void synchronize_folder(const std::string& target) {
  const std::string folder = folder_of(target);
  const int descriptor = ::open(folder.empty() ? "." : folder.c_str(), O_RDONLY | O_CLOEXEC);
  if (descriptor < 0) return;
  ::fsync(descriptor);
  ::close(descriptor);
}

// A hard link appears only where nothing is. File systems without hard links get the check and
// the renaming one after the other.
void rename_to_free_name(const std::string& name, const std::string& target) {
  if (::link(name.c_str(), target.c_str()) == 0) {
    ::unlink(name.c_str());
    return;
  }
  if (errno == EEXIST) fail(target, EEXIST);
  struct stat ignored = {};
  if (::lstat(target.c_str(), &ignored) == 0) fail(target, EEXIST);
  if (::rename(name.c_str(), target.c_str()) != 0) fail(target, errno);
}

}  // namespace

TemporaryFile::TemporaryFile(const std::string& target) : target_(target) {
  struct stat existing = {};
  const bool exists = ::stat(target.c_str(), &existing) == 0;
  // Until it has the permissions of the old file, nobody else may look into the new one.
  const mode_t mode = exists ? 0600 : 0666;
  catch_fatal_signals();
  {
    const SignalPause pause;
    for (int attempt = 0; descriptor_ < 0; ++attempt) {
      name_ = folder_of(target) + ".touchstone2-" + std::to_string(::getpid()) + "-" +
              std::to_string(attempt) + ".tmp";
      descriptor_ = ::open(name_.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, mode);
      if (descriptor_ < 0 && (errno != EEXIST || attempt == kAttempts)) fail(target, errno);
    }
    doomed_name = name_.c_str();
  }
  if (!exists || copy_permissions(descriptor_, existing)) return;
  const int error_number = errno;
  discard();
  fail(target, error_number);
}

TemporaryFile::~TemporaryFile() { discard(); }

void TemporaryFile::discard() {
  if (descriptor_ >= 0) ::close(descriptor_);
  const SignalPause pause;
  if (doomed_name.exchange(nullptr) != nullptr) ::unlink(name_.c_str());
}

void TemporaryFile::write(std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t count = ::write(descriptor_, bytes.data(), bytes.size());
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) fail(target_, errno);
    bytes.remove_prefix(static_cast<std::size_t>(count));
  }
  // Pipes and some network file systems have nothing to synchronise and say EINVAL.
  if (::fsync(descriptor_) != 0 && errno != EINVAL) fail(target_, errno);
  close();
}

// Some file systems report a full disk no earlier than here.
void TemporaryFile::close() {
  const int result = ::close(descriptor_);
  descriptor_ = -1;
  if (result != 0) fail(target_, errno);
}

void TemporaryFile::take_place(Existing existing) {
  const SignalPause pause;
  if (existing == Existing::keep) {
    rename_to_free_name(name_, target_);
  } else if (::rename(name_.c_str(), target_.c_str()) != 0) {
    fail(target_, errno);
  }
  doomed_name = nullptr;
  synchronize_folder(target_);
}

}  // namespace tool
