#pragma once

#include <array>
#include <optional>

#include "editor/DiscriminatorForm.h"
#include "toolkit/EditingDialog.h"
#include "ui_1301.h"

class QVHoritzontalLayout;

/// The editor of one discriminator: its name, description, type and flag, and the road to its
/// parts. `IDOK` means that the file was written, `IDCANCEL` also that it could not be loaded.
class CDlgAddModifyDiscriminator : public qv::EditingDialog<qv::DiscriminatorForm> {
  Q_OBJECT

 public:
  /// `deviceGroups` is the root of the caller's copy of the host's node, or null; a new
  /// discriminator gets its entry there. `filePath` is null for a new discriminator.
  CDlgAddModifyDiscriminator(qv::XmlNode* deviceGroups, CWnd* parent, const QVWideString* filePath);

 protected:
  std::unique_ptr<qv::DiscriminatorForm> MakeForm() override;
  void OnInitDialog() override;
  void PositioningControls() override;
  qv::SaveEnd Save() override;

 private:
  /// A big button that opens a part of the discriminator.
  struct Link {
    QVHyperlink* control;
    Text text;
    const wchar_t* picture;
    void (CDlgAddModifyDiscriminator::*open)();
  };

  void InitializeTexts();
  void InitializeConditionsLink();
  void InitializeFields();
  void InitializeType();
  bool HasSlots() const;
  void ShowLinksOfType();
  void AddLinks(QVHoritzontalLayout& row) const;
  void AddDetails(QVHoritzontalLayout& row) const;
  void OnSelchangeType(int index);
  void OnHourTypes();
  void OnDayTypes();
  void OnCalendar();
  void OnConditions();

  Ui::Template1301 m_ui;
  std::array<Link, 4> m_links;
  qv::XmlNode* m_deviceGroups;
  std::optional<QVWideString> m_filePath;
};
