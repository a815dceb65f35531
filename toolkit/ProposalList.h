#pragma once

#include <QTreeWidget>
#include <vector>

#include "host/QVEvaluator.h"

namespace qv {

/// The list that drops down from an edit and shows what may be written there: the text, and in
/// grey what it is. It is no pop-up of the system and never takes the focus: the edit has the keys
/// and steers it.
class ProposalList : public QTreeWidget {
  Q_OBJECT

 public:
  /// `owner` is the edit, which it belongs to.
  explicit ProposalList(QWidget* owner);

  /// Shows the proposals, the first of them current, as wide as they need: below `anchor`, a place
  /// of the owner, or above it where the screen has more room there.
  void Open(const std::vector<ExpressionProposal>& proposals, const QRect& anchor);

  /// Hides the list; without a word if it is hidden.
  void Close();

  /// Makes the row so many rows further down current, as far as there are rows.
  void Move(int rows);

  /// The number of the current row.
  int Current() const;

  /// How many rows are to be seen at once.
  int RowsPerPage() const;

 signals:
  /// The user clicked a row.
  void Clicked(int row);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void hideEvent(QHideEvent* event) override;

 private:
  void Fill(const std::vector<ExpressionProposal>& proposals);
  void Place(const QRect& anchor);
  QSize WantedSize() const;
  void TellCurrent();

  QWidget& m_owner;
};

}  // namespace qv
