#include "apps/qvdisc/DocumentJson.h"

#include <nlohmann/json.hpp>

#include "apps/qvdisc/CalendarReport.h"
#include "apps/qvdisc/TypeJson.h"
#include "apps/qvdisc/Words.h"
#include "discriminator/Fields.h"
#include "discriminator/ValueForms.h"
#include "tools/Nodes.h"

namespace qvdisc {
namespace {

using Json = nlohmann::ordered_json;
using qv::XmlNode;

std::string Text(const XmlNode& node, const wchar_t* tag) { return Utf8(qv::FieldOf(node, tag)); }

template <class ToJson>
Json Children(const XmlNode* container, const wchar_t* tag, ToJson toJson) {
  Json list = Json::array();
  for (const XmlNode& child : qv::ChildrenWithTag(container, tag)) {
    list.push_back(toJson(child));
  }
  return list;
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
  const auto dayType = [&](const XmlNode& day) { return DayTypeJson(day, hourTypes); };
  return {{"id", Text(root, qv::tag::Id)},
          {"name", Text(root, qv::tag::Name)},
          {"description", Text(root, qv::tag::Description)},
          {"setZeroOutsideSlot", qv::IsFlagSet(root.Value(qv::tag::SetZeroOutsideSlot, L"T"))},
          {"type", Text(root, qv::tag::Type)},
          {"revision", Text(root, qv::tag::Revision)},
          {"rootTag", Utf8(root.Tag().ToView())},
          {"hourTypes", Children(hourTypes, qv::tag::Hour, HourTypeJson)},
          {"dayTypes", Children(root.Node(qv::tag::DayTypes), qv::tag::Day, dayType)},
          {"calendar", CalendarAsJson(root)},
          {"content", Tree(root)}};
}

}  // namespace qvdisc
