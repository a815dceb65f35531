#include "tests/support/FakeHost.h"

#include <gtest/gtest.h>

#include "tools/Format.h"

namespace qv {

void RecordingGuids::invalidateGuid(int id, bool stale) {
  EXPECT_TRUE(stale) << "notice " << id << " without its flag";
  notices.push_back(id);
}

QVWideString& NumberTexts::operator()(unsigned id, QVWideString& text) const {
  return text.Assign(Format(L"[%u]", {id}));
}

bool RecordingIndex::operator()(const QVWideString& directory, const QVWideString& fileName) {
  calls.emplace_back(directory.ToView(), fileName.ToView());
  return result;
}

bool FakeClipboard::PutToClipboard(const char* bytes, int size, int format) {
  EXPECT_EQ(format, TextFormat);
  EXPECT_EQ(bytes[size - 1], '\0') << "a block of text ends in a zero that counts";
  text = std::string(bytes, static_cast<std::size_t>(size) - 1);
  return true;
}

int FakeClipboard::GetFromClipboard(std::unique_ptr<char[]>& bytes, int format) const {
  EXPECT_EQ(format, TextFormat);
  if (!text) {
    return 0;
  }
  bytes = std::make_unique<char[]>(text->size() + 1);
  text->copy(bytes.get(), text->size());
  return static_cast<int>(text->size()) + 1;
}

FakeHost::FakeHost() { mainCfg.Create(L"configuration"); }

Host FakeHost::Services() { return {setup, mainCfg, guids, loadString, createIndex, clipboard}; }

XmlNode* FakeHost::AddDevice(const wchar_t* driver) {
  XmlNode& root = *mainCfg.Root();
  XmlNode* commSystem = root.Node(L"commSystem");
  if (!commSystem) {
    commSystem = root.NewChild(L"commSystem", nullptr);
  }
  XmlNode* device = commSystem->NewChild(L"device", nullptr);
  device->SetValue(L"driver", driver);
  return device;
}

}  // namespace qv
