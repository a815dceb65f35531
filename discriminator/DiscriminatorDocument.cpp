#include "discriminator/DiscriminatorDocument.h"

#include "discriminator/Fields.h"
#include "discriminator/ValueForms.h"
#include "tools/Guid.h"

namespace qv {
namespace {

void EnsureChild(XmlNode& root, const wchar_t* tag) {
  if (!root.Node(tag)) {
    root.NewChild(tag, nullptr);
  }
}

void EnsureValue(XmlNode& root, const wchar_t* tag, const wchar_t* value) {
  if (!root.Node(tag)) {
    root.SetValue(tag, value);
  }
}

}  // namespace

NormalisedDocument Normalise(XmlNode& root) {
  NormalisedDocument found;
  found.newId = root.Node(tag::Id) == nullptr;
  if (found.newId) {
    root.SetValue(tag::Id, NewGuidText());
  }
  EnsureChild(root, tag::Name);
  EnsureChild(root, tag::Description);
  EnsureValue(root, tag::SetZeroOutsideSlot, FlagText(true));
  EnsureValue(root, tag::Type, word::Slots);
  found.type = root.Value(tag::Type, word::Slots);
  if (found.type.Empty()) {
    found.type = word::Slots;
  }
  EnsureContainers(root, found.type);
  return found;
}

void EnsureContainers(XmlNode& root, const QVWideString& type) {
  if (type == word::Slots) {
    for (const wchar_t* container : {tag::HourTypes, tag::DayTypes, tag::Calendar}) {
      EnsureChild(root, container);
    }
  } else {
    EnsureChild(root, tag::Conditions);
  }
}

void DropOtherContainers(XmlNode& root, const QVWideString& type) {
  if (type == word::Conditions) {
    for (const wchar_t* container : {tag::Calendar, tag::HourTypes, tag::DayTypes}) {
      root.EraseTag(container);
    }
  } else {
    root.EraseTag(tag::Conditions);
  }
}

}  // namespace qv
