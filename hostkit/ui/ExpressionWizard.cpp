#include "hostkit/ui/ExpressionWizard.h"

#include <QDropEvent>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QMimeData>
#include <QShortcut>
#include <QSplitter>
#include <QTimerEvent>
#include <QVBoxLayout>
#include <initializer_list>

#include "hostkit/ExpressionBrackets.h"
#include "hostkit/ExpressionInsertion.h"
#include "hostkit/ui/VariableTree.h"
#include "hostkit/ui/VocabularyList.h"
#include "toolkit/CImageButton.h"
#include "toolkit/ControlCaption.h"
#include "toolkit/EmptyHint.h"
#include "toolkit/LimitTyping.h"
#include "toolkit/Strings.h"
#include "toolkit/Texts.h"
#include "tools/Format.h"

namespace qv {
namespace {

constexpr int refreshInterval = 1000;  // milliseconds
constexpr int resultLines = 2;
constexpr QSize openingSize(960, 560);
constexpr QSize leastTree(340, 140);
constexpr QSize leastVocabulary(220, 140);

/// The part of a column with a label above what it is for.
QVBoxLayout* Labelled(QLabel* label, QWidget* control) {
  auto* column = new QVBoxLayout;
  column->setContentsMargins({});
  column->addWidget(label);
  column->addWidget(control);
  return column;
}

QWidget* Pane(QLabel* label, QWidget* control) {
  auto* pane = new QWidget;
  pane->setLayout(Labelled(label, control));
  return pane;
}

void PutInTabOrder(std::initializer_list<QWidget*> widgets) {
  for (const auto* next = widgets.begin() + 1; next != widgets.end(); ++next) {
    QWidget::setTabOrder(*(next - 1), *next);
  }
}

}  // namespace

ExpressionWizard::ExpressionWizard(const WizardServices& services, const ExpressionDemand& demand,
                                   QWidget* parent)
    : QDialog(parent), m_services(services), m_demand(demand) {
  setWindowTitle(HostText(services.texts,
                          demand.isCondition ? Text::WizardConditionTitle : Text::WizardTitle));
  setSizeGripEnabled(true);
  MakeControls();
  LayOut();
  Connect();
  resize(openingSize);
  Find({});
  Try();
  m_expression->setFocus();
  m_refresh.start(refreshInterval, this);
}

void ExpressionWizard::SetExpression(const QString& text, ExpressionPlace selection) {
  SetLoadedText(m_expression, text);
  m_expression->Select(selection);
}

bool ExpressionWizard::eventFilter(QObject* watched, QEvent* event) {
  if (watched == m_expression && event->type() == QEvent::Drop) {
    return Drop(static_cast<QDropEvent&>(*event));
  }
  if (watched == m_words && event->type() == QEvent::KeyPress) {
    const int key = static_cast<const QKeyEvent*>(event)->key();
    if (key == Qt::Key_Down || key == Qt::Key_Return || key == Qt::Key_Enter) {
      GoToVariables();
      return true;
    }
  }
  return QDialog::eventFilter(watched, event);
}

void ExpressionWizard::timerEvent(QTimerEvent* event) {
  if (event->timerId() == m_refresh.timerId()) {
    Try();
  } else {
    QDialog::timerEvent(event);
  }
}

void ExpressionWizard::MakeControls() {
  const QVLoadString& texts = m_services.texts;
  m_words = new QLineEdit(this);
  m_words->setPlaceholderText(HostText(texts, Text::WizardFindHint));
  m_words->setClearButtonEnabled(true);
  m_words->installEventFilter(this);
  m_variables = new VariableTree(m_services.expressions, texts, m_demand.variables, this);
  m_variables->setMinimumSize(leastTree);
  m_noVariables = new EmptyHint(*m_variables);
  m_vocabulary = new VocabularyList(texts, this);
  m_vocabulary->setMinimumSize(leastVocabulary);
  m_expression = new ExpressionEdit(this);
  LimitTyping(m_expression, 0);
  m_expression->installEventFilter(this);
  m_length = new QLabel(this);
  m_length->setTextFormat(Qt::PlainText);
  m_result = new QLabel(this);
  m_result->setTextFormat(Qt::PlainText);
  m_result->setWordWrap(true);
  m_result->setAlignment(Qt::AlignLeading | Qt::AlignTop);
  m_result->setMinimumHeight(resultLines * fontMetrics().lineSpacing());
}

void ExpressionWizard::LayOut() {
  auto* find = new QHBoxLayout;
  find->addWidget(NewLabel(Text::WizardFind, m_words));
  find->addWidget(m_words);
  auto* lists = new QSplitter(Qt::Horizontal);
  lists->addWidget(Pane(NewLabel(Text::WizardVariables, m_variables), m_variables));
  lists->addWidget(Pane(NewLabel(Text::WizardVocabulary, m_vocabulary), m_vocabulary));
  lists->setChildrenCollapsible(false);
  lists->setSizes({4, 3});  // their proportion
  auto* caption = new QHBoxLayout;
  caption->addWidget(NewLabel(Text::WizardExpression, m_expression), 1);
  caption->addWidget(m_length);
  auto* buttons = new QHBoxLayout;
  buttons->addStretch();
  auto* ok = NewButton(Text::ConfirmOk, L"OK-16.png");
  ok->setDefault(true);
  buttons->addWidget(ok);
  auto* cancel = NewButton(Text::ConfirmCancel, L"CANCEL-16.png");
  buttons->addWidget(cancel);
  auto* column = new QVBoxLayout(this);
  column->addLayout(find);
  column->addWidget(lists, 1);
  column->addLayout(caption);
  column->addWidget(m_expression);
  column->addWidget(m_result);
  column->addLayout(buttons);
  PutInTabOrder({m_words, m_variables, m_vocabulary, m_expression, ok, cancel});
  connect(ok, &QPushButton::clicked, this, &QDialog::accept);
  connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
}

QLabel* ExpressionWizard::NewLabel(Text text, QWidget* buddy) {
  auto* label = new QLabel(this);
  label->setBuddy(buddy);
  ShowCaption(label, HostCaption(m_services.texts, text));
  buddy->setAccessibleName(HostText(m_services.texts, text));
  return label;
}

CImageButton* ExpressionWizard::NewButton(Text text, const wchar_t* picture) {
  auto* button = new CImageButton(this);
  button->SetCaption(HostCaption(m_services.texts, text));
  ShowPicture(button, m_services.setup.getImageFilePath() + picture);
  return button;
}

void ExpressionWizard::Connect() {
  connect(m_words, &QLineEdit::textChanged, this, &ExpressionWizard::Find);
  connect(new QShortcut(QKeySequence::Find, this), &QShortcut::activated, this,
          [this] { m_words->setFocus(Qt::ShortcutFocusReason); });
  connect(m_variables, &EntryTree::Chosen, this, &ExpressionWizard::Insert);
  connect(m_vocabulary, &EntryTree::Chosen, this, &ExpressionWizard::Insert);
  connect(m_expression, &QLineEdit::textChanged, this, &ExpressionWizard::Try);
  connect(m_expression, &QLineEdit::cursorPositionChanged, this, &ExpressionWizard::Mark);
  m_expression->SetProposals(
      [this](const QString& text, int place) {
        return EvaluatorFor(m_services.expressions, text.toStdWString(), m_demand)
            ->ProposalsAt(place);
      },
      OwnText(m_services.texts, Text::ExpressionProposals));
}

void ExpressionWizard::Find(const QString& words) {
  m_variables->Find(words);
  m_noVariables->SetHint(HostText(m_services.texts, words.trimmed().isEmpty()
                                                        ? Text::WizardNothingToShow
                                                        : Text::WizardNothingFound));
}

void ExpressionWizard::GoToVariables() {
  m_variables->GoToFirst();
  m_variables->setFocus();
}

/// Puts a variable or a word into the expression, in place of what is selected there.
void ExpressionWizard::Insert(const QString& entry) {
  const std::wstring expression = Expression().toStdWString();
  const std::wstring text = entry.toStdWString();
  const ExpressionPlace replaced = m_expression->Selection();
  const ExpressionWord* word = FindExpressionWord(text);
  const ExpressionInsertion inserted =
      word ? InsertedWord(expression, replaced, *word) : InsertedValue(expression, replaced, text);
  m_expression->Replace(replaced, ToQString(inserted.text), inserted.cursor);
  m_expression->setFocus();
}

/// Takes an entry of the lists as if it had been chosen with the cursor there; false for what comes
/// from elsewhere.
bool ExpressionWizard::Drop(QDropEvent& event) {
  const QString format = QString::fromLatin1(EntryTree::Format);
  if (!event.mimeData()->hasFormat(format)) {
    return false;
  }
  m_expression->setCursorPosition(m_expression->cursorPositionAt(event.position().toPoint()));
  Insert(QString::fromUtf8(event.mimeData()->data(format)));
  event.acceptProposedAction();
  return true;
}

/// Shows the result of the moment.
void ExpressionWizard::Try() {
  const std::wstring expression = Expression().toStdWString();
  const bool isEmpty = Expression().trimmed().isEmpty();
  const ExpressionTrial trial =
      isEmpty ? ExpressionTrial{std::wstring(m_services.texts.Load(Text::WizardEmpty).ToView()), {}}
              : TryExpression(m_services.expressions, m_services.texts, expression, m_demand);
  m_wrong = trial.wrong;
  m_result->setText(ToQString(trial.words));
  m_expression->setAccessibleDescription(ToQString(trial.words));
  if (m_demand.isCondition) {
    m_length->setText(ToQString(Format(m_services.texts.Load(Text::WizardLength).ToView(),
                                       {static_cast<int>(expression.size()), KeptOfCondition})));
  }
  Mark();
}

void ExpressionWizard::Mark() {
  const std::wstring expression = Expression().toStdWString();
  const auto length = static_cast<int>(expression.size());
  std::vector<ExpressionMark> marks;
  if (const auto pair = BracketsAt(expression, m_expression->Selection().start)) {
    marks.push_back({pair->opening, ExpressionMark::Kind::Bracket});
    marks.push_back({pair->closing, ExpressionMark::Kind::Bracket});
  }
  if (m_demand.isCondition && length > KeptOfCondition) {
    marks.push_back({{KeptOfCondition, length - KeptOfCondition}, ExpressionMark::Kind::NotKept});
  }
  if (m_wrong) {
    marks.push_back({*m_wrong, ExpressionMark::Kind::Fault});
  }
  m_expression->SetMarks(std::move(marks));
}

}  // namespace qv
