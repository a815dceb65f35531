#pragma once

#include <QBasicTimer>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <optional>

#include "host/QVVornelSetup.h"
#include "hostkit/ExpressionSupport.h"
#include "hostkit/ExpressionTrial.h"
#include "toolkit/ExpressionEdit.h"

class CImageButton;

namespace qv {

class EmptyHint;
class VariableTree;
class VocabularyList;

/// What a wizard works with; all of it outlives the wizard.
struct WizardServices {
  const ExpressionSupport& expressions;
  const QVLoadString& texts;
  const QVVornelSetup& setup;
};

/// The window in which an expression is composed: what it may be made of, the expression, and its
/// result of the moment. Confirmed or not, the expression needn't be right.
class ExpressionWizard : public QDialog {
  Q_OBJECT

 public:
  /// The most characters that are kept of a condition; those behind are marked.
  static constexpr int KeptOfCondition = 64;

  ExpressionWizard(const WizardServices& services, const ExpressionDemand& demand,
                   QWidget* parent = nullptr);

  /// Shows `text`, of which a place is selected.
  void SetExpression(const QString& text, ExpressionPlace selection);
  QString Expression() const { return m_expression->text(); }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void timerEvent(QTimerEvent* event) override;

 private:
  void MakeControls();
  void LayOut();
  QLabel* NewLabel(Text text, QWidget* buddy);
  CImageButton* NewButton(Text text, const wchar_t* picture);
  void Connect();
  void Find(const QString& words);
  void GoToVariables();
  void Insert(const QString& entry);
  bool Drop(QDropEvent& event);
  void Try();
  void Mark();

  WizardServices m_services;
  ExpressionDemand m_demand;
  std::optional<ExpressionPlace> m_wrong;  ///< where the expression is wrong, if it is
  QBasicTimer m_refresh;
  QLineEdit* m_words;
  VariableTree* m_variables;
  EmptyHint* m_noVariables;
  VocabularyList* m_vocabulary;
  ExpressionEdit* m_expression;
  QLabel* m_length;
  QLabel* m_result;
};

}  // namespace qv
