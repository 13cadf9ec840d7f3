// Win32 implementation of TemporaryFile. Renaming over an existing file keeps no attributes of
// the old one; new files take theirs from the folder. A console event removes the file from
// another thread, which its sharing mode has to allow while it is open.

#include <atomic>
#include <cstddef>
#include <stdexcept>
#include <system_error>

#include <windows.h>

#include "inputs/path_text.h"
#include "outputs/temporary_file.h"

namespace tool {

namespace {

constexpr int kAttempts = 100;

std::wstring wide(const std::string& name) { return openable(to_path(name)).wstring(); }

// What a console event has to remove; null for nothing. The handler owns what it takes.
std::atomic<std::wstring*> doomed_name = nullptr;

BOOL WINAPI remove_at_console_event(DWORD /*event*/) {
  if (std::wstring* const name = doomed_name.exchange(nullptr)) {
    ::DeleteFileW(name->c_str());
    delete name;
  }
  return FALSE;  // the next handler, which ends the process
}

[[noreturn]] void fail(const std::string& target, DWORD error_number) {
  throw std::runtime_error("cannot write '" + target +
                           "': " + std::system_category().message(static_cast<int>(error_number)));
}

std::string folder_of(const std::string& path) {
  const std::size_t end = path.find_last_of("/\\:");
  return end == std::string::npos ? "" : path.substr(0, end + 1);
}

}  // namespace

TemporaryFile::TemporaryFile(const std::string& target)
    : target_(target), handle_(INVALID_HANDLE_VALUE) {
  ::SetConsoleCtrlHandler(remove_at_console_event, TRUE);
  for (int attempt = 0; handle_ == INVALID_HANDLE_VALUE; ++attempt) {
    name_ = folder_of(target) + ".touchstone2-" + std::to_string(::GetCurrentProcessId()) + "-" +
            std::to_string(attempt) + ".tmp";
    handle_ = ::CreateFileW(wide(name_).c_str(), GENERIC_WRITE, FILE_SHARE_DELETE, nullptr,
                            CREATE_NEW, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (handle_ != INVALID_HANDLE_VALUE) break;
    const DWORD error_number = ::GetLastError();
    if (error_number != ERROR_FILE_EXISTS || attempt == kAttempts) fail(target, error_number);
  }
  doomed_name = new std::wstring(wide(name_));
}

TemporaryFile::~TemporaryFile() { discard(); }

void TemporaryFile::discard() {
  if (handle_ != INVALID_HANDLE_VALUE) ::CloseHandle(handle_);
  remove_at_console_event(0);
}

void TemporaryFile::write(std::string_view bytes) {
  constexpr std::size_t kMostAtOnce = std::size_t{1} << 30;
  while (!bytes.empty()) {
    const auto size = static_cast<DWORD>(bytes.size() < kMostAtOnce ? bytes.size() : kMostAtOnce);
    DWORD count = 0;
    if (::WriteFile(handle_, bytes.data(), size, &count, nullptr) == 0) {
      fail(target_, ::GetLastError());
    }
    bytes.remove_prefix(count);
  }
  if (::FlushFileBuffers(handle_) == 0) fail(target_, ::GetLastError());
  close();
}

void TemporaryFile::close() {
  const BOOL closed = ::CloseHandle(handle_);
  handle_ = INVALID_HANDLE_VALUE;
  if (closed == 0) fail(target_, ::GetLastError());
}

void TemporaryFile::take_place(Existing existing) {
  const DWORD flags = MOVEFILE_WRITE_THROUGH |
                      (existing == Existing::replace ? MOVEFILE_REPLACE_EXISTING : DWORD{0});
  if (::MoveFileExW(wide(name_).c_str(), wide(target_).c_str(), flags) == 0) {
    fail(target_, ::GetLastError());
  }
  delete doomed_name.exchange(nullptr);
}

}  // namespace tool
