#pragma once

#include <string>
#include <string_view>
#include <unordered_map>

#include "host/QVLoadString.h"
#include "tools/Files.h"

namespace qv {

/// The texts of one language, read from a file of lines "<number> <text>" in UTF-8, with or without
/// byte order mark, with either kind of line end.
///
/// The number starts the line; one blank or tab separates it from its text, which is taken as it
/// stands up to the end of the line and may be empty. In a text "\n" stands for a line break, "\t"
/// for a tab and "\\" for a backslash; any other backslash stands for itself. Empty lines and lines
/// that start with "#" are passed over, and so are lines without a number or with one beyond 32
/// bits; of two lines with one number the last counts.
class LanguageFile : public QVLoadString {
 public:
  /// Replaces the texts by those of the file; false, and the texts stay as they were, if it can't
  /// be read.
  bool Load(std::wstring_view path, Files& files = Files::Disk());

  /// A number that the file lacks gives the number in brackets, as in "[32367]".
  QVWideString& operator()(unsigned id, QVWideString& text) const override;
  bool Has(unsigned id) const override;

  using QVLoadString::Load;

 private:
  std::unordered_map<unsigned, std::wstring> m_texts;
};

}  // namespace qv
