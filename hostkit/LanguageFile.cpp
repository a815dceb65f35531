#include "hostkit/LanguageFile.h"

#include <algorithm>
#include <charconv>
#include <optional>
#include <system_error>
#include <utility>
#include <vector>

#include "tools/Format.h"
#include "tools/Utf8.h"

namespace qv {
namespace {

constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";

std::optional<std::string> ReadWhole(std::wstring_view path, Files& files) {
  const auto file = files.OpenForReading(path);
  if (!file) {
    return std::nullopt;
  }
  std::string content;
  std::vector<char> buffer(std::size_t{64} * 1024);
  std::ptrdiff_t count = 0;
  while ((count = file->Read(buffer.data(), buffer.size())) > 0) {
    content.append(buffer.data(), static_cast<std::size_t>(count));
  }
  return count < 0 ? std::nullopt : std::optional(std::move(content));
}

/// Takes the first line off `rest`, without its line end.
std::string_view TakeLine(std::string_view& rest) {
  std::string_view line = rest.substr(0, rest.find('\n'));
  rest.remove_prefix(std::min(rest.size(), line.size() + 1));
  if (line.ends_with('\r')) {
    line.remove_suffix(1);
  }
  return line;
}

std::wstring Unescaped(std::wstring_view text) {
  constexpr std::wstring_view letters = L"nt\\";
  constexpr std::wstring_view meanings = L"\n\t\\";
  std::wstring out;
  out.reserve(text.size());
  for (std::size_t i = 0; i < text.size(); ++i) {
    const bool isEscape = text[i] == L'\\' && i + 1 < text.size();
    const std::size_t letter = isEscape ? letters.find(text[i + 1]) : std::wstring_view::npos;
    if (letter == std::wstring_view::npos) {
      out += text[i];
    } else {
      out += meanings[letter];
      ++i;
    }
  }
  return out;
}

/// The number and the text of a line, or nothing for a line that has no number.
std::optional<std::pair<unsigned, std::wstring>> ReadEntry(std::string_view line) {
  unsigned number = 0;
  const char* const end = line.data() + line.size();
  const auto [behind, error] = std::from_chars(line.data(), end, number);
  if (error != std::errc()) {
    return std::nullopt;
  }
  if (behind == end) {
    return std::pair(number, std::wstring());
  }
  if (*behind != ' ' && *behind != '\t') {
    return std::nullopt;
  }
  const std::string_view text(behind + 1, static_cast<std::size_t>(end - behind - 1));
  return std::pair(number, Unescaped(FromUtf8(text)));
}

}  // namespace

bool LanguageFile::Load(std::wstring_view path, Files& files) {
  const auto content = ReadWhole(path, files);
  if (!content) {
    return false;
  }
  std::string_view rest = *content;
  if (rest.starts_with(byteOrderMark)) {
    rest.remove_prefix(byteOrderMark.size());
  }
  m_texts.clear();
  while (!rest.empty()) {
    // A line that starts with "#" has no number either.
    if (auto entry = ReadEntry(TakeLine(rest))) {
      m_texts.insert_or_assign(entry->first, std::move(entry->second));
    }
  }
  return true;
}

QVWideString& LanguageFile::operator()(unsigned id, QVWideString& text) const {
  const auto found = m_texts.find(id);
  return text.Assign(found == m_texts.end() ? Format(L"[%u]", {id}) : found->second);
}

bool LanguageFile::Has(unsigned id) const { return m_texts.contains(id); }

}  // namespace qv
