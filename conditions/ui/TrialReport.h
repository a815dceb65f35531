#pragma once

#include <QDialog>
#include <optional>
#include <vector>

#include "conditions/ConditionTrial.h"
#include "host/QVLoadString.h"
#include "toolkit/ListPart.h"

namespace qv {

/// Shows what conditions give at present, in their order, and which of them comes first. Control+C
/// copies the lines that are selected, or all if none is.
class TrialReport : public QDialog {
  Q_OBJECT

 public:
  TrialReport(QWidget* parent, const QVLoadString& loadString,
              const std::vector<TriedCondition>& tried);
  ~TrialReport() override;

 private:
  void ShowFirst(const std::vector<TriedCondition>& tried);
  void ShowRows(const std::vector<TriedCondition>& tried);
  void AddClose();
  void Copy() const;
  void OnMenu(const QPoint& globalPosition);
  void Enlarge(std::size_t rows);

  const QVLoadString& m_loadString;
  ReportList* m_view;
  ListPart m_list;
};

}  // namespace qv
