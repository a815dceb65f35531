#include "timestructure/SlotWords.h"

#include "discriminator/ColouredType.h"
#include "discriminator/Fields.h"
#include "discriminator/ValueForms.h"
#include "tools/Format.h"
#include "tools/Nodes.h"

namespace qv {

std::wstring SlotInWords(const STagSlot& slot, const QVWideString& hourType,
                         const SlotForms& forms) {
  const auto part = DayPart(slot);
  if (!part) {
    return {};
  }
  const bool isTyped = !hourType.Empty() && !forms.typed.empty();
  return isTyped ? Format(forms.typed, {hourType, TimeText(part->from), TimeText(part->to)})
                 : Format(forms.times, {TimeText(part->from), TimeText(part->to)});
}

std::wstring SlotsInWords(const std::vector<STagSlot>& day,
                          const std::vector<QVWideString>& hourTypes, const SlotForms& forms) {
  std::wstring words;
  for (std::size_t i = 0; i < day.size(); ++i) {
    const auto slot =
        SlotInWords(day[i], i < hourTypes.size() ? hourTypes[i] : QVWideString(), forms);
    words += words.empty() || slot.empty() ? L"" : L"; ";
    words += slot;
  }
  return words;
}

std::vector<QVWideString> HourTypesOfSlots(const XmlNode* day, const XmlNode* hourTypes) {
  std::vector<QVWideString> names;
  for (const XmlNode& slot : ChildrenWithTag(day, tag::Slot)) {
    const XmlNode* hour = HourTypeOfSlot(slot, hourTypes);
    names.push_back(hour ? hour->Value(tag::Name) : QVWideString());
  }
  return names;
}

}  // namespace qv
