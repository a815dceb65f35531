#include "host/Refusal.h"

namespace qv {

void Tell(Prompter& prompter, const Refusal& refusal) {
  if (refusal.text) {
    const std::vector<FormatArgument> arguments(refusal.arguments.begin(), refusal.arguments.end());
    prompter.Show(*refusal.text, arguments, refusal.addition);
  } else {
    prompter.ShowText(refusal.words, refusal.addition);
  }
}

}  // namespace qv
