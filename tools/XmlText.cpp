#include "tools/XmlText.h"

#include <algorithm>
#include <cstdint>

#include "tools/Utf8.h"
#include "tools/XmlNode.h"
#include "tools/XmlReader.h"

namespace {

bool IsXmlCharacter(wchar_t character) {
  const auto code = static_cast<std::uint32_t>(character);
  const bool control = code < 0x20 && code != '\t' && code != '\n' && code != '\r';
  return !control && code != 0xFFFE && code != 0xFFFF;
}

}  // namespace

QVWideString& ParseXMLText(const char* text, QVWideString& out) {
  qv::XmlReader reader;
  reader.Feed("<t>");
  reader.Feed(std::string_view(text ? text : ""));
  reader.Feed("</t>");
  const auto node = reader.Finish();
  const bool isText = node && node->ChildsBegin() == node->ChildsEnd();
  return out = isText ? node->Value() : QVWideString();
}

namespace qv {

bool IsXmlText(std::wstring_view text) {
  return std::all_of(text.begin(), text.end(), IsXmlCharacter) && ToUtf8(text).has_value();
}

}  // namespace qv
