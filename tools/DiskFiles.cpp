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

class DiskReader : public FileReader {
 public:
  explicit DiskReader(FileHandle file) : m_file(std::move(file)) {}

  std::ptrdiff_t Read(char* buffer, std::size_t size) override {
    const std::size_t count = std::fread(buffer, 1, size, m_file.get());
    return count == 0 && std::ferror(m_file.get()) ? -1 : static_cast<std::ptrdiff_t>(count);
  }

 private:
  FileHandle m_file;
};

class DiskWriter : public FileWriter {
 public:
  explicit DiskWriter(FileHandle file) : m_file(std::move(file)) {}

  bool Write(std::string_view bytes) override {
    return std::fwrite(bytes.data(), 1, bytes.size(), m_file.get()) == bytes.size();
  }

  bool Close() override {
    const bool flushed = FlushToDisk(m_file.get());
    return std::fclose(m_file.release()) == 0 && flushed;
  }

 private:
  FileHandle m_file;
};

class DiskFiles : public Files {
 public:
  std::unique_ptr<FileReader> OpenForReading(std::wstring_view path) override {
    const auto name = SystemPath(path);
    std::error_code ignored;
    // Only what has an end is read: a pipe of such a name would be waited for.
    auto file = name && fs::is_regular_file(*name, ignored) ? Open(*name, "rb") : nullptr;
    return file ? std::make_unique<DiskReader>(std::move(file)) : nullptr;
  }

  std::unique_ptr<FileWriter> OpenForWriting(std::wstring_view path) override {
    const auto name = SystemPath(path);
    std::error_code ignored;
    // What may not be removed may not be emptied either, whoever runs the program.
    auto file = name && !IsWriteProtected(fs::status(*name, ignored)) ? Open(*name, "wb") : nullptr;
    return file ? std::make_unique<DiskWriter>(std::move(file)) : nullptr;
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
    if (error || fs::is_directory(status) || IsWriteProtected(status)) {
      return Removal::Refused;
    }
    const bool removed = fs::remove(*name, error);
    if (error) {
      return Removal::Refused;
    }
    return removed ? Removal::Removed : Removal::Missing;
  }

  bool MakeDirectory(std::wstring_view path) override {
    const auto name = SystemPath(path);
    std::error_code error;
    if (!name || name->empty()) {
      return false;
    }
    fs::create_directories(*name, error);
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
