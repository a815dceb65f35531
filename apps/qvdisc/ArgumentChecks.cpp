#include "apps/qvdisc/ArgumentChecks.h"

#include "apps/commandline/CommandLine.h"
#include "tools/Utf8.h"
#include "tools/XmlText.h"

namespace qvdisc {

std::string NoText(const std::string& text) { return commandline::NotUtf8("text", text); }

std::string NoFieldText(const std::string& text) {
  const bool fits = qv::IsXmlText(qv::FromUtf8(text));
  return fits ? NoText(text) : "A file can't hold every character of: " + text;
}

std::string NoName(const std::string& text, std::size_t most) {
  return qv::FromUtf8(text).size() > most
             ? "A name has at most " + std::to_string(most) + " characters: " + text
             : NoFieldText(text);
}

}  // namespace qvdisc
