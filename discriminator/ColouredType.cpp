#include "discriminator/ColouredType.h"

#include "discriminator/Fields.h"
#include "discriminator/ValueForms.h"
#include "tools/Guid.h"

namespace qv {
namespace {

constexpr Colour white = 0xFFFFFF;

}  // namespace

ColouredType ReadColouredType(XmlNode& type) {
  return {&type, type.Value(tag::Name), ColourOfText(type.Value(tag::Color))};
}

NewChildNode NewWhiteType(XmlNode& container, const wchar_t* tag) {
  return NewChildNode(
      container, tag,
      {{tag::Id, NewGuidText()}, {tag::Name, L""}, {tag::Color, ColourText(white)}});
}

const XmlNode* HourTypeOfSlot(const XmlNode& slot, const XmlNode* hourTypes) {
  return hourTypes ? hourTypes->NodeV(L"hour?id=%s?", slot.Value(tag::Id)) : nullptr;
}

}  // namespace qv
