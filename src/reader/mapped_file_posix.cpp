// POSIX implementation of MappedFile.
#include <touchstone2/reader/diagnostics.h>

#include <cerrno>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

#include "reader/mapped_file.h"

namespace touchstone2 {

namespace {

class FileDescriptor {
 public:
  // O_NONBLOCK: opening a FIFO must not wait for its writer. It does nothing to a file.
  explicit FileDescriptor(const char* name)
      : fd_(::open(name, O_RDONLY | O_CLOEXEC | O_NOCTTY | O_NONBLOCK)) {}
  FileDescriptor(const FileDescriptor&) = delete;
  FileDescriptor& operator=(const FileDescriptor&) = delete;
  ~FileDescriptor() {
    if (is_open()) ::close(fd_);
  }

  bool is_open() const { return fd_ >= 0; }
  int get() const { return fd_; }

 private:
  int fd_;
};

// Whether another process keeps readers out. To be open for writing locks nothing here, unlike
// on Windows; a lock has to be asked for. A file system without locks says "no" by an error of
// another kind. The shared lock that is tried for goes with the descriptor.
bool is_locked(int fd) {
  struct flock record_lock {};
  record_lock.l_type = F_RDLCK;
  record_lock.l_whence = SEEK_SET;
  if (::fcntl(fd, F_GETLK, &record_lock) == 0 && record_lock.l_type != F_UNLCK) return true;
  return ::flock(fd, LOCK_SH | LOCK_NB) != 0 && errno == EWOULDBLOCK;
}

}  // namespace

MappedFile::MappedFile(const std::string& name) {
  // A zero byte would end the name early and open another file.
  if (name.empty() || name.find('\0') != std::string::npos) {
    throw ParserError(ErrorType::FileNotFound);
  }
  const FileDescriptor file(name.c_str());
  if (!file.is_open()) throw ParserError(ErrorType::FileNotFound);

  struct stat status {};
  if (::fstat(file.get(), &status) != 0) throw ParserError(ErrorType::FileUnreadable);
  if (S_ISDIR(status.st_mode)) throw ParserError(ErrorType::FileNotFound);
  if (!S_ISREG(status.st_mode)) throw ParserError(ErrorType::FileUnreadable);
  if (is_locked(file.get())) throw ParserError(ErrorType::FileNotFound);
  if (status.st_size == 0) throw ParserError(ErrorType::FileEmpty);

  const auto size = static_cast<std::size_t>(status.st_size);
  void* const base = ::mmap(nullptr, size, PROT_READ, MAP_PRIVATE, file.get(), 0);
  if (base == MAP_FAILED) throw ParserError(ErrorType::FileUnreadable);
  base_ = static_cast<const char*>(base);
  size_ = size;
}

MappedFile::~MappedFile() { ::munmap(const_cast<char*>(base_), size_); }

}  // namespace touchstone2
