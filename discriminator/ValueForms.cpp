#include "discriminator/ValueForms.h"

#include <algorithm>

#include "tools/Format.h"
#include "tools/Numbers.h"

namespace qv {

QVWideString ColourText(Colour color) { return QVWideString(Format(L"%06X", {color}).c_str()); }

Colour ColourAsStored(const QVWideString& text) {
  return static_cast<Colour>(HtoL(text, text.Length()));
}

Colour ColourOfText(const QVWideString& text) {
  QVWideString upper(text);
  upper.MakeUpper();
  return ColourAsStored(upper);
}

QVWideString TimeText(TimeOfDay time) {
  return QVWideString(Format(L"%02d:%02d", {time.hours, time.minutes}).c_str());
}

TimeOfDay TimeOf(const QVWideString& text) {
  const std::wstring_view all = text.ToView();
  const std::size_t count = std::min<std::size_t>(2, all.size());
  return {Wtoi(all.substr(0, count)), Wtoi(all.substr(all.size() - count))};
}

const wchar_t* FlagText(bool set) { return set ? L"T" : L"F"; }

bool IsFlagSet(const QVWideString& text) { return text == L"T"; }

}  // namespace qv
