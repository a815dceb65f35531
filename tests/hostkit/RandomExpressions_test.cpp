// Random expressions against a second evaluation: each is made together with its type and value,
// then written with just enough brackets, some more, and blanks anywhere.
#include <cmath>
#include <random>

#include "tests/hostkit/ExpressionTest.h"

namespace qv {
namespace {

/// An expression with what it has to give.
struct Made {
  std::wstring text{};
  bool isTruth = false;
  double value = 0;  ///< NaN where there is no finite result
  int binds = 0;     ///< how closely its outermost operator does; `atom` for none
};

constexpr int atom = 100;

/// The operators by name, how closely they bind and what they do.
struct Operator {
  const wchar_t* sign;
  int binds;
  double (*apply)(double, double);
};

constexpr double none = std::numeric_limits<double>::quiet_NaN();

const Operator arithmetic[] = {
    {L"+", 50, [](double a, double b) { return a + b; }},
    {L"-", 50, [](double a, double b) { return a - b; }},
    {L"*", 60, [](double a, double b) { return a * b; }},
    {L"/", 60, [](double a, double b) { return a / b; }},
    {L"^", 80, [](double a, double b) { return std::pow(a, b); }},
};
const Operator comparisons[] = {
    {L"<", 40, [](double a, double b) { return double(a < b); }},
    {L"<=", 40, [](double a, double b) { return double(a <= b); }},
    {L">", 40, [](double a, double b) { return double(a > b); }},
    {L">=", 40, [](double a, double b) { return double(a >= b); }},
    {L"==", 30, [](double a, double b) { return double(a == b); }},
    {L"<>", 30, [](double a, double b) { return double(a != b); }},
    {L"!=", 30, [](double a, double b) { return double(a != b); }},
};

class Maker {
 public:
  explicit Maker(unsigned seed) : m_random(seed) {}

  Made Make(bool isTruth, int depth) {
    Made made = isTruth ? Truth(depth) : Number(depth);
    made.isTruth = isTruth;
    return Below(4) == 0 ? InBrackets(made) : made;
  }

  int Below(int count) { return static_cast<int>(m_random() % static_cast<unsigned>(count)); }

 private:
  std::wstring Blank() { return std::wstring(static_cast<std::size_t>(Below(3) / 2), L' '); }

  Made InBrackets(Made made) {
    made.text = L"(" + Blank() + made.text + Blank() + L")";
    made.binds = atom;
    return made;
  }

  /// `made`, in brackets unless it binds as closely as it has to.
  std::wstring Part(const Made& made, int binds) {
    return made.binds >= binds ? made.text : InBrackets(made).text;
  }

  Made Number(int depth) {
    if (depth == 0) {
      return Leaf();
    }
    switch (Below(6)) {
      case 0:
        return Negated(depth);
      case 1:
        return OfFunction(depth);
      case 2:
        return Chosen(false, depth);
      default:
        return Binary(arithmetic[Below(5)], false, depth);
    }
  }

  Made Truth(int depth) {
    if (depth == 0) {
      const bool value = Below(2) == 0;
      return {value ? L"true" : L"false", true, double(value), atom};
    }
    switch (Below(6)) {
      case 0:
        return Inverted(depth);
      case 1:
        return Chosen(true, depth);
      case 2:
      case 3:
        return Joined(depth);
      default:
        return Compared(depth);
    }
  }

  Made Leaf() {
    static const std::pair<const wchar_t*, double> leaves[] = {
        {L"0", 0},           {L"1", 1},          {L"2.5", 2.5},   {L"1e2", 100},
        {L"TS1.VL1", 231.5}, {L"[TS1.VL2]", 20}, {L"TS1.max", 3}, {L"min.and", 5}};
    const auto& [text, value] = leaves[Below(8)];
    return {text, false, value, atom};
  }

  Made Negated(int depth) {
    const Made of = Make(false, depth - 1);
    // A sign may not stand directly behind another.
    const std::wstring text = Part(of, 71);
    return {L"-" + Blank() + text, false, -of.value, 70};
  }

  Made Inverted(int depth) {
    const Made of = Make(true, depth - 1);
    return {(Below(2) == 0 ? L"!" + Blank() : L"not ") + Part(of, 26), true, 1 - of.value, 25};
  }

