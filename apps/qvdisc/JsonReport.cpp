#include <nlohmann/json.hpp>

#include "apps/qvdisc/ConditionReport.h"
#include "apps/qvdisc/DocumentJson.h"
#include "apps/qvdisc/FindingWords.h"
#include "apps/qvdisc/Reports.h"
#include "apps/qvdisc/TypeReport.h"
#include "discriminator/FileNames.h"

namespace qvdisc {
namespace {

using Json = nlohmann::ordered_json;

/// Changes with every change of the form that a reader could trip over.
constexpr int formVersion = 1;

Json Row(const qv::DiscriminatorSummary& row) {
  return {{"stem", Utf8(row.fileStem.ToView())},
          {"id", Utf8(qv::IdOfStem(row.fileStem).ToView())},
          {"name", Utf8(row.name.ToView())},
          {"description", Utf8(row.description.ToView())}};
}

Json Spoken(const SpokenText& spoken) {
  Json json = {{"number", spoken.number},
               {"kind", spoken.isQuestion ? "question" : "message"},
               {"text", Utf8(spoken.text)},
               {"addition", Utf8(spoken.addition)}};
  if (spoken.isQuestion) {
    json["answer"] = spoken.answer ? Json(*spoken.answer) : Json(nullptr);
  }
  return json;
}

Json Found(const qv::Finding& finding) {
  return {{"kind", KindName(finding.kind)}, {"fault", finding.IsFault()},
          {"file", Utf8(finding.file)},     {"place", Utf8(finding.place)},
          {"value", Utf8(finding.value)},   {"expected", Utf8(finding.expected)},
          {"line", finding.line},           {"column", finding.column}};
}

Json Index(const IndexEnd& index) {
  return {{"stem", Utf8(index.stem)}, {"needed", index.needed}, {"written", index.written}};
}

Json Made(const std::wstring& stem) {
  return {{"stem", Utf8(stem)}, {"id", Utf8(qv::IdOfStem(QVWideString(stem)).ToView())}};
}

Json Changed(const FileChange& change) {
  return {{"path", Utf8(change.path)}, {"change", change.isRemoved ? "removed" : "written"}};
}

template <class Values, class ToJson>
Json List(const Values& values, ToJson toJson) {
  Json list = Json::array();
  for (const auto& value : values) {
    list.push_back(toJson(value));
  }
  return list;
}

void AddVerbsOwn(Json& json, const Arguments& arguments, const Outcome& outcome) {
  if (outcome.document) {
    json["document"] = DocumentJson(*outcome.document->Root());
  }
  if (outcome.payload) {
    json["payload"] = *outcome.payload;
  }
  if (arguments.verb == Verb::Index) {
    json["indexes"] = List(outcome.indexes, Index);
  }
  if (arguments.verb == Verb::Add || arguments.verb == Verb::Paste) {
    json["made"] = List(outcome.made, Made);
  }
  if (arguments.dryRun) {
    json["dryRun"] = true;
    json["changes"] = List(outcome.changes, Changed);
  }
  if (arguments.verb == Verb::HourType || arguments.verb == Verb::DayType) {
    json[arguments.verb == Verb::HourType ? "hourTypes" : "dayTypes"] = TypesAsJson(outcome.types);
  }
  if (arguments.verb == Verb::Condition) {
    json["conditions"] = ConditionsAsJson(outcome.conditions);
  }
  if (outcome.evaluated) {
    json["evaluated"] = EvaluatedAsJson(*outcome.evaluated);
  }
  if (arguments.verb == Verb::Mark || arguments.verb == Verb::Unmark) {
    json["marked"] = outcome.marked ? MarkedAsJson(*outcome.marked) : Json(nullptr);
  }
  if (outcome.unsaved) {
    json["unsaved"] = *outcome.unsaved;
  }
  if (outcome.unsavedConfiguration) {
    json["unsavedConfiguration"] = *outcome.unsavedConfiguration;
  }
  if (arguments.verb == Verb::Check) {
    json["files"] = List(outcome.checked.files, [&](const std::wstring& file) {
      return Json{{"file", Utf8(file)}, {"listed", outcome.checked.IsListed(file)}};
    });
    json["faults"] = outcome.checked.Faults();
    json["notes"] = outcome.checked.Notes();
    json["findings"] = List(outcome.checked.findings, Found);
  }
}

}  // namespace

std::string JsonReport(const Arguments& arguments, const Outcome& outcome) {
  Json json = {{"form", formVersion},
               {"verb", arguments.verbName},
               {"status", outcome.status},
               {"rows", List(outcome.rows, Row)},
               {"texts", List(outcome.texts, Spoken)},
               {"notices", outcome.notices},
               {"hostHasToSave", outcome.hostHasToSave},
               {"saved", outcome.saved},
               {"errors", List(outcome.errors, Utf8)}};
  AddVerbsOwn(json, arguments, outcome);
  constexpr int indentation = 2;
  return json.dump(indentation, ' ', false, Json::error_handler_t::replace) + "\n";
}

}  // namespace qvdisc
