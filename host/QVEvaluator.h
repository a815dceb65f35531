#pragma once

#include <initializer_list>
#include <optional>
#include <string>
#include <vector>

#include "host/Export.h"
#include "tools/QVBasicString.h"

namespace qv {

/// A stretch of an expression, in characters.
struct ExpressionPlace {
  int start = 0;
  int length = 0;

  friend bool operator==(const ExpressionPlace&, const ExpressionPlace&) = default;
};

/// What is wrong with an expression, and where.
struct ExpressionFault {
  ExpressionPlace place{};  ///< of length 0 where something is missing
  std::wstring words{};     ///< one sentence, in the language of the user

  friend bool operator==(const ExpressionFault&, const ExpressionFault&) = default;
};

/// Something that may be written at a place of an expression.
struct ExpressionProposal {
  std::wstring text{};         ///< as it is written
  std::wstring description{};  ///< what it is, in a few words; may be empty
  int cursor = 0;              ///< where one goes on writing, from the start of `text`

  friend bool operator==(const ExpressionProposal&, const ExpressionProposal&) = default;
};

/// What may be written in place of the beginning of a word.
struct ExpressionProposals {
  ExpressionPlace replaced{};  ///< the word, up to its end; of length 0 between words
  std::vector<ExpressionProposal> proposals{};
};

}  // namespace qv

/// One expression over the variables of devices, which the host parses and evaluates. It is made
/// by `QVDriverSupport`, anew for every check.
class QVHOST_EXPORT QVEvaluator {
 public:
  QVEvaluator() = default;
  QVEvaluator(const QVEvaluator&) = delete;
  QVEvaluator& operator=(const QVEvaluator&) = delete;
  virtual ~QVEvaluator() = default;

  /// What `Evaluate` gives for `type` if the result is a truth value.
  static constexpr int TypeLogical = 1;

  /// The codes of `Evaluate` that mean the same for every host.
  static constexpr int CodeEvaluated = 0;
  static constexpr int CodeUnreadable = 1;  ///< a value can't be read here
  static constexpr int CodeNoValue = 62;    ///< a variable has no value at the moment

  /// Sets these flags, a list that ends in -1: the classes of variables, by the number of their
  /// bit, to which the expression is limited. False if the host doesn't know one of them.
  template <class... More>
  bool SetFlags(int flag, More... more) {
    return TakeFlags({flag, more...});
  }

  /// Whether the expression may have variables of discriminators.
  virtual void EnableDiscriminators(bool enabled) = 0;

  /// Parses the expression; 1 if it is well-formed.
  virtual int AnalizeExpression() = 0;

  /// Evaluates it: one of the codes above, or another one of the host's. `type` is that of the
  /// expression after `CodeEvaluated` and `CodeNoValue`; `value` is the result after the first
  /// (1 and 0 for true and false).
  virtual int Evaluate(double& value, int& type) = 0;

  /// The expression.
  virtual const QVWideString& Expr() const = 0;

  /// Why the last `AnalizeExpression` or `Evaluate` failed, if the host can say more than a code.
  virtual std::optional<qv::ExpressionFault> Fault() const { return std::nullopt; }

  /// What may be written at this place of the expression, from 0 to its length, in place of the
  /// word that ends or stands there. Flags and discriminators count.
  virtual qv::ExpressionProposals ProposalsAt(int /*cursor*/) const { return {}; }

 protected:
  /// `flags` ends in -1.
  virtual bool TakeFlags(std::initializer_list<int> flags) = 0;
};
