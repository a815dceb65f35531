#include "apps/qvdisc/TypeJson.h"

#include <nlohmann/json.hpp>

#include "apps/qvdisc/Words.h"
#include "discriminator/ColouredType.h"
#include "discriminator/Fields.h"
#include "discriminator/ValueForms.h"
#include "tools/Format.h"
#include "tools/Nodes.h"

namespace qvdisc {
namespace {

using Json = nlohmann::ordered_json;
using qv::XmlNode;

std::string Text(const XmlNode& node, const wchar_t* tag) { return Utf8(qv::FieldOf(node, tag)); }

Json Slot(const XmlNode& slot, const XmlNode* hourTypes) {
  const XmlNode* hour = qv::HourTypeOfSlot(slot, hourTypes);
  return {{"from", Text(slot, qv::tag::From)},
          {"to", Text(slot, qv::tag::To)},
          {"fromMinute", qv::TimeOf(slot.Value(qv::tag::From)).Minutes()},
          {"toMinute", qv::TimeOf(slot.Value(qv::tag::To)).Minutes()},
          {"hourTypeId", Text(slot, qv::tag::Id)},
          {"hourType", hour ? Json(Text(*hour, qv::tag::Name)) : Json(nullptr)}};
}

}  // namespace

std::wstring ColourOfType(const XmlNode& type) {
  const qv::Colour colour = qv::ColourOfText(type.Value(qv::tag::Color));
  constexpr unsigned byte = 8;
  constexpr unsigned lowest = 0xFF;
  const unsigned red = colour & lowest;
  const unsigned green = colour >> byte & lowest;
  const unsigned blue = colour >> 2 * byte & lowest;
  return qv::Format(L"#%02X%02X%02X", {red, green, blue});
}

Json HourTypeJson(const XmlNode& hour) {
  return {{"id", Text(hour, qv::tag::Id)},
          {"name", Text(hour, qv::tag::Name)},
          {"value", Text(hour, qv::tag::Value)},
          {"color", Utf8(ColourOfType(hour))}};
}

Json DayTypeJson(const XmlNode& day, const XmlNode* hourTypes) {
  Json slots = Json::array();
  for (const XmlNode& slot : qv::ChildrenWithTag(day, qv::tag::Slot)) {
    slots.push_back(Slot(slot, hourTypes));
  }
  return {{"id", Text(day, qv::tag::Id)},
          {"name", Text(day, qv::tag::Name)},
          {"color", Utf8(ColourOfType(day))},
          {"slots", std::move(slots)}};
}

}  // namespace qvdisc
