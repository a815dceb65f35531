#pragma once

#include <string>

#include "host/Host.h"

/// The least that a host can give: an empty directory, no images, each text its own number.
struct Setup : QVVornelSetup {
  const QVWideString& CfgPath() const override { return directory; }
  QVWideString getImageFilePath() const override { return directory; }
  unsigned ProgramIDResource() const override { return 1; }
  QVWideString directory = L"./";
};
struct Guids : QVVornelGuids {
  void invalidateGuid(int, bool) override {}
};
struct Texts : QVLoadString {
  QVWideString& operator()(unsigned id, QVWideString& text) const override {
    return text = std::to_wstring(id).c_str();
  }
};
struct NoClipboard : QVClipboard {
  bool PutToClipboard(const char*, int, int) override { return false; }
  int GetFromClipboard(std::unique_ptr<char[]>&, int) const override { return 0; }
};
struct Index : CreateDiscriminatorIndex {
  bool operator()(const QVWideString&, const QVWideString&) override { return true; }
};
