// Two runs of the program share the clipboard of a real screen.
#include <gmock/gmock.h>

#include <QTest>
#include <filesystem>
#include <map>
#include <set>
#include <string>
#include <utility>

#include "tests/apps/ExampleCopy.h"
#include "tests/support/VirtualDisplay.h"
#include "tools/XmlDocument.h"

namespace configurator {
namespace {

/// The manager of discriminators as a process of its own, on a copy of the example installation.
class Manager {
 public:
  explicit Manager(const qv::VirtualDisplay& display) : m_display(display) {
    m_display.Start(m_process, CONFIGURATOR_FILE,
                    {"--installation", m_installation.Directory(), "--show", "discriminators",
                     "--settings", QString::fromStdString((m_settings.Path() / "a.ini").string())});
    m_display.Focus(m_process);
  }

  ~Manager() { qv::VirtualDisplay::End(m_process); }

  void Press(const QString& keys) const {
    m_display.Focus(m_process);
    m_display.Press(keys);
  }

  std::set<std::filesystem::path> Discriminators() const {
    std::set<std::filesystem::path> files;
    for (const auto& file : std::filesystem::directory_iterator(m_installation.File("."))) {
      if (file.path().extension() == ".xdct") {
        files.insert(file.path());
      }
    }
    return files;
  }

 private:
  const qv::VirtualDisplay& m_display;
  ExampleCopy m_installation;
  qv::TemporaryDirectory m_settings;
  QProcess m_process;
};

/// The document but for what a paste renews, and its name.
std::pair<std::wstring, std::string> Content(const std::filesystem::path& file) {
  XmlDocument document;
  EXPECT_TRUE(document.Load(file.wstring().c_str())) << file;
  const std::wstring name(document.Root()->Value(L"name").ToView());
  for (const wchar_t* renewed : {L"id", L"name", L"revision"}) {
    document.Root()->EraseTag(renewed);
  }
  QVNarrowString code;
  EXPECT_TRUE(document.CreateXmlCode(code, false));
  return {name, std::string(code.ToView())};
}

TEST(TwoProcesses, CopyInOnePasteInTheOther) {
  const qv::VirtualDisplay display;
  const Manager from(display);
  from.Press("Home");
  from.Press("shift+End");
  from.Press("ctrl+c");

  const Manager to(display);
  const auto before = to.Discriminators();
  // The key may come before the other process has put its text on the clipboard.
  EXPECT_TRUE(QTest::qWaitFor(
      [&] {
        to.Press("ctrl+v");
        return QTest::qWaitFor([&] { return to.Discriminators().size() >= 2 * before.size(); },
                               1000);
      },
      qv::patience));

  std::map<std::wstring, std::string> pasted;
  for (const auto& file : to.Discriminators()) {
    if (before.count(file) == 0) {
      pasted.insert(Content(file));
    }
  }
  for (const auto& file : before) {
    const auto [name, content] = Content(file);
    EXPECT_EQ(pasted[name + L"_1"], content) << file;
  }
}

}  // namespace
}  // namespace configurator
