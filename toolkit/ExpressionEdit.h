#pragma once

#include <QLineEdit>
#include <functional>
#include <vector>

#include "host/QVEvaluator.h"
#include "toolkit/ExpressionMark.h"

namespace qv {

class ProposalList;

/// An edit for an expression: it marks places of its text, and completes what is written. Its
/// selection stays when it loses the focus, so that others can work on it, and keys that lead to it
/// select nothing.
///
/// All places are in characters of the text as the rules have it (`toolkit/WidePlaces.h` turns
/// those of `QLineEdit`).
class ExpressionEdit : public QLineEdit {
  Q_OBJECT

 public:
  /// What may be written at a place of `text`, from 0 to its length.
  using Proposer = std::function<ExpressionProposals(const QString& text, int place)>;

  explicit ExpressionEdit(QWidget* parent = nullptr);

  /// Shows these marks in place of all others. They stay at their places, whatever becomes of the
  /// text. Nothing is told of it, and undo, selection and
  /// cursor stay.
  void SetMarks(std::vector<ExpressionMark> marks);
  const std::vector<ExpressionMark>& Marks() const { return m_marks; }

  /// Completes by `proposer`: on Control+Space, where a single proposal is taken at once, and
  /// whenever a dot is typed. The list that drops down narrows while one goes on typing. Return,
  /// Tab or a click takes its row, in one step of undo; Escape closes it and nothing else.
  /// `listName` is what assistive technology calls the list.
  void SetProposals(Proposer proposer, const QString& listName);

  /// What is selected; the place of the cursor, of length 0, if nothing is.
  ExpressionPlace Selection() const;

  /// Selects a place, or only puts the cursor there if its length is 0. Places outside the text are
  /// cut.
  void Select(ExpressionPlace place);

  /// Writes `text` in place of `replaced`, as if it had been typed there, in one step of undo, and
  /// puts the cursor behind its first `cursor` characters.
  void Replace(ExpressionPlace replaced, const QString& text, int cursor);

 protected:
  bool event(QEvent* event) override;
  void inputMethodEvent(QInputMethodEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  void hideEvent(QHideEvent* event) override;
  void changeEvent(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  void ShowMarks();
  int LeftOf(int qtPlace) const;
  ExpressionProposals Ask() const;
  void Complete();
  void Propose();
  void ProposeAfterDot(const QString& typed);
  bool SteersList(const QKeyEvent& key) const;
  void SteerList(int key);
  void Take(int row);
  void EndUndoStep();

  std::vector<ExpressionMark> m_marks;
  bool m_composing = false;  ///< an input method has text in the edit that isn't yet taken
  Proposer m_proposer;
  ExpressionProposals m_offer;  ///< what the list shows
  ProposalList* m_list;
};

}  // namespace qv
