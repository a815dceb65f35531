#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <optional>
#include <system_error>

#ifdef _WIN32
#include <io.h>
#else
#include <unistd.h>
#endif

#include "tools/Files.h"
#include "tools/Utf8.h"

namespace qv {
namespace {

namespace fs = std::filesystem;

/// The system's form of `path`; nothing for a text that no path can be, such as one with a zero in
/// it.
std::optional<fs::path> SystemPath(std::wstring_view path) {
#ifdef _WIN32
  return fs::path(path);
#else
  auto bytes = ToUtf8(path);
  if (!bytes || bytes->find('\0') != std::string::npos) {
    return std::nullopt;
  }
  return fs::path(*std::move(bytes));
#endif
}

std::wstring WideName(const fs::path& name) {
#ifdef _WIN32
  return name.wstring();
#else
  return FromUtf8(name.native());
#endif
}

bool IsWriteProtected(const fs::file_status& status) {
  constexpr auto anyWrite =
      fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write;
  return fs::is_regular_file(status) && (status.permissions() & anyWrite) == fs::perms::none;
}

struct CloseFile {
  void operator()(std::FILE* file) const { std::fclose(file); }
};
using FileHandle = std::unique_ptr<std::FILE, CloseFile>;

FileHandle Open(const fs::path& name, const char* mode) {
#ifdef _WIN32
  return FileHandle(_wfopen(name.c_str(), std::wstring(mode, mode + 2).c_str()));
#else
  return FileHandle(std::fopen(name.c_str(), mode));
#endif
}

std::error_code Reason(int number) { return {number, std::generic_category()}; }

bool FlushToDisk(std::FILE* file) {
  if (std::fflush(file) != 0) {
    return false;
  }
#ifdef _WIN32
  return _commit(_fileno(file)) == 0;
#else
  // Pipes and devices can't be synchronised, which is no failure to write.
  return fsync(fileno(file)) == 0 || errno == EINVAL || errno == EROFS;
#endif
}

/// Why the user of this program may not write to what is there.
std::error_code WhyNotWritten(const fs::path& name) {
#ifdef _WIN32
  constexpr int write = 2;
  return _waccess(name.c_str(), write) == 0 ? std::error_code() : Reason(errno);
#else
  return access(name.c_str(), W_OK) == 0 ? std::error_code() : Reason(errno);
#endif
}

/// Why what is there, but no regular file, isn't read.
std::error_code ReasonOfKind(const fs::path& name) {
  std::error_code ignored;
  return Reason(fs::is_directory(name, ignored) ? EISDIR : EINVAL);
}

class DiskReader : public FileReader {
 public:
  DiskReader(Files& files, FileHandle file) : m_files(files), m_file(std::move(file)) {}

  std::ptrdiff_t Read(char* buffer, std::size_t size) override {
    const std::size_t count = std::fread(buffer, 1, size, m_file.get());
    if (count == 0 && std::ferror(m_file.get())) {
      m_files.NoteFailure(Reason(errno));
      return -1;
    }
    return static_cast<std::ptrdiff_t>(count);
  }

 private:
  Files& m_files;
  FileHandle m_file;
};

class DiskWriter : public FileWriter {
 public:
  DiskWriter(Files& files, FileHandle file) : m_files(files), m_file(std::move(file)) {}

  bool Write(std::string_view bytes) override {
    return Noted(std::fwrite(bytes.data(), 1, bytes.size(), m_file.get()) == bytes.size());
  }

  bool Close() override {
    const bool flushed = Noted(FlushToDisk(m_file.get()));
    return Noted(std::fclose(m_file.release()) == 0) && flushed;
  }

 private:
  bool Noted(bool done) {
    if (!done) {
      m_files.NoteFailure(Reason(errno));
    }
    return done;
  }

