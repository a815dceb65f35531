// Evaluates any text as an expression: whatever it is, each question ends, faults and proposals
// stand within the text, and results are what their code says.

#include <cmath>
#include <cstdint>
#include <string>

#include "hostkit/ExpressionBrackets.h"
#include "hostkit/ExpressionSupport.h"
#include "tests/fuzz/Demand.h"
#include "tools/Utf8.h"

namespace {

using Code = qv::ExpressionCode;

/// Texts that show their arguments.
class Texts : public QVLoadString {
 public:
  QVWideString& operator()(unsigned /*id*/, QVWideString& text) const override {
    return text = L"%s %s";
  }

  using QVLoadString::Load;
};

/// Devices with names of all kinds.
struct Installation {
  Installation() {
    Add(L"A");
    Add(L"min");
    Add(L"Línea ]1");
    Add(L"R$DISC_T");
  }

  void Add(const wchar_t* name) {
    qv::Device device(name, L"");
    const auto classes = qv::ClassAlone(qv::VariableClass::Expression);
    device.Add({.name = L"B", .classes = classes, .values = qv::DailyCurve({{0, 2}})});
    device.Add({.name = L"max", .classes = classes, .values = qv::DailyCurve({{0, 0}})});
    device.Add({.name = L"none", .classes = classes});
    device.Add({.name = L"m ]", .classes = classes, .isOfModule = true});
    device.Add({.name = L"other"});
    devices.Add(std::move(device));
  }

  qv::DeviceModel devices;
  Texts texts;
  qv::ExpressionSupport support{devices, texts, [] { return 0; }};
};

void DemandWithin(const qv::ExpressionPlace& place, int length) {
  Demand(place.start >= 0 && place.length >= 0 && place.start + place.length <= length,
         "a place lies within the expression");
}

void DemandResult(QVEvaluator& evaluator, int length) {
  const bool isWellFormed = evaluator.AnalizeExpression() == 1;
  double value = 0;
  int type = 0;
  const auto code = static_cast<Code>(evaluator.Evaluate(value, type));
  Demand(isWellFormed == (code != Code::NotWellFormed && code != Code::TooLarge),
         "what is well-formed is evaluated, and nothing else");
  Demand((code == Code::Evaluated) == !evaluator.Fault(), "each other code tells its fault");
  Demand(code != Code::Evaluated || std::isfinite(value), "a result is finite");
  Demand((code == Code::Evaluated || code == Code::NoValue || code == Code::Unreadable ||
          code == Code::NotFinite) == (type == 1 || type == 2),
         "a type is known where names and types fit");
  Demand(code != Code::Evaluated || type == 2 || value == 0 || value == 1,
         "a truth value is 1 or 0");
  if (const auto fault = evaluator.Fault()) {
    DemandWithin(fault->place, length);
  }
}

void DemandProposals(const QVEvaluator& evaluator, int length) {
  for (const int cursor : {-1, 0, length / 3, length / 2, length, length + 1}) {
    const qv::ExpressionProposals proposed = evaluator.ProposalsAt(cursor);
    DemandWithin(proposed.replaced, length);
    for (const auto& proposal : proposed.proposals) {
      const int end = static_cast<int>(proposal.text.size());
      Demand(proposal.cursor > 0 && proposal.cursor <= end, "one goes on within a proposal");
    }
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const Installation installation;
  const std::wstring text =
      qv::FromUtf8(std::string_view(reinterpret_cast<const char*>(data), size));
  const int length = static_cast<int>(text.size());
  const auto evaluator = installation.support.NewEvaluator(QVWideString(std::wstring_view(text)));
  evaluator->SetFlags(4, -1);
  evaluator->EnableDiscriminators(size % 2 == 0);
  DemandResult(*evaluator, length);
  DemandProposals(*evaluator, length);
  for (const int cursor : {-1, 0, 1, length / 2, length - 1, length}) {
    if (const auto brackets = qv::BracketsAt(text, cursor)) {
      DemandWithin(brackets->closing, length);
      Demand(brackets->opening.start < brackets->closing.start, "a bracket opens before it closes");
    }
  }
  return 0;
}
