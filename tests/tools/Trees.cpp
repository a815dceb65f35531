#include "tests/tools/Trees.h"

#include <algorithm>
#include <iterator>
#include <ostream>

#include "tools/Utf8.h"

namespace qv {
namespace {

std::string Shown(const QVWideString& text) {
  std::string shown;
  for (const char byte : ToUtf8(text.ToView()).value_or("(not Unicode)")) {
    const std::string_view special("\n\r\t");
    const std::size_t place = special.find(byte);
    shown +=
        place == std::string_view::npos ? std::string(1, byte) : std::string("\\") + "nrt"[place];
  }
  return shown;
}

std::size_t Below(std::mt19937& random, std::size_t limit) { return random() % limit; }

std::wstring RandomText(std::mt19937& random) {
  static const std::wstring_view pieces[] = {
      L"a",      L"Z",      L"0",      L" ",          L"  ",         L"\t",
      L"\n",     L"\r",     L"\r\n",   L"&",          L"<",          L">",
      L"\"",     L"'",      L"]]>",    L"&amp;",      L"<!--",       L"ñ",
      L"\u0085", L"\u00A0", L"\u20AC", L"\u2028",     L"\uD7FF",     L"\uE000",
      L"\uFEFF", L"\uFFFD", L"\u4E2D", L"\U00010000", L"\U0001F600", L"\U0010FFFF"};
  std::wstring text;
  for (std::size_t i = Below(random, 6); i > 0; --i) {
    text += pieces[Below(random, std::size(pieces))];
  }
  return text;
}

void Grow(XmlNode& node, int levels, std::mt19937& random) {
  static const wchar_t* const tags[] = {L"hour", L"day", L"slot", L"name", L"a\u00F1o", L"_x-1.y"};
  if (Below(random, 4) != 0) {
    node.SetValue(QVWideString(RandomText(random)));
  }
  for (std::size_t i = levels > 0 ? Below(random, 4) : 0; i > 0; --i) {
    Grow(*node.NewChild(tags[Below(random, std::size(tags))], nullptr), levels - 1, random);
  }
}

}  // namespace

std::string Outline(const XmlNode& node) {
  std::string outline = Shown(node.Tag());
  if (!node.Value().Empty()) {
    outline += "=\"" + Shown(node.Value()) + "\"";
  }
  std::string children;
  for (auto child = node.ChildsBegin(); child != node.ChildsEnd(); ++child) {
    children += (children.empty() ? "" : " ") + Outline(**child);
  }
  return children.empty() ? outline : outline + "[" + children + "]";
}

std::unique_ptr<XmlNode> RandomTree(std::mt19937& random) {
  auto root = std::make_unique<XmlNode>(L"main");
  Grow(*root, 3, random);
  return root;
}

std::unique_ptr<XmlNode> Chain(int levels) {
  auto root = std::make_unique<XmlNode>(L"n");
  XmlNode* last = root.get();
  for (int i = 1; i < levels; ++i) {
    last = last->NewChild(L"n", nullptr);
  }
  return root;
}

void PrintTo(const XmlNode& node, std::ostream* out) { *out << Outline(node); }

}  // namespace qv

void PrintTo(const QVWideString& text, std::ostream* out) { *out << '"' << qv::Shown(text) << '"'; }
