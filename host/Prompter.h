#pragma once

#include <string_view>
#include <vector>

#include "host/Addition.h"
#include "host/Export.h"
#include "host/Text.h"
#include "tools/Format.h"

namespace qv {

/// How the rules speak to the user: texts by number, shown and answered before the call returns.
/// The dialogs show modal boxes, the command line writes, tests follow a script.
class QVHOST_EXPORT Prompter {
 public:
  /// What the placeholders of a text are filled with. Texts among them outlive the call.
  using Arguments = std::vector<FormatArgument>;

  virtual ~Prompter() = default;

  /// Shows the text, with its placeholders filled in, and below it what there is to add. One of the
  /// library's own that the language lacks isn't shown.
  virtual void Show(Text text, const Arguments& arguments = {}, const Addition& addition = {}) = 0;
  /// Asks the text as a question, likewise; true for Yes.
  virtual bool Ask(Text text, const Arguments& arguments = {}, const Addition& addition = {}) = 0;
  /// Shows a text that has no number, as it stands, and below it what there is to add.
  virtual void ShowText(std::wstring_view text, const Addition& addition = {}) = 0;
};

}  // namespace qv
