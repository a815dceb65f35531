// Opens the input in the editor's rules, switches its type to and fro and saves it: nothing is
// written outside the configuration directory, and what was saved can be opened again.

#include <cstdint>
#include <string>

#include "editor/DiscriminatorForm.h"
#include "tests/fuzz/Demand.h"
#include "tests/support/FakeHost.h"
#include "tests/support/ScriptedFiles.h"

namespace {

void DemandFilesInDirectory(const qv::ScriptedFiles& files) {
  for (const auto& [path, content] : files.contents) {
    Demand(path.starts_with(L"/cfg/") && path.find(L'/', 5) == std::wstring::npos,
           "files lie in the directory");
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  qv::FakeHost host;
  qv::ScriptedFiles files;
  XmlDocument deviceGroups;
  deviceGroups.Create(L"deviceGroups");
  const QVWideString path = L"/cfg/any.xdct";
  files.contents[path.ToView().data()] = std::string(reinterpret_cast<const char*>(data), size);
  const auto form =
      qv::DiscriminatorForm::Open({host.Services(), files, deviceGroups.Root()}, &path);
  if (!form) {
    return 0;
  }
  form->SelectType(qv::DiscriminatorType::Conditions);
  form->SelectType(qv::DiscriminatorType::Slots);
  const bool saved = form->Save(form->InitialFields()).IsDone();
  const bool renamed = form->Save({L"fresh", L"", false}).IsDone();
  DemandFilesInDirectory(files);
  Demand(!saved || !files.contents.empty(), "what was saved is there");
  if (renamed) {
    XmlDocument document;
    const QVWideString written(files.contents.rbegin()->first.c_str());
    Demand(document.Load(written, files), "what was saved can be opened");
  }
  return 0;
}