  Made OfFunction(int depth) {
    const Made a = Make(false, depth - 1);
    const Made b = Make(false, depth - 1);
    switch (Below(4)) {
      case 0:
        return {L"abs(" + a.text + L")", false, std::abs(a.value), atom};
      case 1:
        return {L"floor (" + a.text + L")", false, std::floor(a.value), atom};
      case 2:
        return {L"SQRT(" + a.text + L")", false, Finite(std::sqrt(a.value)), atom};
      default:
        return {L"max(" + a.text + L"," + Blank() + b.text + L")", false,
                std::isnan(a.value) || std::isnan(b.value) ? none : std::max(a.value, b.value),
                atom};
    }
  }

  Made Chosen(bool isTruth, int depth) {
    const Made condition = Make(true, depth - 1);
    const Made a = Make(isTruth, depth - 1);
    const Made b = Make(isTruth, depth - 1);
    const double chosen = std::isnan(condition.value) ? none
                          : condition.value != 0      ? a.value
                                                      : b.value;
    return {L"if(" + condition.text + L"," + a.text + L"," + b.text + L")", isTruth, chosen, atom};
  }

  static double Finite(double value) { return std::isfinite(value) ? value : none; }

  Made Binary(const Operator& with, bool ofTruth, int depth) {
    const Made a = Make(ofTruth, depth - 1);
    const Made b = Make(ofTruth, depth - 1);
    const bool fromTheRight = with.binds == 80;
    const std::wstring left = Part(a, with.binds + (fromTheRight ? 1 : 0));
    const std::wstring right = Part(b, with.binds + (fromTheRight ? 0 : 1));
    const double value =
        std::isnan(a.value) || std::isnan(b.value) ? none : with.apply(a.value, b.value);
    return {left + Blank() + with.sign + Blank() + right, false, Finite(value), with.binds};
  }

  Made Compared(int depth) {
    const Operator& with = comparisons[Below(7)];
    return Binary(with, with.binds == 30 && Below(2) == 0, depth);
  }

  Made Joined(int depth) {
    const bool isAnd = Below(2) == 0;
    const int binds = isAnd ? 20 : 10;
    const Made a = Make(true, depth - 1);
    const Made b = Make(true, depth - 1);
    const wchar_t* sign =
        isAnd ? (Below(2) == 0 ? L"&&" : L" and ") : (Below(2) == 0 ? L"||" : L" or ");
    const double deciding = isAnd ? 0 : 1;
    const double value = a.value == deciding || b.value == deciding   ? deciding
                         : std::isnan(a.value) || std::isnan(b.value) ? none
                                                                      : 1 - deciding;
    return {Part(a, binds) + sign + Part(b, binds + 1), true, value, binds};
  }

  std::mt19937 m_random;
};

/// Whether one of the leaves is a variable.
bool HasVariable(const std::wstring& text) {
  return text.find(L"TS1.") != std::wstring::npos || text.find(L"min.and") != std::wstring::npos;
}

class RandomExpressions : public ExpressionTest {};

TEST_F(RandomExpressions, GiveWhatTheyWereMadeFor) {
  Maker maker(20'240'501);
  int finite = 0;
  for (int i = 0; i < 20'000; ++i) {
    const Made made = maker.Make(maker.Below(2) == 0, 1 + maker.Below(4));
    if (made.text.size() > 2000) {
      continue;
    }
    const Evaluation result = Evaluate(made.text);
    const auto unknown =
        HasVariable(made.text) ? ExpressionCode::NoValue : ExpressionCode::NotFinite;
    ASSERT_EQ(result.code, std::isnan(made.value) ? unknown : ExpressionCode::Evaluated)
        << made.text << ": " << (result.fault ? result.fault->words : L"");
    ASSERT_EQ(result.type, made.isTruth ? truth : number) << made.text;
    if (!std::isnan(made.value)) {
      ASSERT_EQ(result.value, made.value) << made.text;
      ++finite;
    }
  }
  EXPECT_GT(finite, 10'000);
}

TEST_F(RandomExpressions, OfMixedTypesAreRefused) {
  Maker maker(7);
  for (int i = 0; i < 2000; ++i) {
    const std::wstring ofNumber = maker.Make(false, maker.Below(3)).text;
    const std::wstring ofTruth = maker.Make(true, maker.Below(3)).text;
    for (const std::wstring& mixed :
         {L"(" + ofNumber + L")==(" + ofTruth + L")", L"(" + ofNumber + L")&&(" + ofTruth + L")",
          L"(" + ofTruth + L")*(" + ofNumber + L")", L"if(true," + ofNumber + L"," + ofTruth + L")",
          L"if(" + ofNumber + L"," + ofTruth + L"," + ofTruth + L")", L"abs(" + ofTruth + L")"}) {
      ASSERT_EQ(Evaluate(mixed).code, ExpressionCode::TypesMixed) << mixed;
    }
  }
}

}  // namespace
}  // namespace qv
