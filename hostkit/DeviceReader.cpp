#include "hostkit/DeviceReader.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <optional>
#include <string_view>
#include <vector>

#include "discriminator/DayMinutes.h"
#include "discriminator/Fields.h"
#include "discriminator/ValueForms.h"
#include "hostkit/DecimalNumber.h"
#include "tools/Nodes.h"

namespace qv {
namespace {

/// The words of a text, which blanks and line ends separate.
std::vector<std::wstring_view> WordsOf(std::wstring_view text) {
  constexpr std::wstring_view blanks = L" \t\r\n";
  std::vector<std::wstring_view> words;
  for (auto start = text.find_first_not_of(blanks); start != std::wstring_view::npos;) {
    const auto end = std::min(text.find_first_of(blanks, start), text.size());
    words.push_back(text.substr(start, end - start));
    start = text.find_first_not_of(blanks, end);
  }
  return words;
}

VariableClasses ClassesOf(std::wstring_view text) {
  VariableClasses classes;
  for (const std::wstring_view word : WordsOf(text)) {
    const auto number = DecimalNumber(word);
    for (std::size_t bit = 0; number && bit < classes.size(); ++bit) {
      if (*number == static_cast<double>(bit)) {
        classes.set(bit);
      }
    }
  }
  return classes;
}

/// The minute of a day that "hh:mm" writes, up to 24:00.
std::optional<int> MinuteOf(std::wstring_view text) {
  constexpr std::wstring_view digits = L"0123456789";
  constexpr std::size_t colon = 2;
  const bool hasForm = text.size() == 5 && text[colon] == L':' &&
                       text.find_first_not_of(digits) == colon &&
                       text.find_first_not_of(digits, colon + 1) == std::wstring_view::npos;
  const TimeOfDay time = hasForm ? TimeOf(QVWideString(text)) : TimeOfDay{hoursOfDay + 1, 0};
  const bool isTime = time.minutes < minutesOfHour && time.Minutes() <= hoursOfDay * minutesOfHour;
  return isTime ? std::optional(time.Minutes()) : std::nullopt;
}

/// Pairs of a time and the value that it has then.
DailyCurve CurveOf(std::wstring_view text) {
  const auto words = WordsOf(text);
  std::vector<DailyCurve::Point> points;
  for (std::size_t i = 0; i + 1 < words.size(); i += 2) {
    const auto minute = MinuteOf(words[i]);
    const auto value = DecimalNumber(words[i + 1]);
    if (minute && value) {
      points.push_back({*minute, *value});
    }
  }
  return DailyCurve(points);
}

DailyCurve ValuesOf(const XmlNode& variable) {
  const auto value = DecimalNumber(FieldOf(variable, tag::Value));
  if (value && std::isfinite(*value)) {
    return DailyCurve({{0, *value}});
  }
  return CurveOf(FieldOf(variable, L"curve"));
}

Variable ReadVariable(const XmlNode& node) {
  return {.name = FieldOf(node, tag::Name),
          .description = FieldOf(node, tag::Description),
          .unit = FieldOf(node, L"unit"),
          .classes = ClassesOf(FieldOf(node, L"classes")),
          .isOfModule = IsFlagSet(node.Value(L"module")),
          .values = ValuesOf(node)};
}

}  // namespace

Device ReadDevice(const XmlNode& device) {
  Device read(FieldOf(device, tag::Name), FieldOf(device, L"driver"));
  for (const XmlNode& variable : ChildrenWithTag(device.Node(L"variables"), L"variable")) {
    read.Add(ReadVariable(variable));
  }
  return read;
}

}  // namespace qv
