#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "editor/DiscriminatorForm.h"
#include "tests/support/FakeHost.h"
#include "tests/support/Saving.h"
#include "tests/support/ScriptedFiles.h"
#include "tests/support/ScriptedPrompter.h"

namespace qv {

/// Forms over a disk in memory, on which "/cfg/" is the configuration directory.
class FormTest : public testing::Test {
 protected:
  /// A form of a new discriminator.
  std::unique_ptr<DiscriminatorForm> New() { return DiscriminatorForm::Open(Around(), nullptr); }

  /// A form of the file at `path`, whose opening leaves no trace in the log of the disk.
  std::unique_ptr<DiscriminatorForm> Open(const std::wstring& path) {
    const QVWideString text(path.c_str());
    auto form = DiscriminatorForm::Open(Around(), &text);
    files.log.clear();
    return form;
  }

  /// Puts a file on the disk and opens it.
  std::unique_ptr<DiscriminatorForm> OpenContent(const std::string& content,
                                                 const std::wstring& path = L"/cfg/1.old.xdct") {
    files.contents[path] = content;
    return Open(path);
  }

  EditorServices Around() { return {host.Services(), files, deviceGroups.Root()}; }

  /// The fields with this name and nothing else.
  static DiscriminatorFields Named(const wchar_t* name, const wchar_t* description = L"") {
    return {name, description, true};
  }

  /// The tags of the root's children, in order, with blanks between them.
  static std::wstring Tags(const XmlNode& root) {
    std::wstring tags;
    for (auto child = root.ChildsBegin(); child != root.ChildsEnd(); ++child) {
      tags += (tags.empty() ? L"" : L" ") + std::wstring((*child)->Tag().ToView());
    }
    return tags;
  }

  /// The value of a field in the file at `path`.
  std::wstring Stored(const std::wstring& path, const wchar_t* field) {
    XmlDocument document;
    EXPECT_TRUE(document.Load(path.c_str(), files));
    return document.Root() ? std::wstring(document.Root()->Value(field, L"?").ToView()) : L"";
  }

  /// How many entries the tree of device groups has at its top.
  std::size_t Entries() {
    const XmlNode* devices = deviceGroups.Root()->Node(L"devices");
    return devices ? static_cast<std::size_t>(
                         std::distance(devices->ChildsBegin(), devices->ChildsEnd()))
                   : 0;
  }

  void SetUp() override { deviceGroups.Create(L"deviceGroups"); }

  FakeHost host;
  ScriptedFiles files;
  ScriptedPrompter prompter;
  XmlDocument deviceGroups;
};

}  // namespace qv
