#include "editor/DiscriminatorForm.h"

#include <algorithm>

#include "discriminator/DeviceLinks.h"
#include "discriminator/DiscriminatorFile.h"
#include "discriminator/Fields.h"
#include "discriminator/FileNames.h"
#include "discriminator/ValueForms.h"
#include "host/Installation.h"
#include "tools/Guid.h"
#include "tools/Names.h"

namespace qv {

DiscriminatorForm::DiscriminatorForm(const Surroundings& surroundings, const QVWideString* filePath)
    : m_surroundings(surroundings) {
  m_document.Create(tag::Main);
  if (filePath) {
    m_filePath = *filePath;
    if (!m_document.Load(m_filePath, m_surroundings.files)) {
      return;
    }
  }
  XmlNode& root = *m_document.Root();
  const NormalisedDocument found = Normalise(root);
  m_newId = found.newId;
  m_type = found.type;
  m_typeSelectable = !IsEmbedded(m_surroundings.host.mainCfg);
  if (!IsNew()) {
    m_initialName = root.Value(tag::Name);
  }
}

DiscriminatorFields DiscriminatorForm::InitialFields() const {
  DiscriminatorFields fields;
  fields.setZeroOutsideSlot = IsFlagSet(Root().Value(tag::SetZeroOutsideSlot, L"T"));
  if (!IsNew()) {
    fields.name = Root().Value(tag::Name);
    fields.description = Root().Value(tag::Description);
  }
  return fields;
}

bool DiscriminatorForm::HasSlots() const { return m_type == word::Slots; }

void DiscriminatorForm::SelectType(int index) {
  m_type = index != 0 ? word::Conditions : word::Slots;
  EnsureContainers(*m_document.Root(), m_type);
}

void DiscriminatorForm::OnHourTypes(
    const std::function<EditorEnd(XmlNode*, XmlNode*)>& runHourTypes) {
  XmlDocument hourTypes(Part(tag::HourTypes));
  XmlDocument dayTypes(Part(tag::DayTypes));
  TakeBack(runHourTypes(hourTypes.Root(), dayTypes.Root()), {&dayTypes, &hourTypes});
}

void DiscriminatorForm::OnDayTypes(
    const std::function<EditorEnd(XmlNode*, XmlNode*, XmlNode*)>& runDayTypes) {
  XmlDocument calendar(Part(tag::Calendar));
  XmlDocument dayTypes(Part(tag::DayTypes));
  XmlDocument hourTypes(Part(tag::HourTypes));
  TakeBack(runDayTypes(dayTypes.Root(), calendar.Root(), hourTypes.Root()),
           {&calendar, &dayTypes, &hourTypes});
}

void DiscriminatorForm::TakeBack(const EditorEnd& end,
                                 std::initializer_list<const XmlDocument*> copies) {
  if (end.confirmed) {
    m_modified = m_modified || end.modified;
    for (const XmlDocument* copy : copies) {
      Part(copy->Root()->Tag()) = *copy->Root();
    }
  }
}

bool DiscriminatorForm::Save(const DiscriminatorFields& typed) {
  if (!IsAccepted(typed)) {
    return false;
  }
  const Host& host = m_surroundings.host;
  CreateDirectoryW(host.setup.CfgPath(), m_surroundings.files);
  XmlNode& root = *m_document.Root();
  TakeOver(tag::Name, typed.name);
  TakeOver(tag::Description, typed.description);
  TakeOver(tag::SetZeroOutsideSlot, FlagText(typed.setZeroOutsideSlot));
  TakeOver(tag::Type, m_type);
  DropOtherContainers(root, m_type);
  if (m_modified) {
    root.SetValue(tag::Revision, NewGuidText());
  }
  RemoveOldFiles();
  const bool written = WriteFile();
  if (m_newId) {
    AddDiscriminatorToDeviceGroupsNode(m_surroundings.deviceGroups, root);
  }
  if (written) {
    // The index service is asked by the name alone, without the id.
    host.createIndex(host.setup.CfgPath(), root.Value(tag::Name) + discriminatorExtension);
  } else {
    m_surroundings.prompter.Show(Text::DiscriminatorNotSaved);
  }
  return written;
}

bool DiscriminatorForm::IsAccepted(const DiscriminatorFields& typed) {
  Prompter& prompter = m_surroundings.prompter;
  if (typed.name.Empty()) {
    prompter.Show(Text::DiscriminatorNameMissing);
  } else if (!IsValidId(typed.name, true) ||
             !FitsFileName(FileStem(Root().Value(tag::Id), typed.name))) {
    prompter.Show(Text::NameNotAllowed);
  } else if (NameExists(typed.name)) {
    prompter.Show(Text::DiscriminatorNameTaken);
  } else if (typed.description.Find(L'"') != QVWideString::NotFound) {
    prompter.Show(Text::DescriptionWithQuote);
  } else {
    return true;
  }
  return false;
}

bool DiscriminatorForm::NameExists(const QVWideString& name) const {
  if (EqualUppered(name.ToView(), m_initialName.ToView())) {
    return false;
  }
  const auto pattern = m_surroundings.host.setup.CfgPath() + discriminatorPattern;
  const auto files = m_surroundings.files.Walk(pattern.ToView());
  return std::any_of(files.begin(), files.end(), [&](const std::wstring& file) {
    const auto taken = NameBetweenDots(file);
    return taken && EqualUppered(*taken, name.ToView());
  });
}

void DiscriminatorForm::TakeOver(const wchar_t* tag, const QVWideString& value) {
  XmlNode& root = *m_document.Root();
  m_modified = m_modified || root.Value(tag) != value;
  root.SetValue(tag, value);
}

void DiscriminatorForm::RemoveOldFiles() {
  // For a new discriminator the path is empty, and these ask for "" and for "I" in the working
  // directory.
  m_surroundings.files.Remove(m_filePath.ToView());
  m_surroundings.files.Remove(IndexPath(m_filePath).ToView());
}

bool DiscriminatorForm::WriteFile() {
  const auto path = PathOfDocument(Root(), m_surroundings.host.setup.CfgPath());
  return path && m_document.SaveAs(*path, m_surroundings.files);
}

}  // namespace qv
