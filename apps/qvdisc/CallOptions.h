#pragma once

#include <optional>
#include <string>
#include <vector>

#include "apps/qvdisc/ConditionTexts.h"
#include "apps/qvdisc/MarkTexts.h"
#include "apps/qvdisc/TypeTexts.h"
#include "hostkit/Language.h"

namespace CLI {
class App;
}

/// The options that verbs share. The texts have to outlive the application that they are added to,
/// and `language` is that of the help.
namespace qvdisc {

/// The options as their texts, to be turned into values once all of them are known to be good.
struct OptionTexts {
  std::string installation;
  std::string language;
  std::vector<std::string> stems;
  std::string name;
  std::string description;
  std::string type;
  std::string zero;
  bool json = false;
  bool yes = false;
  bool no = false;
  bool strict = false;
  bool dryRun = false;
  TypeTexts types;
  MarkTexts marks;
  ConditionTexts conditions;
};

/// How many STEMs a verb takes.
struct Stems {
  int least = 0;
  int most = 0;
};

/// Why `text` names no directory that can be read; empty if it does.
std::string NoDirectory(const std::string& text);

/// What the call gives for an option of `verb`, of which `text` was read; nothing if it gives none.
std::optional<std::wstring> Given(const CLI::App& verb, const char* option,
                                  const std::string& text);

/// The option `--language`.
void AddLanguage(CLI::App& app, OptionTexts& texts, qv::Language language);

/// The options that each verb has.
void AddCommonOptions(CLI::App& verb, OptionTexts& texts, qv::Language language);

/// The arguments that say which discriminators, if the verb takes any.
void AddStems(CLI::App& verb, const Stems& stems, OptionTexts& texts, qv::Language language);

/// The fields of a new discriminator, of which the name is needed.
void AddNewFields(CLI::App& verb, OptionTexts& texts, qv::Language language);

/// The fields of a discriminator that is changed.
void AddChangedFields(CLI::App& verb, OptionTexts& texts, qv::Language language);

/// The answers to the questions of a verb. A dry run needs none: it takes Yes.
void AddAnswers(CLI::App& verb, OptionTexts& texts, qv::Language language);

/// What has a verb write nothing.
void AddDryRun(CLI::App& verb, OptionTexts& texts, qv::Language language);

/// What makes notes count for the exit status.
void AddStrict(CLI::App& verb, OptionTexts& texts, qv::Language language);

}  // namespace qvdisc
