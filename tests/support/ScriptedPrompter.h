#pragma once

#include <deque>
#include <initializer_list>
#include <optional>
#include <string>
#include <vector>

#include "host/Prompter.h"

namespace qv {

/// Follows a script of what is said to the user and what they answer. It fails the test if
/// something else is said, and, when it dies, if part of the script is left.
class ScriptedPrompter : public Prompter {
 public:
  /// One step of the script: with an answer a question, without one a message.
  struct Step {
    Text text;
    std::optional<bool> answer = std::nullopt;
  };

  /// Something that was said.
  struct Said {
    std::optional<Text> text;             ///< nothing for a text without number
    bool isQuestion = false;              ///< whether an answer was asked for
    std::vector<std::wstring> arguments;  ///< for the placeholders, as `%s` and `%d` show them
    std::wstring words;                   ///< of a text without number
    Addition addition{};                  ///< what was said below the text

    friend bool operator==(const Said&, const Said&) = default;
  };

  ScriptedPrompter(std::initializer_list<Step> script = {});
  ScriptedPrompter(const ScriptedPrompter&) = delete;
  ScriptedPrompter& operator=(const ScriptedPrompter&) = delete;
  ~ScriptedPrompter() override;

  // These append to the script.
  void ExpectShow(Text text);
  void ExpectAsk(Text text, bool answer);
  void ExpectText(std::wstring words);

  void Show(Text text, const Arguments& arguments = {}, const Addition& addition = {}) override;
  /// Answers as the script says, and No to what it doesn't expect.
  bool Ask(Text text, const Arguments& arguments = {}, const Addition& addition = {}) override;
  void ShowText(std::wstring_view words, const Addition& addition = {}) override;

  /// All that was said, expected or not, in order.
  const std::vector<Said>& Heard() const { return m_heard; }

 private:
  struct Expected {
    Said said;  ///< neither its arguments nor what is added are compared
    bool answer = false;
  };

  bool Hear(Said said);

  std::deque<Expected> m_script;
  std::vector<Said> m_heard;
};

}  // namespace qv
