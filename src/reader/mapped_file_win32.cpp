// Win32 implementation of MappedFile.
//
// The file is opened for reading and shared with readers only: while somebody has it open for
// writing it can not be opened (1001), and while this object lives nobody can open it for
// writing. That is why the handle is kept and not closed behind the mapping.
#include <touchstone2/reader/diagnostics.h>

#include <cstddef>
#include <cstdint>
#include <limits>
#include <string>

#include <windows.h>

#include "reader/mapped_file.h"

namespace touchstone2 {

namespace {

// CreateFileW says "none" with INVALID_HANDLE_VALUE, CreateFileMappingA with null.
class Handle {
 public:
  explicit Handle(HANDLE handle) : handle_(handle) {}
  Handle(const Handle&) = delete;
  Handle& operator=(const Handle&) = delete;
  ~Handle() {
    if (is_open()) ::CloseHandle(handle_);
  }

  bool is_open() const { return handle_ != nullptr && handle_ != INVALID_HANDLE_VALUE; }
  HANDLE get() const { return handle_; }
  HANDLE release() {
    const HANDLE handle = handle_;
    handle_ = nullptr;
    return handle;
  }

 private:
  HANDLE handle_;
};

// Empty when the text is too long to be any file's name. Bytes that are not UTF-8 become
// U+FFFD, which leads to "no such file".
std::wstring to_utf16(const std::string& utf8) {
  if (utf8.size() > static_cast<std::size_t>(std::numeric_limits<int>::max())) return {};
  const int length = static_cast<int>(utf8.size());
  const int units = ::MultiByteToWideChar(CP_UTF8, 0, utf8.data(), length, nullptr, 0);
  if (units <= 0) return {};
  std::wstring utf16(static_cast<std::size_t>(units), L'\0');
  ::MultiByteToWideChar(CP_UTF8, 0, utf8.data(), length, utf16.data(), units);
  return utf16;
}

std::wstring full_path(const std::wstring& path) {
  std::wstring full;
  DWORD room = ::GetFullPathNameW(path.c_str(), 0, nullptr, nullptr);
  // The room needed counts the final zero, the length returned later does not. Another thread
  // may change the current folder between the calls.
  while (room > full.size()) {
    full.resize(room);
    room = ::GetFullPathNameW(path.c_str(), room, full.data(), nullptr);
  }
  full.resize(room);
  return full;
}

// A path that is too long for the ordinary form, made absolute and put into the long form,
// which takes 32,767 units. Every other path as it stands.
std::wstring openable(const std::wstring& path) {
  std::wstring full = full_path(path);
  if (full.size() < MAX_PATH) return path;
  const bool is_special = full.starts_with(LR"(\\?\)") || full.starts_with(LR"(\\.\)");
  if (is_special) return full;
  if (full.starts_with(LR"(\\)")) return LR"(\\?\UNC\)" + full.substr(2);
  return LR"(\\?\)" + full;
}

std::uint64_t size_of(HANDLE file) {
  DWORD high = 0;
  const DWORD low = ::GetFileSize(file, &high);
  // The low half of a good size may have this value, too.
  if (low == INVALID_FILE_SIZE && ::GetLastError() != NO_ERROR) {
    throw ParserError(ErrorType::FileUnreadable);
  }
  return std::uint64_t{high} << 32 | low;
}

}  // namespace

MappedFile::MappedFile(const std::string& name) {
  // A zero byte would end the name early and open another file.
  if (name.empty() || name.find('\0') != std::string::npos) {
    throw ParserError(ErrorType::FileNotFound);
  }
  const std::wstring path = to_utf16(name);
  if (path.empty()) throw ParserError(ErrorType::FileNotFound);

  // Without FILE_FLAG_BACKUP_SEMANTICS a folder does not open.
  Handle file(::CreateFileW(openable(path).c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr,
                            OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
  if (!file.is_open()) throw ParserError(ErrorType::FileNotFound);

  // A pipe would have the size 0 and count as empty; the console has none at all.
  if (::GetFileType(file.get()) != FILE_TYPE_DISK) throw ParserError(ErrorType::FileUnreadable);
  const std::uint64_t size = size_of(file.get());
  if (size == 0) throw ParserError(ErrorType::FileEmpty);

  const Handle mapping(::CreateFileMappingA(file.get(), nullptr, PAGE_READONLY, 0, 0, nullptr));
  if (!mapping.is_open()) throw ParserError(ErrorType::FileUnreadable);
  const void* const base = ::MapViewOfFile(mapping.get(), FILE_MAP_READ, 0, 0, 0);
  if (base == nullptr) throw ParserError(ErrorType::FileUnreadable);

  base_ = static_cast<const char*>(base);
  size_ = static_cast<std::size_t>(size);  // the view has that size, so it fits
  file_ = file.release();
}

MappedFile::~MappedFile() {
  ::UnmapViewOfFile(base_);
  ::CloseHandle(file_);
}

}  // namespace touchstone2
