#pragma once

#include <initializer_list>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "apps/qvdisc/EvaluatedExpression.h"
#include "apps/qvdisc/MarkedDates.h"
#include "apps/qvdisc/RehearsedFiles.h"
#include "apps/qvdisc/ToldConditions.h"
#include "apps/qvdisc/ToldTypes.h"
#include "apps/qvdisc/Words.h"
#include "checks/InstallationCheck.h"
#include "discriminator/DiscriminatorFile.h"
#include "host/Text.h"
#include "tools/XmlDocument.h"

namespace qvdisc {

/// A text that the rules showed or asked.
struct SpokenText {
  unsigned number = 0;  ///< 0 for a text without number
  std::wstring text;
  bool isQuestion = false;
  std::optional<bool> answer;  ///< nothing if there was no answer
  std::wstring addition{};     ///< lines that stood below it
};

/// An index file that was to be made.
struct IndexEnd {
  std::wstring stem;
  bool needed = false;
  bool written = false;
};

/// What a call did, as both forms of output tell it.
struct Outcome {
  qv::Language language = qv::Language::English;  ///< in which it is told
  int status = 0;
  std::vector<qv::DiscriminatorSummary> rows;  ///< of the list, after all was done
  std::vector<SpokenText> texts;
  std::vector<int> notices;
  bool hostHasToSave = false;
  bool saved = false;                 ///< the configuration, because it had to be
  std::vector<std::wstring> errors;   ///< in words
  std::vector<std::wstring> remarks;  ///< the same of what ends no call as refused

  std::unique_ptr<XmlDocument> document;  ///< what `show` shows
  std::optional<std::string> payload;     ///< what `copy` copies
  std::optional<std::string> unsaved;     ///< a discriminator that could not be saved, as payload
  std::optional<std::string> unsavedConfiguration;  ///< the text of its file
  std::vector<IndexEnd> indexes;
  std::vector<std::wstring> made;  ///< the stems of the discriminators that are new
  ToldTypes types;                 ///< of a call that works on hour types or day types
  ToldConditions conditions;       ///< of a call that works on conditions
  std::optional<EvaluatedExpression> evaluated;
  std::optional<MarkedDates> marked;  ///< nothing if the calendar wasn't saved
  qv::CheckedInstallation checked;    ///< what `check` found
  std::vector<std::wstring> names;    ///< by which discriminators can be called
  std::vector<FileChange> changes;    ///< what a dry run would have done

  /// The call ends as refused, for one more reason.
  void Fail(Word reason, std::initializer_list<qv::FormatArgument> arguments = {}) {
    errors.push_back(Words(reason, language, arguments));
    status = 1;
  }
};

}  // namespace qvdisc
