#include "tests/support/ScriptedPrompter.h"

#include <gtest/gtest.h>

#include <utility>

#include "tools/Utf8.h"

namespace qv {
namespace {

std::string Description(const ScriptedPrompter::Said& said) {
  if (!said.text) {
    return "the text \"" + ToUtf8(said.words).value_or("?") + "\"";
  }
  return (said.isQuestion ? "the question " : "the message ") + std::to_string(Number(*said.text));
}

std::vector<std::wstring> Shown(const Prompter::Arguments& arguments) {
  std::vector<std::wstring> shown;
  for (const FormatArgument& argument : arguments) {
    shown.push_back(argument.Converted(L'd', 0, L' '));
  }
  return shown;
}

bool SameWords(const ScriptedPrompter::Said& a, const ScriptedPrompter::Said& b) {
  return a.text == b.text && a.isQuestion == b.isQuestion && a.words == b.words;
}

}  // namespace

ScriptedPrompter::ScriptedPrompter(std::initializer_list<Step> script) {
  for (const Step& step : script) {
    m_script.push_back({{step.text, step.answer.has_value(), {}, {}}, step.answer.value_or(false)});
  }
}

ScriptedPrompter::~ScriptedPrompter() {
  for (const Expected& expected : m_script) {
    ADD_FAILURE() << "never said: " << Description(expected.said);
  }
}

void ScriptedPrompter::ExpectShow(Text text) { m_script.push_back({{text, false, {}, {}}, false}); }

void ScriptedPrompter::ExpectAsk(Text text, bool answer) {
  m_script.push_back({{text, true, {}, {}}, answer});
}

void ScriptedPrompter::ExpectText(std::wstring words) {
  m_script.push_back({{std::nullopt, false, {}, std::move(words)}, false});
}

void ScriptedPrompter::Show(Text text, const Arguments& arguments, const Addition& addition) {
  Hear({text, false, Shown(arguments), {}, addition});
}

bool ScriptedPrompter::Ask(Text text, const Arguments& arguments, const Addition& addition) {
  return Hear({text, true, Shown(arguments), {}, addition});
}

void ScriptedPrompter::ShowText(std::wstring_view words, const Addition& addition) {
  Hear({std::nullopt, false, {}, std::wstring(words), addition});
}

/// Compares with the next step of the script, which is used up either way, and gives its answer.
bool ScriptedPrompter::Hear(Said said) {
  m_heard.push_back(std::move(said));
  const Said& heard = m_heard.back();
  if (m_script.empty()) {
    ADD_FAILURE() << "said beyond the script: " << Description(heard);
    return false;
  }
  const Expected expected = std::move(m_script.front());
  m_script.pop_front();
  if (!SameWords(expected.said, heard)) {
    ADD_FAILURE() << "expected " << Description(expected.said) << ", heard " << Description(heard);
    return false;
  }
  return expected.answer;
}

}  // namespace qv
