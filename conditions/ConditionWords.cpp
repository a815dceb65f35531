#include "conditions/ConditionWords.h"

#include <optional>

#include "tools/Format.h"

namespace qv {
namespace {

/// Why the expression gives nothing, or what it gives, as far as a text of its own says so.
std::optional<Text> TextOf(ConditionState state) {
  switch (state) {
    case ConditionState::Missing:
      return Text::ExpressionMissing;
    case ConditionState::Invalid:
      return Text::ExpressionInvalid;
    case ConditionState::NotLogical:
      return Text::ResultNotLogical;
    case ConditionState::UsesModule:
      return Text::ExpressionUsesModule;
    case ConditionState::False:
      return Text::ResultFalse;
    case ConditionState::True:
      return Text::ResultTrue;
    case ConditionState::NoValue:
      return Text::ResultNoValue;
    case ConditionState::Failed:
      break;
  }
  return std::nullopt;
}

bool HasResult(ConditionState state) {
  return state == ConditionState::False || state == ConditionState::True ||
         state == ConditionState::NoValue;
}

std::wstring InWords(const ConditionEvaluation& evaluation, const QVLoadString& loadString) {
  const auto text = TextOf(evaluation.state);
  if (!text) {
    return evaluation.words;
  }
  return loadString.IsMute(*text) ? L"" : std::wstring(loadString.Load(*text).ToView());
}

}  // namespace

std::wstring CaptionAddition(const ConditionEvaluation& evaluation,
                             const QVLoadString& loadString) {
  return HasResult(evaluation.state) ? L"" : L" (" + InWords(evaluation, loadString) + L")";
}

std::wstring PresentResult(const ConditionEvaluation& evaluation, const QVLoadString& loadString) {
  return evaluation.fault ? evaluation.fault->words : InWords(evaluation, loadString);
}

std::wstring PresentResultTold(const ConditionEvaluation& evaluation,
                               const QVLoadString& loadString) {
  const std::wstring result = PresentResult(evaluation, loadString);
  const bool isResult =
      evaluation.state == ConditionState::True || evaluation.state == ConditionState::False;
  return isResult && !result.empty()
             ? Format(loadString.Load(Text::PresentResult).ToView(), {std::wstring_view(result)})
             : result;
}

}  // namespace qv
