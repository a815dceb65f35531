#include "hostkit/ExpressionInsertion.h"

#include <algorithm>

#include "hostkit/VariableNames.h"

namespace qv {
namespace {

/// An expression around a place of it, which is cut to the text.
struct Surroundings {
  std::wstring_view before;
  std::wstring_view replaced;
  std::wstring_view after;
};

Surroundings Around(std::wstring_view expression, ExpressionPlace place) {
  const auto length = static_cast<int>(expression.size());
  const auto start = static_cast<std::size_t>(std::clamp(place.start, 0, length));
  const auto count = static_cast<std::size_t>(std::clamp(place.length, 0, length));
  const std::wstring_view replaced = expression.substr(start, count);
  return {expression.substr(0, start), replaced, expression.substr(start + replaced.size())};
}

bool IsOneOf(std::wstring_view characters, wchar_t character) {
  return characters.find(character) != std::wstring_view::npos;
}

/// Whether a value or a word behind `before` has to be kept apart from it.
bool TouchesBefore(std::wstring_view before) {
  return !before.empty() &&
         (IsPlainNameCharacter(before.back()) || IsOneOf(L".)],", before.back()));
}

bool TouchesAfter(std::wstring_view after) {
  return !after.empty() && (IsPlainNameCharacter(after.front()) || IsOneOf(L".([", after.front()));
}

ExpressionInsertion Apart(const Surroundings& around, std::wstring_view text, std::size_t cursor) {
  ExpressionInsertion inserted;
  if (TouchesBefore(around.before)) {
    inserted.text = L" ";
  }
  inserted.text += text;
  inserted.cursor = static_cast<int>(inserted.text.size() - text.size() + cursor);
  if (TouchesAfter(around.after)) {
    inserted.text += L" ";
  }
  return inserted;
}

bool IsPrefix(const ExpressionWord& word) { return word.meaning == ExpressionMeaning::Not; }

/// An operator with a blank on both sides; the cursor is behind the second one, which may be there
/// already.
ExpressionInsertion InsertedOperator(const Surroundings& around, const ExpressionWord& word) {
  const bool opens = around.before.empty() || IsOneOf(L" (", around.before.back());
  const bool standsApart = IsPrefix(word) ? TouchesBefore(around.before) : !opens;
  const bool blankFollows = !around.after.empty() && around.after.front() == L' ';
  const bool clings = IsPrefix(word) && !IsPlainNameCharacter(word.text[0]);
  std::wstring text = (standsApart ? L" " : L"") + std::wstring(word.text);
  const std::size_t cursor = text.size() + (clings ? 0 : 1);
  if (!clings && !blankFollows) {
    text += L' ';
  }
  return {text, static_cast<int>(cursor)};
}

std::wstring_view WithoutBlanks(std::wstring_view text) {
  const std::size_t first = text.find_first_not_of(L' ');
  return first == text.npos ? std::wstring_view()
                            : text.substr(first, text.find_last_not_of(L' ') - first + 1);
}

/// The cursor is at the first argument that is open, or behind the call if none is.
ExpressionInsertion InsertedCall(const Surroundings& around, const ExpressionWord& function) {
  const std::wstring_view argument = WithoutBlanks(around.replaced);
  std::wstring call = function.text + (L"(" + std::wstring(argument));
  std::size_t cursor = argument.empty() ? call.size() : 0;
  for (int i = 1; i < function.fewestArguments; ++i) {
    call += L", ";
    cursor = cursor == 0 ? call.size() : cursor;
  }
  call += L')';
  return Apart(around, call, cursor == 0 ? call.size() : cursor);
}

}  // namespace

ExpressionInsertion InsertedValue(std::wstring_view expression, ExpressionPlace replaced,
                                  std::wstring_view written) {
  return Apart(Around(expression, replaced), written, written.size());
}

ExpressionInsertion InsertedWord(std::wstring_view expression, ExpressionPlace replaced,
                                 const ExpressionWord& word) {
  const Surroundings around = Around(expression, replaced);
  switch (word.kind) {
    case ExpressionWordKind::Operator:
      return InsertedOperator(around, word);
    case ExpressionWordKind::Function:
      return InsertedCall(around, word);
    case ExpressionWordKind::Constant:
      break;
  }
  return Apart(around, word.text, std::wstring_view(word.text).size());
}

}  // namespace qv
