#pragma once

#include <memory>
#include <optional>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "host/Host.h"
#include "tests/support/ScriptedExpressions.h"

namespace qv {

/// Directories that a test can set.
class FakeSetup : public QVVornelSetup {
 public:
  QVWideString cfgPath = L"/cfg/";
  QVWideString imagePath = L"/images/";
  unsigned programIcon = 1;

  const QVWideString& CfgPath() const override { return cfgPath; }
  QVWideString getImageFilePath() const override { return imagePath; }
  unsigned ProgramIDResource() const override { return programIcon; }
};

/// Keeps the notices, in order.
class RecordingGuids : public QVVornelGuids {
 public:
  std::vector<int> notices;

  /// Fails the test if the flag isn't set.
  void invalidateGuid(int id, bool stale) override;
};

/// Gives "[n]" as the text of the number n.
class NumberTexts : public QVLoadString {
 public:
  /// The additions that the host's language has.
  std::set<Text> additions;

  QVWideString& operator()(unsigned id, QVWideString& text) const override;
  bool Has(unsigned id) const override { return additions.contains(static_cast<Text>(id)); }

  using QVLoadString::Load;
};

/// Keeps what an index was asked for, in order, and makes none.
class RecordingIndex : public CreateDiscriminatorIndex {
 public:
  /// Directory and file name of each call.
  std::vector<std::pair<std::wstring, std::wstring>> calls;
  bool result = true;

  bool operator()(const QVWideString& directory, const QVWideString& fileName) override;
};

/// A clipboard of text in memory.
class FakeClipboard : public QVClipboard {
 public:
  /// What is on it, without the block's terminator; nothing if it holds no text.
  std::optional<std::string> text;

  bool PutToClipboard(const char* bytes, int size, int format) override;
  int GetFromClipboard(std::unique_ptr<char[]>& bytes, int format) const override;
};

/// A host made of fakes. It is not in the registry: rules take `Services()`, and
/// `InstalledFakeHost` is for what asks the registry.
struct FakeHost {
  FakeSetup setup;
  QVMainCfg mainCfg;  ///< with a root that has no children
  RecordingGuids guids;
  NumberTexts loadString;
  RecordingIndex createIndex;
  FakeClipboard clipboard;
  ScriptedDriverSupport driverSupport;
  ScriptedInformes informes;

  FakeHost();

  /// The fakes as the rules take them. They must not outlive this host.
  Host Services();

  /// Adds a device with this driver to the main configuration and returns it.
  XmlNode* AddDevice(const wchar_t* driver);
};

/// A service that is in the registry as long as this lives. Afterwards the one that was there
/// before is back.
template <class Service>
class Installed {
 public:
  explicit Installed(Service& service) : Installed(&service) {}
  /// Null for a host that lacks the service.
  explicit Installed(Service* service) : m_before(Service::Install(service)) {}
  Installed(const Installed&) = delete;
  Installed& operator=(const Installed&) = delete;
  ~Installed() { Service::Install(m_before); }

 private:
  Service* m_before;
};

/// A fake host that is in the registry as long as it lives.
class InstalledFakeHost {
 public:
  FakeHost& operator*() { return m_host; }
  FakeHost* operator->() { return &m_host; }

 private:
  FakeHost m_host;
  Installed<QVVornelSetup> m_setup{m_host.setup};
  Installed<QVMainCfg> m_mainCfg{m_host.mainCfg};
  Installed<QVVornelGuids> m_guids{m_host.guids};
  Installed<QVLoadString> m_loadString{m_host.loadString};
  Installed<CreateDiscriminatorIndex> m_createIndex{m_host.createIndex};
  Installed<QVClipboard> m_clipboard{m_host.clipboard};
  Installed<QVDriverSupport> m_driverSupport{m_host.driverSupport};
  Installed<QVInformes> m_informes{m_host.informes};
};

}  // namespace qv
