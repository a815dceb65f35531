#include "apps/qvdisc/DocumentJson.h"

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

/// The colour of an hour type or a day type, as the dialogs read it.
std::string Colour(const XmlNode& type) {
  const qv::Colour colour = qv::ColourOfText(type.Value(qv::tag::Color));
  constexpr unsigned byte = 8;
  constexpr unsigned lowest = 0xFF;
  const unsigned red = colour & lowest;
  const unsigned green = colour >> byte & lowest;
  const unsigned blue = colour >> 2 * byte & lowest;
  return Utf8(qv::Format(L"#%02X%02X%02X", {red, green, blue}));
}

template <class ToJson>
Json Children(const XmlNode* container, const wchar_t* tag, ToJson toJson) {
  Json list = Json::array();
  for (const XmlNode& child : qv::ChildrenWithTag(container, tag)) {
    list.push_back(toJson(child));
  }
  return list;
}

Json HourType(const XmlNode& hour) {
  return {{"id", Text(hour, qv::tag::Id)},
          {"name", Text(hour, qv::tag::Name)},
          {"value", Text(hour, qv::tag::Value)},
          {"color", Colour(hour)}};
}

Json Slot(const XmlNode& slot, const XmlNode* hourTypes) {
  const XmlNode* hour = qv::HourTypeOfSlot(slot, hourTypes);
  return {{"from", Text(slot, qv::tag::From)},
          {"to", Text(slot, qv::tag::To)},
          {"hourTypeId", Text(slot, qv::tag::Id)},
          {"hourType", hour ? Json(Text(*hour, qv::tag::Name)) : Json(nullptr)}};
}

Json DayType(const XmlNode& day, const XmlNode* hourTypes) {
  const auto slot = [&](const XmlNode& node) { return Slot(node, hourTypes); };
  return {{"id", Text(day, qv::tag::Id)},
          {"name", Text(day, qv::tag::Name)},
          {"color", Colour(day)},
          {"slots", Children(&day, qv::tag::Slot, slot)}};
}

/// The node as it stands: its value, or its children in order, each as an object of its tag.
Json Tree(const XmlNode& node) {
  if (node.ChildsBegin() == node.ChildsEnd()) {
    return Utf8(node.Value().ToView());
  }
  Json children = Json::array();
  for (auto child = node.ChildsBegin(); child != node.ChildsEnd(); ++child) {
    children.push_back({{Utf8((*child)->Tag().ToView()), Tree(**child)}});
  }
  return children;
}

}  // namespace

Json DocumentJson(const XmlNode& root) {
  const XmlNode* hourTypes = root.Node(qv::tag::HourTypes);
  const auto dayType = [&](const XmlNode& day) { return DayType(day, hourTypes); };
  return {{"id", Text(root, qv::tag::Id)},
          {"name", Text(root, qv::tag::Name)},
          {"description", Text(root, qv::tag::Description)},
          {"setZeroOutsideSlot", qv::IsFlagSet(root.Value(qv::tag::SetZeroOutsideSlot, L"T"))},
          {"type", Text(root, qv::tag::Type)},
          {"revision", Text(root, qv::tag::Revision)},
          {"rootTag", Utf8(root.Tag().ToView())},
          {"hourTypes", Children(hourTypes, qv::tag::Hour, HourType)},
          {"dayTypes", Children(root.Node(qv::tag::DayTypes), qv::tag::Day, dayType)},
          {"content", Tree(root)}};
}

}  // namespace qvdisc
