#include "tests/support/ScriptedFiles.h"

#include <algorithm>
#include <cerrno>
#include <cstring>

namespace qv {
namespace {

std::error_code Reason(int number) { return {number, std::generic_category()}; }

class ScriptedReader : public FileReader {
 public:
  ScriptedReader(ScriptedFiles& files, std::string content, bool breaks)
      : m_files(files),
        m_content(std::move(content)),
        m_pieceSize(files.pieceSize),
        m_breaks(breaks) {}

  std::ptrdiff_t Read(char* buffer, std::size_t size) override {
    const std::size_t end = m_breaks ? m_content.size() / 2 : m_content.size();
    if (m_breaks && m_position >= end) {
      m_files.NoteFailure(Reason(EIO));
      return -1;
    }
    std::size_t count = std::min(size, end - m_position);
    if (m_pieceSize != 0) {
      count = std::min(count, m_pieceSize);
    }
    std::memcpy(buffer, m_content.data() + m_position, count);
    m_position += count;
    return static_cast<std::ptrdiff_t>(count);
  }

 private:
  ScriptedFiles& m_files;
  std::string m_content;
  std::size_t m_pieceSize;
  bool m_breaks;
  std::size_t m_position = 0;
};

class ScriptedWriter : public FileWriter {
 public:
  ScriptedWriter(ScriptedFiles& files, std::wstring path)
      : m_files(files), m_path(std::move(path)) {}

  bool Write(std::string_view bytes) override {
    auto& space = m_files.diskSpace;
    const std::size_t count = space ? std::min(*space, bytes.size()) : bytes.size();
    if (space) {
      *space -= count;
    }
    m_files.contents[m_path] += bytes.substr(0, count);
    if (count != bytes.size()) {
      m_files.NoteFailure(Reason(ENOSPC));
    }
    return count == bytes.size();
  }

  bool Close() override {
    if (m_files.failClose) {
      m_files.NoteFailure(Reason(EIO));
    }
    return !m_files.failClose;
  }

 private:
  ScriptedFiles& m_files;
  std::wstring m_path;
};

}  // namespace

std::unique_ptr<FileReader> ScriptedFiles::OpenForReading(std::wstring_view path) {
  const std::wstring name(path);
  log.push_back(L"read " + name);
  const auto file = contents.find(name);
  if (file == contents.end() || unreadable.contains(name)) {
    NoteFailure(Reason(file == contents.end() ? ENOENT : EACCES));
    return nullptr;
  }
  return std::make_unique<ScriptedReader>(*this, file->second, breakingReads.contains(name));
}

std::unique_ptr<FileWriter> ScriptedFiles::OpenForWriting(std::wstring_view path) {
  std::wstring name(path);
  log.push_back(L"write " + name);
  const std::size_t length = name.size() - (name.find_last_of(L'/') + 1);
  if (length == 0 || length > longestName || unwritable.contains(name) ||
      directories.contains(name)) {
    NoteFailure(Reason(directories.contains(name) ? EISDIR : EACCES));
    return nullptr;
  }
  contents[name].clear();
  return std::make_unique<ScriptedWriter>(*this, std::move(name));
}

bool ScriptedFiles::Exists(std::wstring_view path) {
  const std::wstring name(path);
  return contents.contains(name) || directories.contains(name);
}

Removal ScriptedFiles::Remove(std::wstring_view path) {
  const std::wstring name(path);
  log.push_back(L"remove " + name);
  if (directories.contains(name) || (contents.contains(name) && writeProtected.contains(name))) {
    NoteFailure(Reason(directories.contains(name) ? EISDIR : EACCES));
    return Removal::Refused;
  }
  return contents.erase(name) == 0 ? Removal::Missing : Removal::Removed;
}

bool ScriptedFiles::MakeDirectory(std::wstring_view path) {
  log.push_back(L"mkdir " + std::wstring(path));
  if (refuseDirectories) {
    NoteFailure(Reason(EACCES));
    return false;
  }
  directories.insert(std::wstring(path));
  return true;
}

std::vector<std::wstring> ScriptedFiles::Walk(std::wstring_view pattern) {
  log.push_back(L"walk " + std::wstring(pattern));
  const std::size_t star = pattern.rfind(L'*');
  if (star == std::wstring_view::npos) {
    return {};
  }
  const std::wstring_view directory = pattern.substr(0, star);
  const std::wstring_view ending = pattern.substr(star + 1);
  std::vector<std::wstring> names;
  const auto take = [&](const std::wstring& path) {
    if (!path.starts_with(directory)) {
      return;
    }
    auto name = path.substr(directory.size());
    if (name.ends_with(ending) && name.find(L'/') == std::wstring::npos) {
      names.push_back(std::move(name));
    }
  };
  for (const auto& [path, content] : contents) {
    take(path);
  }
  std::for_each(directories.begin(), directories.end(), take);
  std::sort(names.begin(), names.end());
  return names;
}

}  // namespace qv
