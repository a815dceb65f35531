#include "apps/qvdisc/RehearsedFiles.h"

#include <algorithm>
#include <set>
#include <utility>

namespace qvdisc {
namespace {

class RehearsedReader : public qv::FileReader {
 public:
  explicit RehearsedReader(std::string content) : m_content(std::move(content)) {}

  std::ptrdiff_t Read(char* buffer, std::size_t size) override {
    const std::size_t count = m_content.copy(buffer, size, m_position);
    m_position += count;
    return static_cast<std::ptrdiff_t>(count);
  }

 private:
  std::string m_content;
  std::size_t m_position = 0;
};

class RehearsedWriter : public qv::FileWriter {
 public:
  explicit RehearsedWriter(std::string& content) : m_content(content) {}

  bool Write(std::string_view bytes) override {
    m_content += bytes;
    return true;
  }
  bool Close() override { return true; }

 private:
  std::string& m_content;
};

/// Whether a walk with this pattern comes to the file.
bool Matches(std::wstring_view pattern, std::wstring_view path) {
  const std::size_t star = pattern.rfind(L'*');
  const std::wstring_view directory = pattern.substr(0, star);
  return path.starts_with(directory) && path.ends_with(pattern.substr(star + 1)) &&
         path.find_first_of(L"/\\", directory.size()) == std::wstring_view::npos;
}

}  // namespace

std::vector<FileChange> RehearsedFiles::Changes() const {
  std::vector<FileChange> changes;
  for (const auto& [path, content] : m_changed) {
    if (content || m_disk.Exists(path)) {
      changes.push_back({path, !content});
    }
  }
  return changes;
}

std::unique_ptr<qv::FileReader> RehearsedFiles::OpenForReading(std::wstring_view path) {
  const auto changed = m_changed.find(path);
  if (changed != m_changed.end() && changed->second) {
    return std::make_unique<RehearsedReader>(*changed->second);
  }
  if (changed != m_changed.end()) {
    NoteFailure(std::make_error_code(std::errc::no_such_file_or_directory));
    return nullptr;
  }
  m_disk.ForgetFailure();
  auto reader = m_disk.OpenForReading(path);
  NoteFailure(m_disk.Failure());
  return reader;
}

std::unique_ptr<qv::FileWriter> RehearsedFiles::OpenForWriting(std::wstring_view path) {
  if (IsRefused(path, qv::FileVerb::Write)) {
    return nullptr;
  }
  auto& content = m_changed[std::wstring(path)];
  return std::make_unique<RehearsedWriter>(content.emplace());
}

bool RehearsedFiles::Exists(std::wstring_view path) {
  const auto changed = m_changed.find(path);
  return changed == m_changed.end() ? m_disk.Exists(path) : changed->second.has_value();
}

qv::Removal RehearsedFiles::Remove(std::wstring_view path) {
  if (!Exists(path)) {
    return qv::Removal::Missing;
  }
  if (IsRefused(path, qv::FileVerb::Remove)) {
    return qv::Removal::Refused;
  }
  m_changed[std::wstring(path)] = std::nullopt;
  return qv::Removal::Removed;
}

bool RehearsedFiles::MakeDirectory(std::wstring_view path) { return m_disk.Exists(path); }

std::vector<std::wstring> RehearsedFiles::Walk(std::wstring_view pattern) {
  const auto found = m_disk.Walk(pattern);
  std::set<std::wstring> names(found.begin(), found.end());
  for (const auto& [path, content] : m_changed) {
    if (Matches(pattern, path)) {
      const std::wstring name = path.substr(pattern.rfind(L'*'));
      content ? static_cast<void>(names.insert(name)) : static_cast<void>(names.erase(name));
    }
  }
  return {names.begin(), names.end()};
}

bool RehearsedFiles::IsRefused(std::wstring_view path, qv::FileVerb verb) {
  // What was changed here once could be changed on the disk, and can be again.
  const auto obstacle =
      m_changed.find(path) == m_changed.end() ? m_disk.Obstacle(path, verb) : std::error_code();
  NoteFailure(obstacle);
  return static_cast<bool>(obstacle);
}

}  // namespace qvdisc
