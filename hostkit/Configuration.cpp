#include "hostkit/Configuration.h"

#include <algorithm>
#include <iterator>
#include <utility>
#include <vector>

#include "discriminator/Fields.h"
#include "host/Installation.h"
#include "tools/Guid.h"
#include "tools/XmlReader.h"

namespace qv {
namespace {

constexpr wchar_t fileName[] = L"configuration.xml";
constexpr wchar_t rootTag[] = L"configuration";

void AddEmbeddedDevice(XmlNode& commSystem) {
  XmlNode* device = commSystem.NewChild(L"device", nullptr);
  device->SetValue(L"id", NewGuidText());
  device->SetValue(L"name", L"EMBEDDED");
  device->SetValue(L"driver", embeddedDriver);
}

void RemoveEmbeddedDevices(XmlNode& commSystem) {
  std::vector<XmlNode*> marks;
  std::copy_if(commSystem.ChildsBegin(), commSystem.ChildsEnd(), std::back_inserter(marks),
               [](const XmlNode* node) { return IsEmbeddedDevice(*node); });
  for (XmlNode* mark : marks) {
    commSystem.RemoveChild(mark);
  }
}

}  // namespace

Configuration::Configuration(QVMainCfg& document, Files& files)
    : m_document(document), m_files(files) {
  m_document.Create(rootTag);
}

Configuration::Loaded Configuration::Load(std::wstring_view directory, Addition* why) {
  const std::wstring path = std::wstring(directory) + fileName;
  XmlError error;
  m_files.ForgetFailure();
  const auto found = ReadXmlFile(path, m_files, &error);
  if (!found && m_files.Exists(path)) {
    if (why) {
      *why = WhyUnreadable(m_files.Failure(), error);
    }
    return Loaded::Unreadable;
  }
  if (found && found->Tag() != rootTag) {
    return Loaded::Foreign;
  }
  m_path = path;
  m_document.Create(rootTag);
  if (found) {
    *m_document.Root() = *found;
  }
  return found ? Loaded::FromFile : Loaded::New;
}

bool Configuration::Save() { return m_document.SaveAs(m_path.c_str(), m_files); }

bool Configuration::IsChanged() const {
  XmlDocument saved;
  if (!saved.Load(m_path.c_str(), m_files)) {
    saved.Create(rootTag);
  }
  return *std::as_const(m_document).Root() != *saved.Root();
}

XmlNode* Configuration::DeviceGroups() { return m_document.Root()->Node(tag::DeviceGroups); }

const XmlNode* Configuration::DeviceGroups() const {
  return std::as_const(m_document).Root()->Node(tag::DeviceGroups);
}

void Configuration::SetDeviceGroups(const XmlNode* content) {
  XmlNode* groups = DeviceGroups();
  if (!content) {
    m_document.Root()->RemoveChild(groups);
  } else {
    *(groups ? groups : m_document.Root()->NewChild(tag::DeviceGroups, nullptr)) = *content;
  }
}

const XmlNode* Configuration::CommSystem() const {
  return std::as_const(m_document).Root()->Node(L"commSystem");
}

bool Configuration::IsEmbedded() const { return qv::IsEmbedded(m_document); }

void Configuration::SetEmbedded(bool embedded) {
  XmlNode* commSystem = m_document.Root()->Node(L"commSystem");
  if (!embedded) {
    if (commSystem) {
      RemoveEmbeddedDevices(*commSystem);
    }
  } else if (!IsEmbedded()) {
    AddEmbeddedDevice(commSystem ? *commSystem
                                 : *m_document.Root()->NewChild(L"commSystem", nullptr));
  }
}

}  // namespace qv
