#pragma once

#include <optional>

#include "apps/qvdisc/Outcome.h"
#include "apps/qvdisc/Terminal.h"
#include "host/Prompter.h"
#include "host/QVLoadString.h"

namespace qvdisc {

/// Tells and asks on standard error, what there is to add on lines of its own below, and keeps what
/// was said.
///
/// A question takes the answer of the call; without one a user at a terminal is asked, and where
/// there is none the answer is No and the call fails.
class UserPrompter : public qv::Prompter {
 public:
  /// All references outlive the prompter.
  UserPrompter(const Terminal& terminal, const QVLoadString& texts, std::optional<bool> answer,
               Outcome& outcome);

  void Show(Text text, const Arguments& arguments = {}, const qv::Addition& addition = {}) override;
  bool Ask(Text text, const Arguments& arguments = {}, const qv::Addition& addition = {}) override;
  void ShowText(std::wstring_view text, const qv::Addition& addition = {}) override;

 private:
  std::wstring Worded(Text text, const Arguments& arguments) const;
  std::wstring WithAddition(const std::wstring& text, const qv::Addition& addition) const;
  std::optional<bool> AnswerTo(const std::wstring& question) const;

  const Terminal& m_terminal;
  const QVLoadString& m_texts;
  std::optional<bool> m_answer;
  Outcome& m_outcome;
};

}  // namespace qvdisc
