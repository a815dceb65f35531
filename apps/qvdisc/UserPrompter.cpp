#include "apps/qvdisc/UserPrompter.h"

#include <istream>
#include <ostream>
#include <string>
#include <utility>

#include "apps/qvdisc/Words.h"
#include "host/Mnemonic.h"
#include "tools/Format.h"

namespace qvdisc {

UserPrompter::UserPrompter(const Terminal& terminal, const QVLoadString& texts,
                           std::optional<bool> answer, Outcome& outcome)
    : m_terminal(terminal), m_texts(texts), m_answer(answer), m_outcome(outcome) {}

void UserPrompter::Show(Text text, const Arguments& arguments, const qv::Addition& addition) {
  if (m_texts.IsMute(text)) {
    return;
  }
  const std::wstring message = Worded(text, arguments);
  m_outcome.texts.push_back(
      {Number(text), message, false, std::nullopt, qv::InWords(addition, m_texts)});
  m_terminal.err << Utf8(WithAddition(message, addition)) << '\n';
}

void UserPrompter::ShowText(std::wstring_view text, const qv::Addition& addition) {
  const std::wstring message(text);
  m_outcome.texts.push_back({0, message, false, std::nullopt, qv::InWords(addition, m_texts)});
  m_terminal.err << Utf8(WithAddition(message, addition)) << '\n';
}

bool UserPrompter::Ask(Text text, const Arguments& arguments, const qv::Addition& addition) {
  const std::wstring question = Worded(text, arguments);
  const std::wstring asked = WithAddition(question, addition);
  m_terminal.err << Utf8(asked) << (asked == question ? ' ' : '\n');
  const auto answer = AnswerTo(question);
  m_outcome.texts.push_back({Number(text), question, true, answer, qv::InWords(addition, m_texts)});
  if (!answer) {
    m_terminal.err << '\n';
    m_outcome.Fail(Word::AnswerNeeded);
  }
  return answer.value_or(false);
}

std::optional<bool> UserPrompter::AnswerTo(const std::wstring& question) const {
  std::ostream& err = m_terminal.err;
  if (m_answer) {
    const std::wstring word = Words(*m_answer ? Word::Yes : Word::No, m_outcome.language);
    err << NarrowWords(Word::Answer, m_outcome.language, {word.c_str()}) << '\n';
    return m_answer;
  }
  if (!m_terminal.canAsk) {
    return std::nullopt;
  }
  // Yes begins with y or s, in one of the languages; the end of the input is No.
  for (std::string line; err << NarrowWords(Word::YesOrNo, m_outcome.language) << ' ' << std::flush,
                         std::getline(m_terminal.in, line);
       err << Utf8(question) << ' ') {
    const char letter = line.empty() ? ' ' : line.front();
    if (std::string_view("yYsSnN").find(letter) != std::string_view::npos) {
      return letter != 'n' && letter != 'N';
    }
  }
  return false;
}

std::wstring UserPrompter::WithAddition(const std::wstring& text,
                                        const qv::Addition& addition) const {
  const std::wstring words = qv::InWords(addition, m_texts);
  return words.empty() ? text : text + L'\n' + words;
}

std::wstring UserPrompter::Worded(Text text, const Arguments& arguments) const {
  return qv::Format(qv::WithoutMnemonic(m_texts.Load(text).ToView()), arguments);
}

}  // namespace qvdisc
