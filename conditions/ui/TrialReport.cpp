#include "conditions/ui/TrialReport.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QVBoxLayout>
#include <algorithm>

#include "conditions/ConditionWords.h"
#include "toolkit/Strings.h"
#include "toolkit/Texts.h"
#include "tools/Format.h"

namespace qv {
namespace {

constexpr std::size_t mostRowsAtStart = 15;
constexpr int charactersAcross = 120;

/// What is told of the condition that comes first, or of there being none.
QString FirstInWords(const std::vector<TriedCondition>& tried, const QVLoadString& loadString) {
  const auto first = FirstTrue(tried);
  if (!first) {
    return OwnText(loadString, Text::NoTrueCondition);
  }
  const TriedCondition& one = tried[static_cast<std::size_t>(*first)];
  const QVWideString& name = one.name.Empty() ? one.expression : one.name;
  const QVWideString wording = ToWide(OwnText(loadString, Text::FirstTrueCondition));
  return ToQString(Format(wording.ToView(), {name}));
}

}  // namespace

TrialReport::TrialReport(QWidget* parent, const QVLoadString& loadString,
                         const std::vector<TriedCondition>& tried)
    : QDialog(parent),
      m_loadString(loadString),
      m_view(new ReportList(this)),
      m_list({m_view}, {}) {
  setWindowTitle(OwnText(loadString, Text::TrialTitle));
  setWindowFlag(Qt::WindowContextHelpButtonHint, false);
  new QVBoxLayout(this);
  ShowFirst(tried);
  ShowRows(tried);
  AddClose();
  connect(m_view, &ReportList::MenuWanted, this, &TrialReport::OnMenu);
  connect(m_view, &ReportList::KeyDown, this, [this](int key, bool control) {
    if (control && key == Qt::Key_C) {
      Copy();
    }
  });
  Enlarge(tried.size());
}

TrialReport::~TrialReport() = default;

void TrialReport::ShowFirst(const std::vector<TriedCondition>& tried) {
  auto* label = new QLabel(FirstInWords(tried, m_loadString), this);
  label->setTextFormat(Qt::PlainText);
  label->setWordWrap(true);
  layout()->addWidget(label);
}

void TrialReport::ShowRows(const std::vector<TriedCondition>& tried) {
  std::vector<ListRow> rows;
  for (const TriedCondition& one : tried) {
    rows.push_back({{ToQString(one.name), ToQString(one.expression),
                     ToQString(PresentResult(one.result, m_loadString))}});
  }
  m_view->setAccessibleName(windowTitle());
  m_list.CreateColumns(m_loadString, {Text::Name, Text::Condition, Text::TrialResult});
  m_list.Show(rows, std::nullopt, FirstTrue(tried));
  layout()->addWidget(m_view);
}

void TrialReport::AddClose() {
  auto* close = new QPushButton(OwnText(m_loadString, Text::CloseReport), this);
  close->setDefault(true);
  connect(close, &QPushButton::clicked, this, &TrialReport::accept);
  layout()->addWidget(close);
  layout()->setAlignment(close, Qt::AlignRight);
}

void TrialReport::Enlarge(std::size_t rows) {
  const int lines = static_cast<int>(std::min(rows, mostRowsAtStart)) + 2;
  const int height = lines * m_view->sizeHintForRow(0) + m_view->header()->sizeHint().height();
  m_view->setMinimumHeight(std::min(height, 3 * m_view->header()->sizeHint().height()));
  resize(fontMetrics().averageCharWidth() * charactersAcross,
         layout()->sizeHint().height() - m_view->sizeHint().height() + height);
}

void TrialReport::Copy() const {
  QStringList lines;
  const auto selected = m_list.SelectedRows();
  for (int row = 0; row < m_view->topLevelItemCount(); ++row) {
    const QTreeWidgetItem& item = *m_view->topLevelItem(row);
    if (selected.empty() || item.isSelected()) {
      lines << QStringList{item.text(0), item.text(1), item.text(2)}.join(QLatin1Char('\t'));
    }
  }
  QGuiApplication::clipboard()->setText(lines.join(QLatin1Char('\n')));
}

void TrialReport::OnMenu(const QPoint& globalPosition) {
  QMenu menu(this);
  menu.addAction(HostCaption(m_loadString, Text::Copy) + QStringLiteral("\tCtrl+C"), this,
                 &TrialReport::Copy);
  menu.exec(globalPosition);
}

}  // namespace qv
