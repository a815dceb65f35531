#include "host/Addition.h"

#include <utility>

#include "host/Mnemonic.h"
#include "tools/Format.h"
#include "tools/SystemWords.h"

namespace qv {

Addition Shortened(Addition lines) {
  constexpr std::size_t most = 5;
  if (lines.size() > most) {
    const std::size_t more = lines.size() - most;
    lines.resize(most);
    lines.push_back({Text::AndMore, {std::to_wstring(more)}});
  }
  return lines;
}

Addition AboutFile(std::wstring_view path, const std::error_code& reason) {
  Addition addition = {{Text::FailedFile, {std::wstring(path)}}};
  if (reason) {
    addition.push_back({Text::FailureReason, {SystemWords(reason)}});
  }
  return addition;
}

Addition WhyUnreadable(const std::error_code& reason, const XmlError& error) {
  if (reason) {
    return {{Text::FailureReason, {SystemWords(reason)}}};
  }
  if (error.line == 0) {
    return {{Text::DiscriminatorDamaged}};
  }
  return {
      {Text::DiscriminatorDamagedAt, {std::to_wstring(error.line), std::to_wstring(error.column)}}};
}

std::wstring InWords(const Addition& addition, const QVLoadString& loadString) {
  std::wstring words;
  for (const AddedLine& line : addition) {
    if (loadString.Has(Number(line.text))) {
      const std::vector<FormatArgument> arguments(line.arguments.begin(), line.arguments.end());
      words += words.empty() ? L"" : L"\n";
      words += Format(WithoutMnemonic(loadString.Load(line.text).ToView()), arguments);
    }
  }
  return words;
}

}  // namespace qv
