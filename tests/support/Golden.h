#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace qv {

/// Fails the test unless `lines` are those of the text file, and shows what is in one of them
/// alone. If QV_WRITE_GOLDEN is set in the environment, the file is written first.
void ExpectGolden(const std::filesystem::path& file, const std::vector<std::string>& lines);

}  // namespace qv
