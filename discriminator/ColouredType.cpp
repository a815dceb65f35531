#include "discriminator/ColouredType.h"

#include <algorithm>

#include "discriminator/Fields.h"
#include "discriminator/ValueForms.h"
#include "tools/Guid.h"
#include "tools/Names.h"
#include "tools/Nodes.h"

namespace qv {
namespace {

constexpr Colour white = 0xFFFFFF;

}  // namespace

ColouredType ReadColouredType(XmlNode& type) {
  return {&type, type.Value(tag::Name), ColourOfText(type.Value(tag::Color))};
}

std::vector<ColouredType> ReadColouredTypes(XmlNode* container, const wchar_t* tag) {
  std::vector<ColouredType> types;
  for (XmlNode& type : ChildrenWithTag(container, tag)) {
    types.push_back(ReadColouredType(type));
  }
  return types;
}

std::vector<ColouredType> SortedColouredTypes(XmlNode* container, const wchar_t* tag) {
  std::vector<ColouredType> types = ReadColouredTypes(container, tag);
  std::stable_sort(types.begin(), types.end(), [](const ColouredType& a, const ColouredType& b) {
    return CompareLowered(a.name.ToView(), b.name.ToView()) < 0;
  });
  return types;
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
