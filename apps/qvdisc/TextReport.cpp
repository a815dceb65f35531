#include <algorithm>
#include <initializer_list>
#include <map>
#include <vector>

#include "apps/qvdisc/CalendarReport.h"
#include "apps/qvdisc/ConditionReport.h"
#include "apps/qvdisc/FindingWords.h"
#include "apps/qvdisc/Reports.h"
#include "apps/qvdisc/TypeReport.h"
#include "discriminator/Fields.h"
#include "discriminator/ValueForms.h"
#include "tools/Nodes.h"
#include "tools/Utf8.h"

namespace qvdisc {
namespace {

using qv::XmlNode;
using Cells = std::vector<std::wstring>;

/// A field's value on one line.
std::wstring Line(const XmlNode& node, const wchar_t* tag) {
  return OneLine(qv::FieldOf(node, tag));
}

class Writer {
 public:
  Writer(qv::Language language, bool isTerminal) : m_language(language), m_bold(isTerminal) {}

  std::wstring Said(Word word, std::initializer_list<qv::FormatArgument> arguments = {}) const {
    return Words(word, m_language, arguments);
  }

  void Write(const std::wstring& text) { m_text += text + L"\n"; }

  void Heading(const std::wstring& text) { Write(m_bold ? L"\033[1m" + text + L"\033[0m" : text); }

  /// Lines with their cells below each other; the first is a heading.
  void Table(std::vector<Cells> lines) {
    std::vector<std::size_t> widths;
    for (const Cells& cells : lines) {
      widths.resize(std::max(widths.size(), cells.size()));
      for (std::size_t i = 0; i < cells.size(); ++i) {
        widths[i] = std::max(widths[i], qv::ColumnsOf(cells[i]));
      }
    }
    for (std::size_t i = 0; i < lines.size(); ++i) {
      const std::wstring line = Aligned(lines[i], widths);
      i == 0 ? Heading(line) : Write(line);
    }
  }

  std::string Text() const { return Utf8(m_text); }

 private:
  static std::wstring Aligned(const Cells& cells, const std::vector<std::size_t>& widths) {
    constexpr std::size_t gap = 2;
    std::wstring line;
    for (std::size_t i = 0; i < cells.size(); ++i) {
      line += cells[i];
      line.append(widths[i] - qv::ColumnsOf(cells[i]) + gap, L' ');
    }
    line.erase(line.find_last_not_of(L' ') + 1);
    return line;
  }

