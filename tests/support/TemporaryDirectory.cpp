#include "tests/support/TemporaryDirectory.h"

#include <gtest/gtest.h>

#include <fstream>
#include <sstream>
#include <system_error>

#include "tools/Guid.h"
#include "tools/Utf8.h"

namespace qv {

namespace fs = std::filesystem;

TemporaryDirectory::TemporaryDirectory()
    : m_path(fs::path(testing::TempDir()) /
             fs::path(L"qvdiscriminator-" + std::wstring(NewGuidText().ToView()))) {
  fs::create_directories(m_path);
}

TemporaryDirectory::~TemporaryDirectory() {
  std::error_code ignored;
  fs::remove_all(m_path, ignored);
}

std::wstring TemporaryDirectory::WidePath() const { return FromUtf8((m_path / "").string()); }

std::string FileBytes(const fs::path& path) {
  std::ifstream file(path, std::ios::binary);
  EXPECT_TRUE(file) << path << " can't be read";
  std::ostringstream bytes;
  bytes << file.rdbuf();
  return bytes.str();
}

}  // namespace qv
