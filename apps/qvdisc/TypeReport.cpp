#include "apps/qvdisc/TypeReport.h"

#include <nlohmann/json.hpp>

#include "apps/qvdisc/TypeJson.h"
#include "apps/qvdisc/TypeWords.h"
#include "discriminator/ColouredType.h"
#include "discriminator/Fields.h"
#include "tools/Nodes.h"

namespace qvdisc {
namespace {

using Json = nlohmann::ordered_json;
using qv::XmlNode;

std::wstring NameOf(const XmlNode& type) { return qv::FieldOf(type, qv::tag::Name); }

const char* NameOf(TypeFate fate) {
  switch (fate) {
    case TypeFate::Listed:
      return "listed";
    case TypeFate::Made:
      return "made";
    case TypeFate::Changed:
      return "changed";
    case TypeFate::Unchanged:
      return "unchanged";
    case TypeFate::Removed:
      break;
  }
  return "removed";
}

TypeWord WordOf(TypeFate fate) {
  switch (fate) {
    case TypeFate::Made:
      return TypeWord::Made;
    case TypeFate::Changed:
      return TypeWord::Changed;
    case TypeFate::Removed:
      return TypeWord::Removed;
    case TypeFate::Listed:
    case TypeFate::Unchanged:
      break;
  }
  return TypeWord::Unchanged;
}

std::wstring ListedAsLine(const XmlNode& type) {
  const std::wstring value = qv::FieldOf(type, qv::tag::Value);
  return ColourOfType(type) + L"  " + NameOf(type) + (value.empty() ? L"" : L" = " + value);
}

std::wstring SlotAsLine(const XmlNode& slot, const XmlNode* hourTypes) {
  const XmlNode* hour = qv::HourTypeOfSlot(slot, hourTypes);
  return L"  " + qv::FieldOf(slot, qv::tag::From) + L"-" + qv::FieldOf(slot, qv::tag::To) + L" " +
         (hour ? NameOf(*hour) : L"?");
}

}  // namespace

Json TypesAsJson(const ToldTypes& told) {
  Json types = Json::array();
  for (const XmlDocument& type : told.types) {
    types.push_back(told.kind == TypeKind::Hour
                        ? HourTypeJson(*type.Root())
                        : DayTypeJson(*type.Root(), told.hourTypes->Root()));
    types.back()["outcome"] = NameOf(told.fate);
  }
  return types;
}

std::vector<std::wstring> TypesAsLines(const ToldTypes& told, qv::Language language) {
  const TypeWord kind = told.kind == TypeKind::Hour ? TypeWord::HourType : TypeWord::DayType;
  const std::wstring kindName = Words(kind, language);
  std::vector<std::wstring> lines;
  for (const XmlDocument& type : told.types) {
    const std::wstring name = NameOf(*type.Root());
    if (told.fate != TypeFate::Listed) {
      lines.push_back(Words(WordOf(told.fate), language, {kindName.c_str(), name.c_str()}));
      continue;
    }
    lines.push_back(ListedAsLine(*type.Root()));
    for (const XmlNode& slot : qv::ChildrenWithTag(*type.Root(), qv::tag::Slot)) {
      lines.push_back(SlotAsLine(slot, told.hourTypes->Root()));
    }
  }
  return lines;
}

}  // namespace qvdisc
