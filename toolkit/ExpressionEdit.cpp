#include "toolkit/ExpressionEdit.h"

#include <QKeyEvent>
#include <QPainter>
#include <QSignalBlocker>
#include <QTextLayout>
#include <algorithm>
#include <iterator>
#include <utility>

#include "toolkit/ProposalList.h"
#include "toolkit/Strings.h"
#include "toolkit/WidePlaces.h"

namespace qv {
namespace {

bool WantsCompletion(const QKeyEvent& key) {
  return key.key() == Qt::Key_Space && key.modifiers() == Qt::ControlModifier;
}

/// Whether the only proposal is what is written already.
bool IsWritten(const ExpressionProposals& offer, const QString& text) {
  const std::wstring wide = text.toStdWString();
  return offer.proposals.size() == 1 &&
         std::wstring_view(wide).substr(static_cast<std::size_t>(offer.replaced.start),
                                        static_cast<std::size_t>(offer.replaced.length)) ==
             offer.proposals.front().text;
}

}  // namespace

ExpressionEdit::ExpressionEdit(QWidget* parent)
    : QLineEdit(parent), m_list(new ProposalList(this)) {
  connect(m_list, &ProposalList::Clicked, this, &ExpressionEdit::Take);
}

void ExpressionEdit::SetMarks(std::vector<ExpressionMark> marks) {
  m_marks = std::move(marks);
  ShowMarks();
}

void ExpressionEdit::SetProposals(Proposer proposer, const QString& listName) {
  m_proposer = std::move(proposer);
  m_list->setAccessibleName(listName);
}

ExpressionPlace ExpressionEdit::Selection() const {
  const QString whole = text();
  const int qtStart = hasSelectedText() ? selectionStart() : cursorPosition();
  const int start = ToWidePlace(whole, qtStart);
  return {start, ToWidePlace(whole, qtStart + selectionLength()) - start};
}

void ExpressionEdit::Select(ExpressionPlace place) {
  const QString whole = text();
  const int start = ToQtPlace(whole, place.start);
  const int length = ToQtPlace(whole, place.start + place.length) - start;
  if (length > 0) {
    setSelection(start, length);
  } else {
    setCursorPosition(start);
  }
}

void ExpressionEdit::Replace(ExpressionPlace replaced, const QString& text, int cursor) {
  EndUndoStep();
  Select(replaced);
  insert(text);
  Select({replaced.start + cursor, 0});
  EndUndoStep();
}

bool ExpressionEdit::event(QEvent* event) {
  const bool isPress = event->type() == QEvent::KeyPress;
  // Tab and shortcuts have gone their way before a key gets to `keyPressEvent`.
  if (isPress || event->type() == QEvent::ShortcutOverride) {
    const auto* key = static_cast<const QKeyEvent*>(event);
    if (SteersList(*key)) {
      event->accept();
      if (isPress) {
        SteerList(key->key());
      }
      return true;
    }
  }
  return QLineEdit::event(event);
}

void ExpressionEdit::inputMethodEvent(QInputMethodEvent* event) {
  m_composing = !event->preeditString().isEmpty();
  const QString typed = event->commitString();
  QLineEdit::inputMethodEvent(event);
  ShowMarks();
  ProposeAfterDot(typed);
}

void ExpressionEdit::keyPressEvent(QKeyEvent* event) {
  if (WantsCompletion(*event)) {
    Complete();
    return;
  }
  QLineEdit::keyPressEvent(event);
  ProposeAfterDot(event->text());
}

void ExpressionEdit::mousePressEvent(QMouseEvent* event) {
  m_list->Close();
  QLineEdit::mousePressEvent(event);
}

void ExpressionEdit::focusInEvent(QFocusEvent* event) {
  // Tab and mnemonics would select all, and what is inserted next would replace it.
  QFocusEvent plain(event->type(), Qt::OtherFocusReason);
  QLineEdit::focusInEvent(&plain);
}

void ExpressionEdit::focusOutEvent(QFocusEvent* event) {
  m_list->Close();
  const int start = selectionStart();
  const int length = selectionLength();
  const bool isForward = cursorPosition() > start;
  QLineEdit::focusOutEvent(event);
  if (length > 0) {
    setSelection(isForward ? start : start + length, isForward ? length : -length);
  }
  m_composing =
      false;  // a composition doesn't outlive the focus, and not all of them tell their end
  ShowMarks();
}

void ExpressionEdit::hideEvent(QHideEvent* event) {
  m_list->Close();
  QLineEdit::hideEvent(event);
}

void ExpressionEdit::changeEvent(QEvent* event) {
  QLineEdit::changeEvent(event);
  if (event->type() == QEvent::PaletteChange || event->type() == QEvent::EnabledChange) {
    ShowMarks();
  }
}

void ExpressionEdit::paintEvent(QPaintEvent* event) {
  QLineEdit::paintEvent(event);
  QPainter painter(this);
  painter.setPen(FaultColour(palette()));
  const QString whole = text();
  for (const auto& mark : m_marks) {
    const int place = ToQtPlace(whole, mark.place.start);
    if (mark.kind == ExpressionMark::Kind::NotKept && !m_composing && place < whole.size()) {
      const int left = LeftOf(place);
      painter.drawLine(left, cursorRect().top(), left, cursorRect().bottom());
    }
  }
}

void ExpressionEdit::ShowMarks() {
  if (m_composing) {
    return;
  }
  // An edit takes formats from input methods alone. Without a text of its own such an event
  // changes nothing else.
  QInputMethodEvent formats({}, FormatsOf(m_marks, text(), cursorPosition(), palette()));
  QLineEdit::inputMethodEvent(&formats);
}

/// Where the character at a place of Qt's text begins, in the edit's coordinates.
int ExpressionEdit::LeftOf(int qtPlace) const {
  QTextLayout layout(displayText(), font());
  QTextOption direction;
  direction.setTextDirection(layoutDirection());
  layout.setTextOption(direction);
  layout.beginLayout();
  const QTextLine line = layout.createLine();
  layout.endLayout();
  // The edit doesn't tell how far it is scrolled, but where its cursor is.
  return cursorRect().center().x() +
         qRound(line.cursorToX(qtPlace) - line.cursorToX(cursorPosition()));
}

/// What may be written at the cursor, unless it stands there.
ExpressionProposals ExpressionEdit::Ask() const {
  if (!m_proposer || isReadOnly() || m_composing) {
    return {};
  }
  ExpressionProposals offer = m_proposer(text(), ToWidePlace(text(), cursorPosition()));
  if (IsWritten(offer, text())) {
    offer.proposals.clear();
  }
  return offer;
}

void ExpressionEdit::Complete() {
  Propose();
  if (m_offer.proposals.size() == 1) {
    Take(0);
  }
}

void ExpressionEdit::Propose() {
  m_offer = Ask();
  if (m_offer.proposals.empty()) {
    m_list->Close();
  } else {
    const int left = LeftOf(ToQtPlace(text(), m_offer.replaced.start));
    m_list->Open(m_offer.proposals, {std::clamp(left, 0, width()), 0, 1, height()});
  }
}

/// Opens the list if a dot was typed, and brings an open one up to date.
void ExpressionEdit::ProposeAfterDot(const QString& typed) {
  if (typed.endsWith(u'.') || m_list->isVisible()) {
    Propose();
  }
}

bool ExpressionEdit::SteersList(const QKeyEvent& key) const {
  constexpr int keys[] = {Qt::Key_Up,     Qt::Key_Down,  Qt::Key_PageUp, Qt::Key_PageDown,
                          Qt::Key_Return, Qt::Key_Enter, Qt::Key_Tab,    Qt::Key_Escape};
  return m_list->isVisible() && (key.modifiers() & ~Qt::KeypadModifier) == 0 &&
         std::ranges::find(keys, key.key()) != std::end(keys);
}

void ExpressionEdit::SteerList(int key) {
  switch (key) {
    case Qt::Key_Up:
    case Qt::Key_Down:
      m_list->Move(key == Qt::Key_Up ? -1 : 1);
      break;
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
      m_list->Move(key == Qt::Key_PageUp ? -m_list->RowsPerPage() : m_list->RowsPerPage());
      break;
    case Qt::Key_Escape:
      m_list->Close();
      break;
    default:
      Take(m_list->Current());
  }
}

void ExpressionEdit::Take(int row) {
  const ExpressionProposal taken = m_offer.proposals.at(static_cast<std::size_t>(row));
  m_list->Close();
  Replace(m_offer.replaced, ToQString(taken.text), taken.cursor);
  if (text().left(cursorPosition()).endsWith(u'.')) {
    Propose();  // a name that has parts is written part by part
  }
}

/// Ends a step of undo, as an edit does when its cursor moves.
void ExpressionEdit::EndUndoStep() {
  const QSignalBlocker silent(this);
  const int cursor = cursorPosition();
  setCursorPosition(cursor == 0 ? static_cast<int>(text().size()) : 0);
  setCursorPosition(cursor);
}

}  // namespace qv
