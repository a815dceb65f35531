// What comes before what when the manager changes discriminators, and what it passes over.
#include <gmock/gmock.h>

#include "discriminator/DeviceLinks.h"
#include "manager/DiscriminatorClipboard.h"
#include "manager/DiscriminatorList.h"
#include "tests/manager/QuietListView.h"
#include "tests/support/FakeHost.h"
#include "tests/support/Parsed.h"
#include "tests/support/ScriptedFiles.h"
#include "tests/support/ScriptedPrompter.h"

namespace qv {
namespace {

using testing::ElementsAre;

/// How many entries the tree has at its top.
int Entries(const XmlNode& deviceGroups) {
  const XmlNode* devices = deviceGroups.Node(L"devices");
  return devices ? static_cast<int>(std::distance(devices->ChildsBegin(), devices->ChildsEnd()))
                 : 0;
}

/// Writes down each notice and each change of the disk, with the entries that the tree has then.
class ManagerSteps : public testing::Test {
 protected:
  class WatchedFiles : public ScriptedFiles {
   public:
    explicit WatchedFiles(ManagerSteps& test) : m_test(test) {}
    std::unique_ptr<FileWriter> OpenForWriting(std::wstring_view path) override {
      m_test.Add(path.ends_with(L"xdctI") ? "index" : "file");
      return ScriptedFiles::OpenForWriting(path);
    }
    bool MakeDirectory(std::wstring_view path) override {
      m_test.Add("directory");
      return ScriptedFiles::MakeDirectory(path);
    }

   private:
    ManagerSteps& m_test;
  };

  class WatchedGuids : public QVVornelGuids {
   public:
    explicit WatchedGuids(ManagerSteps& test) : m_test(test) {}
    void invalidateGuid(int id, bool) override { m_test.Add("notice " + std::to_string(id)); }

   private:
    ManagerSteps& m_test;
  };

  void Add(const std::string& step) {
    steps.push_back(step + ", entries " + std::to_string(Entries(*deviceGroups)));
  }

  void PutFile(const std::string& name) {
    const std::wstring path = L"/cfg/" + std::wstring(name.begin(), name.end());
    files.contents[path + L"." + path.substr(5) + L".xdct"] =
        "<main><id>" + name + "</id><name>" + name + "</name></main>";
  }

  void Paste(const std::string& items) {
    host.clipboard.text = "<discriminatorClipboard>" + items + "</discriminatorClipboard>";
    clipboard.Paste();
  }

  FakeHost host;
  WatchedFiles files{*this};
  WatchedGuids guids{*this};
  ScriptedPrompter prompter;
  QuietListView view;
  const std::unique_ptr<XmlNode> deviceGroups = Parsed("<deviceGroups/>");
  std::vector<std::string> steps;
  Host services{host.setup, host.mainCfg, guids, host.loadString, host.createIndex, host.clipboard};
  DiscriminatorList list{services, files, prompter, view, deviceGroups.get()};
  DiscriminatorClipboard clipboard{services, files, list};
};

TEST_F(ManagerSteps, AnAddHasItsEntryBeforeTheNoticeOfTheTree) {
  list.OnAdd([](XmlNode* copy, const QVWideString*) {
    AddDiscriminatorToDeviceGroupsNode(copy, *Parsed("<main><id>1</id></main>"));
    return EditorEnd{true, true};
  });
  EXPECT_THAT(steps, ElementsAre("notice 8, entries 0", "notice 5, entries 1"));
}

TEST_F(ManagerSteps, APasteWritesFileAndIndexBeforeTheEntryAndTheNotices) {
  const std::string item =
      "<discriminator><main><id>1</id><name>a</name><hourTypes/></main></discriminator>";
  Paste(item + item);
  EXPECT_THAT(steps, ElementsAre("file, entries 0", "index, entries 0", "notice 8, entries 1",
                                 "notice 5, entries 1", "file, entries 1", "index, entries 1",
                                 "notice 8, entries 2", "notice 5, entries 2"));
}

TEST_F(ManagerSteps, EmptyHourTypesHaveAnIndexToo) {
  Paste("<discriminator><main><id>1</id><name>a</name><hourTypes/></main></discriminator>");
  list.Refresh();
  ASSERT_EQ(list.Rows().size(), 1U);
  const std::wstring index(list.PathOf(0).ToView());
  EXPECT_EQ(*Parsed(files.contents[index + L"I"]), *Parsed("<hourTypes/>"));
}

TEST_F(ManagerSteps, ACopyPassesOverAFileThatCannotBeRead) {
  for (const char* name : {"a", "b", "c"}) {
    PutFile(name);
  }
  list.Refresh();
  files.unreadable.insert(L"/cfg/b.b.xdct");
  clipboard.Copy({0, 1, 2});
  ASSERT_TRUE(host.clipboard.text);
  EXPECT_EQ(*Parsed(*host.clipboard.text),
            *Parsed("<discriminatorClipboard>"
                    "<discriminator><main><id>a</id><name>a</name></main></discriminator>"
                    "<discriminator><main><id>c</id><name>c</name></main></discriminator>"
                    "</discriminatorClipboard>"));
}

TEST_F(ManagerSteps, EntriesGoFromEachChildOfTheGroups) {
  const std::string entry = "<devices><device><id>1</id></device></devices>";
  const auto tree = Parsed("<g><groups><group>" + entry + "</group><any>" + entry +
                           "</any><group>" + entry + "</group></groups></g>");
  RemoveDiscriminatorFromDeviceGroupsNode(tree.get(), L"1");
  EXPECT_EQ(*tree, *Parsed("<g><groups><group><devices/></group><any><devices/></any>"
                           "<group><devices/></group></groups></g>"));
}

}  // namespace
}  // namespace qv
