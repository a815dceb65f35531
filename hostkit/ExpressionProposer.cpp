#include "hostkit/ExpressionProposer.h"

#include <algorithm>
#include <iterator>
#include <string>
#include <utility>
#include <vector>

#include "hostkit/ExpressionSyntax.h"
#include "hostkit/TypedWord.h"
#include "hostkit/VariableNames.h"
#include "tools/Names.h"

namespace qv {
namespace {

/// Texts that go on from what somebody has typed, and those that have it inside.
class Matches {
 public:
  explicit Matches(std::wstring_view typed) : m_typed(Folded(typed)) {}

  /// Takes what `make` gives if `name` matches.
  template <class Make>
  void Add(std::wstring_view name, Make make) {
    const auto place = Folded(name).find(m_typed);
    auto& matches = place == 0 ? m_beginning : m_inside;
    if (place != std::wstring::npos && matches.size() < ExpressionProposer::mostProposals) {
      matches.push_back(make());
    }
  }

  std::vector<ExpressionProposal> Taken() && {
    auto taken = std::move(m_beginning);
    std::move(m_inside.begin(), m_inside.end(), std::back_inserter(taken));
    taken.resize(std::min(taken.size(), ExpressionProposer::mostProposals));
    return taken;
  }

 private:
  static std::wstring Folded(std::wstring_view text) {
    QVWideString folded(text);
    return std::wstring(folded.MakeUpper().ToView());
  }

  std::wstring m_typed;
  std::vector<ExpressionProposal> m_beginning;
  std::vector<ExpressionProposal> m_inside;
};

ExpressionProposal Proposal(std::wstring text, std::wstring description) {
  const int cursor = static_cast<int>(text.size());
  return {std::move(text), std::move(description), cursor};
}

/// Proposes the variables and devices that a filter lets pass, and words.
class Proposing {
 public:
  Proposing(const ExpressionContext& context, const VariableFilter& filter, std::wstring_view typed)
      : m_context(context), m_filter(filter), m_typed(typed), m_matches(typed) {}

  /// The variables of the device before the dot.
  std::vector<ExpressionProposal> Variables(std::size_t dot) && {
    m_matches = Matches(m_typed.substr(dot + 1));
    if (const Device* device = DeviceCalled(m_typed.substr(0, dot))) {
      for (const Variable& variable : device->Variables()) {
        Add(*device, variable);
      }
    }
    return std::move(m_matches).Taken();
  }

  Proposing& AddDevices() {
    for (const Device& device : m_context.devices.Devices()) {
      if (const auto start = WrittenStart(device.Name()); start && HasAllowed(device)) {
        m_matches.Add(device.Name(), [&] {
          ExpressionProposal proposal = Proposal(*start, device.Driver());
          proposal.cursor -= start->back() == L']' ? 1 : 0;
          return proposal;
        });
      }
    }
    return *this;
  }

  Proposing& AddWords(bool bracketFollows) {
    for (const ExpressionWord& word : ExpressionVocabulary()) {
      if (IsPlainNameCharacter(word.text[0])) {
        m_matches.Add(word.text, [&] { return WordProposal(word, bracketFollows); });
      }
    }
    return *this;
  }

  std::vector<ExpressionProposal> Taken() && { return std::move(m_matches).Taken(); }

 private:
  const Device* DeviceCalled(std::wstring_view name) const {
    if (const Device* device = m_context.devices.Find(name)) {
      return m_filter.Allows(*device) ? device : nullptr;
    }
    const auto& devices = m_context.devices.Devices();
    const auto found = std::find_if(devices.begin(), devices.end(), [&](const Device& device) {
      return EqualUppered(device.Name(), name) && m_filter.Allows(device);
    });
    return found == devices.end() ? nullptr : &*found;
  }

  bool HasAllowed(const Device& device) const {
    const auto& variables = device.Variables();
    return m_filter.Allows(device) &&
           std::any_of(variables.begin(), variables.end(),
                       [this](const Variable& variable) { return m_filter.Allows(variable); });
  }

  void Add(const Device& device, const Variable& variable) {
    const auto name = WrittenName(device.Name(), variable.name);
    if (name && m_filter.Allows(variable)) {
      m_matches.Add(variable.name, [&] { return Proposal(*name, DescriptionOf(variable)); });
    }
  }

  std::wstring DescriptionOf(const Variable& variable) const {
    const std::wstring value = m_context.ValueText(variable);
    return variable.description.empty() ? value : variable.description + L" · " + value;
  }

  ExpressionProposal WordProposal(const ExpressionWord& word, bool bracketFollows) const {
    ExpressionProposal proposal =
        Proposal(word.text, std::wstring(m_context.texts.Load(word.help).ToView()));
    if (word.kind == ExpressionWordKind::Function && !bracketFollows) {
      proposal.text += L"()";
      ++proposal.cursor;
    }
    return proposal;
  }

  const ExpressionContext& m_context;
  const VariableFilter& m_filter;
  std::wstring_view m_typed;
  Matches m_matches;
};

}  // namespace

ExpressionProposals ExpressionProposer::At(std::wstring_view expression,
                                           const ExpressionTokens& tokens, int cursor) const {
  const int size = static_cast<int>(expression.size());
  const auto word = size > longestExpression
                        ? std::nullopt
                        : TypedWordAt(expression, tokens, std::clamp(cursor, 0, size));
  if (!word) {
    return {};
  }
  Proposing proposing(m_context, m_filter, word->text);
  const auto dot = word->text.find(L'.');
  if (dot != std::wstring::npos) {
    return {word->place, std::move(proposing).Variables(dot)};
  }
  proposing.AddDevices();
  if (!word->isInBrackets) {
    const auto end = static_cast<std::size_t>(word->place.start + word->place.length);
    proposing.AddWords(expression.substr(end).starts_with(L'('));
  }
  return {word->place, std::move(proposing).Taken()};
}

}  // namespace qv
