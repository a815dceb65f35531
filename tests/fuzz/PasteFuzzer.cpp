// Pastes the input: whatever is on the clipboard, nothing is written outside the configuration
// directory, each pasted discriminator has its entry and its two notices, and what was written can
// be read.

#include <cstdint>
#include <string>

#include "manager/DiscriminatorClipboard.h"
#include "tests/fuzz/Demand.h"
#include "tests/manager/QuietListView.h"
#include "tests/support/FakeHost.h"
#include "tests/support/ScriptedFiles.h"
#include "tests/support/ScriptedPrompter.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  qv::FakeHost host;
  qv::ScriptedFiles files;
  qv::ScriptedPrompter prompter;
  XmlDocument deviceGroups;
  deviceGroups.Create(L"deviceGroups");
  qv::QuietListView view;
  qv::DiscriminatorList list(host.Services(), files, prompter, view, deviceGroups.Root());
  host.clipboard.text = std::string(reinterpret_cast<const char*>(data), size);
  const auto pasted = qv::DiscriminatorClipboard(host.Services(), files, list).Paste();

  const qv::XmlNode* devices = deviceGroups.Root()->Node(L"devices");
  const auto entries = devices ? std::distance(devices->ChildsBegin(), devices->ChildsEnd()) : 0;
  Demand(host.guids.notices.size() == 2 * static_cast<std::size_t>(entries), "two notices each");
  Demand(list.Changed() == (entries > 0), "a paste is a change");
  Demand(pasted.size() == static_cast<std::size_t>(entries), "each entry is told");
  for (const auto& [path, content] : files.contents) {
    Demand(path.starts_with(L"/cfg/") && path.find(L'/', 5) == std::wstring::npos,
           "files lie in the directory");
    XmlDocument document;
    Demand(document.Load(path.c_str(), files), "what was written can be read");
  }
  return 0;
}