  qv::Language m_language;
  bool m_bold;
  std::wstring m_text;
};

void WriteRows(Writer& writer, const Outcome& outcome) {
  std::vector<Cells> lines = {
      {writer.Said(Word::Name), writer.Said(Word::Stem), writer.Said(Word::Description)}};
  for (const auto& row : outcome.rows) {
    lines.push_back({OneLine(std::wstring(row.name.ToView())),
                     OneLine(std::wstring(row.fileStem.ToView())),
                     OneLine(std::wstring(row.description.ToView()))});
  }
  writer.Table(std::move(lines));
}

void WriteFields(Writer& writer, const XmlNode& root) {
  const bool zero = qv::IsFlagSet(root.Value(qv::tag::SetZeroOutsideSlot, L"T"));
  const std::vector<std::pair<Word, std::wstring>> fields = {
      {Word::Name, Line(root, qv::tag::Name)},
      {Word::Description, Line(root, qv::tag::Description)},
      {Word::Id, Line(root, qv::tag::Id)},
      {Word::Type, Line(root, qv::tag::Type)},
      {Word::ZeroOutside, writer.Said(zero ? Word::Yes : Word::No)},
      {Word::Revision, Line(root, qv::tag::Revision)},
  };
  constexpr std::size_t width = 22;
  for (const auto& [word, value] : fields) {
    std::wstring label = writer.Said(word);
    label.resize(value.empty() ? label.size() : std::max(width, label.size() + 1), L' ');
    writer.Write(label + value);
  }
}

/// The children of the container with this tag, under a heading if there is such a container.
qv::TaggedChildren<const XmlNode> Section(Writer& writer, const XmlNode& root,
                                          const wchar_t* container, const wchar_t* tag,
                                          Word heading) {
  const XmlNode* node = root.Node(container);
  if (node) {
    writer.Write(L"");
    writer.Heading(writer.Said(heading));
  }
  return qv::ChildrenWithTag(node, tag);
}

using NamesById = std::map<std::wstring, std::wstring>;

NamesById WriteHourTypes(Writer& writer, const XmlNode& root) {
  NamesById names;
  for (const XmlNode& hour :
       Section(writer, root, qv::tag::HourTypes, qv::tag::Hour, Word::HourTypes)) {
    const std::wstring value = Line(hour, qv::tag::Value);
    names[Line(hour, qv::tag::Id)] = Line(hour, qv::tag::Name);
    writer.Write(L"  " + Line(hour, qv::tag::Name) + (value.empty() ? L"" : L" = " + value));
  }
  return names;
}

void WriteDayTypes(Writer& writer, const XmlNode& root, const NamesById& hours) {
  for (const XmlNode& day :
       Section(writer, root, qv::tag::DayTypes, qv::tag::Day, Word::DayTypes)) {
    writer.Write(L"  " + Line(day, qv::tag::Name));
    for (const XmlNode& slot : qv::ChildrenWithTag(day, qv::tag::Slot)) {
      const auto hour = hours.find(Line(slot, qv::tag::Id));
      writer.Write(L"    " + Line(slot, qv::tag::From) + L" " + Line(slot, qv::tag::To) + L" " +
                   (hour == hours.end() ? L"?" : hour->second));
    }
  }
}

void WriteCalendar(Writer& writer, const XmlNode& root, qv::Language language) {
  Section(writer, root, qv::tag::Calendar, qv::tag::Year, Word::Calendar);
  for (const std::wstring& line : CalendarAsLines(root, language)) {
    writer.Write(OneLine(line));
  }
}

void WriteConditions(Writer& writer, const XmlNode& root) {
  for (const XmlNode& condition :
       Section(writer, root, qv::tag::Conditions, qv::tag::Condition, Word::Conditions)) {
    writer.Write(L"  " + Line(condition, qv::tag::Name) + L": " +
                 Line(condition, qv::tag::Expression));
  }
}

void WriteDocument(Writer& writer, const XmlNode& root, qv::Language language) {
  WriteFields(writer, root);
  const NamesById hours = WriteHourTypes(writer, root);
  WriteDayTypes(writer, root, hours);
  WriteCalendar(writer, root, language);
  WriteConditions(writer, root);
}

void WriteMade(Writer& writer, const Outcome& outcome) {
  for (const std::wstring& stem : outcome.made) {
    writer.Write(OneLine(writer.Said(Word::Made, {stem.c_str()})));
  }
}

/// What a dry run would have done, in place of what a call has done.
void WriteChanges(Writer& writer, const Outcome& outcome) {
  for (const FileChange& change : outcome.changes) {
    const Word word = change.isRemoved ? Word::WouldRemove : Word::WouldWrite;
    writer.Write(OneLine(writer.Said(word, {change.path.c_str()})));
  }
  if (outcome.changes.empty()) {
    writer.Write(writer.Said(Word::WouldDoNothing));
  }
}

void WriteIndexes(Writer& writer, const Outcome& outcome) {
  for (const IndexEnd& index : outcome.indexes) {
    if (!index.needed || index.written) {
      const Word word = index.needed ? Word::IndexWritten : Word::IndexNotNeeded;
      writer.Write(OneLine(writer.Said(word, {index.stem.c_str()})));
    }
  }
}

/// As many things in words.
std::wstring Counted(const Writer& writer, std::size_t count, Word one, Word several) {
  return count == 1 ? writer.Said(one) : writer.Said(several, {static_cast<unsigned>(count)});
}

/// What was found, counted.
std::wstring Count(const Writer& writer, const qv::CheckedInstallation& checked) {
  const std::wstring files = Counted(writer, checked.files.size(), Word::OneFile, Word::Files);
  const std::wstring faults = Counted(writer, checked.Faults(), Word::OneFault, Word::Faults);
  const std::wstring notes = Counted(writer, checked.Notes(), Word::OneNote, Word::Notes);
  if (checked.findings.empty()) {
    return writer.Said(Word::NothingFound, {files.c_str()});
  }
  if (checked.Faults() > 0 && checked.Notes() > 0) {
    return writer.Said(Word::FaultsAndNotes, {faults.c_str(), notes.c_str(), files.c_str()});
  }
  const std::wstring& found = checked.Faults() > 0 ? faults : notes;
  return writer.Said(Word::Found, {found.c_str(), files.c_str()});
}

std::wstring Told(const Writer& writer, const qv::Finding& finding, qv::Language language) {
  const std::wstring sentence = Sentence(finding, language);
  return finding.file + L": " +
         (finding.IsFault() ? sentence : writer.Said(Word::Note, {sentence.c_str()}));
}

void WriteFindings(Writer& writer, const Outcome& outcome) {
  for (const std::wstring& file : outcome.checked.files) {
    if (outcome.checked.IsListed(file)) {
      writer.Write(OneLine(writer.Said(Word::Listed, {file.c_str()})));
    }
  }
  for (const qv::Finding& finding : outcome.checked.findings) {
    writer.Write(OneLine(Told(writer, finding, outcome.language)));
  }
  writer.Write(Count(writer, outcome.checked));
}

}  // namespace

std::string TextReport(const Arguments& arguments, const Outcome& outcome, bool isTerminal) {
  Writer writer(outcome.language, isTerminal);
  for (const auto* text : {&outcome.payload, &outcome.unsaved, &outcome.unsavedConfiguration}) {
    if (*text) {
      return **text + "\n";
    }
  }
  if (arguments.dryRun) {
    WriteChanges(writer, outcome);
    return writer.Text();
  }
  if (outcome.document) {
    WriteDocument(writer, *outcome.document->Root(), outcome.language);
  } else if (arguments.verb == Verb::List && outcome.errors.empty()) {
    WriteRows(writer, outcome);
  } else if (arguments.verb == Verb::Check && outcome.errors.empty()) {
    WriteFindings(writer, outcome);
  }
  for (const std::wstring& name : outcome.names) {
    writer.Write(OneLine(name));
  }
  WriteMade(writer, outcome);
  for (const std::wstring& line : TypesAsLines(outcome.types, outcome.language)) {
    writer.Write(OneLine(line));
  }
  for (const std::wstring& line : ConditionsAsLines(outcome.conditions, outcome.language)) {
    writer.Write(OneLine(line));
  }
  if (outcome.evaluated && outcome.evaluated->value) {
    writer.Write(EvaluatedAsLine(*outcome.evaluated, outcome.language));
  }
  if (outcome.marked) {
    writer.Write(OneLine(MarkedAsLine(*outcome.marked, outcome.language)));
  }
  WriteIndexes(writer, outcome);
  return writer.Text();
}

}  // namespace qvdisc
