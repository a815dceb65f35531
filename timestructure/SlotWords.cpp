#include "timestructure/SlotWords.h"

#include "discriminator/ValueForms.h"
#include "tools/Format.h"

namespace qv {
namespace {

QVWideString Time(int minute) { return TimeText({minute / 60, minute % 60}); }

}  // namespace

std::wstring SlotsInWords(const std::vector<STagSlot>& day, std::wstring_view form) {
  std::wstring words;
  for (const STagSlot& slot : day) {
    if (const auto part = DayPart(slot)) {
      words += words.empty() ? L"" : L"; ";
      words += Format(form, {Time(part->from), Time(part->to)});
    }
  }
  return words;
}

}  // namespace qv