  Files& m_files;
  FileHandle m_file;
};

class DiskFiles : public Files {
 public:
  std::unique_ptr<FileReader> OpenForReading(std::wstring_view path) override {
    const auto name = SystemPath(path);
    std::error_code error = name ? std::error_code() : Reason(EINVAL);
    // Only what has an end is read: a pipe of such a name would be waited for.
    if (!name || !fs::is_regular_file(*name, error)) {
      NoteFailure(error ? error : ReasonOfKind(*name));
      return nullptr;
    }
    auto file = Open(*name, "rb");
    if (!file) {
      NoteFailure(Reason(errno));
      return nullptr;
    }
    return std::make_unique<DiskReader>(*this, std::move(file));
  }

  std::unique_ptr<FileWriter> OpenForWriting(std::wstring_view path) override {
    const auto name = SystemPath(path);
    std::error_code ignored;
    // What may not be removed may not be emptied either, whoever runs the program.
    if (!name || IsWriteProtected(fs::status(*name, ignored))) {
      NoteFailure(Reason(name ? EACCES : EINVAL));
      return nullptr;
    }
    auto file = Open(*name, "wb");
    if (!file) {
      NoteFailure(Reason(errno));
      return nullptr;
    }
    return std::make_unique<DiskWriter>(*this, std::move(file));
  }

  bool Exists(std::wstring_view path) override {
    const auto name = SystemPath(path);
    std::error_code ignored;
    return name && fs::symlink_status(*name, ignored).type() != fs::file_type::not_found;
  }

  Removal Remove(std::wstring_view path) override {
    const auto name = SystemPath(path);
    std::error_code error;
    const auto status = name ? fs::symlink_status(*name, error) : fs::file_status();
    if (!name || status.type() == fs::file_type::not_found) {
      return Removal::Missing;
    }
    if (!error && (fs::is_directory(status) || IsWriteProtected(status))) {
      error = Reason(fs::is_directory(status) ? EISDIR : EACCES);
    }
    const bool removed = !error && fs::remove(*name, error);
    if (error) {
      NoteFailure(error);
      return Removal::Refused;
    }
    return removed ? Removal::Removed : Removal::Missing;
  }

  std::error_code Obstacle(std::wstring_view path, FileVerb verb) override {
    const auto name = SystemPath(path);
    if (!name || name->empty()) {
      return Reason(EINVAL);
    }
    std::error_code error;
    const bool isWrite = verb == FileVerb::Write;
    const auto status = isWrite ? fs::status(*name, error) : fs::symlink_status(*name, error);
    if (!fs::status_known(status)) {
      return error;
    }
    if (fs::is_directory(status) || IsWriteProtected(status)) {
      return Reason(fs::is_directory(status) ? EISDIR : EACCES);
    }
    // A file comes and goes in its directory.
    const bool isOverwritten = isWrite && fs::exists(status);
    const fs::path directory = name->has_parent_path() ? name->parent_path() : fs::path(".");
    return WhyNotWritten(isOverwritten ? *name : directory);
  }

  bool MakeDirectory(std::wstring_view path) override {
    const auto name = SystemPath(path);
    std::error_code error;
    if (!name || name->empty()) {
      return false;
    }
    fs::create_directories(*name, error);
    if (error) {
      NoteFailure(error);
    }
    return fs::is_directory(*name, error);
  }

  std::vector<std::wstring> Walk(std::wstring_view pattern) override {
    const std::size_t star = pattern.rfind(L'*');
    std::vector<std::wstring> names;
    if (star == std::wstring_view::npos) {
      return names;
    }
    const std::wstring_view ending = pattern.substr(star + 1);
    const auto directory = SystemPath(star == 0 ? L"." : pattern.substr(0, star));
    if (!directory) {
      return names;
    }
    std::error_code error;
    for (fs::directory_iterator entry(*directory, error);
         !error && entry != fs::directory_iterator(); entry.increment(error)) {
      auto name = WideName(entry->path().filename());
      if (name.ends_with(ending)) {
        names.push_back(std::move(name));
      }
    }
    std::sort(names.begin(), names.end());
    return names;
  }
};

}  // namespace

Files& Files::Disk() {
  static DiskFiles disk;
  return disk;
}

}  // namespace qv

bool CreateDirectoryW(const wchar_t* path, qv::Files& files) {
  return files.MakeDirectory(path ? path : L"");
}
