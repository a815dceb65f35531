#include "editor/DiscriminatorForm.h"

#include <string>
#include <utility>

#include "discriminator/DeviceLinks.h"
#include "discriminator/DiscriminatorDocument.h"
#include "discriminator/EditedCopies.h"
#include "discriminator/Fields.h"
#include "discriminator/FileNames.h"
#include "discriminator/NewChildNode.h"
#include "discriminator/ValueForms.h"
#include "host/Installation.h"
#include "tools/Guid.h"
#include "tools/Names.h"
#include "tools/XmlReader.h"

namespace qv {
namespace {

/// Which file isn't opened, and why.
Refusal NotOpened(const QVWideString& path, const std::error_code& failure, const XmlError& error) {
  Addition addition = AboutFile(path.ToView(), {});
  addition.push_back(WhyUnreadable(failure, error).front());
  return Refused(Text::DiscriminatorNotOpened, std::move(addition));
}

}  // namespace

std::unique_ptr<DiscriminatorForm> DiscriminatorForm::Open(const EditorServices& services,
                                                           const QVWideString* filePath,
                                                           std::optional<Refusal>* refusal) {
  XmlError error;
  services.files.ForgetFailure();
  auto root = filePath ? ReadXmlFile(filePath->ToView(), services.files, &error)
                       : std::make_unique<XmlNode>(QVWideString(tag::Main));
  if (root) {
    auto document = std::make_unique<XmlDocument>(std::move(root));
    return std::unique_ptr<DiscriminatorForm>(
        new DiscriminatorForm(services, filePath, std::move(document)));
  }
  if (refusal) {
    *refusal = NotOpened(*filePath, services.files.Failure(), error);
  }
  return nullptr;
}

DiscriminatorForm::DiscriminatorForm(const EditorServices& services, const QVWideString* filePath,
                                     std::unique_ptr<XmlDocument> document)
    : m_services(services),
      m_document(std::move(document)),
      m_filePath(filePath ? *filePath : QVWideString()),
      m_typeSelectable(!IsEmbedded(services.host.mainCfg)) {
  const NormalisedDocument found = Normalise(Content());
  m_newId = found.newId;
  m_type = found.type;
  if (!IsNew()) {
    m_initialName = Root().Value(tag::Name);
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

DiscriminatorType DiscriminatorForm::Type() const {
  return m_type == word::Slots ? DiscriminatorType::Slots : DiscriminatorType::Conditions;
}

void DiscriminatorForm::SelectType(DiscriminatorType type) {
  m_type = type == DiscriminatorType::Slots ? word::Slots : word::Conditions;
  EnsureContainers(Content(), m_type);
}

void DiscriminatorForm::OnHourTypes(
    const std::function<EditorEnd(HourTypes, DayTypes)>& runHourTypes) {
  XmlNode& dayTypes = *Content().Node(tag::DayTypes);
  XmlNode& hourTypes = *Content().Node(tag::HourTypes);
  EditedCopies copies({&dayTypes, &hourTypes});
  copies.TakeBack(runHourTypes(HourTypes(copies.Of(hourTypes)), DayTypes(copies.Of(dayTypes))),
                  m_modified);
}

void DiscriminatorForm::EditSlotParts(
    const std::function<EditorEnd(Calendar, DayTypes, HourTypes)>& run) {
  XmlNode& calendar = *Content().Node(tag::Calendar);
  XmlNode& dayTypes = *Content().Node(tag::DayTypes);
  XmlNode& hourTypes = *Content().Node(tag::HourTypes);
  EditedCopies copies({&calendar, &dayTypes, &hourTypes});
  copies.TakeBack(run(Calendar(copies.Of(calendar)), DayTypes(copies.Of(dayTypes)),
                      HourTypes(copies.Of(hourTypes))),
                  m_modified);
}

void DiscriminatorForm::OnDayTypes(
    const std::function<EditorEnd(DayTypes, Calendar, HourTypes)>& runDayTypes) {
  EditSlotParts([&](Calendar calendar, DayTypes dayTypes, HourTypes hourTypes) {
    return runDayTypes(dayTypes, calendar, hourTypes);
  });
}

void DiscriminatorForm::OnCalendar(
    const std::function<EditorEnd(Calendar, DayTypes, HourTypes)>& runCalendar) {
  EditSlotParts(runCalendar);
}

void DiscriminatorForm::OnConditions(
    const std::function<EditorEnd(OrderedConditions)>& runConditions) {
  // A save drops them under a type that is neither of the two, also one that the disk then refuses.
  std::optional<NewChildNode> made;
  if (!Content().Node(tag::Conditions)) {
    made.emplace(Content(), tag::Conditions, std::initializer_list<NewChildNode::Field>{});
  }
  XmlNode& conditions = *Content().Node(tag::Conditions);
  EditedCopies copies({&conditions});
  if (copies.TakeBack(runConditions(OrderedConditions(copies.Of(conditions))), m_modified) &&
      made) {
    made->Keep();
  }
}

SaveEnd DiscriminatorForm::Save(const DiscriminatorFields& typed) {
  if (auto fault = Fault(typed)) {
    return {SaveOutcome::Refused, std::move(fault)};
  }
  const Host& host = m_services.host;
  CreateDirectoryW(host.setup.CfgPath(), m_services.files);
  TakeOver(typed);
  RemoveOldFiles();
  const bool written = WriteFile();
  if (m_newId) {
    AddDiscriminatorToDeviceGroupsNode(m_services.deviceGroups, Root());
  }
  if (!written) {
    return {SaveOutcome::NotWritten, Refused(Text::DiscriminatorNotSaved, AboutNewFile())};
  }
  // The index service is asked by the name alone, without the id.
  host.createIndex(host.setup.CfgPath(), Root().Value(tag::Name) + discriminatorExtension);
  return SavedOrUnchanged(m_modified);
}

std::optional<Refusal> DiscriminatorForm::Fault(const DiscriminatorFields& typed) const {
  if (typed.name.Empty()) {
    return Refused(Text::DiscriminatorNameMissing);
  }
  if (!IsValidId(typed.name, true) || !FitsFileName(FileStem(Root().Value(tag::Id), typed.name))) {
    return Refused(Text::NameNotAllowed);
  }
  if (NameExists(typed.name)) {
    return Refused(Text::DiscriminatorNameTaken);
  }
  const bool isQuoted = typed.description.Find(L'"') != QVWideString::NotFound;
  return isQuoted ? std::optional(Refused(Text::DescriptionWithQuote)) : std::nullopt;
}

bool DiscriminatorForm::NameExists(const QVWideString& name) const {
  if (EqualUppered(name.ToView(), m_initialName.ToView())) {
    return false;
  }
  return Directory().HasName(name.ToView());
}

void DiscriminatorForm::TakeOver(const DiscriminatorFields& typed) {
  TakeOver(tag::Name, typed.name);
  TakeOver(tag::Description, typed.description);
  TakeOver(tag::SetZeroOutsideSlot, FlagText(typed.setZeroOutsideSlot));
  TakeOver(tag::Type, m_type);
  DropOtherContainers(Content(), m_type);
  if (m_modified) {
    Content().SetValue(tag::Revision, NewGuidText());
  }
}

void DiscriminatorForm::TakeOver(const wchar_t* tag, const QVWideString& value) {
  m_modified = m_modified || Root().Value(tag) != value;
  Content().SetValue(tag, value);
}

void DiscriminatorForm::RemoveOldFiles() {
  // For a new discriminator the path is empty, and these ask for "" and for "I" in the working
  // directory.
  m_services.files.Remove(m_filePath.ToView());
  m_services.files.Remove(IndexPath(m_filePath).ToView());
}

bool DiscriminatorForm::WriteFile() {
  m_services.files.ForgetFailure();
  return Directory().Save(*m_document);
}

Addition DiscriminatorForm::AboutNewFile() const {
  const QVWideString stem = FileStem(Root().Value(tag::Id), Root().Value(tag::Name));
  return AboutFile(Directory().PathOfStem(stem).ToView(), m_services.files.Failure());
}

DiscriminatorDirectory DiscriminatorForm::Directory() const {
  return {m_services.host.setup.CfgPath(), m_services.files};
}

}  // namespace qv
