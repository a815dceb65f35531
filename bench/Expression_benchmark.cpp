// A usual condition from its text to its result, the same prepared, and the peer: muparserx with
// its own operators and nothing of ours. Then random texts as long as an edit takes them.
#include <benchmark/benchmark.h>
#include <mpParser.h>

#include <algorithm>
#include <ctime>
#include <random>
#include <string>

#include "hostkit/ExpressionSupport.h"

namespace qv {
namespace {

constexpr wchar_t condition[] = L"[TS1.VL1] < 207 || [TS1.VL2] < 207 || [TS1.VL3] < 207";

class NoTexts : public QVLoadString {
 public:
  QVWideString& operator()(unsigned /*id*/, QVWideString& text) const override {
    return text = L"%s";
  }
};

/// Conditions over one device.
struct Installation {
  Installation() {
    Device device(L"TS1", L"");
    for (const wchar_t* name : {L"VL1", L"VL2", L"VL3"}) {
      device.Add({.name = name, .values = DailyCurve({{0, 230}, {720, 231}})});
    }
    devices.Add(std::move(device));
  }

  DeviceModel devices;
  NoTexts texts;
  ExpressionSupport support{devices, texts, [] { return 0; }};
};

int Evaluate(QVEvaluator& evaluator) {
  double value = 0;
  int type = 0;
  const int code = evaluator.AnalizeExpression() == 1 ? evaluator.Evaluate(value, type) : -1;
  benchmark::DoNotOptimize(value);
  return code;
}

/// Each time another text, so that nothing is kept of the one before.
void FromText(benchmark::State& state) {
  const Installation installation;
  const QVWideString texts[] = {condition, QVWideString(condition) + L" "};
  std::size_t next = 0;
  for (auto _ : state) {
    const auto other = installation.support.NewEvaluator(next % 2 == 0 ? L"1" : L"1 + 1");
    const auto evaluator = installation.support.NewEvaluator(texts[next++ % 2]);
    if (Evaluate(*other) != 0 || Evaluate(*evaluator) != 0) {
      state.SkipWithError("not evaluated");
    }
  }
}

void Prepared(benchmark::State& state) {
  const Installation installation;
  const auto evaluator = installation.support.NewEvaluator(condition);
  for (auto _ : state) {
    if (Evaluate(*evaluator) != 0) {
      state.SkipWithError("not evaluated");
    }
  }
}

/// muparserx with all that it brings and three variables.
struct Bare {
  Bare() : parser(mup::pckALL_NON_COMPLEX) {
    for (int i = 0; i < 3; ++i) {
      values[i] = 230.0;
      parser.DefineVar("v" + std::to_string(i), mup::Variable(&values[i]));
    }
  }

  mup::Value values[3];
  mup::ParserX parser;
};

constexpr char bareCondition[] = "v0 < 207 || v1 < 207 || v2 < 207";

void BareFromText(benchmark::State& state) {
  Bare bare;
  for (auto _ : state) {
    bare.parser.SetExpr("1 + 1");
    benchmark::DoNotOptimize(bare.parser.Eval());
    bare.parser.SetExpr(bareCondition);
    benchmark::DoNotOptimize(bare.parser.Eval());
  }
}

void BarePrepared(benchmark::State& state) {
  Bare bare;
  bare.parser.SetExpr(bareCondition);
  for (auto _ : state) {
    benchmark::DoNotOptimize(bare.parser.Eval());
  }
}

/// A text of pieces of expressions, half of them in an order that makes sense.
std::wstring RandomText(std::mt19937& random) {
  static const wchar_t* const values[] = {L"1", L"TS1.VL1", L"[TS1.VL2]", L"abs(2)", L"(3"};
  static const wchar_t* const joints[] = {L"+", L"<", L" and ", L"^", L")*", L",", L"/", L" or "};
  std::wstring text;
  const bool onlyArithmetic = random() % 2 == 0;
  while (text.size() < 500) {
    text += values[random() % (onlyArithmetic ? 4 : 5)];
    text += onlyArithmetic ? L"-" : joints[random() % 8];
  }
  return text + L"1";
}

/// The processor time of the slowest of many, in milliseconds.
void SlowestOfRandomTexts(benchmark::State& state) {
  const Installation installation;
  std::mt19937 random(1);
  double slowest = 0;
  int evaluated = 0;
  for (auto _ : state) {
    const auto evaluator =
        installation.support.NewEvaluator(QVWideString(std::wstring_view(RandomText(random))));
    const std::clock_t start = std::clock();
    evaluated += Evaluate(*evaluator) == 0;
    const double taken = double(std::clock() - start) * 1000 / CLOCKS_PER_SEC;
    slowest = std::max(slowest, taken);
  }
  state.counters["slowest_ms"] = slowest;
  state.counters["evaluated"] = evaluated;
}

BENCHMARK(FromText)->Unit(benchmark::kMicrosecond);
BENCHMARK(BareFromText)->Unit(benchmark::kMicrosecond);
BENCHMARK(Prepared)->Unit(benchmark::kMicrosecond);
BENCHMARK(BarePrepared)->Unit(benchmark::kMicrosecond);
BENCHMARK(SlowestOfRandomTexts)->Iterations(100'000)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace qv
