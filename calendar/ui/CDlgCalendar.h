#pragma once

#include <optional>

#include "calendar/CalendarForm.h"
#include "toolkit/EditingDialog.h"
#include "toolkit/ListPart.h"
#include "ui_1309.h"

class QVCalendar;

/// Gives dates a day type: a year beside the list of the day types, whose selected row is the brush
/// that marks dates; without one it erases. The fast selection marks many dates at once. `IDOK`
/// always counts as a change, and is never refused.
class CDlgCalendar : public qv::EditingDialog<qv::CalendarForm> {
  Q_OBJECT

 public:
  /// `calendar` is written by OK, `dayTypes` only read, and `hourTypes` not used. All outlive the
  /// dialog.
  CDlgCalendar(CWnd* parent, qv::XmlNode* calendar, qv::XmlNode* dayTypes, qv::XmlNode* hourTypes);
  ~CDlgCalendar() override;

 protected:
  std::unique_ptr<qv::CalendarForm> MakeForm() override;
  void OnInitDialog() override;
  void PositioningControls() override;
  void OnDestroy() override;
  qv::SaveEnd Save() override { return m_form->Save(); }

 private:
  void CreateCalendar();
  void InitializeTexts();
  void InitializeDayTypesList();
  QString WhereDayTypesAreMade() const;
  void SelectBrush(int row);
  void UpdateSelectedAction();
  void ShowAction();
  void OnFastSelection();
  std::optional<qv::FastSelectionChoice> AskForRule();

  Ui::Template1309 m_ui;
  qv::Calendar m_calendarNode;
  qv::DayTypes m_dayTypes;
  std::optional<qv::ListPart> m_list;
  QVCalendar* m_calendar = nullptr;
  QString m_action;  ///< the whole of what the label shows
};
