#include "hostkit/ui/VariableTree.h"

#include <QHeaderView>
#include <QTimerEvent>
#include <algorithm>
#include <array>
#include <memory>

#include "hostkit/DecimalNumber.h"
#include "hostkit/VariableNames.h"
#include "toolkit/Caption.h"
#include "toolkit/Strings.h"
#include "toolkit/Texts.h"

namespace qv {
namespace {

enum Column { NameColumn, DescriptionColumn, UnitColumn, ValueColumn, ColumnCount };

constexpr int refreshInterval = 1000;  // milliseconds
constexpr int aroundText = 16;         // of a column's cell, beside its text

/// The row of a variable, which looks its value up whenever it is shown. It knows the variable by
/// name, because the devices may be read anew meanwhile.
class VariableRow : public QTreeWidgetItem {
 public:
  VariableRow(const ExpressionSupport& support, const Device& device, const Variable& variable)
      : m_support(support), m_device(device.Name()), m_variable(variable.name) {
    setText(NameColumn, ToQString(variable.name));
    setText(DescriptionColumn, ToQString(variable.description));
    setText(UnitColumn, ToQString(variable.unit));
    setTextAlignment(ValueColumn, {Qt::AlignRight | Qt::AlignVCenter});
  }

  QVariant data(int column, int role) const override {
    if (role == Qt::ToolTipRole) {
      return PlainToolTip(text(column));
    }
    return column == ValueColumn && role == Qt::DisplayRole ? Value()
                                                            : QTreeWidgetItem::data(column, role);
  }

 private:
  QString Value() const {
    const Device* device = m_support.Devices().Find(m_device);
    const Variable* variable = device ? device->Find(m_variable) : nullptr;
    if (!variable) {
      return {};
    }
    const auto value = m_support.ValueOf(*variable);
    return ToQString(value ? NumberText(*value) : m_support.ValueText(*variable));
  }

  const ExpressionSupport& m_support;
  std::wstring m_device;
  std::wstring m_variable;
};

bool HasAll(const QStringList& words, const Device& device, const Variable& variable) {
  const QString text =
      ToQString(device.Name() + L'.' + variable.name + L' ' + variable.description);
  return std::ranges::all_of(
      words, [&text](const QString& word) { return text.contains(word, Qt::CaseInsensitive); });
}

/// The rows of those variables of `device` that may stand in an expression and have the words.
QList<QTreeWidgetItem*> RowsOf(const Device& device, const ExpressionSupport& support,
                               const VariableFilter& allowed, const QStringList& words) {
  QList<QTreeWidgetItem*> rows;
  for (const Variable& variable : device.Variables()) {
    const auto written = WrittenName(device.Name(), variable.name);
    if (written && allowed.Allows(variable) && HasAll(words, device, variable)) {
      rows.append(new VariableRow(support, device, variable));
      EntryTree::MakeEntry(*rows.back(), ToQString(*written));
    }
  }
  return rows;
}

}  // namespace

VariableTree::VariableTree(const ExpressionSupport& support, const QVLoadString& texts,
                           const VariableFilter& allowed, QWidget* parent)
    : EntryTree(parent), m_support(support), m_allowed(allowed) {
  setHeaderLabels({HostText(texts, Text::Name), HostText(texts, Text::Description),
                   HostText(texts, Text::WizardUnit), HostText(texts, Text::WizardValue)});
  header()->setStretchLastSection(false);
  header()->setSectionResizeMode(DescriptionColumn, QHeaderView::Stretch);
  Find({});
}

void VariableTree::Find(const QString& words) {
  const QStringList all = words.split(u' ', Qt::SkipEmptyParts);
  QList<QTreeWidgetItem*> devices;
  for (const Device& device : m_support.Devices().Devices()) {
    const auto rows = m_allowed.Allows(device) ? RowsOf(device, m_support, m_allowed, all)
                                               : QList<QTreeWidgetItem*>();
    if (!rows.isEmpty()) {
      devices.append(new QTreeWidgetItem({ToQString(device.Name())}));
      devices.back()->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable);
      devices.back()->addChildren(rows);
    }
  }
  clear();
  addTopLevelItems(devices);
  expandAll();
}

void VariableTree::GoToFirst() {
  if (const QTreeWidgetItem* device = topLevelItem(0)) {
    setCurrentItem(device->child(0));
  }
}

void VariableTree::resizeEvent(QResizeEvent* event) {
  EntryTree::resizeEvent(event);
  SizeColumns();
}

void VariableTree::showEvent(QShowEvent* event) {
  EntryTree::showEvent(event);
  SizeColumns();
  m_refresh.start(refreshInterval, this);
}

void VariableTree::hideEvent(QHideEvent* event) {
  EntryTree::hideEvent(event);
  m_refresh.stop();
}

void VariableTree::timerEvent(QTimerEvent* event) {
  if (event->timerId() == m_refresh.timerId()) {
    viewport()->update();
  } else {
    EntryTree::timerEvent(event);
  }
}

/// Columns as wide as their texts, but so that none of them takes the room of the others.
void VariableTree::SizeColumns() {
  constexpr std::array shares{std::pair{NameColumn, 35}, std::pair{UnitColumn, 15},
                              std::pair{ValueColumn, 25}};  // per cent of the width
  for (const auto& [column, share] : shares) {
    const int wanted =
        std::max(sizeHintForColumn(column) + aroundText, header()->sectionSizeHint(column));
    setColumnWidth(column, std::min(wanted, viewport()->width() * share / 100));
  }
}

}  // namespace qv
