#pragma once

#include <memory>
#include <vector>

#include "toolkit/CDialog.h"
#include "toolkit/Export.h"
#include "tools/XmlDocument.h"

class QCheckBox;

namespace Ui {
class Template1302;
}

namespace qv {
class MonthRange;
}

/// Asks for a rule that covers many dates of one year: weekdays, months and a day type. It applies
/// nothing: after `IDOK` the caller reads the three public members and marks the dates.
///
/// `DoModal` gives `IDOK` also with nothing ticked, `IDCANCEL` if the user left without a choice,
/// and -1 if the host has not installed its services.
class QVDISCRIMINATOR_EXPORT CDlgFastSelection : public CDialog {
  Q_OBJECT

 public:
  /// Offers day types by their colours, with red in the lowest byte, and their names, in the order
  /// given: entry i of each makes item i. Both lists are copied; null is an empty list, and what
  /// only one of them has is left out. The year is shown as it is.
  CDlgFastSelection(CWnd* parent, std::vector<DWORD>* colours, std::vector<QVWideString>* names,
                    int year);
  /// Offers the `day` children of `dayTypes`, in the order of the document, read when the dialog
  /// runs. The node outlives the dialog; null has none.
  explicit CDlgFastSelection(CWnd* parent = nullptr, XmlDocument::XmlNode* dayTypes = nullptr,
                             int year = -1);
  ~CDlgFastSelection() override;

  /// Limits the months that can be ticked to those from `first` to `last`, both counted from 1 and
  /// included; to be called before `DoModal`. False, and all twelve can be ticked, if these aren't
  /// two months in this order.
  bool SetMaxMinMonth(int first, int last);

  // The base isn't exported, so that what a host calls stands here.
  int DoModal() override;

  /// Index of the chosen day type, as in the caller's list; -1 if there is none, or before the
  /// first `IDOK`. A run that is cancelled leaves all three as they were.
  int m_nDayType = -1;
  /// Bit 0 for January to bit 11 for December. What several runs of one object tick adds up.
  DWORD m_dwMonths = 0;
  /// Bit 0 for Monday to bit 6 for Sunday; adds up likewise.
  DWORD m_dwWeekDays = 0;

 protected:
  void OnInitDialog() override;
  void PositioningControls() override;
  void OnOK() override;

 private:
  /// A box that is ticked for one weekday or month.
  struct Box {
    QCheckBox* control;
    Text text;
  };

  CDlgFastSelection(CWnd* parent, int year);
  bool InitializeTexts();
  bool InitializeDayTypes();
  void TakeDayTypesOfNode();
  void InitializeBoxes();
  static DWORD MaskOf(const std::vector<Box>& boxes);

  const std::unique_ptr<Ui::Template1302> m_ui;
  const std::unique_ptr<qv::MonthRange> m_months;
  std::vector<Box> m_weekDayBoxes;  // from Monday on
  std::vector<Box> m_monthBoxes;
  bool m_isFromLists = false;  // otherwise from the node
  std::vector<DWORD> m_colours;
  std::vector<QVWideString> m_names;
  XmlDocument::XmlNode* m_dayTypes = nullptr;
  int m_year;
};
