#include "host/QVDriver.h"

void SplitDriverVariable(const QVWideString& variable, QVWideString& first, QVWideString& second,
                         bool) {
  const std::wstring text(variable.ToView());
  const std::size_t dot = text.find(L'.');
  first = text.substr(0, dot).c_str();
  second = dot == std::wstring::npos ? L"" : text.substr(dot + 1).c_str();
}
