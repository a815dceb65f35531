#pragma once

#include <string_view>

#include "host/QVVornelSetup.h"

namespace qv {

/// The host's setup as two directories and an icon number.
class DirectorySetup : public QVVornelSetup {
 public:
  /// A trailing separator is added to a directory that lacks it. An empty directory is the working
  /// directory.
  DirectorySetup(std::wstring_view configuration, std::wstring_view images, unsigned programIcon);

  const QVWideString& CfgPath() const override { return m_configuration; }
  QVWideString getImageFilePath() const override { return m_images; }
  unsigned ProgramIDResource() const override { return m_programIcon; }

 private:
  QVWideString m_configuration;
  QVWideString m_images;
  unsigned m_programIcon;
};

}  // namespace qv
