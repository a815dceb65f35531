// Opens all that a discriminator says of hours and days in the rules of its editors: whatever
// times, colours and links a file holds, rows belong to their slots, the dial draws inside its
// face, and what a slot's editor saves is a time.

#include <cstdint>
#include <memory>
#include <string>

#include "discriminator/Fields.h"
#include "tests/fuzz/Demand.h"
#include "tests/support/RecordingCanvas.h"
#include "timestructure/DayDial.h"
#include "timestructure/DayTypeForm.h"
#include "timestructure/TimeSlotForm.h"
#include "timestructure/TypeList.h"
#include "tools/Nodes.h"
#include "tools/XmlReader.h"

namespace {

using qv::XmlNode;

/// A user who confirms whatever is said.
class Silent : public qv::Prompter {
 public:
  void Show(Text, const Arguments&, const qv::Addition&) override {}
  bool Ask(Text, const Arguments&, const qv::Addition&) override { return true; }
  void ShowText(std::wstring_view, const qv::Addition&) override {}
};

void DemandDialInside(const XmlNode& day, const XmlNode& hourTypes) {
  constexpr int width = 200;
  constexpr int height = 100;
  qv::DayDial dial;
  dial.Setup(&day, &hourTypes);
  qv::RecordingCanvas canvas;
  dial.Paint(canvas, width, height, {});
  for (const auto& polygon : canvas.polygons) {
    for (const qv::Point point : polygon) {
      Demand(point.x >= 0 && point.x < width && point.y >= 0 && point.y < height,
             "the dial draws inside its face");
    }
  }
}

void DemandSlotIsATime(XmlNode& hourTypes, const XmlNode& slot) {
  XmlNode copy(slot);
  qv::TimeSlotForm form(copy, qv::HourTypes(hourTypes));
  form.Times().Press(600);
  form.Times().Move(0);
  form.Times().Release();
  if (form.Save().IsDone()) {
    for (const wchar_t* field : {qv::tag::From, qv::tag::To}) {
      const QVWideString time = copy.Value(field);
      Demand(qv::NormalizeTime(time) == time, "what a slot's editor saves is a time");
    }
  }
}

void OpenDay(XmlNode& day, XmlNode& dayTypes, XmlNode& hourTypes) {
  Silent prompter;
  qv::DayTypeForm form(day, qv::DayTypes(dayTypes), qv::HourTypes(hourTypes), prompter);
  form.Fill();
  const auto fault = form.FaultOfSlots();
  const auto slots = qv::ChildrenWithTag(day, qv::tag::Slot);
  const auto count = static_cast<std::size_t>(std::distance(slots.begin(), slots.end()));
  Demand(form.Rows().size() == count, "each slot has its row");
  DemandDialInside(day, hourTypes);
  if (count > 0) {
    DemandSlotIsATime(hourTypes, *slots.begin());
  }
  Demand(!fault || !form.Save(L"name").IsDone(), "what is faulty isn't saved");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  qv::XmlReader reader;
  reader.Feed(std::string_view(reinterpret_cast<const char*>(data), size));
  const auto root = reader.Finish();
  XmlNode* hourTypes = root ? root->Node(qv::tag::HourTypes) : nullptr;
  XmlNode* dayTypes = root ? root->Node(qv::tag::DayTypes) : nullptr;
  if (!hourTypes || !dayTypes) {
    return 0;
  }
  qv::TypeList hours(*hourTypes, qv::tag::Hour);
  qv::TypeList days(*dayTypes, qv::tag::Day);
  for (const qv::ColouredType& row : days.Rows()) {
    OpenDay(*row.node, *dayTypes, *hourTypes);
  }
  std::ignore = hours.OnRemove(0);
  std::ignore = days.OnModify(0, [&](XmlNode& day) {
    OpenDay(day, *dayTypes, *hourTypes);
    return qv::EditorEnd{true, true};
  });
  return 0;
}
