#pragma once

#include <filesystem>
#include <map>
#include <string>
#include <vector>

namespace qv {

/// A file or folder of the project, by its path from the project's own folder.
std::filesystem::path ProjectFile(const char* name);

/// The placeholders of a text, in order, as in "%d".
std::vector<std::string> Placeholders(const std::string& text);

/// An enumerator of `Text` as the header writes it.
struct Enumerator {
  std::string name;
  std::string comment;
};

/// The enumerators by number. A line that is neither an enumerator with its number and comment nor
/// a heading fails the test, so that none is passed over.
std::map<unsigned, Enumerator> ReadEnum();

}  // namespace qv
