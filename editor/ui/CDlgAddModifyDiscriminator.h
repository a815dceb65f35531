#pragma once

#include <memory>
#include <optional>

#include "editor/DiscriminatorForm.h"
#include "toolkit/CDialog.h"
#include "toolkit/MessageBoxes.h"

class QVHoritzontalLayout;

/// The editor of one discriminator: its name, description, type and flag, and the road to its
/// parts. `IDOK` means that the file was written, `IDCANCEL` also that it could not be loaded.
class CDlgAddModifyDiscriminator : public CDialog {
  Q_OBJECT

 public:
  /// `deviceGroups` is the root of the caller's copy of the host's node, or null; a new
  /// discriminator gets its entry there. `filePath` is null for a new discriminator.
  CDlgAddModifyDiscriminator(qv::XmlNode* deviceGroups, CWnd* parent, const QVWideString* filePath);
  ~CDlgAddModifyDiscriminator() override;

  /// Whether the saved content differs from what was opened. To be read after `DoModal`.
  bool m_modified = false;

 protected:
  std::optional<int> OnCreate() override;
  void OnInitDialog() override;
  void PositioningControls() override;
  void OnOK() override;
  void OnDestroy() override;

 private:
  void InitializeTexts();
  void InitializeFields();
  void InitializeType();
  bool HasSlots() const;
  void ShowLinksOfType();
  void AddLinks(QVHoritzontalLayout& row) const;
  void AddDetails(QVHoritzontalLayout& row) const;
  void OnSelchangeType(int index);
  void OnHourTypes();
  void OnDayTypes();
  qv::DiscriminatorFields Typed() const;

  qv::XmlNode* m_deviceGroups;
  std::optional<QVWideString> m_filePath;
  std::unique_ptr<qv::MessageBoxes> m_boxes;
  std::unique_ptr<qv::DiscriminatorForm> m_form;
};
